#include "dialogs/results/CResultsDlg.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>

#include "dialogs/frame/DataExchange.h"
#include "dialogs/results/info_sheets.h"
#include "dialogs/results/nodal_reports.h"
#include "dialogs/results/report_kinds.h"
#include "resources/grid_ids.h"
#include "resources/results_ids.h"
#include "tools/fm_exception.h"

namespace {

// The box layout that holds a widget, searched through nested layouts.
QBoxLayout* BoxLayoutOf(QLayout* layout, QWidget* widget) {
  if (!layout) return nullptr;
  if (layout->indexOf(widget) >= 0) return qobject_cast<QBoxLayout*>(layout);
  for (int i = 0; i < layout->count(); ++i)
    if (QBoxLayout* found = BoxLayoutOf(layout->itemAt(i)->layout(), widget)) return found;
  return nullptr;
}

}  // namespace

CResultsDlg::CResultsDlg(QWidget* pParent)
    : CDialog(res::kIddResults, pParent), m_hIcon(style()->standardIcon(QStyle::SP_FileDialogDetailedView)) {
  OnSelChange(res::kCtlResultsCombo, [this] { OnSelchangeComboCombination(); });
  OnCommand(res::kCtlResultsShowSelected, [this] { OnCheckShowSelected(); });
  OnCommand(res::kCtlPrint, [this] { OnPrint(); });
  OnCommand(res::kCtlSave, [this] { OnBnClickedSave(); });
}

CResultsDlg::~CResultsDlg() = default;

void CResultsDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_CBIndex(pDX, res::kCtlResultsCombo, m_nCombination);
  DDX_Check(pDX, res::kCtlResultsShowSelected, m_bShowSelected);
}

BOOL CResultsDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  setWindowIcon(m_hIcon);
  m_Spread.CreateInPlace(this, res::kCtlGridPlaceholder, res::kCtlGrid);

  const int kind = m_nReportType;
  const results::ControlsShown shown = results::ControlsFor(kind);
  if (shown.compact) {
    // Statistics and information sheets are one narrow column: a smaller, taller window.
    const QSize client = CDialog::sizeHint().expandedTo(minimumSize());
    initialSize_ = QSize(static_cast<int>(client.width() * 0.65), static_cast<int>(client.height() * 1.2));
    setMinimumSize(0, 0);
    resize(initialSize_);
    const QWidget* over = parentWidget() ? parentWidget()->window() : nullptr;
    const QRect area = over ? over->geometry() : QGuiApplication::primaryScreen()->availableGeometry();
    move(area.center() - QPoint(initialSize_.width() / 2, initialSize_.height() / 2));
    RepositionButtons();
  }
  ShowDlgItem(res::kCtlResultsComboLabel, shown.label);
  ShowDlgItem(res::kCtlResultsCombo, shown.combo);
  ShowDlgItem(res::kCtlResultsShowSelected, shown.check);

  if (auto* combo = Item<QComboBox>(res::kCtlResultsCombo)) {
    combo->clear();
    if (m_pStruct)
      for (const std::string& entry : results::ComboEntries(*m_pStruct, kind))
        combo->addItem(QString::fromStdString(entry));
  }
  if (results::ComboListOf(kind) != results::ComboList::Cases) {
    SetDlgItemText(res::kCtlResultsComboLabel, res::LoadStringOr(res::kStrResultsModeLabel, "Mode Shape:"));
    setWindowTitle(QString::fromStdString(results::ModeListTitleOf(kind)));
  }

  m_bShowSelected = m_pStruct && m_pStruct->m_nShowSelected != 0;
  UpdateData(0);
  m_nGridWidth = m_Spread.width();
  if (!shown.compact) RepositionButtons();
  Refresh();
  return 1;
}

results::ReportContext CResultsDlg::Context() {
  static const CfmStruct kNoModel;
  return results::ReportContext{m_Spread.sheet(), m_pStruct ? *m_pStruct : kNoModel, m_nReportType, m_nQueryId,
                                m_crAlternateRowColor, &messages_};
}

void CResultsDlg::Refresh() {
  if (!UpdateData(1)) return;
  TSpread::RedrawGuard guard(m_Spread);
  results::ResetReportGrid(Context());
  // The statistics and information sheets do not depend on a case: they show for a model
  // without any.
  const bool needsCase = m_nReportType < 28 || m_nReportType > 32;
  if (!m_pStruct || (needsCase && m_nCombination == -1)) return;
  try {
    const std::string title =
        results::ReportTitle(m_nReportType, m_pStruct->GetCaseName(m_nCombination), m_nCombination + 1);
    if (!title.empty()) setWindowTitle(QString::fromStdString(title));
    messages_.clear();
    BuildReport();
    // A report that refuses says why; the grid stays empty and the dialog open.
    for (const std::string& message : messages_) MessageBox(message);
  } catch (const fmException& e) {
    MessageBox(e.GetMessage());
    EndDialog(IDCANCEL);
  }
}

void CResultsDlg::BuildReport() { results::BuildReport(Context(), m_nCombination); }

