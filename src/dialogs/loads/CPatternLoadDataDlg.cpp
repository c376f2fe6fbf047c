#include "dialogs/loads/CPatternLoadDataDlg.h"

#include "dialogs/frame/DataExchange.h"
#include "resources/case_loads_ids.h"

CPatternLoadDataDlg::CPatternLoadDataDlg(QWidget* pParent)
    : CLoadGeneratorDlg(res::kIddPatternLoad, "pattern load", pParent) {}

BOOL CPatternLoadDataDlg::OnInitDialog() {
  // Normally the live load is patterned: the first case of that type is offered.
  model::PatternLoadGenerator preselect;
  Prepare(preselect);
  preselect.PreselectCase();
  m_nCase = preselect.m_nCase;
  return CLoadGeneratorDlg::OnInitDialog();
}

void CPatternLoadDataDlg::DoDataExchange(CDataExchange* pDX) {
  CLoadGeneratorDlg::DoDataExchange(pDX);
  DDX_Text(pDX, res::kCtlGenValue, m_dRatio);
}

bool CPatternLoadDataDlg::Generate(const std::vector<int64_t>& path) {
  model::PatternLoadGenerator generator;
  Prepare(generator);
  generator.m_dRatio = m_dRatio;
  const bool generated =
      generator.Run(path, [this](const std::string& question) { return AskYesNo(question); });
  ShowRefusals(generator);
  return generated;
}
