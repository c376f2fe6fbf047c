#include "dialogs/results/CResultsDlg.h"

#include <QStyle>

#include "dialogs/frame/DialogLayout.h"
#include "dialogs/frame/Form.h"
#include "dialogs/frame/TemplateBuilder.h"
#include "dialogs/results/info_sheets.h"
#include "dialogs/results/nodal_reports.h"
#include "dialogs/results/report_kinds.h"
#include "resources/grid_ids.h"
#include "resources/ids.h"
#include "resources/results_ids.h"
#include "tools/fm_exception.h"

// The choice of case and the selection switch above the grid, each shown for the report kinds
// that use it; print, save and close below, from the left.
const frame::Form<CResultsDlg>& CResultsDlg::Description() {
  using F = frame::Field<CResultsDlg>;
  using D = CResultsDlg;
  using namespace res;
  const auto cases = [](const D& d) {
    return d.m_pStruct ? results::ComboEntries(*d.m_pStruct, d.m_nReportType) : std::vector<std::string>{};
  };
  static const frame::Form<D> form(
      {.templateId = kIddResults, .caption = "Results", .minWidth = 860, .minHeight = 520,
       .buttons = frame::FormFrame::Buttons::None, .stretchColumn = false},
      {
          F::DropIndexOrNone("Load Combination:", &D::m_nCombination)
              .Id(kCtlResultsCombo).LabelId(kCtlResultsComboLabel, 0).Items(cases)
              .ShownWhen([](const D& d) { return results::ControlsFor(d.m_nReportType).combo; }),
          F::Check("Show selected only", &D::m_bShowSelected).Id(kCtlResultsShowSelected).At(0, 2).Span(1)
              .ShownWhen([](const D& d) { return results::ControlsFor(d.m_nReportType).check; }),
          F::Static("").At(0, 3).Span(1).Flags(kStretchCol),
          F::Grid().Id(kCtlGridPlaceholder).At(1, 0).Span(4).Stretch(kStretchRow),
          F::Button("Print...").Id(kCtlPrint, kStrPrint).At(frame::kButtonBar, 0),
          F::Button("Save...").Id(kCtlSave, kStrSave).At(frame::kButtonBar, 1),
          F::Button("Close").Id(IDCANCEL_, kStrClose).At(frame::kButtonBar, 2),
      });
  return form;
}

CResultsDlg::CResultsDlg(QWidget* pParent)
    : CDialog(Description(), pParent), m_hIcon(style()->standardIcon(QStyle::SP_FileDialogDetailedView)) {
  OnSelChange(res::kCtlResultsCombo, [this] { OnSelchangeComboCombination(); });
  OnCommand(res::kCtlResultsShowSelected, [this] { OnCheckShowSelected(); });
  OnCommand(res::kCtlPrint, [this] { OnPrint(); });
  OnCommand(res::kCtlSave, [this] { OnBnClickedSave(); });
}

CResultsDlg::~CResultsDlg() = default;

BOOL CResultsDlg::OnInitDialog() {
  m_bShowSelected = m_pStruct && m_pStruct->m_nShowSelected != 0;
  CDialog::OnInitDialog();
  setWindowIcon(m_hIcon);
  m_Spread.CreateInPlace(this, res::kCtlGridPlaceholder, res::kCtlGrid);

  const int kind = m_nReportType;
  // Statistics and information sheets are one narrow column: a smaller, taller window.
  if (results::ControlsFor(kind).compact) initialSize_ = frame::ResizeCentred(*this, 0.65, 1.2);
  if (results::ComboListOf(kind) != results::ComboList::Cases) {
    SetDlgItemText(res::kCtlResultsComboLabel, res::LoadStringOr(res::kStrResultsModeLabel, "Mode Shape:"));
    setWindowTitle(QString::fromStdString(results::ModeListTitleOf(kind)));
  }
  m_nGridWidth = m_Spread.width();
  frame::ButtonsFromTheLeft(*this, {res::kCtlPrint, res::kCtlSave, IDCANCEL});
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
  if (!m_pStruct || (!results::NeedsNoCase(m_nReportType) && m_nCombination == -1)) return;
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
  // The grid fills the window above the buttons; it is not repainted while it changes size.
  m_Spread.setUpdatesEnabled(false);
  frame::SpaceButtonsFromBody(*this);
  m_Spread.setUpdatesEnabled(true);
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
