#include "dialogs/grid/SheetView.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

#include "dialogs/grid/TSpread.h"

QWidget* SheetDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
  const grid::CellType& type = spread_.sheet().GetCellType(index.column() + 1, index.row() + 1);
  if (type.kind == grid::CellType::Combo) {
    auto* combo = new QComboBox(parent);
    for (const auto& item : type.items) combo->addItem(QString::fromStdString(item));
    return combo;
  }
  auto* edit = new QLineEdit(parent);
  edit->setFrame(false);
  if (type.maxLength > 0) edit->setMaxLength(type.maxLength);
  return edit;
}

void SheetDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  const QString text = index.data(Qt::EditRole).toString();
  if (auto* combo = qobject_cast<QComboBox*>(editor)) {
    const int pos = spread_.sheet().GetComboIndex(index.column() + 1, index.row() + 1);
    combo->setCurrentIndex(pos >= 0 ? pos : 0);
    if (pos < 0) combo->setCurrentText(text);
  } else if (auto* edit = qobject_cast<QLineEdit*>(editor)) {
    edit->setText(text);
  }
}

void SheetDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
  if (auto* combo = qobject_cast<QComboBox*>(editor))
    model->setData(index, combo->currentText(), Qt::EditRole);
  else if (auto* edit = qobject_cast<QLineEdit*>(editor))
    model->setData(index, edit->text(), Qt::EditRole);
}

bool SheetDelegate::eventFilter(QObject* editor, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) view_->NoteEnter();
  }
  return QStyledItemDelegate::eventFilter(editor, event);
}

SheetView::SheetView(TSpread& spread, QWidget* parent) : QTableView(parent), spread_(spread) {
  setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                  QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
  setSelectionMode(QAbstractItemView::ContiguousSelection);
  setContextMenuPolicy(Qt::CustomContextMenu);
  auto* delegate = new SheetDelegate(spread, this);
  delegate->setParent(this);
  setItemDelegate(delegate);
  setWordWrap(false);
  setCornerButtonEnabled(true);
}

void SheetView::MoveDown() {
  const QModelIndex current = currentIndex();
  if (!current.isValid()) return;
  const QModelIndex below = model()->index(current.row() + 1, current.column());
  if (below.isValid()) setCurrentIndex(below);
}

bool SheetView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
  enterPressed_ = false;
  return QTableView::edit(index, trigger, event);
}

void SheetView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  QTableView::closeEditor(editor, hint);
  if (enterPressed_) {
    enterPressed_ = false;
    MoveDown();
  }
}

void SheetView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    spread_.CopySelection();
    return;
  }
  if (event->matches(QKeySequence::Paste)) {
    spread_.PasteClipboard();
    return;
  }
  if (event->key() == Qt::Key_Delete && state() != EditingState) {
    spread_.ClearSelection();
    return;
  }
  if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && state() != EditingState) {
    MoveDown();
    return;
  }
  QTableView::keyPressEvent(event);
}
