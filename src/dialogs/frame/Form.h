#pragma once
#include <any>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <type_traits>
#include <vector>

#include "dialogs/frame/CDialog.h"
#include "dialogs/frame/DataExchange.h"
#include "tools/fm_unit.h"

// A dialog's form, described once: one row per field names its control (and string) ids where
// the system names them, its label, its kind, the member it binds, its range and the unit it
// shows. The template rows, the string-table entries and the data exchange all come from it.
namespace frame {

enum class FieldKind : uint8_t {
  Int, UInt, Real, Text,  // edits
  Result,                 // read-only edit
  Check, Radio,
  DropIndex, DropText,    // drop-down bound by index or by text
  CheckList, List, Report,
  Folder, Font, Progress, Grid, Button, Static,
  Group, EndGroup,        // the fields between them are laid out inside the group box (which may hold another)
};

// A field without a row of its own goes below the previous one in its group; a button
// without one goes to the column of buttons on the right.
inline constexpr int kNextRow = -1000;

// What the template and the string table need of one field. Ids left 0 are assigned.
struct FieldLayout {
  FieldKind kind = FieldKind::Static;
  const char* text = "";  // the label; a check's, radio's, button's, static's or group's own text
  int id = 0, stringId = 0;
  int labelId = 0, labelStringId = 0;
  const char* suffix = "";
  int suffixId = 0, suffixStringId = 0;
  int quantity = -1;  // fmUnit quantity whose unit label the suffix shows
  std::vector<const char*> items;  // the radios' texts, or a drop-down's fixed entries
  std::vector<int> itemIds, itemStringIds;
  int row = kNextRow, col = 0, rowSpan = 1, colSpan = 0;
  uint32_t flags = 0, labelFlags = 0, suffixFlags = 0;
  bool labelAbove = false;
  bool autoStretch = true;  // grids, lists and reports take the spare room unless placed otherwise
};

// The caption and frame of a form.
struct FormFrame {
  int templateId;
  const char* caption;
  int captionStringId = 0;
  int minWidth = 0, minHeight = 0;
  uint32_t numberFlags = 0;  // extra template flags of every number edit (res::kNarrow ...)
  enum class Buttons { OkCancel, Ok, Close, None } buttons = Buttons::OkCancel;  // Close: Cancel reads "Close"
  // The rightmost column of labelled fields in each group takes the spare width; a form laid
  // out as a table keeps its columns as wide as their contents.
  bool stretchColumn = true;
  // OK's own text where a dialog names it otherwise ("Apply", "Ok").
  const char* okText = "OK";
  int okStringId = 0;
  bool okDefault = true;  // a table's OK is no default button: Enter belongs to the grid
};

// The untyped part of a form: ids, the template and its strings.
class FormBase {
 public:
  int TemplateId() const { return frame_.templateId; }
  // Puts the template and strings into the resource chain; later calls do nothing.
  void Publish() const;
  const std::vector<FieldLayout>& Layouts() const { return layouts_; }

  // Before the first exchange: drop-down entries and unit labels.
  virtual void Prepare(CDialog& dlg) const = 0;
  virtual void Exchange(CDialog& dlg, CDataExchange* pDX) const = 0;
  // Takes the members' values; the returned function puts them back.
  virtual std::function<void()> Keep(CDialog& dlg) const = 0;

 protected:
  FormBase(FormFrame frame, std::vector<FieldLayout> layouts);
  ~FormBase() = default;
  void PrepareField(CDialog& dlg, const FieldLayout& layout, const fmUnit* units,
                    const std::vector<std::string>* items) const;

 private:
  void AssignIds();

