#pragma once
#include <vector>

#include "dialogs/model/CElementDataDlg.h"

// The four-node shell table: nodes, material, thickness, local angle and flags; OK
// replaces the host's shell vector.
class CShell4DataDlg : public CElementDataDlg {
 public:
  explicit CShell4DataDlg(QWidget* pParent = nullptr);
  static const frame::Form<CShell4DataDlg>& Description();

  std::vector<fmThick>* m_pThicknesses = nullptr;
  std::vector<fmShell4>* m_pShells = nullptr;

 protected:
  elementgrid::ElementLists Lists() const override;
  void Refresh() override { FillRows(*m_pShells, filled_); }
  bool Save() override { return SaveRows(*m_pShells, filled_); }

 private:
  std::vector<fmShell4> filled_;  // the elements the rows were filled from, in row order
};
