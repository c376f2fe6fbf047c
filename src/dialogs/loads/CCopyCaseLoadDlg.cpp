#include "dialogs/loads/CCopyCaseLoadDlg.h"

#include "dialogs/frame/Form.h"
#include "dialogs/loads/load_cases.h"
#include "resources/loads_ids.h"

const frame::Form<CCopyCaseLoadDlg>& CCopyCaseLoadDlg::Description() {
  using F = frame::Field<CCopyCaseLoadDlg>;
  const auto cases = [](const CCopyCaseLoadDlg& d) {
    return d.m_pLoadCases ? loads::CopyCaseLoadChoices(*d.m_pLoadCases) : std::vector<std::string>{};
  };
  static const frame::Form<CCopyCaseLoadDlg> form(
      {res::kIddCopyCaseLoad, "Copy Loads", 0, 380},
      {
          F::DropIndex("From:", &CCopyCaseLoadDlg::m_nFrom).Items(cases),
          F::DropIndex("To:", &CCopyCaseLoadDlg::m_nTo).Items(cases),
          F::Real("Multiplied by:", &CCopyCaseLoadDlg::m_dFactor),
          F::Check("Delete existing loads in the target load case", &CCopyCaseLoadDlg::m_bDeleteExisting),
      });
  return form;
}

CCopyCaseLoadDlg::CCopyCaseLoadDlg(QWidget* pParent) : CDialog(Description(), pParent) {}

BOOL CCopyCaseLoadDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  if (!m_strCaption.empty()) setWindowTitle(QString::fromStdString(m_strCaption));
  return 1;
}

bool CCopyCaseLoadDlg::ValidateOnOK() {
  const std::string refusal = loads::CheckCopyCaseLoad(m_nFrom, m_nTo, m_dFactor);
  if (!refusal.empty()) MessageBox(refusal);
  return refusal.empty();
}
