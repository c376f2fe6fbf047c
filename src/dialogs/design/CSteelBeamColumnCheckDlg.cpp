#include "dialogs/design/CSteelBeamColumnCheckDlg.h"

#include <QAbstractItemModel>
#include <QDesktopServices>
#include <QSettings>
#include <QTableView>
#include <QUrl>
#include <filesystem>

#include "dialogs/design/CAiscDataDlg.h"
#include "dialogs/frame/Form.h"
#include "dialogs/frame/TemplateBuilder.h"
#include "dialogs/frame/Preferences.h"
#include "resources/design_ids.h"
#include "resources/ids.h"
#include "tools/atomic_file.h"
#include "tools/format.h"
#include "tools/parse.h"
#include "tools/shape_table.h"

using namespace res;
using design::SteelField;

namespace {

using D = CSteelBeamColumnCheckDlg;

// The member's real-valued fields and the field the checks name.
struct RealField {
  double D::*member;
  SteelField field;
};
const RealField kRealFields[] = {
    {&D::m_dFy, SteelField::Fy},   {&D::m_dLength, SteelField::Length}, {&D::m_dLux, SteelField::Lux},
    {&D::m_dKx, SteelField::Kx},   {&D::m_dLuy, SteelField::Luy},       {&D::m_dKy, SteelField::Ky},
    {&D::m_dLuz, SteelField::Luz}, {&D::m_dKz, SteelField::Kz},         {&D::m_dLb, SteelField::Lb},
    {&D::m_dCb, SteelField::Cb},   {&D::m_dConnectorDistance, SteelField::Connector},
};

const char* const kHeadings[CSteelBeamColumnCheckDlg::kColumns] = {
    "Pu\n(kip)",         "Mux\n(kip-ft)",     "Muy\n(kip-ft)",     "Vux\n(kip)",      "Vuy\n(kip)",
    "Cmx",               "Cmy",               "phi-Pn\n(kip)",     "phi-Mnx\n(kip-ft)", "phi-Mny\n(kip-ft)",
    "phi-Vnx\n(kip)",    "phi-Vny\n(kip)",    "B1x",               "B1y",             "Critical Ratio"};

constexpr int kInitialRows = 20;

}  // namespace

// The member's data in three pairs of columns above the grid of load sets; the spare width goes
// to an empty column at the right. The exchange reads the numbers in the order the checks name them.
const frame::Form<CSteelBeamColumnCheckDlg>& CSteelBeamColumnCheckDlg::Description() {
  using F = frame::Field<D>;
  static const frame::Form<D> form(
      {.templateId = kIddSteelBeamColumnCheck, .caption = "Steel Beam-Column Check", .minWidth = 1100,
       .minHeight = 560, .numberFlags = kNarrow, .buttons = frame::FormFrame::Buttons::None, .stretchColumn = false},
      {
          F::DropIndex("Code:", &D::m_nCode).Items({"ANSI/AISC 360-10 LRFD"}).Span(3),
          F::Text("Section:", &D::m_strSectionName).At(1, 0),
          F::Button("AISC Table...").Id(kCtlSteelAiscTable).At(1, 2).Span(2),
          F::Real("Fy (ksi):", &D::m_dFy).At(1, 4),
          F::Real("Length (ft):", &D::m_dLength).At(2, 0),
          F::Real("Lux (ft):", &D::m_dLux).At(3, 0),
          F::Real("Kx:", &D::m_dKx).At(4, 0),
          F::Real("Luy (ft):", &D::m_dLuy).At(3, 2),
          F::Real("Ky:", &D::m_dKy).At(4, 2),
          F::Real("Luz (ft):", &D::m_dLuz).At(3, 4),
          F::Real("Kz:", &D::m_dKz).At(4, 4),
          F::Real("Lb (ft):", &D::m_dLb).At(2, 2),
          F::Real("Cb:", &D::m_dCb).At(2, 4),
          F::Real("Connector Distance\n(for double angles only):", &D::m_dConnectorDistance).At(5, 0),
          F::Check("Consider Moment Magnification", &D::m_bConsiderMomentMagnification).At(5, 2).Span(2),
          F::Check("Use Direct Design Method", &D::m_bUseDirectDesignMethod).At(5, 4).Span(2),
          F::Static("").At(0, 6).Span(1).Flags(kStretchCol),
          F::Grid().Id(kCtlSteelGridPlaceholder).At(6, 0, 1, 7).Stretch(kStretchRow),
          // "Compute" is OK: it runs the check and keeps the dialog open.
          F::Button("Compute").Id(IDOK_).At(frame::kButtonBar, 0).Flags(kDefault),
          F::Button("Show Procedure").Id(kCtlSteelShowProcedure).At(frame::kButtonBar, 1),
          F::Button("Close").Id(IDCANCEL_, kStrClose).At(frame::kButtonBar, 2),
      });
  return form;
}

