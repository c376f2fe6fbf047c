#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include "dialogs/frame/Form.h"
#include "dialogs/loads/CGenerateResponseSpectrumDlg.h"
#include "dialogs/loads/SpectrumChart.h"
#include "resources/spectra_ids.h"
#include "support/DialogTest.h"

using namespace res;

namespace {

// The generator's controls, found by the members they show.
using Gen = CGenerateResponseSpectrumDlg;
const int kCtlSpecCode = frame::IdOf(&Gen::m_nCode);
const int kCtlSpecValue1 = frame::IdOf(&Gen::m_dValue1);
const int kCtlSpecValue2 = frame::IdOf(&Gen::m_dValue2);
const int kCtlSpecValue1Text = frame::FieldOf(&Gen::m_dValue1).labelId;
const int kCtlSpecValue2Text = frame::FieldOf(&Gen::m_dValue2).labelId;
const int kCtlSpecTl = frame::IdOf(&Gen::m_dTL);
const int kCtlSpecType = frame::IdOf(&Gen::m_nEc8Type);
const int kCtlSpecGround = frame::IdOf(&Gen::m_nGround);
const int kCtlSpecAg = frame::IdOf(&Gen::m_dAg);
const int kCtlSpecImportance = frame::IdOf(&Gen::m_dImportance);
const int kCtlSpecDamping = frame::IdOf(&Gen::m_dDamping);
const int kCtlSpecLogScale = frame::IdOf(&Gen::m_bLogScale);

class GenerateSpectrumTest : public DialogTest {
 protected:
  void Type(int id, const char* text) { dlg.Item<QLineEdit>(id)->setText(text); }
  std::string Text(int id) { return dlg.GetDlgItemText(id); }
  CGenerateResponseSpectrumDlg dlg;
};

}  // namespace

TEST_F(GenerateSpectrumTest, CaptionsAndFieldsFollowTheCode) {
  dlg.InitDialogForTest();
  auto* code = dlg.Item<QComboBox>(kCtlSpecCode);
  ASSERT_EQ(code->count(), 6);
  EXPECT_EQ(code->currentText().toStdString(), "ASCE 2010");
  EXPECT_EQ(code->itemText(4).toStdString(), "ASCE 7-16");
  EXPECT_EQ(code->itemText(5).toStdString(), "Eurocode 8");
  const struct {
    int code;
    const char *value1, *value2;
    bool tl, ec8;
  } cases[] = {
      {0, "Ca:", "Cv:", false, false},   {1, "SDS:", "SD1:", false, false}, {2, "SDS:", "SD1:", true, false},
      {3, "SDS:", "SD1:", true, false}, {4, "SDS:", "SD1:", true, false},  {5, "SDS:", "SD1:", false, true},
  };
  for (const auto& c : cases) {
    ASSERT_TRUE(dlg.ChooseItem(kCtlSpecCode, c.code));
    EXPECT_EQ(Text(kCtlSpecValue1Text), c.value1) << c.code;
    EXPECT_EQ(Text(kCtlSpecValue2Text), c.value2) << c.code;
    EXPECT_EQ(dlg.GetDlgItem(kCtlSpecTl)->isEnabled(), c.tl) << c.code;
    EXPECT_EQ(dlg.GetDlgItem(kCtlSpecValue1)->isEnabled(), !c.ec8) << c.code;
    EXPECT_EQ(dlg.GetDlgItem(kCtlSpecAg)->isEnabled(), c.ec8) << c.code;
  }
}

// The curve is redrawn at each change; a value it cannot use empties it and says why.
TEST_F(GenerateSpectrumTest, CurveFollowsTheValuesAsTheyAreTyped) {
  dlg.InitDialogForTest();
  SpectrumChart* chart = dlg.Chart();
  ASSERT_NE(chart, nullptr);
  EXPECT_EQ(chart->Title(), "ASCE_2010_SDS_1_SD1_0.6_TL_8");
  EXPECT_TRUE(chart->IsLogScale());
  EXPECT_EQ(chart->CurvePointCount(), 85) << "the point at T 0 has no place on a log axis";
  EXPECT_EQ(Text(kCtlSpecStatus), "86 points");

  dlg.Item<QCheckBox>(kCtlSpecLogScale)->click();
  EXPECT_FALSE(chart->IsLogScale());
  EXPECT_EQ(chart->CurvePointCount(), 86);

  Type(kCtlSpecTl, "0.5");
  EXPECT_EQ(chart->CurvePointCount(), 0);
  EXPECT_EQ(Text(kCtlSpecStatus), "TL value must be greater than SD1 / SDS");
  Type(kCtlSpecTl, "4,5");
  EXPECT_EQ(Text(kCtlSpecStatus), "TL is not a number.");
  Type(kCtlSpecTl, "4");
  EXPECT_EQ(chart->Title(), "ASCE_2010_SDS_1_SD1_0.6_TL_4");

  dlg.ChooseItem(kCtlSpecCode, 0);
  EXPECT_EQ(chart->Title(), "UBC_97_CA_1_CV_0.6");
  EXPECT_EQ(Text(kCtlSpecStatus), "127 points");
  dlg.ChooseItem(kCtlSpecCode, 5);
  EXPECT_EQ(chart->Title(), "EC8_T1_C_AG_0.25_GI_1_XI_5");
  dlg.ChooseItem(kCtlSpecGround, 0);
  dlg.ChooseItem(kCtlSpecType, 1);
  Type(kCtlSpecDamping, "0");
  EXPECT_EQ(Text(kCtlSpecStatus), "Damping ratio must be greater than 0.0");
  Type(kCtlSpecDamping, "2");
  EXPECT_EQ(chart->Title(), "EC8_T2_A_AG_0.25_GI_1_XI_2");
}

// OK refuses with the code's message and stays open; a usable input ends with the curve.
TEST_F(GenerateSpectrumTest, OkRefusesOrReturnsTheCurve) {
  dlg.InitDialogForTest();
  dlg.ChooseItem(kCtlSpecCode, 0);
  Type(kCtlSpecValue1, "0");
  Type(kCtlSpecValue2, "-1");
  dlg.PressButton(IDOK);
  dlg.ChooseItem(kCtlSpecCode, 5);
  Type(kCtlSpecAg, "0.3");
  Type(kCtlSpecImportance, "0");
  dlg.PressButton(IDOK);
  EXPECT_EQ(Messages(), (std::vector<std::string>{"Ca value must be greater than 0.0",
                                                   "Importance factor must be greater than 0.0"}));
  EXPECT_EQ(dlg.ModalResult(), 0);
  EXPECT_FALSE(dlg.m_bGenerated);
  EXPECT_TRUE(dlg.GetDlgItem(kCtlSpecImportance)->hasFocus() || !dlg.isVisible());

  // The stale UBC values in the disabled fields do not hold up Eurocode 8.
  Type(kCtlSpecImportance, "1.2");
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_TRUE(dlg.m_bGenerated);
  EXPECT_EQ(dlg.m_spectrum.name, "EC8_T1_C_AG_0.3_GI_1.2_XI_5");
  EXPECT_EQ(dlg.m_spectrum.points.size(), 67u);
  EXPECT_NEAR(dlg.m_spectrum.points.front().acceleration, 0.3 * 1.2 * 1.15, 1e-12);
}
