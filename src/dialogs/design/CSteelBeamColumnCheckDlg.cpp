#include "dialogs/design/CSteelBeamColumnCheckDlg.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QDesktopServices>
#include <QLineEdit>
#include <QSettings>
#include <QTableView>
#include <QUrl>
#include <filesystem>

#include "dialogs/design/CAiscDataDlg.h"
#include "dialogs/frame/DataExchange.h"
#include "dialogs/frame/Preferences.h"
#include "resources/design_ids.h"
#include "tools/atomic_file.h"
#include "tools/format.h"
#include "tools/parse.h"
#include "tools/shape_table.h"

using namespace res;
using design::SteelField;

namespace {

// The member's real-valued fields: control, member, and the field the checks name.
struct RealField {
  int control;
  double CSteelBeamColumnCheckDlg::*member;
  SteelField field;
};
const RealField kRealFields[] = {
    {kCtlSteelFy, &CSteelBeamColumnCheckDlg::m_dFy, SteelField::Fy},
    {kCtlSteelLength, &CSteelBeamColumnCheckDlg::m_dLength, SteelField::Length},
    {kCtlSteelLux, &CSteelBeamColumnCheckDlg::m_dLux, SteelField::Lux},
    {kCtlSteelKx, &CSteelBeamColumnCheckDlg::m_dKx, SteelField::Kx},
    {kCtlSteelLuy, &CSteelBeamColumnCheckDlg::m_dLuy, SteelField::Luy},
    {kCtlSteelKy, &CSteelBeamColumnCheckDlg::m_dKy, SteelField::Ky},
    {kCtlSteelLuz, &CSteelBeamColumnCheckDlg::m_dLuz, SteelField::Luz},
    {kCtlSteelKz, &CSteelBeamColumnCheckDlg::m_dKz, SteelField::Kz},
    {kCtlSteelLb, &CSteelBeamColumnCheckDlg::m_dLb, SteelField::Lb},
    {kCtlSteelCb, &CSteelBeamColumnCheckDlg::m_dCb, SteelField::Cb},
    {kCtlSteelConnector, &CSteelBeamColumnCheckDlg::m_dConnectorDistance, SteelField::Connector},
};

const char* const kHeadings[CSteelBeamColumnCheckDlg::kColumns] = {
    "Pu\n(kip)",         "Mux\n(kip-ft)",     "Muy\n(kip-ft)",     "Vux\n(kip)",      "Vuy\n(kip)",
    "Cmx",               "Cmy",               "phi-Pn\n(kip)",     "phi-Mnx\n(kip-ft)", "phi-Mny\n(kip-ft)",
    "phi-Vnx\n(kip)",    "phi-Vny\n(kip)",    "B1x",               "B1y",             "Critical Ratio"};

constexpr int kInitialRows = 20;

}  // namespace

CSteelBeamColumnCheckDlg::CSteelBeamColumnCheckDlg(QWidget* pParent) : CDialog(kIddSteelBeamColumnCheck, pParent) {
  OnCommand(kCtlSteelAiscTable, [this] { OnBnClickedAisc(); });
  OnCommand(kCtlSteelShowProcedure, [this] { OnBnClickedViewProcedure(); });
  OnEditChange(kCtlSteelLength, [this] { OnChangeEditLength(); });
  OnEditChange(kCtlSteelCb, [this] { OnEnChangeEditCb(); });
  OnEditChange(kCtlSteelSection, [this] { ClearResults(); });
}

BOOL CSteelBeamColumnCheckDlg::OnInitDialog() {
  if (auto* code = Item<QComboBox>(kCtlSteelCode); code && code->count() == 0)
    code->addItem(QString::fromStdString(LoadStringOr(kStrSteelCodeAisc360, "ANSI/AISC 360-10 LRFD")));
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

void CSteelBeamColumnCheckDlg::DoDataExchange(CDataExchange* pDX) {
  CDialog::DoDataExchange(pDX);
  DDX_Text(pDX, kCtlSteelSection, m_strSectionName);
  for (const RealField& f : kRealFields) DDX_Text(pDX, f.control, this->*f.member);
  DDX_Check(pDX, kCtlSteelMagnify, m_bConsiderMomentMagnification);
  DDX_Check(pDX, kCtlSteelDirect, m_bUseDirectDesignMethod);
  DDX_CBIndex(pDX, kCtlSteelCode, m_nCode);
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

void CSteelBeamColumnCheckDlg::Fail(int controlId, const std::string& message) {
  MessageBox(message);
  if (auto* edit = Item<QLineEdit>(controlId)) {
    edit->setFocus();
    edit->selectAll();
  }
}

bool CSteelBeamColumnCheckDlg::CheckGeometryAndMaterial() {
  const auto failure = design::CheckGeometryAndMaterial(Member());
  if (!failure) return true;
  for (const RealField& f : kRealFields)
    if (f.field == failure->field) Fail(f.control, failure->message);
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
  SetDlgItemText(kCtlSteelSection, m_strSectionName);
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
