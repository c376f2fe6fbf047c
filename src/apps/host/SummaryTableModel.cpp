#include "apps/host/SummaryTableModel.h"

void SummaryTableModel::SetRows(std::vector<std::pair<QString, QString>> rows) {
  beginResetModel();
  rows_ = std::move(rows);
  endResetModel();
}

int SummaryTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int SummaryTableModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : 2; }

QVariant SummaryTableModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !index.isValid() || index.row() >= static_cast<int>(rows_.size())) return {};
  const auto& [key, value] = rows_[static_cast<size_t>(index.row())];
  return index.column() == 0 ? key : value;
}

QVariant SummaryTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return section == 0 ? QString("Model") : section == 1 ? QString("Value") : QVariant();
}
