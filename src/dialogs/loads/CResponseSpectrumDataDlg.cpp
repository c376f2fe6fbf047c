#include "dialogs/loads/CResponseSpectrumDataDlg.h"

#include <QAbstractItemModel>
#include <QFrame>
#include <QTableView>
#include <QVBoxLayout>

#include "dialogs/grid/grid_ops.h"
#include "dialogs/loads/SpectrumChart.h"
#include "dialogs/loads/spectrum_grid.h"
#include "model/response_spectrum_manager.h"
#include "resources/grid_ids.h"
#include "resources/spectra_ids.h"
#include "tools/labels.h"

using namespace res;

// The name above the points; the curve of the points beside them.
const frame::Form<CResponseSpectrumDataDlg>& CResponseSpectrumDataDlg::Description() {
  using F = frame::Field<CResponseSpectrumDataDlg>;
  using D = CResponseSpectrumDataDlg;
  static const frame::Form<D> form(
      {.templateId = kIddResponseSpectrumData, .caption = "Response Spectrum Data", .minWidth = 960, .minHeight = 480,
       .stretchColumn = false},
      {
          F::Text("Name:", &D::name_).Id(kCtlSpecName).Span(2),
          F::Grid().Id(kCtlGridPlaceholder).Span(2).Stretch(kStretchRow),
          F::Grid().Id(kCtlSpecDataChart).At(1, 2).Stretch(kStretchCol),
          F::Edit("").Id(kCtlNewRowCount).At(frame::kSideBar, 0),
          F::Button("New Rows").Id(kCtlNewRows, kStrNewRows),
          F::Button("Delete Rows").Id(kCtlSpecDeleteRows),
          F::Button("Print...").Id(kCtlPrint, kStrPrint),
          F::Button("Save...").Id(kCtlSave, kStrSave),
      });
  return form;
}

CResponseSpectrumDataDlg::CResponseSpectrumDataDlg(QWidget* pParent) : CDataGridDlg(Description(), pParent) {
  OnCommand(kCtlNewRows, [this] { OnNewPointRows(); });
  OnCommand(kCtlSpecDeleteRows, [this] { OnDeleteRows(); });
}

BOOL CResponseSpectrumDataDlg::OnInitDialog() {
  name_ = m_spectrum.name;
  CDataGridDlg::OnInitDialog();
  if (auto* place = Item<QFrame>(kCtlSpecDataChart)) {
    auto* layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    chart_ = new SpectrumChart(place);
    chart_->SetLogScale(true);
    layout->addWidget(chart_);
  }
  if (QTableView* view = m_Spread.view()) {
    // Typing changes cells; paste, new rows and deletions re-read the whole sheet.
    QObject::connect(view->model(), &QAbstractItemModel::dataChanged, this, [this] { UpdatePlot(); });
    QObject::connect(view->model(), &QAbstractItemModel::modelReset, this, [this] { UpdatePlot(); });
  }
  if (IsReadOnly()) {
    for (int id : {kCtlSpecName, kCtlNewRowCount, kCtlNewRows, kCtlSpecDeleteRows}) EnableDlgItem(id, false);
  }
  UpdatePlot();
  return 1;
}

void CResponseSpectrumDataDlg::Refresh() {
  TSpread::RedrawGuard guard(m_Spread);
  filled_ = m_spectrum.points;
  spectrumgrid::FillPoints(m_Spread.sheet(), filled_, m_crAlternateRowColor, IsReadOnly());
}

bool CResponseSpectrumDataDlg::Save() {
  if (const std::string why = model::CheckSpectrumName(name_); !why.empty()) {
    MessageBox("Response spectrum name: " + why + ".");
    GetDlgItem(kCtlSpecName)->setFocus();
    return false;
  }
  for (const std::string& other : m_otherNames) {
    if (tools::LabelsEqual(other, name_)) {
      MessageBox("A response spectrum named \"" + other + "\" already exists.");
      GetDlgItem(kCtlSpecName)->setFocus();
      return false;
    }
  }
  spectrumgrid::PointsReadResult r = spectrumgrid::ReadPoints(m_Spread.sheet(), filled_);
  if (!m_Spread.ShowFailure(r.failure)) return false;
  m_spectrum.name = name_;
  m_spectrum.points = std::move(r.points);
  return true;
}

void CResponseSpectrumDataDlg::OnNewPointRows() {
  if (IsReadOnly() || !UpdateData(1)) return;
  m_Spread.AddRows(static_cast<int>(m_nNewRows), false);
}

void CResponseSpectrumDataDlg::OnDeleteRows() {
  if (IsReadOnly()) return;
  grid::Sheet& sheet = m_Spread.sheet();
  const std::optional<grid::Block> rows = grid::RowsToDelete(sheet);
  if (!rows) return;
  const grid::Block block = *rows;
  {
    TSpread::RedrawGuard guard(m_Spread);
    spectrumgrid::DeleteRows(sheet, block.row1, block.row2);
  }
  UpdatePlot();
}

void CResponseSpectrumDataDlg::UpdatePlot() {
  if (chart_) chart_->Plot(spectrumgrid::PointsForPlot(m_Spread.sheet()), GetDlgItemText(kCtlSpecName));
}
