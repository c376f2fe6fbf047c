#include <QCheckBox>
#include <QComboBox>

#include "dialogs/units/CUnitsDlg.h"
#include "resources/units_ids.h"
#include "support/DialogTest.h"
#include "tools/units.h"

using namespace res;

namespace {

class UnitsDlgTest : public DialogTest {
 protected:
  QComboBox* UnitList(int q) const { return dlg.Item<QComboBox>(kCtlUnitsUnit + q); }
  QComboBox* PrecisionList(int q) const { return dlg.Item<QComboBox>(kCtlUnitsPrecision + q); }
  QCheckBox* Convert(int q) const { return dlg.Item<QCheckBox>(kCtlUnitsConvert + q); }
  std::string Shown(int q) const { return UnitList(q)->currentText().toStdString(); }
  std::vector<bool> Checks() const {
    std::vector<bool> checks;
    for (int q = 0; q < fmUnit::QuantityCount; ++q) checks.push_back(Convert(q)->isChecked());
    return checks;
  }
  // Chooses a unit by its label, as the user would from the list.
  void Choose(int q, const char* label) {
    const int index = UnitList(q)->findText(label);
    ASSERT_GE(index, 0) << label << " is not offered for quantity " << q;
    ASSERT_TRUE(dlg.ChooseItem(kCtlUnitsUnit + q, index));
  }

  CUnitsDlg dlg;
};

fmUnit Metric() {
  fmUnit u;
  u.SetMetric();
  return u;
}

}  // namespace

TEST_F(UnitsDlgTest, ListsOfferEachQuantitysGroup) {
  dlg.m_Units = Metric();
  ASSERT_TRUE(dlg.InitDialogForTest());
  const auto& labels = tools::UnitLabels();
  const auto& quantities = UnitQuantities();
  for (int q = 0; q < fmUnit::QuantityCount; ++q) {
    SCOPED_TRACE(quantities[q].label);
    ASSERT_EQ(UnitList(q)->count(), quantities[q].count);
    for (int i = 0; i < quantities[q].count; ++i)
      EXPECT_EQ(UnitList(q)->itemText(i).toStdString(), labels[quantities[q].first + i]);
    ASSERT_EQ(PrecisionList(q)->count(), 12);
    EXPECT_EQ(PrecisionList(q)->itemText(0), "#.0");
    EXPECT_EQ(PrecisionList(q)->itemText(11), "#.000000E+00");
    EXPECT_EQ(Shown(q), labels[dlg.m_Units.unit[q]]);
    EXPECT_EQ(PrecisionList(q)->currentIndex(), dlg.m_Units.precision[q]);
    EXPECT_EQ(dlg.GetDlgItemText(kCtlUnitsLabel + q), quantities[q].label);
  }
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Units and Precisions");
  EXPECT_EQ(dlg.GetDlgItemText(kCtlUnitsInstruction),
            "Check the box to the right of each unit to convert existing data associated with that unit.");
  const std::pair<int, const char*> buttons[] = {
      {3336, "Check All"},       {3011, "Clear All"},         {3348, "Default English"},
      {3349, "Default Metric"},  {3357, "Consistent English"}, {3358, "Consistent Metric"},
      {3350, "Save as defaults for future use"}, {IDOK, "OK"}, {IDCANCEL, "Cancel"}};
  for (const auto& [id, text] : buttons) EXPECT_EQ(dlg.GetDlgItemText(id), text) << id;
  EXPECT_TRUE(debugLines.empty());
  EXPECT_TRUE(Messages().empty());
}

TEST_F(UnitsDlgTest, RotationalSpringListHoldsRadianThenDegreeUnits) {
  dlg.InitDialogForTest();
  QComboBox* kox = UnitList(fmUnit::NodeRotationalSpring);
  ASSERT_EQ(kox->count(), 32);
  EXPECT_EQ(kox->itemText(0), "lb-in/rad");
  EXPECT_EQ(kox->itemText(15), "Kgf-m/rad");
  EXPECT_EQ(kox->itemText(16), "lb-in/deg");
  EXPECT_EQ(kox->itemText(31), "Kgf-m/deg");
  Choose(fmUnit::NodeRotationalSpring, "kip-ft/deg");
  EXPECT_TRUE(dlg.PressButton(IDOK));
  ASSERT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(dlg.m_Units.unit[fmUnit::NodeRotationalSpring], 124);
}

