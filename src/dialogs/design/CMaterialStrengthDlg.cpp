#include "dialogs/design/CMaterialStrengthDlg.h"

#include "resources/sections_ids.h"

// One row per material and no rows to add: nothing of the new-row box to exchange.
void CMaterialStrengthDlg::DoDataExchange(CDataExchange* pDX) { CDialog::DoDataExchange(pDX); }

void CMaterialStrengthDlg::Refresh() {
  TSpread::RedrawGuard guard(m_Spread);
  matgrid::FillStrengths(m_Spread.sheet(), kind_, *m_pMaterials, *m_pUnits, m_crAlternateRowColor, m_bModelLocked);
}

void CMaterialStrengthDlg::FillOneRow(const fmMat& material, int row) {
  m_Spread.ChangeCells("Fill Row", {1, row, m_Spread.sheet().MaxCols(), row},
                       [&](grid::Sheet& sheet) { matgrid::FillStrengthRow(sheet, kind_, material, row); });
}

bool CMaterialStrengthDlg::Save() {
  matgrid::ReadResult result = matgrid::ReadStrengths(m_Spread.sheet(), kind_, *m_pMaterials);
  if (!m_Spread.ShowFailure(result.failure)) return false;
  for (size_t i = 0; i < result.materials.size(); ++i) {
    (*m_pMaterials)[i].fc = result.materials[i].fc;
    (*m_pMaterials)[i].fy = result.materials[i].fy;
    (*m_pMaterials)[i].fys = result.materials[i].fys;
  }
  return true;
}

const frame::Form<CMaterialRcDlg>& CMaterialRcDlg::Description() {
  static const frame::Form<CMaterialRcDlg> form = TableForm<CMaterialRcDlg>(
      {.templateId = res::kIddMaterialRc, .caption = "Concrete Material Strengths", .minWidth = 600, .minHeight = 360,
       .okDefault = false},
      {}, {}, false);
  return form;
}

CMaterialRcDlg::CMaterialRcDlg(QWidget* pParent) : CMaterialStrengthDlg(Description(), matgrid::kConcrete, pParent) {}

const frame::Form<CMaterialSteelDlg>& CMaterialSteelDlg::Description() {
  static const frame::Form<CMaterialSteelDlg> form = TableForm<CMaterialSteelDlg>(
      {.templateId = res::kIddMaterialSteel, .caption = "Steel Material Strengths", .minWidth = 600, .minHeight = 360,
       .okDefault = false},
      {}, {}, false);
  return form;
}

CMaterialSteelDlg::CMaterialSteelDlg(QWidget* pParent) : CMaterialStrengthDlg(Description(), matgrid::kSteel, pParent) {}
