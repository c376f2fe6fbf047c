#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <tuple>

#include "dialogs/frame/Form.h"
#include "resources/ids.h"
#include "support/DialogTest.h"

namespace {

// A throwaway form: the whole of it is the members and the description.
class CTrialDlg : public CDialog {
 public:
  CTrialDlg() : CDialog(Description()) {}
  static const frame::Form<CTrialDlg>& Description();
  fmUnit* m_pUnits = nullptr;
  int32_t m_nBays = 3;
  double m_dSpan = 6.0;
  BOOL m_bPinned = 0;
  int32_t m_nSupport = 1;
  int32_t m_nCode = 0;
};

const frame::Form<CTrialDlg>& CTrialDlg::Description() {
  using F = frame::Field<CTrialDlg>;
  static const frame::Form<CTrialDlg> form(
      {29950, "Trial Frame"},
      {F::Int("Bays:", &CTrialDlg::m_nBays, 1, 50), F::Real("Span:", &CTrialDlg::m_dSpan, 0.5, 100.0).Unit(fmUnit::Length),
       F::Check("Pinned bases", &CTrialDlg::m_bPinned), F::Radio({"Fixed", "Free"}, &CTrialDlg::m_nSupport),
       F::DropIndex("Code:", &CTrialDlg::m_nCode).Items({"ASCE 7-16", "Eurocode 1"})},
      &CTrialDlg::m_pUnits);
  return form;
}

class FormTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    units.SetMetric();
    dlg.m_pUnits = &units;
    dlg.InitDialogForTest();
  }
  template <class W, class T>
  W* Field(T CTrialDlg::* m) {
    return dlg.Item<W>(frame::IdOf(m));
  }
  auto Members() const { return std::tuple(dlg.m_nBays, dlg.m_dSpan, dlg.m_bPinned, dlg.m_nSupport, dlg.m_nCode); }
  fmUnit units;
  CTrialDlg dlg;
};

}  // namespace

TEST_F(FormTest, OpensWithTheMembersLabelsAndUnit) {
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Trial Frame");
  EXPECT_EQ(Field<QLineEdit>(&CTrialDlg::m_nBays)->text().toStdString(), "3");
  EXPECT_EQ(Field<QLineEdit>(&CTrialDlg::m_dSpan)->text().toStdString(), "6");
  EXPECT_FALSE(Field<QCheckBox>(&CTrialDlg::m_bPinned)->isChecked());
  EXPECT_EQ(Field<QComboBox>(&CTrialDlg::m_nCode)->currentText().toStdString(), "ASCE 7-16");
  std::vector<std::string> texts;
  for (const res::Control& c : dlg.Template()->controls) texts.push_back(dlg.GetDlgItemText(c.id));
  EXPECT_EQ(texts, (std::vector<std::string>{"Bays:", "3", "Span:", "6", "m", "Pinned bases", "Fixed", "Free", "Code:",
                                             "ASCE 7-16", "OK", "Cancel"}));
  EXPECT_TRUE(dlg.Item<QRadioButton>(frame::IdOf(&CTrialDlg::m_nSupport) + 1)->isChecked()) << "the second radio";
  EXPECT_TRUE(debugLines.empty());
}

TEST_F(FormTest, RefusesAValueOutOfRangeKeepingTheMembersThenWritesBackOnOk) {
  Field<QCheckBox>(&CTrialDlg::m_bPinned)->setChecked(true);
  dlg.ChooseItem(frame::IdOf(&CTrialDlg::m_nCode), 1);
  const std::tuple<int32_t CTrialDlg::*, double CTrialDlg::*, const char*, const char*> refusals[] = {
      {&CTrialDlg::m_nBays, nullptr, "51", "Please enter a number between 1 and 50."},
      {nullptr, &CTrialDlg::m_dSpan, "0.25", "Please enter a number between 0.5 and 100."},
      {nullptr, &CTrialDlg::m_dSpan, "2,5", "Please enter a number."},
  };
  for (const auto& [intMember, realMember, text, message] : refusals) {
    SCOPED_TRACE(text);
    prompter.Clear();
    const int id = intMember ? frame::IdOf(intMember) : frame::IdOf(realMember);
    Field<QLineEdit>(&CTrialDlg::m_nBays)->setText("12");
    dlg.Item<QLineEdit>(id)->setText(text);
    EXPECT_TRUE(dlg.PressButton(IDOK));
    EXPECT_EQ(Messages(), std::vector<std::string>{message});
    EXPECT_EQ(dlg.ModalResult(), 0);
    EXPECT_EQ(dlg.focusWidget(), dlg.GetDlgItem(id));
    EXPECT_EQ(Members(), std::tuple(3, 6.0, 0, 1, 0)) << "no member is half-written";
  }
  prompter.Clear();
  Field<QLineEdit>(&CTrialDlg::m_dSpan)->setText(" 7.5 ");
  dlg.Item<QRadioButton>(frame::IdOf(&CTrialDlg::m_nSupport))->setChecked(true);
  EXPECT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(Members(), std::tuple(12, 7.5, 1, 0, 1));
  EXPECT_TRUE(Messages().empty());
}

