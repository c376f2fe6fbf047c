#include "dialogs/loads/CStdLoadCombinationDlg.h"

#include <QComboBox>
#include <QListWidget>

#include "dialogs/frame/DataExchange.h"
#include "resources/loads_ids.h"

using namespace res;

CStdLoadCombinationDlg::CStdLoadCombinationDlg(QWidget* pParent) : CDialog(kIddStdLoadCombination, pParent) {
  OnSelChange(kCtlStdCode, [this] { OnSelchangeComboCode(); });
  OnCommand(kCtlStdSelectAll, [this] { OnSelectAll(); });
  OnCommand(kCtlStdClearAll, [this] { OnClearAll(); });
}

BOOL CStdLoadCombinationDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  const auto codes = loads::StandardCombinationCodes();
  if (auto* combo = Item<QComboBox>(kCtlStdCode)) {
    combo->clear();
    for (const loads::StdCombCode& code : codes) combo->addItem(QString::fromUtf8(code.title));
  }
  if (m_nCode < 0 || m_nCode >= static_cast<int32_t>(codes.size())) m_nCode = 0;
  UpdateData(0);
  ResetCheckList(codes[static_cast<size_t>(m_nCode)].rows);
  return 1;
}

void CStdLoadCombinationDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_CBIndex(pDX, kCtlStdCode, m_nCode);
  DDX_Check(pDX, kCtlStdPDelta, m_bPDelta);
}

void CStdLoadCombinationDlg::OnSelchangeComboCode() {
  auto* combo = Item<QComboBox>(kCtlStdCode);
  const loads::StdCombCode* code = combo ? loads::FindStandardCombinationCode(combo->currentIndex()) : nullptr;
  if (!code) return;
  m_nCode = combo->currentIndex();
  ResetCheckList(code->rows);
}

void CStdLoadCombinationDlg::ResetCheckList(std::span<const loads::StdComb> rows) {
  auto* list = Item<QListWidget>(kCtlStdList);
  if (!list) return;
  list->clear();
  for (const loads::StdComb& row : rows) {
    auto* item = new QListWidgetItem(QString::fromStdString(loads::StdCombLine(row)), list);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Unchecked);
  }
}

void CStdLoadCombinationDlg::SetAllChecks(bool checked) {
  auto* list = Item<QListWidget>(kCtlStdList);
  if (!list) return;
  for (int i = 0; i < list->count(); ++i) list->item(i)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

void CStdLoadCombinationDlg::OnSelectAll() { SetAllChecks(true); }
void CStdLoadCombinationDlg::OnClearAll() { SetAllChecks(false); }

void CStdLoadCombinationDlg::OnOK() {
  if (!UpdateData(1)) return;
  m_checks.clear();
  if (auto* list = Item<QListWidget>(kCtlStdList))
    for (int i = 0; i < list->count(); ++i) m_checks.push_back(list->item(i)->checkState() == Qt::Checked ? 1 : 0);
  EndDialog(IDOK);
}
