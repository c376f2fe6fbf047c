#pragma once
#include <QStyledItemDelegate>
#include <QTableView>

class TSpread;
class SheetView;

// Edits a cell with a line edit limited to the cell's length, or a drop-down of its items.
class SheetDelegate : public QStyledItemDelegate {
 public:
  SheetDelegate(TSpread& spread, SheetView* view) : QStyledItemDelegate(nullptr), spread_(spread), view_(view) {}
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

 protected:
  bool eventFilter(QObject* editor, QEvent* event) override;

 private:
  TSpread& spread_;
  SheetView* view_;
};

// The table view: Enter commits and moves to the cell below, Ctrl+C / Ctrl+V copy and paste
// the block, Delete clears it.
class SheetView : public QTableView {
 public:
  SheetView(TSpread& spread, QWidget* parent);
  // The editor was left with Enter: move down once it has closed.
  void NoteEnter() { enterPressed_ = true; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
  bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;

 private:
  void MoveDown();
  TSpread& spread_;
  bool enterPressed_ = false;
};
