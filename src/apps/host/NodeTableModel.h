#pragma once
#include <QAbstractTableModel>

#include "model/document.h"

// The open document's nodes as the main window lists them, read from the document's vector
// as the view asks for them: a model of a million nodes costs no item per node.
class NodeTableModel : public QAbstractTableModel {
 public:
  enum Column { kId, kX, kY, kZ, kSelected, kColumnCount };

  NodeTableModel(const model::ModelDocument& doc, QObject* parent);

  // After the document changed (opened, edited by a dialog, units converted).
  void Refresh();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

 private:
  const model::ModelDocument& doc_;
  // As of the last refresh: the view must not see the vector change size under it.
  int rows_ = 0;
  int format_ = 0;
  QString headings_[kColumnCount];
};
