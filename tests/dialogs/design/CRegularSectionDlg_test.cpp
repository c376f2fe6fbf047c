#include "dialogs/design/CRegularSectionDlg.h"

#include <QLineEdit>

#include "dialogs/design/SectionPicture.h"
#include "dialogs/frame/Form.h"
#include "resources/sections_ids.h"
#include "support/DialogTest.h"

namespace {

class RegularSectionTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    units.unit[fmUnit::Length] = 0;  // in
    dlg.m_pUnits = &units;
    dlg.InitDialogForTest();
  }
  void Enter(int type, std::vector<const char*> dims) {
    dlg.ChooseItem(frame::IdOf(&CRegularSectionDlg::m_nType), type);
    for (size_t i = 0; i < dims.size(); ++i)
      dlg.Item<QLineEdit>(CRegularSectionDlg::DimensionId(static_cast<int>(i)))->setText(dims[i]);
  }
  std::string Box(int i) { return dlg.GetDlgItemText(CRegularSectionDlg::DimensionId(i)); }
  bool Enabled(int i) { return dlg.GetDlgItem(CRegularSectionDlg::DimensionId(i))->isEnabled(); }

  fmUnit units;
  CRegularSectionDlg dlg;
};

}  // namespace

TEST_F(RegularSectionTest, UnusedDimensionsAreDisabledAndThePictureFollowsTheTyping) {
  EXPECT_EQ(dlg.GetDlgItemText(res::kCtlRegUnit), "in");
  EXPECT_EQ(Box(0), "0");
  EXPECT_TRUE(dlg.Picture()->outline().IsEmpty()) << "0 x 0 has nothing to draw";
  Enter(0, {"10", "20"});
  EXPECT_EQ(dlg.Picture()->outline().height, 20);
  EXPECT_EQ(dlg.Picture()->outline().marks[0].text, "b = 10 in");
  dlg.ChooseItem(frame::IdOf(&CRegularSectionDlg::m_nType), 1);
  EXPECT_EQ(dlg.GetDlgItemText(CRegularSectionDlg::CaptionId(0)), "Diameter");
  for (int i = 1; i < 4; ++i) {
    EXPECT_FALSE(Enabled(i));
    EXPECT_EQ(Box(i), "0.0001");
  }
  dlg.ChooseItem(frame::IdOf(&CRegularSectionDlg::m_nType), 3);
  EXPECT_EQ(dlg.GetDlgItemText(CRegularSectionDlg::CaptionId(2)), "Flange Thickness");
  for (int i = 0; i < 4; ++i) EXPECT_TRUE(Enabled(i));
  Enter(2, {"abc"});
  EXPECT_TRUE(dlg.Picture()->outline().IsEmpty());
}

TEST_F(RegularSectionTest, OkChecksRangeThenTheFlanges) {
  const struct {
    int type;
    std::vector<const char*> dims;
    const char* message;  // nullptr: accepted
  } cases[] = {
      {0, {"0", "10"}, "Please enter a number between 0.0001 and 1e+20."},
      {3, {"5", "10", "1", "6"}, "Flange width must be greater than or equal to web width"},
      {2, {"10", "2", "2", "0.3"}, nullptr},  // tf = d: accepted, the web height comes out negative
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.type);
    Enter(c.type, c.dims);
    prompter.Clear();
    dlg.PressButton(IDOK);
    EXPECT_EQ(dlg.ModalResult(), c.message ? 0 : IDOK);
    EXPECT_EQ(Messages(), c.message ? std::vector<std::string>{c.message} : std::vector<std::string>{});
  }
  EXPECT_EQ(dlg.m_nType, 2);  // the accepted wide flange
}
