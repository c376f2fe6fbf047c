#pragma once
#include <vector>

#include "dialogs/design/CPropertyGridDlg.h"
#include "model/fm_section.h"

// The shell-thickness table; OK rewrites the host's vector with ids = row numbers.
class CThickDlg : public CPropertyGridDlg {
 public:
  explicit CThickDlg(QWidget* pParent = nullptr);
  static const frame::Form<CThickDlg>& Description();

  std::vector<fmThick>* m_pThicknesses = nullptr;
  std::string PrintTitle() const override { return "Shell Thickness Table"; }

 protected:
  void Refresh() override;
  bool Save() override;

 private:
  std::vector<fmThick> filled_;
};
