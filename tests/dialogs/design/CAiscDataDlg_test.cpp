#include "dialogs/design/CAiscDataDlg.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTreeWidget>

#include "dialogs/design/CNdsDataDlg.h"
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
