#include "dialogs/loads/CMovingLoadDlg.h"

#include "dialogs/frame/DataExchange.h"
#include "resources/case_loads_ids.h"

CMovingLoadDlg::CMovingLoadDlg(QWidget* pParent) : CLoadGeneratorDlg(res::kIddMovingLoad, "moving load", pParent) {}

BOOL CMovingLoadDlg::OnInitDialog() {
  CLoadGeneratorDlg::OnInitDialog();
  if (m_pUnits) SetDlgItemText(res::kCtlGenValueUnit, m_pUnits->Label(fmUnit::Length));
  return 1;
}

void CMovingLoadDlg::DoDataExchange(CDataExchange* pDX) {
  CLoadGeneratorDlg::DoDataExchange(pDX);
  DDX_Text(pDX, res::kCtlGenValue, m_dStep);
  DDX_Check(pDX, res::kCtlGenBiDirectional, m_bBiDirectional);
}

bool CMovingLoadDlg::CheckValues() {
  if (m_dStep != 0) return true;
  FailOn(res::kCtlGenValue, "Moving step may be positive or negative, but not zero");
  return false;
}

bool CMovingLoadDlg::Generate(const std::vector<int64_t>& path) {
  model::MovingLoadGenerator generator;
  Prepare(generator);
  const bool generated = generator.Run(path, m_dStep, m_bBiDirectional != 0,
                                       [this](const std::string& question) { return AskYesNo(question); });
  ShowRefusals(generator);
  return generated;
}
