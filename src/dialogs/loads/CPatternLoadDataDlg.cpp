#include "dialogs/loads/CPatternLoadDataDlg.h"

#include "resources/case_loads_ids.h"

const frame::Form<CPatternLoadDataDlg>& CPatternLoadDataDlg::Description() {
  using F = frame::Field<CPatternLoadDataDlg>;
  static const auto form = GeneratorForm<CPatternLoadDataDlg>(
      res::kIddPatternLoad, "Pattern Load",
      "Note: Point and line loads of the pattern load case will be patterned on the members based on odd, even and "
      "adjacent spans.  New loads, load cases and load combinations are generated appropriately.",
      "Pattern load case:", {F::Real("Pattern ratio:", &CPatternLoadDataDlg::m_dRatio).Flags(res::kNarrow)});
  return form;
}

CPatternLoadDataDlg::CPatternLoadDataDlg(QWidget* pParent)
    : CLoadGeneratorDlg(Description(), "pattern load", pParent) {}

BOOL CPatternLoadDataDlg::OnInitDialog() {
  // Normally the live load is patterned: the first case of that type is offered.
  model::PatternLoadGenerator preselect;
  Prepare(preselect);
  preselect.PreselectCase();
  m_nCase = preselect.m_nCase;
  return CLoadGeneratorDlg::OnInitDialog();
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
