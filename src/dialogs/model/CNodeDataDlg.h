#pragma once
#include <vector>

#include "dialogs/grid/CDataGridDlg.h"
#include "model/fm_node.h"

// The node table: ids, coordinates in the length unit and status; OK replaces the host's
// node vector.
class CNodeDataDlg : public CDataGridDlg {
 public:
  explicit CNodeDataDlg(QWidget* pParent = nullptr);
  static const frame::Form<CNodeDataDlg>& Description();

  std::vector<fmNd>* m_pNodes = nullptr;
  double m_dEpsilon = 1e-10;  // round-off tolerance

  std::string PrintTitle() const override;

 protected:
  BOOL OnInitDialog() override;
  void Refresh() override;
  bool Save() override;
  void OnRoundOff();

 private:
  std::vector<fmNd> filled_;  // the nodes the rows were filled from, in row order
};
