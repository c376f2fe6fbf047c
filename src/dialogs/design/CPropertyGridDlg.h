#pragma once
#include <vector>

#include "dialogs/grid/CDataGridDlg.h"

// The section, thickness and material tables: a data grid whose locked-model handling
// disables the table's own editing buttons too and says only that the model is locked.
class CPropertyGridDlg : public CDataGridDlg {
 public:
  // Wide enough at its first size for every column of the table.
  QSize sizeHint() const override;

 protected:
  explicit CPropertyGridDlg(const frame::FormBase& form, QWidget* pParent) : CDataGridDlg(form, pParent) {}

  // The table's own editing buttons are disabled too, and the message says only that the
  // model is locked.
  GridEditLock EditLock() const override;
  // The controls that edit the table besides OK, the new-row count and "New Rows".
  virtual std::vector<int> EditingControls() const { return {}; }

  // The row that "Regular Section...", "Std Material..." and the like fill: the active row
  // when it is 2 or more (asking `question` first when its label is not empty), else a new
  // row appended at the end; row 1 is never overwritten this way. 0 when the user says No.
  int ChooseTargetRow(int labelColumn, const char* question, bool ask);
  // Shows the row's first cell.
  void ActivateRow(int row);
};
