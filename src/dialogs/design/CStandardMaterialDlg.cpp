#include "dialogs/design/CStandardMaterialDlg.h"

#include <QComboBox>

#include "dialogs/design/standard_materials.h"
#include "dialogs/frame/Form.h"
#include "resources/sections_ids.h"

const frame::Form<CStandardMaterialDlg>& CStandardMaterialDlg::Description() {
  using F = frame::Field<CStandardMaterialDlg>;
  using D = CStandardMaterialDlg;
  const auto labels = [](const D& d) {
    std::vector<std::string> texts;
    for (const fmMat& m : d.m_Materials) texts.push_back(m.label);
    return texts;
  };
  static const frame::Form<D> form(
      {.templateId = res::kIddStandardMaterial, .caption = "Standard Material", .minWidth = 360,
       .stretchColumn = false, .okText = "Ok"},
      {
          F::DropIndex("Material:", &D::m_nMaterial).Items(labels).Span(2),
          F::Real("Unit density:", &D::m_dUnitDensity, 1e-6, 1e20).Suffix("lb/ft^3").Unit(fmUnit::WeightDensity),
      },
      &D::m_pUnits);
  return form;
}

CStandardMaterialDlg::CStandardMaterialDlg(QWidget* pParent)
    : CDialog(Description(), pParent), m_Materials(stdmat::UsTable()) {
  OnSelChange(frame::IdOf(&CStandardMaterialDlg::m_nMaterial), [this] { OnSelChangeMaterial(); });
}

BOOL CStandardMaterialDlg::OnInitDialog() {
  // Every opening starts again from the US table, so a second opening does not convert twice.
  m_Materials = stdmat::UsTable();
  fmUnit units;
  if (m_pUnits) units = *m_pUnits;
  stdmat::ConvertToDocument(m_Materials, units);
  if (m_nMaterial < 0 || m_nMaterial >= static_cast<int>(m_Materials.size())) m_nMaterial = 0;
  m_dUnitDensity = m_Materials[static_cast<size_t>(m_nMaterial)].density;
  CDialog::OnInitDialog();
  return 1;
}

void CStandardMaterialDlg::OnSelChangeMaterial() {
  const auto* combo = Item<QComboBox>(frame::IdOf(&CStandardMaterialDlg::m_nMaterial));
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
