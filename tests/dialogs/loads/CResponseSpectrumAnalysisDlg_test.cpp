#include <QComboBox>
#include <QLineEdit>

#include "dialogs/loads/CResponseSpectrumAnalysisDlg.h"
#include "dialogs/loads/SpectraDialogTest.h"
#include "resources/spectra_ids.h"

using namespace res;

namespace {

const fmResponseSpectrum kFirst = model::DefaultSpectra().front();

class SpectrumAnalysisTest : public SpectraDialogTest {
 protected:
  void SetUp() override {
    SpectraDialogTest::SetUp();
    Store({kFirst, {"Site", {{0, 1}}}});
  }
  void Type(CDialog& d, int id, const char* text) { d.Item<QLineEdit>(id)->setText(text); }
};

}  // namespace

// Each refusal in its turn, the dialog open and the settings untouched until OK passes.
TEST_F(SpectrumAnalysisTest, RefusesInOrderAndStoresOnlyWhenEverythingHolds) {
  CResponseSpectrumAnalysisDlg dlg;
  dlg.m_settings.spectrum = {"site", "Gone", "Site"};
  dlg.m_settings.combination = "CQC";
  const fmResponseSpectrumSettings given = dlg.m_settings;
  dlg.InitDialogForTest();
  EXPECT_EQ(dlg.Item<QComboBox>(kCtlRsaSpectrumX)->currentText().toStdString(), "Site");
  EXPECT_EQ(dlg.Item<QComboBox>(kCtlRsaSpectrumX + 1)->currentIndex(), -1);
  EXPECT_EQ(dlg.Item<QComboBox>(kCtlRsaCombination)->currentIndex(), -1);

  const std::vector<std::pair<std::function<void()>, const char*>> steps = {
      {[] {}, "Invalid spectrum is specified"},
      {[&] { dlg.ChooseItem(kCtlRsaSpectrumX + 1, 0); }, "Invalid spectrum combination method is specified"},
      {[&] { dlg.ChooseItem(kCtlRsaCombination, 1); Type(dlg, kCtlRsaDamping, "1"); },
       "Critical damping ratio must be in the range of [0.0, 1.0)"},
      {[&] { Type(dlg, kCtlRsaDamping, "0.02"); Type(dlg, kCtlRsaFactorX, "1.5"); },
       "Direction-X contribution factor must be in the range of [0.0, 1.0]"},
      {[&] { Type(dlg, kCtlRsaFactorX, "0"); Type(dlg, kCtlRsaFactorX + 1, "-0.1"); },
       "Direction-Y contribution factor must be in the range of [0.0, 1.0]"},
      {[&] { Type(dlg, kCtlRsaFactorX + 1, "0"); Type(dlg, kCtlRsaFactorX + 2, "2"); },
       "Direction-Z contribution factor must be in the range of [0.0, 1.0]"},
      {[&] { Type(dlg, kCtlRsaFactorX + 2, "0"); }, "Directional contribution factors cannot be all zeros."},
  };
  std::vector<std::string> expected = {"Invalid spectrum is specified"};  // said on opening
  for (const auto& [change, message] : steps) {
    change();
    dlg.PressButton(IDOK);
    expected.push_back(message);
    EXPECT_EQ(dlg.ModalResult(), 0) << message;
    EXPECT_EQ(dlg.m_settings, given) << message;
  }
  EXPECT_EQ(Messages(), expected);

  Type(dlg, kCtlRsaFactorX + 2, "0.3");
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(dlg.m_settings, (fmResponseSpectrumSettings{false, {"Site", "ASCE_2010_SDS_1_SD1_0.6_TL_8", "Site"},
                                                         "ABSSUM", 0.02, {0, 0, 0.3}}));
}
