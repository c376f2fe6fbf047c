#include "dialogs/loads/CMovingLoadDlg.h"

#include "resources/case_loads_ids.h"

const frame::Form<CMovingLoadDlg>& CMovingLoadDlg::Description() {
  using F = frame::Field<CMovingLoadDlg>;
  static const auto form = GeneratorForm<CMovingLoadDlg>(
      res::kIddMovingLoad, "Moving Load",
      "Note: Point loads of the moving load case will be moved on the members.  New loads, load cases and load "
      "combinations are generated appropriately.",
      "Moving load case:",
      {F::Real("Moving step:", &CMovingLoadDlg::m_dStep).Flags(res::kNarrow).Unit(fmUnit::Length),
       F::Check("Bi-Directional", &CMovingLoadDlg::m_bBiDirectional)});
  return form;
}

CMovingLoadDlg::CMovingLoadDlg(QWidget* pParent) : CLoadGeneratorDlg(Description(), "moving load", pParent) {}

bool CMovingLoadDlg::CheckValues() {
  if (m_dStep != 0) return true;
  FailOn(frame::IdOf(&CMovingLoadDlg::m_dStep), "Moving step may be positive or negative, but not zero");
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
