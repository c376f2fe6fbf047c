#include "dialogs/grid/SheetView.h"

#include <QApplication>
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
  // Typing is handled here, not by the view's any-key trigger, and a second click on the
  // current cell does not start a delayed edit that would swallow the first typed key.
  setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
  setSelectionMode(QAbstractItemView::ContiguousSelection);
  setContextMenuPolicy(Qt::CustomContextMenu);
  auto* delegate = new SheetDelegate(spread, this);
  delegate->setParent(this);
  setItemDelegate(delegate);
  setWordWrap(false);
  setCornerButtonEnabled(true);
}

void SheetView::MoveBy(int rows, int cols) {
  const QModelIndex current = currentIndex();
  if (!current.isValid()) return;
  const QModelIndex next = model()->index(current.row() + rows, current.column() + cols);
  if (next.isValid()) setCurrentIndex(next);
}

bool SheetView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
  enterPressed_ = false;
  if (!QTableView::edit(index, trigger, event)) return false;
  // Editing in place starts with the caret after the text, not with the text selected.
  if (trigger == DoubleClicked || trigger == EditKeyPressed)
    if (auto* line = qobject_cast<QLineEdit*>(indexWidget(index))) {
      line->deselect();
      line->end(false);
    }
  return true;
}

QWidget* SheetView::OpenEditor(QKeyEvent* replaceBy) {
  const QModelIndex index = currentIndex();
  if (!index.isValid() || !(model()->flags(index) & Qt::ItemIsEditable)) return nullptr;
  if (!QTableView::edit(index, EditKeyPressed, nullptr)) return nullptr;
  enterPressed_ = false;
  QWidget* editor = indexWidget(index);
  if (!editor) return nullptr;
  if (replaceBy) {
    if (auto* line = qobject_cast<QLineEdit*>(editor)) line->clear();
    // A drop-down picks its first item that starts with the typed letter.
    QKeyEvent copy(QEvent::KeyPress, replaceBy->key(), replaceBy->modifiers(), replaceBy->text());
    QApplication::sendEvent(editor, &copy);
  }
  return editor;
}

void SheetView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  // Tab commits and moves to the next cell without opening it, as Enter moves down.
  int move = 0;
  if (hint == QAbstractItemDelegate::EditNextItem) move = 1;
  if (hint == QAbstractItemDelegate::EditPreviousItem) move = -1;
  if (move) hint = QAbstractItemDelegate::NoHint;
  QTableView::closeEditor(editor, hint);
  if (move) MoveBy(0, move);
  if (enterPressed_) {
    enterPressed_ = false;
    MoveBy(1, 0);
  }
}

void SheetView::keyPressEvent(QKeyEvent* event) {
  // Keys the open editor passes on are the view's usual business.
  if (state() == EditingState) return QTableView::keyPressEvent(event);
  if (event->matches(QKeySequence::Copy)) return spread_.CopySelection();
  if (event->matches(QKeySequence::Paste)) return spread_.PasteClipboard();
  if (event->matches(QKeySequence::Cut)) return spread_.CutSelection();
  if (event->matches(QKeySequence::Undo)) return spread_.Undo();
  const bool ctrl = event->modifiers() & Qt::ControlModifier;
  if (event->matches(QKeySequence::Redo) || (ctrl && event->key() == Qt::Key_Y) ||
      (ctrl && (event->modifiers() & Qt::ShiftModifier) && event->key() == Qt::Key_Z))
    return spread_.Redo();
  switch (event->key()) {
    case Qt::Key_Delete: return spread_.ClearSelection();
    case Qt::Key_Return:
    case Qt::Key_Enter: return MoveBy(1, 0);
    case Qt::Key_Down:
      if (event->modifiers() & Qt::AltModifier) {
        if (auto* combo = qobject_cast<QComboBox*>(OpenEditor(nullptr))) combo->showPopup();
        return;
      }
      break;
    default: break;
  }
  const bool plainText = !event->text().isEmpty() && event->text().at(0).isPrint() &&
                         !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
  if (plainText) {
    OpenEditor(event);  // a locked cell takes nothing, and there is no search to jump elsewhere
    return;
  }
  QTableView::keyPressEvent(event);
}
