#include "dialogs/frame/TemplateBuilder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QButtonGroup>

#include "dialogs/frame/FolderBrowseEdit.h"

namespace frame {
namespace {

QWidget* MakeWidget(const res::Control& c, QWidget* parent) {
  const QString text = QString::fromUtf8(c.text ? c.text : "");
  switch (c.kind) {
    case res::Kind::Static: {
      auto* w = new QLabel(text, parent);
      if (c.flags & res::kAlignRight) w->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
      w->setWordWrap(c.flags & res::kMultiline);
      return w;
    }
    case res::Kind::Edit: {
      auto* w = new QLineEdit(text, parent);
      w->setReadOnly(c.flags & res::kReadOnly);
      if (c.flags & res::kAlignRight) w->setAlignment(Qt::AlignRight);
      if (c.flags & res::kNarrow) w->setFixedWidth(w->fontMetrics().horizontalAdvance(QString(10, '0')) + 16);
      return w;
    }
    case res::Kind::Button: {
      auto* w = new QPushButton(text, parent);
      w->setAutoDefault(false);
      if (c.flags & res::kDefault) w->setDefault(true);
      return w;
    }
    case res::Kind::Check: return new QCheckBox(text, parent);
    case res::Kind::Radio: return new QRadioButton(text, parent);
    case res::Kind::DropList: {
      auto* w = new QComboBox(parent);
      w->setSizeAdjustPolicy(QComboBox::AdjustToContents);
      return w;
    }
    case res::Kind::List: return new QListWidget(parent);
    case res::Kind::ReportList: {
      auto* w = new QTreeWidget(parent);
      w->setRootIsDecorated(false);
      w->setAlternatingRowColors(true);
      w->setSelectionMode(QAbstractItemView::SingleSelection);
      w->setAllColumnsShowFocus(true);
      w->setHeaderLabels(text.split('\t'));
      w->header()->setStretchLastSection(true);
      return w;
    }
    case res::Kind::CheckList: return new QListWidget(parent);
    case res::Kind::Group: return new QGroupBox(text, parent);
    case res::Kind::Placeholder: {
      auto* w = new QFrame(parent);
      w->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
      return w;
    }
    case res::Kind::Progress: {
      auto* w = new QProgressBar(parent);
      w->setTextVisible(false);
      return w;
    }
    case res::Kind::FontCombo: return new QFontComboBox(parent);
    case res::Kind::FolderEdit: return new FolderBrowseEdit(parent);
  }
  return new QWidget(parent);
}

}  // namespace

std::unordered_map<int, QWidget*> BuildFromTemplate(QWidget* dialog, const res::DialogTemplate& tmpl) {
  std::unordered_map<int, QWidget*> items;
  std::unordered_map<int, QGridLayout*> groupLayouts;

  auto* outer = new QVBoxLayout(dialog);
  auto* middle = new QHBoxLayout();
  auto* body = new QGridLayout();
  auto* side = new QVBoxLayout();
  auto* bar = new QHBoxLayout();
  middle->addLayout(body, 1);
  middle->addLayout(side);
  outer->addLayout(middle, 1);
  outer->addLayout(bar);
  bar->addStretch(1);

  // Group boxes first, so the controls inside them find their layout.
  for (const res::Control& c : tmpl.controls) {
    if (c.kind != res::Kind::Group) continue;
    auto* box = new QGroupBox(QString::fromUtf8(c.text ? c.text : ""), dialog);
    auto* grid = new QGridLayout(box);
    groupLayouts[c.id] = grid;
    items[c.id] = box;
  }

  QButtonGroup* radioGroup = nullptr;
  std::vector<std::pair<int, QWidget*>> sideWidgets, barWidgets;
  for (const res::Control& c : tmpl.controls) {
    QWidget* w = c.kind == res::Kind::Group ? items[c.id] : MakeWidget(c, dialog);
    if (c.id != 0) {
      w->setProperty("ctlId", c.id);
      w->setObjectName(QString("ctl_%1").arg(c.id));
      items[c.id] = w;
    }
    if (c.kind == res::Kind::Radio) {
      if (!radioGroup || (c.flags & res::kGroupStart)) radioGroup = new QButtonGroup(dialog);
      radioGroup->addButton(static_cast<QRadioButton*>(w));
    }
    if (c.flags & res::kDisabled) w->setEnabled(false);
    if (c.flags & res::kHidden) w->setVisible(false);

    if (c.row == kSideBar) {
      sideWidgets.emplace_back(c.col, w);
      continue;
    }
    if (c.row == kButtonBar) {
      barWidgets.emplace_back(c.col, w);
      continue;
    }
    QGridLayout* grid = body;
    if (c.group != 0) {
      const auto it = groupLayouts.find(c.group);
      if (it != groupLayouts.end()) grid = it->second;
    }
    grid->addWidget(w, c.row, c.col, c.rowSpan, c.colSpan, (c.flags & res::kNarrow) ? Qt::AlignLeft : Qt::Alignment());
    if (c.flags & res::kStretchRow) grid->setRowStretch(c.row, 1);
    if (c.flags & res::kStretchCol) grid->setColumnStretch(c.col, 1);
  }
  auto byColumn = [](const auto& a, const auto& b) { return a.first < b.first; };
  std::stable_sort(sideWidgets.begin(), sideWidgets.end(), byColumn);
  std::stable_sort(barWidgets.begin(), barWidgets.end(), byColumn);
  for (auto& [col, w] : sideWidgets) side->addWidget(w);
  side->addStretch(1);
  for (auto& [col, w] : barWidgets) bar->addWidget(w);

  if (tmpl.minWidth > 0) dialog->setMinimumWidth(tmpl.minWidth);
  if (tmpl.minHeight > 0) dialog->setMinimumHeight(tmpl.minHeight);
  return items;
}

}  // namespace frame
