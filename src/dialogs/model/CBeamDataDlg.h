#pragma once
#include <vector>

#include "dialogs/model/CElementDataDlg.h"

// The member table: nodes, material, section, local angle, nonlinearity and flags; OK
// replaces the host's member vector.
class CBeamDataDlg : public CElementDataDlg {
 public:
  explicit CBeamDataDlg(QWidget* pParent = nullptr);
  static const frame::Form<CBeamDataDlg>& Description();

  std::vector<fmSect>* m_pSections = nullptr;
  std::vector<fmBm>* m_pBeams = nullptr;

 protected:
  elementgrid::ElementLists Lists() const override;
  void Refresh() override { FillRows(*m_pBeams, filled_); }
  bool Save() override { return SaveRows(*m_pBeams, filled_); }

 private:
  std::vector<fmBm> filled_;  // the elements the rows were filled from, in row order
};
