#include "dialogs/units/CUnitsDlg.h"

#include <QCheckBox>
#include <QComboBox>

#include "dialogs/frame/DataExchange.h"
#include "resources/units_ids.h"
#include "tools/units.h"

using namespace res;

CUnitsDlg::CUnitsDlg(QWidget* pParent) : CDialog(kIddUnits, pParent) {
  OnCommand(kCtlUnitsCheckAll, [this] { OnCheckAll(); });
  OnCommand(kCtlUnitsClearAll, [this] { OnClearAll(); });
  OnCommand(kCtlUnitsDefaultEnglish, [this] { OnDefaultEnglish(); });
  OnCommand(kCtlUnitsDefaultMetric, [this] { OnDefaultMetric(); });
  OnCommand(kCtlUnitsConsistentEnglish, [this] { OnConsistentEnglish(); });
  OnCommand(kCtlUnitsConsistentMetric, [this] { OnConsistentMetric(); });
}

BOOL CUnitsDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  const auto& labels = tools::UnitLabels();
  const auto& quantities = UnitQuantities();
  for (int q = 0; q < fmUnit::QuantityCount; ++q) {
    auto* units = Item<QComboBox>(kCtlUnitsUnit + q);
    auto* precision = Item<QComboBox>(kCtlUnitsPrecision + q);
    if (!units || !precision) continue;
    units->clear();
    precision->clear();
    // Row 15 offers the radian and the degree groups together, radian first.
    for (int i = 0; i < quantities[q].count; ++i)
      units->addItem(QString::fromStdString(labels[quantities[q].first + i]));
    for (const auto& format : tools::PrecisionFormats()) precision->addItem(QString::fromStdString(format));
    if (auto* check = Item<QCheckBox>(kCtlUnitsConvert + q)) {
      check->setChecked(m_Units.convert[q] != 0);
      // A locked model may change how it is shown, never convert what it stores.
      if (m_bModelLocked) check->setEnabled(false);
    }
  }
  SelectLists();
  if (m_bModelLocked) {
    EnableDlgItem(kCtlUnitsCheckAll, false);
    EnableDlgItem(kCtlUnitsClearAll, false);
  }
  return 1;
}

void CUnitsDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_Check(pDX, kCtlUnitsSaveDefaults, m_bSaveAsDefaults);
}

void CUnitsDlg::SelectLists() {
  const auto& quantities = UnitQuantities();
  for (int q = 0; q < fmUnit::QuantityCount; ++q) {
    if (auto* units = Item<QComboBox>(kCtlUnitsUnit + q)) units->setCurrentIndex(m_Units.unit[q] - quantities[q].first);
    if (auto* precision = Item<QComboBox>(kCtlUnitsPrecision + q)) precision->setCurrentIndex(m_Units.precision[q]);
  }
}

void CUnitsDlg::OnOK() {
  const auto& quantities = UnitQuantities();
  fmUnit chosen = m_Units;
  for (int q = 0; q < fmUnit::QuantityCount; ++q) {
    auto* units = Item<QComboBox>(kCtlUnitsUnit + q);
    auto* precision = Item<QComboBox>(kCtlUnitsPrecision + q);
    auto* check = Item<QCheckBox>(kCtlUnitsConvert + q);
    if (units && units->currentIndex() >= 0) chosen.unit[q] = units->currentIndex() + quantities[q].first;
    if (precision && precision->currentIndex() >= 0) chosen.precision[q] = precision->currentIndex();
    if (check) chosen.convert[q] = check->isChecked() ? 1 : 0;
  }
  if (!UpdateData(1)) return;
  m_Units = chosen;
  EndDialog(IDOK);
}

void CUnitsDlg::SetAllChecks(bool checked) {
  for (int q = 0; q < fmUnit::QuantityCount; ++q)
    if (auto* check = Item<QCheckBox>(kCtlUnitsConvert + q)) check->setChecked(checked);
}

void CUnitsDlg::OnCheckAll() { SetAllChecks(true); }
void CUnitsDlg::OnClearAll() { SetAllChecks(false); }

// The presets change the dialog's own record; the check boxes stay as the user left them.
void CUnitsDlg::OnDefaultEnglish() {
  m_Units.SetEnglish();
  SelectLists();
}
void CUnitsDlg::OnDefaultMetric() {
  m_Units.SetMetric();
  SelectLists();
}
void CUnitsDlg::OnConsistentEnglish() {
  m_Units.SetConsistentEnglish();
  SelectLists();
}
void CUnitsDlg::OnConsistentMetric() {
  m_Units.SetConsistentMetric();
  SelectLists();
}
