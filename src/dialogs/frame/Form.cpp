#include "dialogs/frame/Form.h"

#include <algorithm>
#include <map>
#include <string_view>

#include "dialogs/frame/TemplateBuilder.h"
#include "resources/ids.h"
#include "resources/resources.h"

namespace frame {
namespace {

using FK = FieldKind;

bool HasOwnText(FK kind) {
  return kind == FK::Check || kind == FK::Button || kind == FK::Static || kind == FK::Group || kind == FK::Report;
}

bool IsNumber(FK kind) { return kind == FK::Int || kind == FK::UInt || kind == FK::Real; }

bool Stretches(FK kind) { return kind == FK::Grid || kind == FK::List || kind == FK::CheckList || kind == FK::Report; }

res::Kind TemplateKind(FK kind) {
  switch (kind) {
    case FK::Int:
    case FK::UInt:
    case FK::Real:
    case FK::Text:
    case FK::Result: return res::Kind::Edit;
    case FK::Check: return res::Kind::Check;
    case FK::Radio: return res::Kind::Radio;
    case FK::DropIndex:
    case FK::DropText: return res::Kind::DropList;
    case FK::CheckList: return res::Kind::CheckList;
    case FK::List: return res::Kind::List;
    case FK::Report: return res::Kind::ReportList;
    case FK::Folder: return res::Kind::FolderEdit;
    case FK::Font: return res::Kind::FontCombo;
    case FK::Progress: return res::Kind::Progress;
    case FK::Grid: return res::Kind::Placeholder;
    case FK::Button: return res::Kind::Button;
    case FK::Group: return res::Kind::Group;
    case FK::Static:
    case FK::EndGroup: break;
  }
  return res::Kind::Static;
}

// Where the fields of one grid (the dialog body or a group box) go next, and the rightmost
// column its labelled fields use: that column takes the spare width.
struct Container {
  int nextRow = 0;
  int rightmost = -1;
  size_t rightmostControl = 0;
};

}  // namespace

FormBase::FormBase(FormFrame frame, std::vector<FieldLayout> layouts) : frame_(frame), layouts_(std::move(layouts)) {
  AssignIds();
}

void FormBase::AssignIds() {
  int nextControl = res::kAssignedControlBase;
  int nextString = res::kAssignedStringBase + frame_.templateId * res::kAssignedStringsPerForm;
  auto control = [&](int& id) {
    if (id == 0) id = nextControl++;
  };
  auto string = [&](int& id, const char* text) {
    if (id == 0 && text && *text) id = nextString++;
  };
  string(frame_.captionStringId, frame_.caption);
  if (std::string_view(frame_.okText) != "OK") string(frame_.okStringId, frame_.okText);
  for (FieldLayout& f : layouts_) {
    if (f.kind == FK::EndGroup) continue;
    control(f.id);
    if (HasOwnText(f.kind)) {
      string(f.stringId, f.text);
    } else if (f.kind != FK::Radio && *f.text) {
      control(f.labelId);
      string(f.labelStringId, f.text);
    }
    if (*f.suffix || f.quantity >= 0 || f.suffixFlags != 0) {
      control(f.suffixId);
      string(f.suffixStringId, f.suffix);
    }
    f.itemIds.resize(f.kind == FK::Radio ? f.items.size() : 0);
    if (!f.itemIds.empty()) f.itemIds[0] = f.id;
    for (int& id : f.itemIds) control(id);
    f.itemStringIds.assign(f.items.size(), 0);
    for (size_t i = 0; i < f.items.size(); ++i) string(f.itemStringIds[i], f.items[i]);
  }
}

void FormBase::Publish() const {
  if (published_) return;
  published_ = true;
  auto tmpl = std::make_unique<res::DialogTemplate>();
  tmpl->id = frame_.templateId;
  tmpl->captionStringId = frame_.captionStringId;
  tmpl->caption = frame_.caption;
  tmpl->minWidth = frame_.minWidth;
  tmpl->minHeight = frame_.minHeight;
  std::vector<res::Control>& out = tmpl->controls;

  auto addString = [](int id, const char* text) {
    if (id != 0 && text && *text) res::AddGeneratedString(id, text);
  };
  addString(frame_.captionStringId, frame_.caption);
  addString(frame_.okStringId, frame_.okText);

  std::map<int, Container> containers;  // by group id; 0 is the dialog body
  int group = 0, sideButtons = 0;
  std::vector<int> outerGroups;  // a group box may hold another
  // One row of the template; labelled fields note their columns for the stretch.
  auto add = [&](res::Control c, bool labelled) {
    out.push_back(c);
    Container& box = containers[c.group];
    if (labelled && c.col > box.rightmost) box.rightmost = c.col, box.rightmostControl = out.size() - 1;
  };

  for (const FieldLayout& f : layouts_) {
    if (f.kind == FK::EndGroup) {
      group = outerGroups.empty() ? 0 : outerGroups.back();
      if (!outerGroups.empty()) outerGroups.pop_back();
      continue;
    }
    const int span = f.colSpan;
    if (f.kind == FK::Group) {
      Container& outer = containers[group];
      const int row = f.row == kNextRow ? outer.nextRow : f.row;
      out.push_back(
          {f.id, res::Kind::Group, f.stringId, f.text, row, f.col, f.rowSpan, std::max(span, 1), group, f.flags});
      outer.nextRow = std::max(outer.nextRow, row + f.rowSpan);
      addString(f.stringId, f.text);
      outerGroups.push_back(group);
      group = f.id;
      continue;
    }
    if (f.kind == FK::Button && f.row == kNextRow) {
      out.push_back({f.id, res::Kind::Button, f.stringId, f.text, kSideBar, sideButtons++, 1, 1, 0, f.flags});
      addString(f.stringId, f.text);
      continue;
    }
    Container& box = containers[group];
    const int row = f.row == kNextRow ? box.nextRow : f.row;
    int rows = f.rowSpan;
    uint32_t flags = f.flags;
    if (IsNumber(f.kind)) flags |= frame_.numberFlags;
    if (f.kind == FK::Result) flags |= res::kReadOnly;
    if (Stretches(f.kind) && f.autoStretch) flags |= res::kStretchRow | res::kStretchCol;
    if (f.kind == FK::Radio) {
      for (size_t i = 0; i < f.items.size(); ++i) {
        out.push_back({f.itemIds[i], res::Kind::Radio, f.itemStringIds[i], f.items[i], row + static_cast<int>(i), f.col,
                       1, span > 0 ? span : 3, group, flags | (i == 0 ? res::kGroupStart : 0u)});
        addString(f.itemStringIds[i], f.items[i]);
      }
      rows = static_cast<int>(f.items.size());
    } else if (HasOwnText(f.kind) && f.kind != FK::Report) {
      out.push_back({f.id, TemplateKind(f.kind), f.stringId, f.text, row, f.col, f.rowSpan, span > 0 ? span : 3, group,
                     flags});
      addString(f.stringId, f.text);
    } else {
      int controlRow = row, controlCol = f.col;
      const bool labelled = *f.text && f.kind != FK::Report;
      if (labelled && f.labelAbove) {
        add({f.labelId, res::Kind::Static, f.labelStringId, f.text, row, f.col, 1, span > 0 ? span : 3, group,
             f.labelFlags},
            true);
        ++controlRow;
        ++rows;
      } else if (labelled) {
        add({f.labelId, res::Kind::Static, f.labelStringId, f.text, row, f.col, 1, 1, group, f.labelFlags}, true);
        ++controlCol;
      }
      const int controlSpan = span > 0 ? span : (f.labelAbove ? 3 : 1);
      add({f.id, TemplateKind(f.kind), f.kind == FK::Report ? f.stringId : 0, f.kind == FK::Report ? f.text : "",
           controlRow, controlCol, f.rowSpan, controlSpan, group, flags},
          !Stretches(f.kind));
      if (labelled) addString(f.labelStringId, f.text);
      if (f.kind == FK::Report) addString(f.stringId, f.text);
      if (f.suffixId != 0) {
        add({f.suffixId, res::Kind::Static, f.suffixStringId, f.suffix, controlRow, controlCol + controlSpan, 1, 1,
             group, f.suffixFlags},
            true);
        addString(f.suffixStringId, f.suffix);
      }
      for (size_t i = 0; i < f.items.size(); ++i) addString(f.itemStringIds[i], f.items[i]);
    }
    box.nextRow = std::max(box.nextRow, row + rows);
  }
  for (const auto& [id, box] : containers)
    if (frame_.stretchColumn && box.rightmost >= 0) out[box.rightmostControl].flags |= res::kStretchCol;

  using B = FormFrame::Buttons;
  if (frame_.buttons == B::OkCancel || frame_.buttons == B::Ok)
    out.push_back({res::IDOK_, res::Kind::Button, frame_.okStringId ? frame_.okStringId : res::kStrOk, frame_.okText,
                   kButtonBar, 0, 1, 1, 0, frame_.okDefault ? res::kDefault : 0u});
  if (frame_.buttons == B::OkCancel)
    out.push_back({res::IDCANCEL_, res::Kind::Button, res::kStrCancel, "Cancel", kButtonBar, 1});
  if (frame_.buttons == B::Close)
    out.push_back({res::IDCANCEL_, res::Kind::Button, res::kStrClose, "Close", kButtonBar, 1});
  res::AddGeneratedTemplate(std::move(tmpl));
}

void FormBase::PrepareField(CDialog& dlg, const FieldLayout& f, const fmUnit* units,
                            const std::vector<std::string>* items) const {
  if (items) {
    dlg.SetComboItems(f.id, *items);
  } else if (f.kind == FK::DropIndex || f.kind == FK::DropText) {
    std::vector<std::string> texts;
    for (size_t i = 0; i < f.items.size(); ++i) texts.push_back(res::LoadStringOr(f.itemStringIds[i], f.items[i]));
    if (!texts.empty()) dlg.SetComboItems(f.id, texts);
  }
  if (f.quantity >= 0 && units) dlg.SetDlgItemText(f.suffixId, units->Label(static_cast<fmUnit::Quantity>(f.quantity)));
}

}  // namespace frame
