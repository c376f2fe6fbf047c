#include "dialogs/design/CStandardMaterialDlg.h"

#include <QComboBox>

#include "dialogs/design/standard_materials.h"
#include "dialogs/frame/DataExchange.h"
#include "resources/sections_ids.h"

CStandardMaterialDlg::CStandardMaterialDlg(QWidget* pParent)
    : CDialog(res::kIddStandardMaterial, pParent), m_Materials(stdmat::UsTable()) {
  OnSelChange(res::kCtlStdMaterial, [this] { OnSelChangeMaterial(); });
}

BOOL CStandardMaterialDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  // Every opening starts again from the US table, so a second opening does not convert twice.
  m_Materials = stdmat::UsTable();
  fmUnit units;
  if (m_pUnits) units = *m_pUnits;
  stdmat::ConvertToDocument(m_Materials, units);
  if (auto* combo = Item<QComboBox>(res::kCtlStdMaterial)) {
    combo->clear();
    for (const fmMat& m : m_Materials) combo->addItem(QString::fromStdString(m.label));
  }
  if (m_nMaterial < 0 || m_nMaterial >= static_cast<int>(m_Materials.size())) m_nMaterial = 0;
  m_dUnitDensity = m_Materials[static_cast<size_t>(m_nMaterial)].density;
  SetDlgItemText(res::kCtlStdDensityUnit, units.Label(fmUnit::WeightDensity));
  UpdateData(0);
  return 1;
}

void CStandardMaterialDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_CBIndex(pDX, res::kCtlStdMaterial, m_nMaterial);
  DDX_Text(pDX, res::kCtlStdDensity, m_dUnitDensity);
  DDV_MinMaxDouble(pDX, m_dUnitDensity, 1e-6, 1e20);
}

void CStandardMaterialDlg::OnSelChangeMaterial() {
  const auto* combo = Item<QComboBox>(res::kCtlStdMaterial);
  if (!combo || combo->currentIndex() < 0 || combo->currentIndex() >= static_cast<int>(m_Materials.size())) return;
  m_nMaterial = combo->currentIndex();
  m_dUnitDensity = m_Materials[static_cast<size_t>(m_nMaterial)].density;
  UpdateData(0);
}

void CStandardMaterialDlg::OnOK() {
  if (!UpdateData(1)) return;
  if (m_nMaterial < 0 || m_nMaterial >= static_cast<int>(m_Materials.size())) return;
  fmUnit units;
  if (m_pUnits) units = *m_pUnits;
  stdmat::Finish(m_Materials[static_cast<size_t>(m_nMaterial)], m_nMaterial, m_dUnitDensity, units);
  EndDialog(IDOK);
}