TEST_F(UnitsDlgTest, PresetsReselectTheListsAndLeaveTheChecks) {
  struct Case {
    int button;
    void (fmUnit::*preset)();
  };
  const Case cases[] = {{3349, &fmUnit::SetMetric},
                        {3348, &fmUnit::SetEnglish},
                        {3358, &fmUnit::SetConsistentMetric},
                        {3357, &fmUnit::SetConsistentEnglish}};
  dlg.InitDialogForTest();
  Convert(fmUnit::Length)->setChecked(true);
  Convert(fmUnit::Stress)->setChecked(true);
  const std::vector<bool> checks = Checks();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.button);
    Choose(fmUnit::Force, "MT");  // a choice of the user's own, replaced by the preset
    PrecisionList(fmUnit::Force)->setCurrentIndex(11);
    ASSERT_TRUE(dlg.PressButton(c.button));
    fmUnit expected;
    (expected.*c.preset)();
    for (int q = 0; q < fmUnit::QuantityCount; ++q) {
      EXPECT_EQ(Shown(q), tools::UnitLabels()[expected.unit[q]]) << UnitQuantities()[q].label;
      EXPECT_EQ(PrecisionList(q)->currentIndex(), expected.precision[q]);
    }
    EXPECT_EQ(Checks(), checks);
  }
}

TEST_F(UnitsDlgTest, CheckAllAndClearAll) {
  dlg.m_Units.convert[fmUnit::Moment] = 1;
  dlg.InitDialogForTest();
  EXPECT_TRUE(Convert(fmUnit::Moment)->isChecked());
  EXPECT_FALSE(Convert(fmUnit::Length)->isChecked());
  ASSERT_TRUE(dlg.PressButton(3336));
  EXPECT_EQ(Checks(), std::vector<bool>(fmUnit::QuantityCount, true));
  ASSERT_TRUE(dlg.PressButton(3011));
  EXPECT_EQ(Checks(), std::vector<bool>(fmUnit::QuantityCount, false));
}

TEST_F(UnitsDlgTest, LockedModelMayChangeUnitsButNotConvertData) {
  dlg.m_bModelLocked = 1;
  dlg.InitDialogForTest();
  for (int q = 0; q < fmUnit::QuantityCount; ++q) {
    EXPECT_FALSE(Convert(q)->isEnabled()) << q;
    EXPECT_TRUE(UnitList(q)->isEnabled()) << q;
    EXPECT_TRUE(PrecisionList(q)->isEnabled()) << q;
  }
  EXPECT_FALSE(dlg.PressButton(3336));
  EXPECT_FALSE(dlg.PressButton(3011));
  EXPECT_TRUE(Messages().empty()) << "the units dialog shows no lock message";
  Choose(fmUnit::Length, "m");
  EXPECT_TRUE(dlg.PressButton(IDOK));
  ASSERT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(dlg.m_Units.unit[fmUnit::Length], 4);
  EXPECT_EQ(dlg.m_Units.convert, decltype(dlg.m_Units.convert){}) << "nothing asks for conversion";
}

TEST_F(UnitsDlgTest, OkWritesEveryRowBack) {
  dlg.m_Units.SetEnglish();
  dlg.InitDialogForTest();
  Choose(fmUnit::Length, "m");
  Choose(fmUnit::Moment, "kN-m");
  Choose(fmUnit::Temperature, "C");
  ASSERT_TRUE(dlg.ChooseItem(kCtlUnitsPrecision + fmUnit::Displacement, 7));
  Convert(fmUnit::Length)->setChecked(true);
  dlg.Item<QCheckBox>(kCtlUnitsSaveDefaults)->setChecked(true);
  EXPECT_TRUE(dlg.PressButton(IDOK));
  ASSERT_EQ(dlg.ModalResult(), IDOK);
  fmUnit expected;
  expected.SetEnglish();
  expected.unit[fmUnit::Length] = 4;
  expected.unit[fmUnit::Moment] = 30;
  expected.unit[fmUnit::Temperature] = 104;
  expected.precision[fmUnit::Displacement] = 7;
  expected.convert[fmUnit::Length] = 1;
  EXPECT_EQ(dlg.m_Units, expected);
  EXPECT_EQ(dlg.m_bSaveAsDefaults, 1);
}

TEST_F(UnitsDlgTest, CancelLeavesTheRecord) {
  dlg.m_Units = Metric();
  dlg.InitDialogForTest();
  Choose(fmUnit::Length, "in");
  Convert(fmUnit::Length)->setChecked(true);
  dlg.Item<QCheckBox>(kCtlUnitsSaveDefaults)->setChecked(true);
  EXPECT_TRUE(dlg.PressButton(IDCANCEL));
  EXPECT_EQ(dlg.ModalResult(), IDCANCEL);
  EXPECT_EQ(dlg.m_Units, Metric());
  EXPECT_EQ(dlg.m_bSaveAsDefaults, 0);
}
