#include "dialogs/loads/CResponseSpectrumAnalysisDlg.h"

#include <QComboBox>
#include <QLineEdit>

#include "dialogs/frame/DataExchange.h"
#include "dialogs/loads/CResponseSpectraDlg.h"
#include "model/response_spectrum_manager.h"
#include "resources/spectra_ids.h"
#include "tools/labels.h"

using namespace res;
using F = model::SpectrumSettingsField;

namespace {

int IndexOf(const std::vector<fmResponseSpectrum>& spectra, const std::string& name) {
  for (size_t i = 0; i < spectra.size(); ++i)
    if (tools::LabelsEqual(spectra[i].name, name)) return static_cast<int>(i);
  return -1;
}

}  // namespace

CResponseSpectrumAnalysisDlg::CResponseSpectrumAnalysisDlg(QWidget* pParent)
    : CDialog(kIddResponseSpectrumAnalysis, pParent) {
  OnCommand(IDOK, [this] { OnBnClickedOk(); });
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
    factor_[d] = m_settings.factor[static_cast<size_t>(d)];
    const std::string& name = m_settings.spectrum[static_cast<size_t>(d)];
    // A model that never chose starts on the first spectrum; a name the file no longer
    // holds is said at once and left unchosen.
    spectrumIndex_[d] = name.empty() ? 0 : IndexOf(spectra_, name);
    missing = missing || spectrumIndex_[d] < 0;
  }
  if (auto* combo = Item<QComboBox>(kCtlRsaCombination)) {
    combo->clear();
    for (const char* method : model::kSpectrumCombinations) combo->addItem(method);
  }
  FillSpectra();
  CDialog::OnInitDialog();
  if (m_bModelLocked) EnableDlgItem(IDOK, false);
  if (!loaded) MessageBox(manager.LastError(), MessageIcon::Error);
  if (missing) MessageBox("Invalid spectrum is specified");
  return 1;
}

void CResponseSpectrumAnalysisDlg::FillSpectra() {
  for (int d = 0; d < 3; ++d) {
    auto* combo = Item<QComboBox>(kCtlRsaSpectrumX + d);
    if (!combo) continue;
    combo->clear();
    for (const fmResponseSpectrum& s : spectra_) combo->addItem(QString::fromStdString(s.name));
    combo->setCurrentIndex(spectrumIndex_[d]);
  }
}

void CResponseSpectrumAnalysisDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_Check(pDX, kCtlRsaPerform, perform_);
  for (int d = 0; d < 3; ++d) {
    DDX_CBIndex(pDX, kCtlRsaSpectrumX + d, spectrumIndex_[d]);
    DDX_Text(pDX, kCtlRsaFactorX + d, factor_[d]);
  }
  DDX_CBIndex(pDX, kCtlRsaCombination, combination_);
  DDX_Text(pDX, kCtlRsaDamping, damping_);
}

void CResponseSpectrumAnalysisDlg::OnSpectra() {
  if (!UpdateData(1)) return;
  // Keep the choices by name across the list's changes.
  std::string names[3];
  for (int d = 0; d < 3; ++d)
    if (spectrumIndex_[d] >= 0 && spectrumIndex_[d] < static_cast<int>(spectra_.size()))
      names[d] = spectra_[static_cast<size_t>(spectrumIndex_[d])].name;
  CResponseSpectraDlg dlg(this);
  dlg.DoModal();
  spectra_ = CResponseSpectrumManager::Instance().GetSpectra();
  for (int d = 0; d < 3; ++d) spectrumIndex_[d] = names[d].empty() ? -1 : IndexOf(spectra_, names[d]);
  FillSpectra();
}

void CResponseSpectrumAnalysisDlg::OnBnClickedOk() {
  if (!UpdateData(1)) return;
  fmResponseSpectrumSettings s;
  s.enabled = perform_ != 0;
  for (int d = 0; d < 3; ++d) {
    const int i = spectrumIndex_[d];
    s.spectrum[static_cast<size_t>(d)] = i >= 0 && i < static_cast<int>(spectra_.size()) ? spectra_[static_cast<size_t>(i)].name : "";
    s.factor[static_cast<size_t>(d)] = factor_[d];
  }
  s.combination = combination_ >= 0 && combination_ < 2 ? model::kSpectrumCombinations[combination_] : m_settings.combination;
  s.dampingRatio = damping_;
  const model::SpectrumSettingsCheck check = model::CheckSpectrumSettings(s, spectra_);
  if (!check.ok()) {
    MessageBox(check.message);
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
    if (QWidget* w = GetDlgItem(focus)) w->setFocus();
    if (auto* edit = Item<QLineEdit>(focus)) edit->selectAll();
    return;
  }
  m_settings = s;
  EndDialog(IDOK);
}