CSteelBeamColumnCheckDlg::CSteelBeamColumnCheckDlg(QWidget* pParent) : CDialog(Description(), pParent) {
  OnCommand(kCtlSteelAiscTable, [this] { OnBnClickedAisc(); });
  OnCommand(kCtlSteelShowProcedure, [this] { OnBnClickedViewProcedure(); });
  OnEditChange(frame::IdOf(&D::m_dLength), [this] { OnChangeEditLength(); });
  OnEditChange(frame::IdOf(&D::m_dCb), [this] { OnEnChangeEditCb(); });
  OnEditChange(frame::IdOf(&D::m_strSectionName), [this] { ClearResults(); });
}

BOOL CSteelBeamColumnCheckDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  m_Spread.CreateInPlace(this, kCtlSteelGridPlaceholder, kCtlSteelGrid);
  InitializeGrid();
  return 1;
}

void CSteelBeamColumnCheckDlg::InitializeGrid() {
  const auto settings = prefs::ReadSpreadsheetSettings();
  std::vector<std::string> headings(kHeadings, kHeadings + kColumns);
  std::vector<double> widths(kColumns, 9);
  widths[kColumns - 1] = 11;
  m_Spread.InitializeGrid(settings.alternateRowColor, kInitialRows, kColumns, headings, widths, false);
  for (int c = kFirstResultColumn; c <= kColumns; ++c) m_Spread.sheet().SetColumnLock(c, true);
  if (static_cast<int>(m_LoadSets.size()) > kInitialRows) m_Spread.sheet().SetMaxRows(static_cast<int>(m_LoadSets.size()));
  for (size_t i = 0; i < m_LoadSets.size(); ++i) {
    const design::SteelLoadSet& l = m_LoadSets[i];
    const double cells[] = {l.Pu, l.Mux, l.Muy, l.Vux, l.Vuy, l.Cmx, l.Cmy};
    for (int c = 0; c < 7; ++c) m_Spread.sheet().SetData(c + 1, static_cast<int>(i + 1), tools::FormatG(cells[c]));
  }
  m_Spread.Refresh();
  if (QTableView* view = m_Spread.view())
    QObject::connect(view->model(), &QAbstractItemModel::dataChanged, this, [this] { OnGridChange(); });
}

design::SteelMember CSteelBeamColumnCheckDlg::Member() const {
  design::SteelMember m;
  m.shape = std::string(tools::Trim(m_strSectionName));
  m.fy = m_dFy;
  m.length = m_dLength;
  m.lux = m_dLux;
  m.luy = m_dLuy;
  m.luz = m_dLuz;
  m.kx = m_dKx;
  m.ky = m_dKy;
  m.kz = m_dKz;
  m.cb = m_dCb;
  m.lb = m_dLb;
  m.connector = m_dConnectorDistance;
  m.magnify = m_bConsiderMomentMagnification != 0;
  m.direct = m_bUseDirectDesignMethod != 0;
  return m;
}

bool CSteelBeamColumnCheckDlg::CheckGeometryAndMaterial() {
  const auto failure = design::CheckGeometryAndMaterial(Member());
  if (!failure) return true;
  for (const RealField& f : kRealFields)
    if (f.field == failure->field) FailOn(frame::IdOf(f.member), failure->message);
  return false;
}

bool CSteelBeamColumnCheckDlg::ReadLoads(std::vector<design::SteelLoadSet>& loads) {
  const int rows = std::max(1, m_Spread.sheet().LastUsedRow(1, kFirstResultColumn - 1));
  loads.clear();
  for (int row = 1; row <= rows; ++row) {
    std::vector<std::string> cells;
    for (int c = 1; c < kFirstResultColumn; ++c) cells.push_back(m_Spread.GetData(c, row));
    std::string message;
    int column = 0;
    const auto set = design::ParseLoadSet(cells, row, &message, &column);
    if (!set) {
      m_Spread.ShowFailure(grid::GridFailure{message, {column + 1, row}});
      return false;
    }
    loads.push_back(*set);
  }
  return true;
}

bool CSteelBeamColumnCheckDlg::CheckLoads() {
  std::vector<design::SteelLoadSet> loads;
  if (!ReadLoads(loads)) return false;
  const auto failure = design::CheckLoads(loads);
  if (!failure) return true;
  const bool cmy = failure->message.starts_with("Cmy");
  return m_Spread.ShowFailure(grid::GridFailure{failure->message, {cmy ? 7 : 6, failure->loadSet}});
}

