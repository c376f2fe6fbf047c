#include "dialogs/loads/CLoadComboItemDlg.h"

#include <QLineEdit>

#include "dialogs/frame/DataExchange.h"
#include "dialogs/loads/load_combinations.h"
#include "dialogs/loads/load_grids.h"
#include "resources/grid_ids.h"
#include "resources/loads_ids.h"

using namespace res;

CLoadComboItemDlg::CLoadComboItemDlg(QWidget* pParent) : CDialog(kIddLoadComboItem, pParent) {}

std::string CLoadComboItemDlg::PrintTitle() const {
  const auto* edit = Item<QLineEdit>(kCtlItemLabel);
  return loadgrid::FactorTableTitle(edit ? edit->text().toStdString() : m_comb.name);
}

BOOL CLoadComboItemDlg::OnInitDialog() {
  m_strLabel = m_comb.name;
  m_bPDelta = m_comb.pdelta != 0;
  m_bSteelDesign = m_comb.steelDesign != 0;
  m_bTotalDeflection = m_comb.totalDeflection != 0;
  m_bLiveDeflection = m_comb.liveDeflection != 0;
  m_bConcreteDesign = m_comb.concreteDesign != 0;
  m_dSustainedFactor = m_comb.sustainedFactor;
  m_dSpectrumFactor = m_comb.spectrumFactor;
  CDialog::OnInitDialog();
  m_Spread.CreateInPlace(this, kCtlGridPlaceholder, kCtlGrid);
  TSpread::RedrawGuard guard(m_Spread);
  loadgrid::FillFactors(m_Spread.sheet(), loads::CombinationEditorRows(*m_pLoadCases, m_comb), m_crAlternateRowColor,
                        false);
  return 1;
}

void CLoadComboItemDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_Text(pDX, kCtlItemLabel, m_strLabel);
  DDX_Check(pDX, kCtlItemPDelta, m_bPDelta);
  DDX_Check(pDX, kCtlItemSteelDesign, m_bSteelDesign);
  DDX_Check(pDX, kCtlItemTotalDeflection, m_bTotalDeflection);
  DDX_Check(pDX, kCtlItemLiveDeflection, m_bLiveDeflection);
  DDX_Check(pDX, kCtlItemConcreteDesign, m_bConcreteDesign);
  DDX_Text(pDX, kCtlItemSustained, m_dSustainedFactor);
  DDX_Text(pDX, kCtlItemSpectrum, m_dSpectrumFactor);
}

void CLoadComboItemDlg::OnOK() {
  if (!UpdateData(1)) return;
  loads::CombinationEdit edit;
  edit.label = m_strLabel;
  edit.pdelta = m_bPDelta;
  edit.steelDesign = m_bSteelDesign;
  edit.totalDeflection = m_bTotalDeflection;
  edit.liveDeflection = m_bLiveDeflection;
  edit.concreteDesign = m_bConcreteDesign;
  edit.sustainedFactor = m_dSustainedFactor;
  edit.spectrumFactor = m_dSpectrumFactor;
  edit.rows = loadgrid::ReadFactors(m_Spread.sheet());
  fmLoadComb saved;
  const loads::EditCheck check = loads::SaveCombinationEdit(edit, *m_pLoadCombs, m_nIndex, saved);
  if (!check.ok()) {
    FailOn(check.field == loads::EditCheck::Field::SustainedFactor ? kCtlItemSustained : kCtlItemLabel, check.message);
    return;
  }
  m_comb = std::move(saved);
  EndDialog(IDOK);
}
