#pragma once
#include <QAbstractTableModel>
#include <QString>
#include <utility>
#include <vector>

// The main window's summary of the open model (title, file, units, counts, flags): a table
// of two columns, "Model" and "Value", that the window refills after every change.
class SummaryTableModel : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void SetRows(std::vector<std::pair<QString, QString>> rows);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

 private:
  std::vector<std::pair<QString, QString>> rows_;
};
