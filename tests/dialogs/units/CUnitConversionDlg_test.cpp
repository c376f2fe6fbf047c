#include "dialogs/units/CUnitConversionDlg.h"

#include <QComboBox>
#include <QLineEdit>

#include "resources/units_ids.h"
#include "support/DialogTest.h"
#include "support/comma_locale.h"

using namespace res;

namespace {

class UnitConversionTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    ASSERT_TRUE(dlg.InitDialogForTest());
  }
  QComboBox* List(int id) const { return dlg.Item<QComboBox>(id); }
  QStringList Items(int id) const {
    QStringList items;
    for (int i = 0; i < List(id)->count(); ++i) items << List(id)->itemText(i);
    return items;
  }
  void Choose(int id, const char* text) {
    const int index = List(id)->findText(text);
    ASSERT_GE(index, 0) << text;
    ASSERT_TRUE(dlg.ChooseItem(id, index));
  }
  void Type(const char* text) { dlg.Item<QLineEdit>(kCtlConvValue)->setText(text); }
  std::string Result() const { return dlg.GetDlgItemText(kCtlConvResult); }

  CUnitConversionDlg dlg;
};

}  // namespace

TEST_F(UnitConversionTest, ConvertsWithSevenSignificantDigits) {
  const struct {
    const char *type, *value, *from, *to, *result;
  } cases[] = {
      {"Length", "1", "ft", "in", "12"},
      {"Moment", "1", "kip-ft", "kN-m", "1.355818"},
      {"Pressure", "36", "kip/in^2", "N/mm^2", "248.2113"},
      {"Angle", "180", "deg", "rad", "3.141593"},
      {"Length", "-2.5e3", "mm", "m", "-2.5"},
      {"Length", "1e-20", "m", "mm", "1e-17"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.value) + " " + c.from + " -> " + c.to);
    Choose(kCtlConvType, c.type);
    Type(c.value);
    Choose(kCtlConvFrom, c.from);
    Choose(kCtlConvTo, c.to);
    EXPECT_EQ(Result(), c.result);
  }
  EXPECT_TRUE(Messages().empty());
}

TEST_F(UnitConversionTest, OpensOnOneInchAndChangingTheTypeRefillsBothLists) {
  EXPECT_EQ(Items(kCtlConvFrom), (QStringList{"in", "ft", "mm", "cm", "m"}));
  EXPECT_EQ(Result(), "1");
  Choose(kCtlConvFrom, "ft");
  Choose(kCtlConvTo, "m");
  Type("2");
  Choose(kCtlConvType, "Force");
  EXPECT_EQ(Items(kCtlConvFrom), (QStringList{"lb", "kip", "N", "kN", "MT", "Kgf"}));
  EXPECT_EQ(Items(kCtlConvTo), Items(kCtlConvFrom));
  EXPECT_EQ(Result(), "2") << "first unit to first unit";
  EXPECT_EQ(dlg.m_nUnitType, 3);
}

TEST_F(UnitConversionTest, NonNumericValueShowsTheNumberMessageAndKeepsTheResult) {
  Choose(kCtlConvFrom, "ft");
  Type("12");
  ASSERT_EQ(Result(), "144");
  // Texts on the way to a number wait quietly; anything else is refused once.
  const struct {
    const char* typed;
    bool message;
  } cases[] = {{"", false},   {"-", false},  {"-.", false},   {"2e-", false},  {"-5E+", false},
                        {"abc", true}, {"1,5", true}, {"12 ft", true}, {"1e400", true}, {"--", true},
                        {"2-", true},  {"-e", true},  {"2ee", true}};
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string("\"") + c.typed + "\"");
    prompter.Clear();
    Type(c.typed);
    EXPECT_EQ(Messages(), c.message ? std::vector<std::string>{"Please enter a number."} : std::vector<std::string>{});
    EXPECT_EQ(Result(), "144");
  }
  prompter.Clear();
  Type("0.5");
  EXPECT_EQ(Result(), "6");
  EXPECT_TRUE(Messages().empty());
}

TEST_F(UnitConversionTest, ValuesFollowNoLocale) {
  testsupport::ScopedCommaNumeric comma;
  if (!comma.ok()) GTEST_SKIP() << "no de_DE.UTF-8 locale and it could not be compiled with localedef";
  Choose(kCtlConvType, "Moment");
  Choose(kCtlConvFrom, "kip-ft");
  Choose(kCtlConvTo, "kN-m");
  Type("2.5");
  EXPECT_EQ(Result(), "3.389545");
}
