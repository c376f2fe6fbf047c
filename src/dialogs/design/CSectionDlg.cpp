#include "dialogs/design/CSectionDlg.h"

#include "dialogs/design/CAiscDataDlg.h"
#include "dialogs/design/CNdsDataDlg.h"
#include "dialogs/design/CRegularSectionDlg.h"
#include "dialogs/design/regular_section.h"
#include "dialogs/design/section_grid.h"
#include "dialogs/frame/DataExchange.h"
#include "resources/grid_ids.h"
#include "resources/sections_ids.h"
#include "tools/fm_exception.h"
#include "tools/format.h"
#include "tools/parse.h"
#include "tools/shape_table.h"

namespace {
constexpr const char* kOverrideSection = "Do you want to override the current section?";
}  // namespace

const frame::Form<CSectionDlg>& CSectionDlg::Description() {
  using F = frame::Field<CSectionDlg>;
  using namespace res;
  static const frame::Form<CSectionDlg> form = TableForm<CSectionDlg>(
      {.templateId = kIddSection, .caption = "Member Sections", .minWidth = 900, .minHeight = 460,
       .okText = "Apply", .okDefault = false},
      {
          F::Check("Assign active section to currently selected members", &CSectionDlg::m_bAssignActive)
              .Id(kCtlSecAssign).Span(1),
          F::Button("Regular Section...").Id(kCtlSecRegular),
          F::Button("AISC Table...").Id(kCtlSecAisc),
          F::Button("NDS Table...").Id(kCtlSecNds),
          F::Button("Rigid Link").Id(kCtlSecRigidLink),
      },
      {F::Button("Export AISC Table...").Id(kCtlSecExportAisc), F::Button("Import AISC Table...").Id(kCtlSecImportAisc)});
  return form;
}

CSectionDlg::CSectionDlg(QWidget* pParent) : CPropertyGridDlg(Description(), pParent) {
  OnCommand(res::kCtlSecRegular, [this] { OnAddRegular(); });
  OnCommand(res::kCtlSecAisc, [this] { OnAisc(); });
  OnCommand(res::kCtlSecNds, [this] { OnBnClickedNds(); });
  OnCommand(res::kCtlSecRigidLink, [this] { OnBnClickedRigidLink(); });
  OnCommand(res::kCtlSecExportAisc, [this] { OnBnClickedExportAiscTable(); });
  OnCommand(res::kCtlSecImportAisc, [this] { OnBnClickedImportAiscTable(); });
}

std::vector<int> CSectionDlg::EditingControls() const {
  return {res::kCtlSecRegular,   res::kCtlSecAisc,   res::kCtlSecNds,
          res::kCtlSecRigidLink, res::kCtlSecAssign, res::kCtlSecImportAisc};
}

BOOL CSectionDlg::OnInitDialog() {
  CPropertyGridDlg::OnInitDialog();
  ActivateRow(m_nActiveSection);
  return 1;
}

void CSectionDlg::Refresh() {
  TSpread::RedrawGuard guard(m_Spread);
  shown_ = sectiongrid::Fill(m_Spread.sheet(), *m_pSections, *m_pUnits, m_crAlternateRowColor, m_bModelLocked);
}

void CSectionDlg::FillOneRow(const fmSect& section, int row) {
  m_Spread.ChangeCells("Fill Row", {1, row, m_Spread.sheet().MaxCols(), row},
                       [&](grid::Sheet& sheet) { sectiongrid::FillOneRow(sheet, section, row); });
}

void CSectionDlg::OnAddRegular() {
  const int row = ChooseTargetRow(sectiongrid::kLabel, kOverrideSection, true);
  if (row == 0) return;
  CRegularSectionDlg dlg(this);
  dlg.m_nType = 0;
  dlg.m_pUnits = m_pUnits;
  if (dlg.DoModal() != IDOK) return;
  FillOneRow(design::ComputeRegularSection(dlg.m_nType, {dlg.m_dDim1, dlg.m_dDim2, dlg.m_dDim3, dlg.m_dDim4}), row);
}

