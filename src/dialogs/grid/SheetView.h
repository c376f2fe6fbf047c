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

// The table view, keyed as a spreadsheet: typing on a cell replaces its text however the
// cell was reached (there is no keyboard search), F2 and double-click edit in place, Enter
// commits and moves down, Tab moves right, Escape cancels the cell's edit only; Ctrl+C, X
// and V copy, cut and paste the block, Delete clears it, Ctrl+Z and Ctrl+Y (Ctrl+Shift+Z)
// undo and redo; Alt+Down opens a drop-down cell's list.
class SheetView : public QTableView {
 public:
  SheetView(TSpread& spread, QWidget* parent);
  // The editor was left with Enter: move down once it has closed.
  void NoteEnter() { enterPressed_ = true; }
  void keyboardSearch(const QString&) override {}

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
  bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;

 private:
  void MoveBy(int rows, int cols);
  // Opens the current cell's editor; with replaceBy the typed key replaces its text.
  QWidget* OpenEditor(QKeyEvent* replaceBy);
  TSpread& spread_;
  bool enterPressed_ = false;
};
