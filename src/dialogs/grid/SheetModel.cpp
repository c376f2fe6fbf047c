#include "dialogs/grid/SheetModel.h"

#include <QBrush>
#include <QColor>

namespace {
QColor ToQColor(grid::Color c) { return QColor((c >> 16) & 0xFF, (c >> 8) & 0xFF, c & 0xFF); }
// Cells the user may not change (ids, a locked column) are tinted so the eye skips them.
const QColor kLockedTint(0xEE, 0xEE, 0xEE);
}  // namespace

QVariant SheetModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const int col = index.column() + 1, row = index.row() + 1;
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: return QString::fromStdString(sheet_.GetData(col, row));
    case Qt::TextAlignmentRole: {
      switch (sheet_.GetColAlign(col)) {
        case grid::Align::Left: return int(Qt::AlignLeft | Qt::AlignVCenter);
        case grid::Align::Center: return int(Qt::AlignCenter);
        case grid::Align::Right: return int(Qt::AlignRight | Qt::AlignVCenter);
      }
      return {};
    }
    case Qt::BackgroundRole: {
      const grid::Color back = sheet_.GetBackColor(col, row);
      if (back != grid::kNoColor) return QBrush(ToQColor(back));
      if (!sheet_.IsLockedAll() && sheet_.IsLocked(col, row)) return QBrush(kLockedTint);
      return QBrush(ToQColor(row % 2 == 1 ? sheet_.OddRowColor() : sheet_.EvenRowColor()));
    }
    case Qt::ForegroundRole: {
      const grid::Color fore = sheet_.GetForeColor(col, row);
      if (fore != grid::kNoColor) return QBrush(ToQColor(fore));
      return {};
    }
    default: return {};
  }
}

bool SheetModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || role != Qt::EditRole) return false;
  const int col = index.column() + 1, row = index.row() + 1;
  if (sheet_.IsLocked(col, row)) return false;
  const std::string text = value.toString().toStdString();
  if (text == sheet_.GetData(col, row)) return true;
  if (onEdit) return onEdit(col, row, text);
  sheet_.SetTypedData(col, row, text);
  emit dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
  return true;
}

QVariant SheetModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return {};
  if (orientation == Qt::Horizontal) return QString::fromStdString(sheet_.GetData(section + 1, 0));
  const std::string& heading = sheet_.GetData(0, section + 1);
  return heading.empty() ? QVariant(section + 1) : QVariant(QString::fromStdString(heading));
}

Qt::ItemFlags SheetModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  Qt::ItemFlags f = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (!sheet_.IsLocked(index.column() + 1, index.row() + 1)) f |= Qt::ItemIsEditable;
  return f;
}

void SheetModel::CellsChanged(int col1, int row1, int col2, int row2) {
  if (col2 < col1 || row2 < row1 || sheet_.MaxRows() == 0 || sheet_.MaxCols() == 0) return;
  emit dataChanged(index(row1 - 1, col1 - 1), index(row2 - 1, col2 - 1));
}
