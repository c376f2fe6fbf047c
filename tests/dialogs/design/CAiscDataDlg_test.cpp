#include "dialogs/design/CAiscDataDlg.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTreeWidget>

#include "dialogs/design/CNdsDataDlg.h"
#include "dialogs/design/SectionPicture.h"
#include "dialogs/design/SectionsDialogTest.h"
#include "resources/sections_ids.h"

namespace {

std::string Property(CDialog& dlg, const char* name) {
  auto* tree = dlg.Item<QTreeWidget>(res::kCtlShapeProperties);
  for (int i = 0; i < tree->topLevelItemCount(); ++i)
    if (tree->topLevelItem(i)->text(0) == name)
      return (tree->topLevelItem(i)->text(1) + " " + tree->topLevelItem(i)->text(2)).toStdString();
  return "";
}

}  // namespace

TEST_F(SectionsDialogTest, SteelBrowserFiltersSearchesAndShowsThePropertiesInTheCurrentUnits) {
  fmUnit units;
  units.unit[fmUnit::Length] = 0;  // in
  CAiscDataDlg dlg;
  dlg.m_pUnits = &units;
  dlg.m_strShapeName = "w14x90";
  dlg.InitDialogForTest();
  auto* list = dlg.Item<QListWidget>(res::kCtlShapeList);
  ASSERT_GT(list->count(), 1000);
  EXPECT_EQ(list->currentItem()->text().toStdString(), "W14X90") << "preselected by its label";
  EXPECT_EQ(Property(dlg, "A"), "26.5 in^2");
  EXPECT_EQ(Property(dlg, "W"), "0.09 kip/ft");

  dlg.Item<QLineEdit>(res::kCtlShapeFind)->setText("hss6x6x1/2");
  ASSERT_EQ(list->count(), 1);
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(dlg.m_Shape.label, "HSS6X6X1/2");

  CAiscDataDlg none;
  none.m_pUnits = &units;
  none.InitDialogForTest();
  none.Item<QLineEdit>(res::kCtlShapeFind)->setText("no such shape");
  none.PressButton(IDOK);
  EXPECT_EQ(none.ModalResult(), 0);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Select a shape in the list first."});
}

TEST_F(SectionsDialogTest, LumberBrowserListsDressedSizesByFamily) {
  fmUnit units;
  units.unit[fmUnit::Length] = 0;
  CNdsDataDlg dlg;
  dlg.m_pUnits = &units;
  dlg.m_strShapeName = "2x4";
  dlg.InitDialogForTest();
  auto* list = dlg.Item<QListWidget>(res::kCtlShapeList);
  EXPECT_EQ(list->currentItem()->text().toStdString(), "2x4");
  EXPECT_EQ(Property(dlg, "b (dressed)"), "1.5 in");
  dlg.ChooseItem(res::kCtlShapeType, 3);  // timbers
  for (int i = 0; i < list->count(); ++i) EXPECT_GE(list->item(i)->text().split('x')[0].toInt(), 5);
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.m_Shape.nominalB, 5);
}

TEST_F(SectionsDialogTest, ThePictureKeepsEveryTextClearOfTheDimensionLines) {
  for (int length : {0, 1}) {  // in, ft: the longer texts of feet must fit as well
    fmUnit units;
    units.unit[fmUnit::Length] = length;
    for (const char* label : {"W44X335", "L8X4X1", "C15X50", "WT22X167.5", "HSS20X12X5/8", "2L8X4X1LLBB"}) {
      CAiscDataDlg dlg;
      dlg.m_pUnits = &units;
      dlg.m_strShapeName = label;
      dlg.InitDialogForTest();
      SectionPicture* picture = dlg.Picture();
      ASSERT_NE(picture, nullptr);
      for (const QSize size : {QSize(270, 430), QSize(220, 220), QSize(420, 300)}) {
        picture->resize(size);
        const auto marks = picture->PlaceMarks();
        ASSERT_FALSE(marks.empty()) << label;
        for (const auto& text : marks) {
          if (text.line.isNull()) continue;
          EXPECT_TRUE(QRectF(picture->rect()).contains(text.text)) << label << " " << size.width();
          // Walk every dimension line a pixel at a time: no point of it lies in a text.
          for (const auto& mark : marks)
            for (double t = 0; t <= 1; t += 1 / std::max(1.0, mark.line.length()))
              EXPECT_FALSE(text.text.adjusted(0.5, 0.5, -0.5, -0.5).contains(mark.line.pointAt(t)))
                  << label << " at " << size.width() << "x" << size.height() << ": a line crosses "
                  << text.text.x() << "," << text.text.y();
        }
      }
    }
  }
}
