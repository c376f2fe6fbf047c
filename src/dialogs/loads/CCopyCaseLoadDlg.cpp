#include "dialogs/loads/CCopyCaseLoadDlg.h"

#include <QComboBox>

#include "dialogs/frame/DataExchange.h"
#include "dialogs/loads/load_cases.h"
#include "resources/loads_ids.h"

using namespace res;

CCopyCaseLoadDlg::CCopyCaseLoadDlg(QWidget* pParent) : CDialog(kTplCopyCaseLoad, pParent) {}

BOOL CCopyCaseLoadDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  if (!m_strCaption.empty()) setWindowTitle(QString::fromStdString(m_strCaption));
  const std::vector<std::string> choices = loads::CopyCaseLoadChoices(*m_pLoadCases);
  for (int id : {kCtlCopyFrom, kCtlCopyTo}) {
    auto* combo = Item<QComboBox>(id);
    if (!combo) continue;
    combo->clear();
    for (const std::string& c : choices) combo->addItem(QString::fromStdString(c));
  }
  const int32_t count = static_cast<int32_t>(choices.size());
  if (m_nFrom < 0 || m_nFrom >= count) m_nFrom = 0;
  if (m_nTo < 0 || m_nTo >= count) m_nTo = 0;
  UpdateData(0);
  return 1;
}

void CCopyCaseLoadDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_CBIndex(pDX, kCtlCopyFrom, m_nFrom);
  DDX_CBIndex(pDX, kCtlCopyTo, m_nTo);
  DDX_Text(pDX, kCtlCopyFactor, m_dFactor);
  DDX_Check(pDX, kCtlCopyDeleteExisting, m_bDeleteExisting);
}

void CCopyCaseLoadDlg::OnOK() {
  // The members keep the host's values until the choice is accepted.
  const int32_t from = m_nFrom, to = m_nTo;
  const double factor = m_dFactor;
  const BOOL deleteExisting = m_bDeleteExisting;
  const auto restore = [&] { m_nFrom = from, m_nTo = to, m_dFactor = factor, m_bDeleteExisting = deleteExisting; };
  if (!UpdateData(1)) {
    restore();
    return;
  }
  if (const std::string refusal = loads::CheckCopyCaseLoad(m_nFrom, m_nTo, m_dFactor); !refusal.empty()) {
    restore();
    MessageBox(refusal);
    return;
  }
  EndDialog(IDOK);
}
