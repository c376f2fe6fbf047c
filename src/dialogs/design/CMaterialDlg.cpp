#include "dialogs/design/CMaterialDlg.h"

#include "dialogs/design/CStandardMaterialDlg.h"
#include "dialogs/design/material_grid.h"
#include "resources/sections_ids.h"

const frame::Form<CMaterialDlg>& CMaterialDlg::Description() {
  using F = frame::Field<CMaterialDlg>;
  using namespace res;
  static const frame::Form<CMaterialDlg> form = TableForm<CMaterialDlg>(
      {.templateId = kIddMaterial, .caption = "Material", .minWidth = 760, .minHeight = 400,
       .okText = "Apply", .okDefault = false},
      {
          F::Check("Assign active material to currently selected elements", &CMaterialDlg::m_bAssignActive)
              .Id(kCtlMatAssign).Span(1),
          F::Button("Std Material...").Id(kCtlMatStandard),
      });
  return form;
}

CMaterialDlg::CMaterialDlg(QWidget* pParent) : CPropertyGridDlg(Description(), pParent) {
  OnCommand(res::kCtlMatStandard, [this] { OnStdMaterial(); });
}

CMaterialDlg::~CMaterialDlg() = default;

std::vector<int> CMaterialDlg::EditingControls() const { return {res::kCtlMatStandard, res::kCtlMatAssign}; }

BOOL CMaterialDlg::OnInitDialog() {
  CPropertyGridDlg::OnInitDialog();
  ActivateRow(m_nActiveMaterial);
  return 1;
}

double CMaterialDlg::ConvertModulusFromPsiDocumentUnit(double psi) const {
  return psi * matgrid::PsiToDocumentStress(*m_pUnits);
}

void CMaterialDlg::Refresh() {
  filled_ = *m_pMaterials;
  TSpread::RedrawGuard guard(m_Spread);
  matgrid::Fill(m_Spread.sheet(), *m_pMaterials, *m_pUnits, m_crAlternateRowColor, m_bModelLocked);
}

void CMaterialDlg::FillOneRow(const fmMat& material, int row) {
  m_Spread.ChangeCells("Fill Row", {1, row, m_Spread.sheet().MaxCols(), row},
                       [&](grid::Sheet& sheet) { matgrid::FillOneRow(sheet, material, row); });
}

void CMaterialDlg::OnStdMaterial() {
  const int row = ChooseTargetRow(matgrid::kLabel, "Do you want to override the current material?", true);
  if (row == 0) return;
  if (!standard_) standard_ = std::make_unique<CStandardMaterialDlg>(this);
  standard_->m_pUnits = m_pUnits;
  if (standard_->DoModal() != IDOK) return;
  fmMat chosen = standard_->m_Materials[static_cast<size_t>(standard_->m_nMaterial)];
  chosen.id = static_cast<int32_t>(m_Spread.sheet().GetInt(matgrid::kId, row).value_or(row));
  m_mapStdMaterials[chosen.id] = chosen;
  FillOneRow(chosen, row);
}

bool CMaterialDlg::Save() {
  matgrid::ReadResult result = matgrid::Read(m_Spread.sheet(), filled_, m_mapStdMaterials, *m_pUnits);
  if (!m_Spread.ShowFailure(result.failure)) return false;
  *m_pMaterials = std::move(result.materials);
  const int row = m_Spread.GetActiveCell().row;
  m_nActiveMaterial = row;
  if (m_bAssignActive && (row < 1 || row > static_cast<int>(m_pMaterials->size()))) {
    m_nActiveMaterial = -1;
    MessageBox("The current material is not valid.\nNo material assignment takes place.", MessageIcon::Information);
  }
  return true;
}
