#include "dialogs/units/CUnitsDlg.h"

#include <QCheckBox>
#include <QComboBox>

#include "dialogs/frame/Form.h"
#include "dialogs/units/CUnitConversionDlg.h"
#include "resources/resources.h"
#include "resources/ids.h"
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

}  // namespace

// A host table in front of the library's renames both unit dialogs and their controls.
TEST_F(DialogTest, UnitDialogsTakeTheirCaptionsFromTheStringTable) {
  static const StringEntry strings[] = {{1486, "Einheiten"},           {kStrUnitsCheckAll, "Alle"},
                                        {kStrUnitsQuantity, "Länge:"}, {1518, "Umrechnung"},
                                        {frame::FieldOf(&CUnitConversionDlg::m_nUnitType).labelStringId, "Art:"},   {kStrClose, "Schließen"}};
  static const ResourceTable host = {"host", strings, {}};
  LinkResourceTable(host, true);
  CUnitsDlg units;
  units.InitDialogForTest();
  CUnitConversionDlg conversion;
  conversion.InitDialogForTest();
  UnlinkResourceTable(host);
  EXPECT_EQ(units.windowTitle().toStdString(), "Einheiten");
  EXPECT_EQ(units.GetDlgItemText(kCtlUnitsCheckAll), "Alle");
  EXPECT_EQ(units.GetDlgItemText(kCtlUnitsLabel), "Länge:");
  EXPECT_EQ(units.GetDlgItemText(kCtlUnitsLabel + 1), "Dimension:");
  EXPECT_EQ(conversion.windowTitle().toStdString(), "Umrechnung");
  EXPECT_EQ(conversion.GetDlgItemText(frame::FieldOf(&CUnitConversionDlg::m_nUnitType).labelId), "Art:");
  EXPECT_EQ(conversion.GetDlgItemText(IDCANCEL), "Schließen");
  EXPECT_TRUE(debugLines.empty()) << debugLines.front();
}

TEST_F(UnitsDlgTest, DegreeUnitsOfRotationalSpringsMapPastTheRadianOnes) {
  dlg.m_Units.SetMetric();
  ASSERT_TRUE(dlg.InitDialogForTest());
  // Rotational springs list sixteen radian units, then the same in degrees: the index maps past the split.
  Choose(fmUnit::NodeRotationalSpring, "kip-ft/deg");
  EXPECT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.m_Units.unit[fmUnit::NodeRotationalSpring], 124);
}

TEST_F(UnitsDlgTest, PresetsReselectTheListsAndLeaveTheChecks) {
  const struct {
    int button;
    void (fmUnit::*preset)();
  } cases[] = {{kCtlUnitsDefaultMetric, &fmUnit::SetMetric},
                        {kCtlUnitsDefaultEnglish, &fmUnit::SetEnglish},
                        {kCtlUnitsConsistentMetric, &fmUnit::SetConsistentMetric},
                        {kCtlUnitsConsistentEnglish, &fmUnit::SetConsistentEnglish}};
  dlg.m_Units.convert[fmUnit::Moment] = 1;
  dlg.InitDialogForTest();
  EXPECT_TRUE(Convert(fmUnit::Moment)->isChecked());
  Convert(fmUnit::Length)->setChecked(true);
  const std::vector<bool> checks = Checks();
  for (const auto& c : cases) {
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
  ASSERT_TRUE(dlg.PressButton(kCtlUnitsCheckAll));
  EXPECT_EQ(Checks(), std::vector<bool>(fmUnit::QuantityCount, true));
  ASSERT_TRUE(dlg.PressButton(kCtlUnitsClearAll));
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
  EXPECT_FALSE(dlg.PressButton(kCtlUnitsCheckAll));
  EXPECT_FALSE(dlg.PressButton(kCtlUnitsClearAll));
  EXPECT_TRUE(Messages().empty()) << "the units dialog shows no lock message";
  Choose(fmUnit::Length, "m");
  EXPECT_TRUE(dlg.PressButton(IDOK));
  ASSERT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(dlg.m_Units.unit[fmUnit::Length], 4);
  EXPECT_EQ(dlg.m_Units.convert, decltype(dlg.m_Units.convert){}) << "nothing asks for conversion";
}

TEST_F(UnitsDlgTest, OkWritesEveryRowBackCancelNothing) {
  dlg.m_Units.SetEnglish();
  const fmUnit original = dlg.m_Units;
  dlg.InitDialogForTest();
  Choose(fmUnit::Length, "m");
  Choose(fmUnit::Moment, "kN-m");
  Choose(fmUnit::Temperature, "C");
  ASSERT_TRUE(dlg.ChooseItem(kCtlUnitsPrecision + fmUnit::Displacement, 7));
  Convert(fmUnit::Length)->setChecked(true);
  dlg.Item<QCheckBox>(kCtlUnitsSaveDefaults)->setChecked(true);

  EXPECT_TRUE(dlg.PressButton(IDOK));
  ASSERT_EQ(dlg.ModalResult(), IDOK);
  fmUnit expected = original;
  expected.unit[fmUnit::Length] = 4;
  expected.unit[fmUnit::Moment] = 30;
  expected.unit[fmUnit::Temperature] = 104;
  expected.precision[fmUnit::Displacement] = 7;
  expected.convert[fmUnit::Length] = 1;
  EXPECT_EQ(dlg.m_Units, expected);
  EXPECT_EQ(dlg.m_bSaveAsDefaults, 1);

  CUnitsDlg cancelled;
  cancelled.m_Units = original;
  cancelled.InitDialogForTest();
  cancelled.ChooseItem(kCtlUnitsUnit + fmUnit::Length, 4);
  ASSERT_TRUE(cancelled.PressButton(IDCANCEL));
  EXPECT_EQ(cancelled.m_Units, original);
}