  FormFrame frame_;
  std::vector<FieldLayout> layouts_;
  mutable bool published_ = false;
};

template <class Dlg>
class Field {
 public:
  // Edits of numbers, with the standard range check when a range is given.
  static Field Int(const char* label, int32_t Dlg::* m) { return Number(FieldKind::Int, label, m); }
  static Field Int(const char* label, int32_t Dlg::* m, int32_t lo, int32_t hi) {
    return Number(FieldKind::Int, label, m, [lo, hi](CDataExchange* pDX, int32_t v) { DDV_MinMaxInt(pDX, v, lo, hi); });
  }
  static Field UInt(const char* label, uint32_t Dlg::* m) { return Number(FieldKind::UInt, label, m); }
  static Field UInt(const char* label, uint32_t Dlg::* m, uint32_t lo, uint32_t hi) {
    return Number(FieldKind::UInt, label, m, [lo, hi](CDataExchange* pDX, uint32_t v) { DDV_MinMaxUInt(pDX, v, lo, hi); });
  }
  static Field Real(const char* label, double Dlg::* m) { return Number(FieldKind::Real, label, m); }
  static Field Real(const char* label, double Dlg::* m, double lo, double hi) {
    return Number(FieldKind::Real, label, m, [lo, hi](CDataExchange* pDX, double v) { DDV_MinMaxDouble(pDX, v, lo, hi); });
  }
  static Field Text(const char* label, std::string Dlg::* m) { return Bound(FieldKind::Text, label, m, DDX_TextOf<std::string>); }
  static Field Folder(const char* label, std::string Dlg::* m) { return Bound(FieldKind::Folder, label, m, DDX_TextOf<std::string>); }
  static Field Font(const char* label, std::string Dlg::* m) { return Bound(FieldKind::Font, label, m, DDX_CBString); }
  // An edit the dialog reads itself (a table's new-row count ...).
  static Field Edit(const char* label) { return Plain(FieldKind::Text, label); }
  // A read-only box the dialog writes itself.
  static Field Result(const char* label) { return Plain(FieldKind::Result, label); }
  static Field Check(const char* text, BOOL Dlg::* m) { return Bound(FieldKind::Check, text, m, DDX_Check); }
  // One radio button per text; the member is the index of the checked one.
  static Field Radio(std::initializer_list<const char*> texts, int32_t Dlg::* m) {
    Field f = Bound(FieldKind::Radio, "", m, DDX_Radio);
    f.layout.items = texts;
    return f;
  }
  // A drop-down list bound by index; an index outside the list shows (and reads back) the first entry.
  static Field DropIndex(const char* label, int32_t Dlg::* m) {
    return Bound(FieldKind::DropIndex, label, m, DDX_CBIndexOrFirst);
  }
  // A drop-down bound by index where -1, no entry chosen, is a value of its own.
  static Field DropIndexOrNone(const char* label, int32_t Dlg::* m) {
    return Bound(FieldKind::DropIndex, label, m, DDX_CBIndex);
  }
  // Bound through an accessor, for what a pointer to member cannot name (an element of a
  // member array); the drop-down shows the value less the offset.
  static Field DropIndex(const char* label, std::function<int32_t&(Dlg&)> ref, int32_t offset = 0) {
    Field f = Plain(FieldKind::DropIndex, label);
    f.exchange = [ref, offset](Dlg& d, CDataExchange* pDX, int id) {
      int32_t index = ref(d) - offset;
      DDX_CBIndexOrFirst(pDX, id, index);
      if (pDX->m_bSaveAndValidate) ref(d) = index + offset;
    };
    f.keep = KeepVia(ref);
    return f;
  }
  static Field Check(const char* text, std::function<int32_t&(Dlg&)> ref) {
    Field f = Plain(FieldKind::Check, text);
    f.exchange = [ref](Dlg& d, CDataExchange* pDX, int id) { DDX_Check(pDX, id, ref(d)); };
    f.keep = KeepVia(ref);
    return f;
  }
  static Field DropText(const char* label, std::string Dlg::* m) { return Bound(FieldKind::DropText, label, m, DDX_CBString); }
  static Field Drop(const char* label) { return Plain(FieldKind::DropIndex, label); }
  static Field CheckList(const char* label) { return Plain(FieldKind::CheckList, label); }
  static Field List(const char* label) { return Plain(FieldKind::List, label); }
  static Field Report(const char* headings) { return Plain(FieldKind::Report, headings); }
  static Field Progress() { return Plain(FieldKind::Progress, ""); }
  static Field Grid() { return Plain(FieldKind::Grid, ""); }
  static Field Button(const char* text) { return Plain(FieldKind::Button, text); }
  static Field Static(const char* text) { return Plain(FieldKind::Static, text); }
  static Field Group(const char* text) { return Plain(FieldKind::Group, text); }
  static Field EndGroup() { return Plain(FieldKind::EndGroup, ""); }

