#include "dialogs/design/CRegularSectionDlg.h"

#include <QComboBox>
#include <QLineEdit>

#include "apps/host/DialogRunner.h"
#include "dialogs/design/SectionPicture.h"
#include "resources/sections_ids.h"
#include "support/DialogTest.h"

namespace {

class RegularSectionTest : public DialogTest {
 protected:
  void Open(int type = 0) {
    units.unit[fmUnit::Length] = 0;  // in
    dlg.m_pUnits = &units;
    dlg.m_nType = type;
    dlg.InitDialogForTest();
  }
  void Type(const char* d1, const char* d2 = nullptr, const char* d3 = nullptr, const char* d4 = nullptr) {
    const char* dims[] = {d1, d2, d3, d4};
    for (int i = 0; i < 4; ++i)
      if (dims[i]) dlg.Item<QLineEdit>(res::kCtlRegDim1 + i)->setText(dims[i]);
  }
  std::string Caption(int i) { return dlg.GetDlgItemText(res::kCtlRegCaption1 + i); }
  std::string Box(int i) { return dlg.GetDlgItemText(res::kCtlRegDim1 + i); }
  bool Enabled(int i) { return dlg.GetDlgItem(res::kCtlRegDim1 + i)->isEnabled(); }

  fmUnit units;
  CRegularSectionDlg dlg;
};

}  // namespace

TEST_F(RegularSectionTest, EachTypeSetsItsCaptionsAndBoxes) {
  Open();
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Regular Section");
  auto* combo = dlg.Item<QComboBox>(res::kCtlRegType);
  ASSERT_EQ(combo->count(), 4);
  EXPECT_EQ(combo->itemText(0).toStdString(), "Rectangle");
  EXPECT_EQ(combo->itemText(3).toStdString(), "Tee");
  EXPECT_EQ(dlg.GetDlgItemText(res::kCtlRegUnit), "in");

  EXPECT_EQ(Caption(0), "Width");
  EXPECT_EQ(Caption(1), "Depth");
  EXPECT_EQ(Box(0), "0");
  EXPECT_EQ(Box(2), "0.0001");
  EXPECT_EQ(Box(3), "0.0001");
  EXPECT_TRUE(Enabled(1));
  EXPECT_FALSE(Enabled(2));
  EXPECT_FALSE(Enabled(3));

  dlg.ChooseItem(res::kCtlRegType, 1);
  EXPECT_EQ(Caption(0), "Diameter");
  EXPECT_TRUE(Enabled(0));
  for (int i = 1; i < 4; ++i) {
    EXPECT_FALSE(Enabled(i));
    EXPECT_EQ(Box(i), "0.0001");
  }
  for (int type : {2, 3}) {
    dlg.ChooseItem(res::kCtlRegType, type);
    const char* captions[] = {"Flange Width", "Depth", "Flange Thickness", "Web Thickness"};
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(Caption(i), captions[i]);
      EXPECT_TRUE(Enabled(i));
    }
  }
}

TEST_F(RegularSectionTest, OkChecksRangeThenTheFlanges) {
  const struct {
    int type;
    std::vector<const char*> dims;
    const char* message;  // nullptr: accepted
  } cases[] = {
      {0, {"0", "10"}, "Please enter a number between 0.0001 and 1e+20."},
      {0, {"10", "x"}, "Please enter a number."},
      {2, {"5", "10", "1", "6"}, "Flange width must be greater than or equal to web width"},
      {3, {"5", "10", "11", "1"}, "Section depth must be greater than or equal to flange thickness"},
      {2, {"10", "2", "2", "0.3"}, nullptr},  // tf = d: accepted, the web height comes out negative
      {1, {"3"}, nullptr},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.type);
    CRegularSectionDlg fresh;
    fresh.m_pUnits = &units;
    fresh.InitDialogForTest();
    fresh.ChooseItem(res::kCtlRegType, c.type);
    for (size_t i = 0; i < c.dims.size(); ++i)
      fresh.Item<QLineEdit>(res::kCtlRegDim1 + static_cast<int>(i))->setText(c.dims[i]);
    prompter.Clear();
    fresh.PressButton(IDOK);
    if (c.message) {
      EXPECT_EQ(fresh.ModalResult(), 0);
      EXPECT_EQ(Messages(), std::vector<std::string>{c.message});
    } else {
      EXPECT_EQ(fresh.ModalResult(), IDOK);
      EXPECT_TRUE(Messages().empty());
      EXPECT_EQ(fresh.m_nType, c.type);
    }
  }
}

TEST_F(RegularSectionTest, PictureFollowsTheTypedDimensions) {
  Open();
  ASSERT_NE(dlg.Picture(), nullptr);
  EXPECT_TRUE(dlg.Picture()->outline().IsEmpty()) << "0 x 0 has nothing to draw";
  Type("10", "20");
  ASSERT_FALSE(dlg.Picture()->outline().IsEmpty());
  EXPECT_EQ(dlg.Picture()->outline().height, 20);
  EXPECT_EQ(dlg.Picture()->outline().marks[0].text, "b = 10 in");
  dlg.ChooseItem(res::kCtlRegType, 2);
  Type("10", "20", "0.5", "0.3");
  EXPECT_EQ(dlg.Picture()->outline().loops[0].size(), 12u);
  EXPECT_EQ(dlg.Picture()->outline().marks.size(), 4u);
  Type("abc");
  EXPECT_TRUE(dlg.Picture()->outline().IsEmpty());
}

// Renders the calculator with each shape; with NORVANE_SCREENSHOT_DIR set the pictures are
// kept there for review.
TEST_F(RegularSectionTest, RendersEachShape) {
  const char* dir = std::getenv("NORVANE_SCREENSHOT_DIR");
  const struct {
    int type;
    std::vector<const char*> dims;
    const char* name;
  } shapes[] = {{0, {"12", "24"}, "rectangle"},
                {1, {"16"}, "round"},
                {2, {"10", "20", "0.75", "0.4"}, "wideflange"},
                {3, {"12", "9", "1", "0.5"}, "tee"}};
  units.unit[fmUnit::Length] = 0;  // in
  for (const auto& s : shapes) {
    CRegularSectionDlg fresh;
    fresh.m_pUnits = &units;
    fresh.InitDialogForTest();
    fresh.ChooseItem(res::kCtlRegType, s.type);
    for (size_t i = 0; i < s.dims.size(); ++i)
      fresh.Item<QLineEdit>(res::kCtlRegDim1 + static_cast<int>(i))->setText(s.dims[i]);
    EXPECT_FALSE(fresh.Picture()->outline().IsEmpty()) << s.name;
    const QImage image = fresh.grab().toImage();
    EXPECT_FALSE(image.isNull());
    if (dir) {
      std::string error;
      RenderWidgetToPng(fresh, std::string(dir) + "/CRegularSectionDlg-" + s.name + ".png", error);
    }
  }
}
