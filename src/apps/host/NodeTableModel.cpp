#include "apps/host/NodeTableModel.h"

#include <algorithm>
#include <limits>

#include "tools/format.h"

namespace {

// A value in the quantity's display format: indices 0 to 5 fixed, 6 to 11 exponential,
// with 1 to 6 decimals.
std::string FormatForDisplay(double value, int formatIndex) {
  const int decimals = formatIndex % 6 + 1;
  return formatIndex < 6 ? tools::Format("%.*f", decimals, value) : tools::Format("%.*e", decimals, value);
}

}  // namespace

NodeTableModel::NodeTableModel(const model::ModelDocument& doc, QObject* parent)
    : QAbstractTableModel(parent), doc_(doc) {
  Refresh();
}

void NodeTableModel::Refresh() {
  beginResetModel();
  // A view counts its rows in an int.
  rows_ = static_cast<int>(std::min<size_t>(doc_.nodes.size(), std::numeric_limits<int>::max()));
  format_ = doc_.display.format[fmUnit::Length];
  const auto heading = [&](const char* name) { return QString::fromStdString(doc_.units.Heading(name, fmUnit::Length)); };
  headings_[kId] = "Node";
  headings_[kX] = heading("X");
  headings_[kY] = heading("Y");
  headings_[kZ] = heading("Z");
  headings_[kSelected] = "Selected";
  endResetModel();
}

int NodeTableModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int NodeTableModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColumnCount; }

QVariant NodeTableModel::data(const QModelIndex& index, int role) const {
  const int row = index.row();
  if (!index.isValid() || row < 0 || row >= rows_ || static_cast<size_t>(row) >= doc_.nodes.size()) return {};
  if (role == Qt::TextAlignmentRole)
    return index.column() == kSelected ? QVariant() : QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (role != Qt::DisplayRole) return {};
  const fmNd& nd = doc_.nodes[static_cast<size_t>(row)];
  switch (index.column()) {
    case kId: return QString::number(nd.id);
    case kX: return QString::fromStdString(FormatForDisplay(nd.x, format_));
    case kY: return QString::fromStdString(FormatForDisplay(nd.y, format_));
    case kZ: return QString::fromStdString(FormatForDisplay(nd.z, format_));
    case kSelected: return nd.IsSelected() ? QString("yes") : QString();
  }
  return {};
}

QVariant NodeTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= kColumnCount) return {};
  return headings_[section];
}
