#include "dialogs/loads/CResponseSpectrumAnalysisDlg.h"

#include <QComboBox>

#include "dialogs/frame/Form.h"
#include "dialogs/loads/CResponseSpectraDlg.h"
#include "model/response_spectrum_manager.h"
#include "resources/spectra_ids.h"
#include "tools/labels.h"

using namespace res;
using F = model::SpectrumSettingsField;

namespace {

using D = CResponseSpectrumAnalysisDlg;

int IndexOf(const std::vector<fmResponseSpectrum>& spectra, const std::string& name) {
  for (size_t i = 0; i < spectra.size(); ++i)
    if (tools::LabelsEqual(spectra[i].name, name)) return static_cast<int>(i);
  return -1;
}

}  // namespace

int32_t D::* const D::kSpectrum[3] = {&D::spectrumX_, &D::spectrumY_, &D::spectrumZ_};
double D::* const D::kFactor[3] = {&D::factorX_, &D::factorY_, &D::factorZ_};

const frame::Form<CResponseSpectrumAnalysisDlg>& CResponseSpectrumAnalysisDlg::Description() {
  using Fld = frame::Field<D>;
  const auto methods = [](const D&) {
    return std::vector<std::string>(std::begin(model::kSpectrumCombinations), std::end(model::kSpectrumCombinations));
  };
  static const frame::Form<D> form(
      {.templateId = kIddResponseSpectrumAnalysis, .caption = "Response Spectrum Analysis", .minWidth = 620,
       .numberFlags = kNarrow, .stretchColumn = false},
      {
          Fld::Check("Perform response spectrum analysis", &D::perform_).Id(kCtlRsaPerform).Span(2),
          Fld::Group("Excitation directions").Span(2),
          Fld::Static("Spectrum").At(0, 1).Span(1),
          Fld::Static("Contribution factor").At(0, 2).Span(1),
          Fld::DropIndexOrNone("Direction-X:", &D::spectrumX_).Id(kCtlRsaSpectrumX).At(1, 0).Flags(kStretchCol),
          Fld::Real("", &D::factorX_).Id(kCtlRsaFactorX).At(1, 2),
          Fld::DropIndexOrNone("Direction-Y:", &D::spectrumY_).Id(kCtlRsaSpectrumX + 1).At(2, 0).Flags(kStretchCol),
          Fld::Real("", &D::factorY_).Id(kCtlRsaFactorX + 1).At(2, 2),
          Fld::DropIndexOrNone("Direction-Z:", &D::spectrumZ_).Id(kCtlRsaSpectrumX + 2).At(3, 0).Flags(kStretchCol),
          Fld::Real("", &D::factorZ_).Id(kCtlRsaFactorX + 2).At(3, 2),
          Fld::EndGroup(),
          Fld::DropIndexOrNone("Modal combination:", &D::combination_).Id(kCtlRsaCombination).Items(methods),
          Fld::Real("Critical damping ratio:", &D::damping_).Id(kCtlRsaDamping),
          Fld::Static("").Span(2).Flags(kStretchRow),
          Fld::Button("Spectra...").Id(kCtlRsaSpectra),
      });
  return form;
}

CResponseSpectrumAnalysisDlg::CResponseSpectrumAnalysisDlg(QWidget* pParent) : CDialog(Description(), pParent) {
  OnCommand(kCtlRsaSpectra, [this] { OnSpectra(); });
}

BOOL CResponseSpectrumAnalysisDlg::OnInitDialog() {
  CResponseSpectrumManager& manager = CResponseSpectrumManager::Instance();
  const bool loaded = manager.LoadFile();
  spectra_ = manager.GetSpectra();
  perform_ = m_settings.enabled ? 1 : 0;
  combination_ = model::SpectrumCombinationIndex(m_settings.combination);
  damping_ = m_settings.dampingRatio;
  bool missing = false;
  for (int d = 0; d < 3; ++d) {
    this->*kFactor[d] = m_settings.factor[static_cast<size_t>(d)];
    const std::string& name = m_settings.spectrum[static_cast<size_t>(d)];
    // A model that never chose starts on the first spectrum; a name the file no longer
    // holds is said at once and left unchosen.
    this->*kSpectrum[d] = name.empty() ? 0 : IndexOf(spectra_, name);
    missing = missing || this->*kSpectrum[d] < 0;
  }
  CDialog::OnInitDialog();
  FillSpectra();
  if (m_bModelLocked) EnableDlgItem(IDOK, false);
  if (!loaded) MessageBox(manager.LastError(), MessageIcon::Error);
  if (missing) MessageBox("Invalid spectrum is specified");
  return 1;
}

void CResponseSpectrumAnalysisDlg::FillSpectra() {
  std::vector<std::string> names;
  for (const fmResponseSpectrum& s : spectra_) names.push_back(s.name);
  for (int d = 0; d < 3; ++d) {
    SetComboItems(kCtlRsaSpectrumX + d, names);
    if (auto* combo = Item<QComboBox>(kCtlRsaSpectrumX + d)) combo->setCurrentIndex(this->*kSpectrum[d]);
  }
}

void CResponseSpectrumAnalysisDlg::OnSpectra() {
  if (!UpdateData(1)) return;
  // Keep the choices by name across the list's changes.
  std::string names[3];
  for (int d = 0; d < 3; ++d)
    if (const int i = this->*kSpectrum[d]; i >= 0 && i < static_cast<int>(spectra_.size()))
      names[d] = spectra_[static_cast<size_t>(i)].name;
  CResponseSpectraDlg dlg(this);
  dlg.DoModal();
  spectra_ = CResponseSpectrumManager::Instance().GetSpectra();
  for (int d = 0; d < 3; ++d) this->*kSpectrum[d] = names[d].empty() ? -1 : IndexOf(spectra_, names[d]);
  FillSpectra();
}

bool CResponseSpectrumAnalysisDlg::ValidateOnOK() {
  fmResponseSpectrumSettings s;
  s.enabled = perform_ != 0;
  for (int d = 0; d < 3; ++d) {
    const int i = this->*kSpectrum[d];
    s.spectrum[static_cast<size_t>(d)] = i >= 0 && i < static_cast<int>(spectra_.size()) ? spectra_[static_cast<size_t>(i)].name : "";
    s.factor[static_cast<size_t>(d)] = this->*kFactor[d];
  }
  s.combination = combination_ >= 0 && combination_ < 2 ? model::kSpectrumCombinations[combination_] : m_settings.combination;
  s.dampingRatio = damping_;
  const model::SpectrumSettingsCheck check = model::CheckSpectrumSettings(s, spectra_);
  if (!check.ok()) {
    int focus = 0;
    switch (check.field) {
      case F::Spectrum: focus = kCtlRsaSpectrumX + check.direction; break;
      case F::Combination: focus = kCtlRsaCombination; break;
      case F::Damping: focus = kCtlRsaDamping; break;
      case F::FactorX: case F::Factors: focus = kCtlRsaFactorX; break;
      case F::FactorY: focus = kCtlRsaFactorX + 1; break;
      case F::FactorZ: focus = kCtlRsaFactorX + 2; break;
      case F::None: break;
    }
    FailOn(focus, check.message);
    return false;
  }
  m_settings = s;
  return true;
}