std::string CSteelBeamColumnCheckDlg::ReportPath() const {
  std::string folder = m_strReportFolder;
  if (folder.empty()) {
    QSettings settings;
    folder = settings.value(prefs::kGroup + "/DataFolder").toString().toStdString();
  }
  if (folder.empty()) folder = tools::CurrentShapeLibraryLocations().user;
  return (std::filesystem::path(folder) / design::kSteelReportFile).string();
}

bool CSteelBeamColumnCheckDlg::Calculate(std::ofstream& stream) {
  std::vector<design::SteelLoadSet> loads;
  if (!ReadLoads(loads)) return false;
  std::vector<design::SteelResult> results;
  std::string message;
  if (!design::RunSteelCheck(Member(), loads, &stream, results, &message)) {
    MessageBox(message);
    return false;
  }
  writingResults_ = true;
  {
    TSpread::RedrawGuard guard(m_Spread);
    for (size_t i = 0; i < results.size(); ++i) {
      const int row = static_cast<int>(i + 1);
      const design::SteelResult& r = results[i];
      const double strengths[] = {r.phiPn, r.phiMnx, r.phiMny, r.phiVnx, r.phiVny};
      for (int k = 0; k < 5; ++k) m_Spread.SetData(kFirstResultColumn + k, row, tools::FormatG(strengths[k]));
      m_Spread.SetData(13, row, tools::Format("%.4f", r.B1x));
      m_Spread.SetData(14, row, tools::Format("%.4f", r.B1y));
      m_Spread.SetData(15, row, tools::Format("%.4f", r.ratio));
    }
  }
  writingResults_ = false;
  return true;
}

bool CSteelBeamColumnCheckDlg::Run() {
  if (!UpdateData(1)) return false;
  if (!CheckGeometryAndMaterial() || !CheckLoads()) return false;
  std::vector<design::SteelLoadSet> loads;
  ReadLoads(loads);
  const std::string path = ReportPath();
  // The report is written beside the old one and renamed into place; a failed run leaves
  // the old report as it was.
  struct Abandon {};
  try {
    std::error_code ec;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ec);
    tools::ReplaceFileWith(path, [&](const std::string& temp) {
      std::ofstream stream(temp, std::ios::binary | std::ios::trunc);
      if (!stream) throw tools::FileError("Error opening file kStrand.htm");
      design::WriteSteelReportHead(stream, Member(), static_cast<int>(loads.size()));
      if (!Calculate(stream)) throw Abandon{};
      design::WriteSteelReportFoot(stream);
      stream.close();
      if (!stream) throw tools::FileError("Error opening file kStrand.htm");
    });
  } catch (const Abandon&) {
    return false;
  } catch (const tools::FileError&) {
    MessageBox("Error opening file kStrand.htm");
    return false;
  }
  return true;
}

void CSteelBeamColumnCheckDlg::OnBnClickedOk() {
  ClearResults();
  Run();
}

void CSteelBeamColumnCheckDlg::OnOK() { OnBnClickedOk(); }

void CSteelBeamColumnCheckDlg::ClearResults() {
  if (writingResults_ || !m_Spread.view()) return;
  writingResults_ = true;
  {
    TSpread::RedrawGuard guard(m_Spread);
    for (int row = 1; row <= m_Spread.sheet().MaxRows(); ++row)
      for (int c = kFirstResultColumn; c <= kColumns; ++c)
        if (!m_Spread.GetData(c, row).empty()) m_Spread.SetData(c, row, {});
  }
  writingResults_ = false;
}

void CSteelBeamColumnCheckDlg::OnGridChange() { ClearResults(); }
void CSteelBeamColumnCheckDlg::OnChangeEditLength() { ClearResults(); }
void CSteelBeamColumnCheckDlg::OnEnChangeEditCb() { ClearResults(); }

void CSteelBeamColumnCheckDlg::OnBnClickedAisc() {
  UpdateData(1);
  std::vector<tools::AiscShapeIndexEntry> index;
  if (!tools::get_shape_index(index)) return;
  CAiscDataDlg dlg(this);
  const std::string label(tools::Trim(m_strSectionName));
  const int found = tools::get_shape(label);
  dlg.m_nSelectedShape = found >= 0 ? found : 0;
  dlg.m_strShapeName = label;
  if (dlg.DoModal() != IDOK) return;
  m_strSectionName = dlg.m_Shape.label;
  SetDlgItemText(frame::IdOf(&D::m_strSectionName), m_strSectionName);
  ClearResults();
}

void CSteelBeamColumnCheckDlg::OnBnClickedViewProcedure() {
  const std::string path = ReportPath();
  if (!std::filesystem::exists(path)) {
    MessageBox("Error opening file kStrand.htm");
    return;
  }
  QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path)));
}
