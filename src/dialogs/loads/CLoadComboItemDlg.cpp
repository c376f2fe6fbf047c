#include "dialogs/loads/CLoadComboItemDlg.h"

#include <QLineEdit>

#include "dialogs/frame/Form.h"
#include "dialogs/loads/load_combinations.h"
#include "dialogs/loads/load_grids.h"
#include "resources/grid_ids.h"
#include "resources/loads_ids.h"

using namespace res;

// Label, flags and factors on the left, the case factors on the right.
const frame::Form<CLoadComboItemDlg>& CLoadComboItemDlg::Description() {
  using F = frame::Field<CLoadComboItemDlg>;
  using D = CLoadComboItemDlg;
  static const frame::Form<D> form(
      {.templateId = kIddLoadComboItem, .caption = "Load Combination", .minWidth = 820, .minHeight = 420,
       .stretchColumn = false},
      {
          F::Text("Label:", &D::m_strLabel),
          F::Check("Perform P-Delta Analysis on this Load Combination", &D::m_bPDelta).Span(2),
          F::Check("Perform Steel Design using this Load Combination", &D::m_bSteelDesign).Span(2),
          F::Check("Perform Concrete Design using this Load Combination", &D::m_bConcreteDesign).Span(2),
          F::Check("Check Total Load Deflection", &D::m_bTotalDeflection).Span(2),
          F::Check("Check Live Load Deflection", &D::m_bLiveDeflection).Span(2),
          F::Real("Sustained Load Factor:", &D::m_dSustainedFactor),
          F::Real("Response Spectrum Load Factor:", &D::m_dSpectrumFactor),
          F::Static("").Span(2).Flags(kStretchRow),
          F::Grid().Id(kCtlGridPlaceholder).At(0, 2, 9, 1).Stretch(kStretchCol),
          F::Button("Print...").Id(kCtlPrint, kStrPrint),
          F::Button("Save...").Id(kCtlSave, kStrSave),
      });
  return form;
}

CLoadComboItemDlg::CLoadComboItemDlg(QWidget* pParent) : CDialog(Description(), pParent) {}

std::string CLoadComboItemDlg::PrintTitle() const {
  const auto* edit = Item<QLineEdit>(frame::IdOf(&CLoadComboItemDlg::m_strLabel));
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
    FailOn(check.field == loads::EditCheck::Field::SustainedFactor ? frame::IdOf(&CLoadComboItemDlg::m_dSustainedFactor)
                                                                  : frame::IdOf(&CLoadComboItemDlg::m_strLabel),
           check.message);
    return;
  }
  m_comb = std::move(saved);
  EndDialog(IDOK);
}
