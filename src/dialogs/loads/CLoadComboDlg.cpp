#include "dialogs/loads/CLoadComboDlg.h"

#include <QTreeWidget>

#include "dialogs/frame/Form.h"
#include "dialogs/frame/ReportColumns.h"
#include "dialogs/loads/CLoadComboItemDlg.h"
#include "dialogs/loads/CStdLoadCombinationDlg.h"
#include "dialogs/loads/load_combinations.h"
#include "resources/loads_ids.h"

using namespace res;

namespace {

const char* YesNo(int32_t flag) { return flag ? "Yes" : "No"; }

}  // namespace

const frame::Form<CLoadComboDlg>& CLoadComboDlg::Description() {
  using F = frame::Field<CLoadComboDlg>;
  static const frame::Form<CLoadComboDlg> form(
      {.templateId = kIddLoadCombo, .caption = "Load Combinations", .minWidth = 920, .minHeight = 420},
      {
          F::Report("Combinations\tP-Delta\tSteel Design\tConcrete Design\tTotal Load Defl.\tLive Load Defl.")
              .Id(kCtlComboList),
          F::Button("Add").Id(kCtlComboAdd),
          F::Button("Modify").Id(kCtlComboModify),
          F::Button("Copy").Id(kCtlComboCopy),
          F::Button("Delete").Id(kCtlComboDelete),
          F::Button("Unit Cases").Id(kCtlComboUnitCases),
          F::Button("Generate Std").Id(kCtlComboGenerateStd),
      });
  return form;
}

CLoadComboDlg::CLoadComboDlg(QWidget* pParent) : CDialog(Description(), pParent) {
  OnCommand(kCtlComboAdd, [this] { OnAdd(); });
  OnCommand(kCtlComboModify, [this] { OnModify(); });
  OnCommand(kCtlComboCopy, [this] { OnCopy(); });
  OnCommand(kCtlComboDelete, [this] { OnDelete(); });
  OnCommand(kCtlComboUnitCases, [this] { OnUnitCases(); });
  OnCommand(kCtlComboGenerateStd, [this] { OnGenerateStandard(); });
  OnDoubleClick(kCtlComboList, [this] { OnDblclkList(); });
}

BOOL CLoadComboDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  if (auto* list = Item<QTreeWidget>(kCtlComboList)) {
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    frame::KeepColumnShares(list, {0.3, 0.14, 0.14, 0.14, 0.14, 0.14});
  }
  loads::EnsureDefaultCombination(*m_pLoadCombs, *m_pLoadCases);
  Refresh(static_cast<int>(m_pLoadCombs->size()) - 1);
  return 1;
}

void CLoadComboDlg::Refresh(int selectRow) {
  auto* list = Item<QTreeWidget>(kCtlComboList);
  if (!list) return;
  list->clear();
  QList<QTreeWidgetItem*> items;
  items.reserve(static_cast<qsizetype>(m_pLoadCombs->size()));
  for (const fmLoadComb& c : *m_pLoadCombs) {
    items.push_back(new QTreeWidgetItem(QStringList{QString::fromStdString(c.name), YesNo(c.pdelta),
                                                    YesNo(c.steelDesign), YesNo(c.concreteDesign),
                                                    YesNo(c.totalDeflection), YesNo(c.liveDeflection)}));
  }
  list->addTopLevelItems(items);
  if (selectRow >= 0 && selectRow < list->topLevelItemCount()) {
    QTreeWidgetItem* item = list->topLevelItem(selectRow);
    list->setCurrentItem(item);
    list->scrollToItem(item);
  }
}

std::vector<size_t> CLoadComboDlg::SelectedRows() const {
  std::vector<size_t> rows;
  const auto* list = Item<QTreeWidget>(kCtlComboList);
  if (!list) return rows;
  for (int i = 0; i < list->topLevelItemCount(); ++i)
    if (list->topLevelItem(i)->isSelected()) rows.push_back(static_cast<size_t>(i));
  return rows;
}

int CLoadComboDlg::CurrentRow() const {
  const auto* list = Item<QTreeWidget>(kCtlComboList);
  if (!list || !list->currentItem() || !list->currentItem()->isSelected()) return -1;
  return list->indexOfTopLevelItem(list->currentItem());
}

void CLoadComboDlg::RunEditor(int index) {
  CLoadComboItemDlg dlg(this);
  dlg.m_nIndex = index;
  dlg.m_pLoadCases = m_pLoadCases;
  dlg.m_pLoadCombs = m_pLoadCombs;
  if (index < 0)
    dlg.m_comb.SetName(loads::ProposeCombinationLabel(*m_pLoadCombs));
  else
    dlg.m_comb = (*m_pLoadCombs)[static_cast<size_t>(index)];
  if (dlg.DoModal() != IDOK) return;
  if (index < 0)
    m_pLoadCombs->push_back(std::move(dlg.m_comb));
  else
    (*m_pLoadCombs)[static_cast<size_t>(index)] = std::move(dlg.m_comb);
  // After every change the last row is selected, a modified one included.
  Refresh(static_cast<int>(m_pLoadCombs->size()) - 1);
  Prompt2EnterSustainedLoadComb();
}

void CLoadComboDlg::OnAdd() { RunEditor(-1); }

void CLoadComboDlg::OnModify() {
  const int row = CurrentRow();
  if (row >= 0) RunEditor(row);
}

void CLoadComboDlg::OnDblclkList() { OnModify(); }

void CLoadComboDlg::OnCopy() {
  const int row = CurrentRow();
  if (row < 0) return;
  if (const std::string refusal = loads::CopyCombination(*m_pLoadCombs, static_cast<size_t>(row)); !refusal.empty()) {
    MessageBox(refusal);
    return;
  }
  Refresh(static_cast<int>(m_pLoadCombs->size()) - 1);
}

void CLoadComboDlg::OnDelete() {
  const std::vector<size_t> rows = SelectedRows();
  if (rows.empty()) return;
  const std::string refusal = loads::DeleteCombinations(*m_pLoadCombs, rows);
  Refresh(0);
  if (!refusal.empty()) MessageBox(refusal);
}

void CLoadComboDlg::OnUnitCases() {
  loads::AddUnitCaseCombinations(*m_pLoadCases, *m_pLoadCombs);
  Refresh(static_cast<int>(m_pLoadCombs->size()) - 1);
}

void CLoadComboDlg::OnGenerateStandard() {
  CStdLoadCombinationDlg dlg(this);
  if (dlg.DoModal() != IDOK) return;
  if (const loads::StdCombCode* code = loads::FindStandardCombinationCode(dlg.m_nCode))
    GenerateStandardCombinations(*code, dlg.m_checks, dlg.m_bPDelta);
  Refresh(static_cast<int>(m_pLoadCombs->size()) - 1);
}

bool CLoadComboDlg::GenerateStandardCombinations(const loads::StdCombCode& code, const std::vector<int32_t>& checks,
                                                 BOOL bPDelta) {
  const loads::GenerateResult result =
      loads::GenerateStandardCombinations(*m_pLoadCases, *m_pLoadCombs, code, checks, bPDelta != 0);
  if (result.refused) {
    MessageBox(result.message);
    return false;
  }
  return true;
}

void CLoadComboDlg::Prompt2EnterSustainedLoadComb() {
  if (const std::string reminder = loads::SustainedLoadReminder(*m_pLoadCombs); !reminder.empty())
    MessageBox(reminder, MessageIcon::Information);
}