TEST_F(FormTest, UnnamedIdsComeFromTheReservedRangesAndTheStringsFromTheDescription) {
  std::vector<int> controls;
  for (const res::Control& c : dlg.Template()->controls) {
    controls.push_back(c.id);
    if (c.stringId > res::kStrCancel) {
      EXPECT_EQ(c.stringId / res::kAssignedStringsPerForm, (res::kAssignedStringBase / res::kAssignedStringsPerForm) + 29950);
      EXPECT_EQ(res::LoadString(c.stringId), std::string(c.text));
    }
  }
  const int b = res::kAssignedControlBase;
  EXPECT_EQ(controls, (std::vector<int>{b + 1, b, b + 3, b + 2, b + 4, b + 5, b + 6, b + 7, b + 9, b + 8, IDOK, IDCANCEL}));
  EXPECT_EQ(res::LoadString(dlg.Template()->captionStringId), "Trial Frame");
  EXPECT_TRUE(res::GeneratedStringConflicts().empty());
}

namespace {

// A field read only while a check is on, inside a group inside another, and a drop-down
// where no entry chosen is a value of its own.
class CConditionDlg : public CDialog {
 public:
  CConditionDlg() : CDialog(Description()) {}
  static const frame::Form<CConditionDlg>& Description() {
    using F = frame::Field<CConditionDlg>;
    static const frame::Form<CConditionDlg> form(
        {29951, "Conditions"},
        {F::Check("Spans given", &CConditionDlg::m_bSpans), F::Group("Outer"), F::Group("Inner"),
         F::Real("Span:", &CConditionDlg::m_dSpan).ReadWhen([](const CConditionDlg& d) { return d.m_bSpans != 0; }),
         F::EndGroup(), F::EndGroup(), F::DropIndexOrNone("Code:", &CConditionDlg::m_nCode).Items({"A", "B"})});
    return form;
  }
  BOOL m_bSpans = 0;
  double m_dSpan = 6.0;
  int32_t m_nCode = 5;
};

}  // namespace

TEST_F(FormTest, AFieldIsReadOnlyWhileItsConditionHoldsAndNoChoiceStaysNone) {
  CConditionDlg d;
  d.InitDialogForTest();
  const std::vector<frame::FieldLayout>& layouts = CConditionDlg::Description().Layouts();
  const res::Control* span = d.Template()->FindControl(frame::IdOf(&CConditionDlg::m_dSpan));
  ASSERT_NE(span, nullptr);
  EXPECT_EQ(span->group, layouts[2].id) << "in the inner group";
  EXPECT_EQ(d.Template()->FindControl(layouts[2].id)->group, layouts[1].id) << "the inner group in the outer";
  EXPECT_EQ(d.Item<QComboBox>(frame::IdOf(&CConditionDlg::m_nCode))->currentIndex(), -1);

  d.Item<QLineEdit>(frame::IdOf(&CConditionDlg::m_dSpan))->setText("abc");
  d.Item<QCheckBox>(frame::IdOf(&CConditionDlg::m_bSpans))->setChecked(true);
  EXPECT_TRUE(d.PressButton(IDOK));
  EXPECT_EQ(Messages(), std::vector<std::string>{"Please enter a number."});
  EXPECT_EQ(d.focusWidget(), d.GetDlgItem(frame::IdOf(&CConditionDlg::m_dSpan)));
  EXPECT_EQ(d.ModalResult(), 0);

  d.Item<QCheckBox>(frame::IdOf(&CConditionDlg::m_bSpans))->setChecked(false);
  EXPECT_TRUE(d.PressButton(IDOK));
  EXPECT_EQ(d.ModalResult(), IDOK) << "a field not read is not checked";
  EXPECT_EQ(std::tuple(d.m_bSpans, d.m_dSpan, d.m_nCode), std::tuple(0, 6.0, -1));
}
