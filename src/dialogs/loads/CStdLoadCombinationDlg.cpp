#include "dialogs/loads/CStdLoadCombinationDlg.h"

#include <QComboBox>
#include <QListWidget>

#include "dialogs/frame/Form.h"
#include "resources/loads_ids.h"

using namespace res;

const frame::Form<CStdLoadCombinationDlg>& CStdLoadCombinationDlg::Description() {
  using F = frame::Field<CStdLoadCombinationDlg>;
  using D = CStdLoadCombinationDlg;
  const auto codes = [](const D&) {
    std::vector<std::string> titles;
    for (const loads::StdCombCode& code : loads::StandardCombinationCodes()) titles.emplace_back(code.title);
    return titles;
  };
  static const frame::Form<D> form(
      {kIddStdLoadCombination, "Standard Load Combinations", 0, 560, 480},
      {
          F::DropIndex("Design code:", &D::m_nCode).Items(codes),
          F::Static("Select standard load combinations:").Span(2),
          F::CheckList("").Id(kCtlStdList).Span(2).Stretch(kStretchRow),
          F::Check("Perform P-Delta Analyses on the load combinations", &D::m_bPDelta).Span(2),
          F::Button("Select All").Id(kCtlStdSelectAll),
          F::Button("Clear All").Id(kCtlStdClearAll),
      });
  return form;
}

CStdLoadCombinationDlg::CStdLoadCombinationDlg(QWidget* pParent) : CDialog(Description(), pParent) {
  OnSelChange(frame::IdOf(&CStdLoadCombinationDlg::m_nCode), [this] { OnSelchangeComboCode(); });
  OnCommand(kCtlStdSelectAll, [this] { OnSelectAll(); });
  OnCommand(kCtlStdClearAll, [this] { OnClearAll(); });
}

BOOL CStdLoadCombinationDlg::OnInitDialog() {
  const auto codes = loads::StandardCombinationCodes();
  if (m_nCode < 0 || m_nCode >= static_cast<int32_t>(codes.size())) m_nCode = 0;
  CDialog::OnInitDialog();
  ResetCheckList(codes[static_cast<size_t>(m_nCode)].rows);
  return 1;
}

void CStdLoadCombinationDlg::OnSelchangeComboCode() {
  auto* combo = Item<QComboBox>(frame::IdOf(&CStdLoadCombinationDlg::m_nCode));
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
