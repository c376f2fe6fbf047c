#include "dialogs/results/CReportDlg.h"

#include <QComboBox>
#include <algorithm>

#include "dialogs/frame/Form.h"
#include "dialogs/results/CResultsDlg.h"
#include "dialogs/results/report_kinds.h"
#include "resources/results_ids.h"
#include "tools/format.h"

using D = CReportDlg;

const std::vector<int>& CReportDlg::Kinds() {
  static const std::vector<int> kinds = [] {
    std::vector<int> out;
    for (int kind = 0; kind <= results::kLastReportKind; ++kind)
      if (results::IsReportBuilt(kind) && !(kind >= 29 && kind <= 32)) out.push_back(kind);
    return out;
  }();
  return kinds;
}

std::string CReportDlg::KindText(int kind) {
  // The window title without the case or mode it names.
  std::string title = results::ReportTitle(kind, "", 1);
  const size_t bracket = title.find(" - [");
  if (bracket != std::string::npos) title.erase(bracket);
  return tools::Format("%d: %s", kind, title.c_str());
}

const frame::Form<CReportDlg>& CReportDlg::Description() {
  using F = frame::Field<D>;
  const auto kinds = [](const D&) {
    std::vector<std::string> texts;
    for (int kind : Kinds()) texts.push_back(KindText(kind));
    return texts;
  };
  static const frame::Form<D> form({.templateId = res::kIddReport, .caption = "Reports", .minWidth = 520,
                                    .okText = "Show"},
                                   {
                                       F::DropIndex("Report:", &D::m_nKindIndex).Items(kinds),
                                       F::DropIndex("Load case or mode:", &D::m_nCombination),
                                   });
  return form;
}

CReportDlg::CReportDlg(QWidget* pParent) : CDialog(Description(), pParent) {
  OnSelChange(frame::IdOf(&D::m_nKindIndex), [this] { OnSelchangeKind(); });
}

BOOL CReportDlg::OnInitDialog() {
  const auto& kinds = Kinds();
  const auto at = std::find(kinds.begin(), kinds.end(), m_nReportType);
  m_nKindIndex = at == kinds.end() ? 0 : static_cast<int32_t>(at - kinds.begin());
  m_nReportType = kinds[static_cast<size_t>(m_nKindIndex)];
  const int32_t combination = m_nCombination;
  CDialog::OnInitDialog();
  FillCases();
  if (auto* combo = Item<QComboBox>(frame::IdOf(&D::m_nCombination)))
    combo->setCurrentIndex(std::clamp(combination, combo->count() > 0 ? 0 : -1, combo->count() - 1));
  return 1;
}

// The second list follows the kind: its load cases and combinations, or its modes; a kind
// that reads neither leaves it empty and disabled.
void CReportDlg::FillCases() {
  const int id = frame::IdOf(&D::m_nCombination);
  auto* combo = Item<QComboBox>(id);
  if (!combo) return;
  const int kind = m_nReportType;
  std::vector<std::string> entries;
  if (m_pStruct && results::ComboUseOf(kind) != results::ComboUse::Nothing)
    entries = results::ComboEntries(*m_pStruct, kind);
  const int keep = combo->currentIndex();
  SetComboItems(id, entries);
  EnableDlgItem(id, !entries.empty());
  if (!entries.empty()) combo->setCurrentIndex(std::clamp(keep, 0, static_cast<int>(entries.size()) - 1));
}

void CReportDlg::OnSelchangeKind() {
  auto* combo = Item<QComboBox>(frame::IdOf(&D::m_nKindIndex));
  if (!combo || combo->currentIndex() < 0) return;
  m_nKindIndex = combo->currentIndex();
  m_nReportType = Kinds()[static_cast<size_t>(m_nKindIndex)];
  FillCases();
}

void CReportDlg::OnOK() {
  if (!UpdateData(1)) return;
  if (m_nKindIndex >= 0 && static_cast<size_t>(m_nKindIndex) < Kinds().size())
    m_nReportType = Kinds()[static_cast<size_t>(m_nKindIndex)];
  if (m_nCombination < 0) m_nCombination = 0;
  CResultsDlg results(this);
  results.m_pStruct = m_pStruct;
  results.m_nReportType = m_nReportType;
  results.m_nCombination = m_nCombination;
  results.m_crAlternateRowColor = m_crAlternateRowColor;
  results.DoModal();
  EndDialog(IDOK);
}
