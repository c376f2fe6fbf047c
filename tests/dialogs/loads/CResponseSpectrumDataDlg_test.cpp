#include <QLineEdit>

#include "dialogs/loads/CResponseSpectrumDataDlg.h"
#include "dialogs/loads/SpectrumChart.h"
#include "dialogs/loads/spectrum_grid.h"
#include "model/response_spectrum_manager.h"
#include "resources/grid_ids.h"
#include "resources/spectra_ids.h"
#include "support/DialogTest.h"

using namespace res;
using spectrumgrid::kAccelerationCol;
using spectrumgrid::kPeriodCol;

namespace {

class SpectrumDataTest : public DialogTest {
 protected:
  void Open(fmResponseSpectrum s) {
    dlg.m_spectrum = std::move(s);
    dlg.m_otherNames = {"Other"};
    dlg.InitDialogForTest();
  }
  grid::Sheet& Sheet() { return dlg.Spread().sheet(); }
  CResponseSpectrumDataDlg dlg;
};

}  // namespace

// The cells show "%g", yet OK without an edit gives back every digit of every point.
TEST_F(SpectrumDataTest, ShowsThePointsAndKeepsThemExactWhenUnchanged) {
  const fmResponseSpectrum asce = model::DefaultSpectra().front();
  Open(asce);
  EXPECT_EQ(dlg.GetDlgItemText(kCtlSpecName), asce.name);
  EXPECT_EQ(Sheet().GetData(kPeriodCol, 0), "Period [sec]");
  EXPECT_EQ(Sheet().GetData(kAccelerationCol, 0), "Acceleration [g]");
  EXPECT_EQ(Sheet().MaxRows(), 86);
  EXPECT_EQ(Sheet().GetData(kPeriodCol, 86), "80");
  EXPECT_EQ(Sheet().GetData(kAccelerationCol, 2), "0.43");
  EXPECT_EQ(dlg.Chart()->CurvePointCount(), 85) << "T 0 has no place on the log axis";
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(dlg.m_spectrum, asce);
}

TEST_F(SpectrumDataTest, EditsRedrawTheCurveAndBadPointsAreRefusedWhereTheyAre) {
  Open({"Mine", {{0, 0.4}, {0.5, 1.0}, {1.0, 0.5}}});
  dlg.Spread().SetData(kPeriodCol, 3, "0.5");
  EXPECT_EQ(dlg.Chart()->CurvePointCount(), 1) << "the curve stops where the periods stop increasing (T 0 is off the log axis)";
  const struct {
    int col, row;
    const char* text;
    const char* message;
  } cases[] = {
      {kPeriodCol, 3, "0.5", "Periods must increase from row to row."},
      {kPeriodCol, 2, "half", "Period must be a number."},
      {kPeriodCol, 1, "-0.1", "Period must not be negative."},
      {kAccelerationCol, 3, "", "Acceleration must be a number."},
      {kAccelerationCol, 2, "-1", "Acceleration must not be negative."},
  };
  for (const auto& c : cases) {
    CResponseSpectrumDataDlg one;
    one.m_spectrum = {"Mine", {{0, 0.4}, {0.5, 1.0}, {1.0, 0.5}}};
    one.InitDialogForTest();
    one.Spread().SetData(c.col, c.row, c.text);
    one.PressButton(IDOK);
    EXPECT_EQ(Messages().back(), c.message);
    EXPECT_EQ(one.ModalResult(), 0) << c.message;
    EXPECT_EQ(one.Spread().sheet().ActiveCell().col, c.col) << c.message;
    EXPECT_EQ(one.Spread().sheet().ActiveCell().row, c.row) << c.message;
    EXPECT_EQ(one.m_spectrum.points[1].period, 0.5) << "the spectrum is untouched";
  }
}

TEST_F(SpectrumDataTest, NameAndBlankRowsAndDeletion) {
  Open({"Mine", {{0, 0.4}, {0.5, 1.0}, {1.0, 0.5}}});
  dlg.Item<QLineEdit>(kCtlSpecName)->setText("OTHER");
  dlg.PressButton(IDOK);
  dlg.Item<QLineEdit>(kCtlSpecName)->setText(" ");
  dlg.PressButton(IDOK);
  EXPECT_EQ(Messages(), (std::vector<std::string>{"A response spectrum named \"Other\" already exists.",
                                                   "Response spectrum name: the name is empty."}));
  dlg.Item<QLineEdit>(kCtlSpecName)->setText("Mine, trimmed");
  dlg.Spread().SetData(kPeriodCol, 2, "");
  dlg.Spread().SetData(kAccelerationCol, 2, "");
  dlg.PressButton(kCtlNewRows);
  dlg.Spread().SetSelectBlock({kPeriodCol, 1, kAccelerationCol, 1});
  dlg.PressButton(kCtlSpecDeleteRows);
  EXPECT_EQ(Sheet().MaxRows(), 3);
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(dlg.m_spectrum.name, "Mine, trimmed");
  EXPECT_EQ(dlg.m_spectrum.points, (std::vector<fmSpectrumPoint>{{1.0, 0.5}}));
}
