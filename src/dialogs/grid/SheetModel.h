#pragma once
#include <QAbstractTableModel>
#include <functional>
#include <string>

#include "dialogs/grid/sheet.h"

// A table model that reads the cells of a Sheet; no per-cell objects, so a grid of a
// million rows opens and scrolls at once.
class SheetModel : public QAbstractTableModel {
 public:
  explicit SheetModel(grid::Sheet& sheet, QObject* parent = nullptr) : QAbstractTableModel(parent), sheet_(sheet) {}

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : sheet_.MaxRows(); }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : sheet_.MaxCols(); }
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  // Batched changes: the view re-reads everything once at the end.
  void BeginReset() { beginResetModel(); }
  void EndReset() { endResetModel(); }
  // Tells the view that a block of cells changed (1-based corners).
  void CellsChanged(int col1, int row1, int col2, int row2);

  grid::Sheet& sheet() { return sheet_; }
  bool showRowHeadings = true;
  // A cell edited in the view; true when the text was taken. Without it the text is set.
  std::function<bool(int col, int row, const std::string& text)> onEdit;

 private:
  grid::Sheet& sheet_;
};
