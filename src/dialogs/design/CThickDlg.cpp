#include "dialogs/design/CThickDlg.h"

#include "dialogs/design/thickness_grid.h"
#include "resources/sections_ids.h"

const frame::Form<CThickDlg>& CThickDlg::Description() {
  static const frame::Form<CThickDlg> form = TableForm<CThickDlg>(
      {.templateId = res::kIddThick, .caption = "Shell Thickness", .minWidth = 480, .minHeight = 360,
       .okDefault = false});
  return form;
}

CThickDlg::CThickDlg(QWidget* pParent) : CPropertyGridDlg(Description(), pParent) {}

void CThickDlg::Refresh() {
  filled_ = *m_pThicknesses;
  TSpread::RedrawGuard guard(m_Spread);
  thickgrid::Fill(m_Spread.sheet(), *m_pThicknesses, *m_pUnits, m_crAlternateRowColor, m_bModelLocked);
}

bool CThickDlg::Save() {
  thickgrid::ReadResult result = thickgrid::Read(m_Spread.sheet(), filled_);
  if (!m_Spread.ShowFailure(result.failure)) return false;
  *m_pThicknesses = std::move(result.thicknesses);
  return true;
}