  // Ids the system names: the control's, and the string of its own text (check, button ...).
  Field& Id(int id, int stringId = 0) { return layout.id = id, layout.stringId = stringId, *this; }
  Field& LabelId(int id, int stringId) { return layout.labelId = id, layout.labelStringId = stringId, *this; }
  Field& Suffix(const char* text, int id = 0, int stringId = 0) {
    return layout.suffix = text, layout.suffixId = id, layout.suffixStringId = stringId, *this;
  }
  // The suffix shows the current unit of the quantity (the form names the units member).
  Field& Unit(fmUnit::Quantity q) { return layout.quantity = q, *this; }
  Field& At(int row, int col, int rowSpan = 1, int colSpan = 0) {
    return layout.row = row, layout.col = col, layout.rowSpan = rowSpan, layout.colSpan = colSpan, *this;
  }
  Field& Span(int colSpan) { return layout.colSpan = colSpan, *this; }
  Field& Flags(uint32_t flags) { return layout.flags |= flags, *this; }
  // Only these stretch flags, for a grid or list that shares its rows with other fields.
  Field& Stretch(uint32_t flags) { return layout.autoStretch = false, layout.flags |= flags, *this; }
  Field& LabelFlags(uint32_t flags) { return layout.labelFlags |= flags, *this; }
  // The suffix's flags; an empty suffix with flags still holds its column (kStretchCol).
  Field& SuffixFlags(uint32_t flags) { return layout.suffixFlags |= flags, *this; }
  Field& LabelAbove() { return layout.labelAbove = true, *this; }
  // Read back only while the condition holds (the fields of another choice keep their
  // values and their texts are not checked); always shown.
  Field& ReadWhen(std::function<bool(const Dlg&)> when) {
    if (exchange)
      exchange = [inner = exchange, when](Dlg& d, CDataExchange* pDX, int id) {
        if (!pDX->m_bSaveAndValidate || when(d)) inner(d, pDX, id);
      };
    return *this;
  }
  // Shown (with its label and suffix) only while the condition holds when the dialog opens.
  Field& ShownWhen(std::function<bool(const Dlg&)> when) { return shown = std::move(when), *this; }
  // A drop-down's fixed entries (string-table texts) or the dialog's own list of them.
  Field& Items(std::initializer_list<const char*> items) { return layout.items = items, *this; }
  Field& Items(std::function<std::vector<std::string>(const Dlg&)> source) { return items = std::move(source), *this; }

  FieldLayout layout;
  std::any member;  // the pointer to member, found again by IdOf
  std::function<void(Dlg&, CDataExchange*, int id)> exchange;
  std::function<std::function<void(Dlg&)>(Dlg&)> keep;
  std::function<std::vector<std::string>(const Dlg&)> items;
  std::function<bool(const Dlg&)> shown;

 private:
  template <class T>
  static void DDX_TextOf(CDataExchange* pDX, int id, T& value) {
    DDX_Text(pDX, id, value);
  }
  static Field Plain(FieldKind kind, const char* text) {
    Field f;
    f.layout.kind = kind;
    f.layout.text = text;
    return f;
  }
  template <class T, class DDX>
  static Field Bound(FieldKind kind, const char* text, T Dlg::* m, DDX ddx) {
    Field f = Plain(kind, text);
    f.member = m;
    f.exchange = [m, ddx](Dlg& d, CDataExchange* pDX, int id) { ddx(pDX, id, d.*m); };
    f.keep = [m](Dlg& d) { return [m, saved = d.*m](Dlg& into) { into.*m = saved; }; };
    return f;
  }
  static std::function<std::function<void(Dlg&)>(Dlg&)> KeepVia(std::function<int32_t&(Dlg&)> ref) {
    return [ref](Dlg& d) { return [ref, saved = ref(d)](Dlg& into) { ref(into) = saved; }; };
  }
  template <class T>
  static Field Number(FieldKind kind, const char* label, T Dlg::* m,
                      std::type_identity_t<std::function<void(CDataExchange*, T)>> check = nullptr) {
    Field f = Bound(kind, label, m, DDX_TextOf<T>);
    if (check)
      f.exchange = [m, check](Dlg& d, CDataExchange* pDX, int id) {
        DDX_Text(pDX, id, d.*m);
        check(pDX, d.*m);
      };
    return f;
  }
};

template <class Dlg>
class Form final : public FormBase {
 public:
  Form(FormFrame frame, std::vector<Field<Dlg>> fields, fmUnit* Dlg::* units = nullptr)
      : FormBase(frame, LayoutsOf(fields)), fields_(std::move(fields)), units_(units) {
    for (size_t i = 0; i < fields_.size(); ++i) fields_[i].layout = Layouts()[i];
  }