void CSectionDlg::OnAisc() {
  const int row = ChooseTargetRow(sectiongrid::kLabel, kOverrideSection, false);
  const std::string label(tools::Trim(m_Spread.GetData(sectiongrid::kLabel, row)));
  CAiscDataDlg dlg(this);
  dlg.m_pUnits = m_pUnits;
  dlg.m_crAlternateRowColor = m_crAlternateRowColor;
  dlg.m_nSelectedShape = tools::get_shape(label);
  std::vector<tools::AiscShapeIndexEntry> index;
  if (!tools::get_shape_index(index)) return;
  if (dlg.m_nSelectedShape < 0 || dlg.m_nSelectedShape >= static_cast<int>(index.size())) {
    if (!label.empty() && !AskYesNo(kOverrideSection)) return;
    dlg.m_nSelectedShape = 0;
  }
  dlg.m_strShapeName = label;
  if (dlg.DoModal() != IDOK) return;
  fmSect s(-1);
  tools::transform_aisc_to_norvane_section(s, dlg.m_Shape);
  tools::ScaleSectionFromInches(s, m_pUnits->Factor(fmUnit::Length));
  FillOneRow(s, row);
}

void CSectionDlg::OnBnClickedNds() {
  const int row = ChooseTargetRow(sectiongrid::kLabel, kOverrideSection, false);
  const std::string label(tools::Trim(m_Spread.GetData(sectiongrid::kLabel, row)));
  CNdsDataDlg dlg(this);
  dlg.m_pUnits = m_pUnits;
  dlg.m_crAlternateRowColor = m_crAlternateRowColor;
  dlg.m_nSelectedShape = tools::get_nds_shape(label);
  if (dlg.m_nSelectedShape < 0) {
    if (!label.empty() && !AskYesNo(kOverrideSection)) return;
    dlg.m_nSelectedShape = 0;
  }
  dlg.m_strShapeName = label;
  if (dlg.DoModal() != IDOK) return;
  fmSect s(-1);
  tools::transform_nds_to_norvane_section(s, dlg.m_Shape);
  tools::ScaleSectionFromInches(s, m_pUnits->Factor(fmUnit::Length));
  FillOneRow(s, row);
}

void CSectionDlg::OnBnClickedRigidLink() {
  if (sectiongrid::FindRigidLinkRow(m_Spread.sheet()) > 0) {
    MessageBox(tools::Format("%s section already exists", kRigidLinkLabel));
    return;
  }
  const int row = ChooseTargetRow(sectiongrid::kLabel, kOverrideSection, true);
  if (row == 0) return;
  FillOneRow(sectiongrid::RigidLinkSection(), row);
}

void CSectionDlg::OnBnClickedExportAiscTable() {
  if (!AskYesNo("You are about to export AISC table from this program to a csv (Comma Delimited) file.  The exported "
                "csv file can then be modified in Microsoft Excel to add/remove/modify AISC steel shapes.\n\nDo you "
                "want to continue?"))
    return;
  const std::string path = GetPrompter().SaveFileName(
      this, {"Export AISC Sections to a CSV File", "", "*.csv", "csv", {"CSV Files (*.csv)"}});
  if (path.empty()) return;
  try {
    tools::binary_ascii(path);
  } catch (const fmException& e) {
    MessageBox(e.GetMessage());
  }
}

void CSectionDlg::OnBnClickedImportAiscTable() {
  if (!AskYesNo(tools::Format(
          "You are about to import AISC table to this program from a csv (Comma Delimited) file.  This will replace "
          "all AISC steel shapes contained in %s, %s in the program folder.  You should backup these two files "
          "beforehand in case something goes wrong.\n\nThe csv file to be imported must conform to the format that "
          "this program exports. You may use dot(.) in AISC_Manual_Label column to distinguish new shapes with "
          "existing shapes.  For example, W16.99X89.99 is a valid shape name.\n\nDo you want to continue?",
          tools::kAiscIndexFile, tools::kAiscTableFile)))
    return;
  const std::string path = GetPrompter().OpenFileName(
      this, {"Import AISC Sections From a CSV File", "", "*.csv", "csv", {"CSV Files (*.csv)"}});
  if (path.empty()) return;
  try {
    tools::ascii_binary(path);  // replaces the user's library and reloads the cached one
  } catch (const fmException& e) {
    MessageBox(e.GetMessage());
    return;
  }
  m_bAiscTableImported = 1;
}

bool CSectionDlg::Save() {
  sectiongrid::ReadResult result = sectiongrid::Read(m_Spread.sheet(), shown_);
  if (!m_Spread.ShowFailure(result.failure)) return false;
  *m_pSections = std::move(result.sections);
  const int row = m_Spread.GetActiveCell().row;
  m_nActiveSection = row;
  if (m_bAssignActive && (row < 1 || row > static_cast<int>(m_pSections->size()))) {
    m_nActiveSection = -1;
    MessageBox("The current section is not valid.\nNo section assignment takes place.", MessageIcon::Information);
  }
  return true;
}
