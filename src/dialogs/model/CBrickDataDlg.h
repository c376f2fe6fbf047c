#pragma once
#include <vector>

#include "dialogs/model/CElementDataDlg.h"

// The eight-node brick table: nodes, material and flags; OK replaces the host's brick
// vector.
class CBrickDataDlg : public CElementDataDlg {
 public:
  explicit CBrickDataDlg(QWidget* pParent = nullptr);
  static const frame::Form<CBrickDataDlg>& Description();

  std::vector<fmBrick>* m_pBricks = nullptr;

 protected:
  void Refresh() override { FillRows(*m_pBricks, filled_); }
  bool Save() override { return SaveRows(*m_pBricks, filled_); }

 private:
  std::vector<fmBrick> filled_;  // the elements the rows were filled from, in row order
};