  // The field a member is bound to (its ids, label ...), for the dialog's code and its tests;
  // an empty layout when none is.
  template <class T>
  const FieldLayout& FieldOf(T Dlg::* m) const {
    for (const Field<Dlg>& f : fields_)
      if (const auto* bound = std::any_cast<T Dlg::*>(&f.member); bound && *bound == m) return f.layout;
    static const FieldLayout none;
    return none;
  }
  template <class T>
  int IdOf(T Dlg::* m) const {
    return FieldOf(m).id;
  }

  void Prepare(CDialog& dlg) const override {
    auto* d = dynamic_cast<Dlg*>(&dlg);
    if (!d) return;
    const fmUnit* units = units_ ? d->*units_ : nullptr;
    for (const Field<Dlg>& f : fields_) {
      const std::vector<std::string> items = f.items ? f.items(*d) : std::vector<std::string>{};
      PrepareField(dlg, f.layout, units, f.items ? &items : nullptr);
      if (f.shown)
        for (const int id : {f.layout.id, f.layout.labelId, f.layout.suffixId})
          if (id != 0) dlg.ShowDlgItem(id, f.shown(*d));
    }
  }
  void Exchange(CDialog& dlg, CDataExchange* pDX) const override {
    if (auto* d = dynamic_cast<Dlg*>(&dlg))
      for (const Field<Dlg>& f : fields_)
        if (f.exchange) f.exchange(*d, pDX, f.layout.id);
  }
  std::function<void()> Keep(CDialog& dlg) const override {
    auto* d = dynamic_cast<Dlg*>(&dlg);
    if (!d) return [] {};
    std::vector<std::function<void(Dlg&)>> restore;
    for (const Field<Dlg>& f : fields_)
      if (f.keep) restore.push_back(f.keep(*d));
    return [d, restore = std::move(restore)] {
      for (const auto& r : restore) r(*d);
    };
  }

 private:
  static std::vector<FieldLayout> LayoutsOf(const std::vector<Field<Dlg>>& fields) {
    std::vector<FieldLayout> layouts;
    for (const Field<Dlg>& f : fields) layouts.push_back(f.layout);
    return layouts;
  }

  std::vector<Field<Dlg>> fields_;
  fmUnit* Dlg::* units_;
};

// The control of a form dialog's member, IdOf(&CCopyCaseLoadDlg::m_dFactor), and its field.
template <class Dlg, class T>
int IdOf(T Dlg::* m) {
  return Dlg::Description().IdOf(m);
}
template <class Dlg, class T>
const FieldLayout& FieldOf(T Dlg::* m) {
  return Dlg::Description().FieldOf(m);
}
// The same for a member the dialog inherits, with the dialog named:
// FieldOf<CMovingLoadDlg>(&CMovingLoadDlg::m_nCase).
template <class Dlg, class T, class Base>
  requires(std::is_base_of_v<Base, Dlg> && !std::is_same_v<Base, Dlg>)
const FieldLayout& FieldOf(T Base::* m) {
  return Dlg::Description().FieldOf(static_cast<T Dlg::*>(m));
}
template <class Dlg, class T, class Base>
  requires(std::is_base_of_v<Base, Dlg> && !std::is_same_v<Base, Dlg>)
int IdOf(T Base::* m) {
  return FieldOf<Dlg>(m).id;
}

}  // namespace frame