void CResultsDlg::OnSelchangeComboCombination() {
  if (results::IgnoresComboChange(m_nReportType)) return;
  Refresh();
}

void CResultsDlg::OnCheckShowSelected() {
  if (!UpdateData(1)) return;
  // The model keeps the choice for the next report and the rest of the application.
  if (m_pStruct) m_pStruct->m_nShowSelected = m_bShowSelected ? 1 : 0;
  Refresh();
}

// The window title heads the printed pages and names the saved table.
void CResultsDlg::OnPrint() { m_Spread.PrintGrid(windowTitle().toStdString()); }

void CResultsDlg::OnBnClickedSave() { m_Spread.ExportGrid(windowTitle().toStdString()); }

QSize CResultsDlg::sizeHint() const { return initialSize_.isValid() ? initialSize_ : CDialog::sizeHint(); }

void CResultsDlg::resizeEvent(QResizeEvent* event) {
  CDialog::resizeEvent(event);
  OnSize();
}

void CResultsDlg::OnSize() {
  QLayout* outer = layout();
  if (!outer) return;
  // The grid fills the window above the buttons, half a scroll arrow's height away from them;
  // it is not repainted while it changes size.
  m_Spread.setUpdatesEnabled(false);
  outer->setSpacing(style()->pixelMetric(QStyle::PM_ScrollBarExtent) / 2);
  outer->activate();
  m_Spread.setUpdatesEnabled(true);
}

void CResultsDlg::RepositionButtons() {
  QWidget* print = GetDlgItem(res::kCtlPrint);
  QWidget* save = GetDlgItem(res::kCtlSave);
  QWidget* close = GetDlgItem(IDCANCEL);
  if (!print || !save || !close) return;
  QBoxLayout* row = BoxLayoutOf(layout(), print);
  if (!row) return;
  // "Print..." at the bottom left, each next button 1.1 button widths further right, the row
  // raised by 1.2 button heights from the bottom edge.
  const QSize button = print->sizeHint().expandedTo(save->sizeHint()).expandedTo(close->sizeHint());
  for (QWidget* w : {print, save, close}) w->setFixedWidth(button.width());
  for (int i = row->count() - 1; i >= 0; --i)
    if (row->itemAt(i)->spacerItem()) delete row->takeAt(i);
  row->setSpacing(static_cast<int>(button.width() * 0.1 + 0.5));
  row->addStretch(1);
  row->setContentsMargins(0, 0, 0, static_cast<int>(button.height() * 0.2 + 0.5));
}

void CResultsDlg::Node_Displacements(const std::vector<fmResult6Val>& displacements) {
  TSpread::RedrawGuard guard(m_Spread);
  results::Node_Displacements(Context(), displacements);
}
void CResultsDlg::Node_Forces(int mode, const std::vector<fmResult6Val>& forces) {
  TSpread::RedrawGuard guard(m_Spread);
  results::Node_Forces(Context(), mode, forces);
}
void CResultsDlg::Support_Reactions(int caseIndex) {
  TSpread::RedrawGuard guard(m_Spread);
  results::Support_Reactions(Context(), caseIndex);
}
void CResultsDlg::Spring_Reactions(int caseIndex) {
  TSpread::RedrawGuard guard(m_Spread);
  results::Spring_Reactions(Context(), caseIndex);
}
void CResultsDlg::Multi_DOF_Constraint_Forces(int caseIndex) {
  TSpread::RedrawGuard guard(m_Spread);
  results::Multi_DOF_Constraint_Forces(Context(), caseIndex);
}
void CResultsDlg::Story_Drift(int caseIndex, const std::vector<fmResult6Val>& displacements) {
  TSpread::RedrawGuard guard(m_Spread);
  results::Story_Drift(Context(), caseIndex, displacements);
}
void CResultsDlg::Node_Displacements_Envelope() {
  TSpread::RedrawGuard guard(m_Spread);
  results::Node_Displacements_Envelope(Context());
}
void CResultsDlg::Support_Reactions_Envelope() {
  TSpread::RedrawGuard guard(m_Spread);
  results::Support_Reactions_Envelope(Context());
}
void CResultsDlg::Query() {
  TSpread::RedrawGuard guard(m_Spread);
  results::Query(Context());
}

bool CResultsDlg::GetNodeInfo(std::vector<std::string>& lines, long id) const {
  return m_pStruct && results::GetNodeInfo(*m_pStruct, lines, id);
}
bool CResultsDlg::GetBeamInfo(std::vector<std::string>& lines, long id) const {
  return m_pStruct && results::GetBeamInfo(*m_pStruct, lines, id);
}
bool CResultsDlg::GetShell4Info(std::vector<std::string>& lines, long id) const {
  return m_pStruct && results::GetShell4Info(*m_pStruct, lines, id);
}
bool CResultsDlg::GetBrickInfo(std::vector<std::string>& lines, long id) const {
  return m_pStruct && results::GetBrickInfo(*m_pStruct, lines, id);
}

void CResultsDlg::GetEnvelopeLoadCombs(std::vector<bool>& cases) const {
  cases = m_pStruct ? results::EnvelopeLoadCombs(*m_pStruct) : std::vector<bool>();
}
