#include <QLineEdit>

#include "dialogs/frame/CDialog.h"
#include "dialogs/frame/DataExchange.h"
#include "support/DialogTest.h"
#include "support/comma_locale.h"

namespace {

// A small data dialog of the test's own, linked as a host table: the guard's ids, a
// new-row count with the range of the node grid and a tolerance between 0 and 1.
constexpr int kTestTemplate = 29900, kBrokenTemplate = 29901;
constexpr int kStrCaption = 29900, kStrNewRows = 29901, kStrTolerance = 29902;
constexpr int kStrMissingCaption = 29998, kStrMissingText = 29997;
constexpr int kCtlNewRowCount = 8050, kCtlNewRows = 8006, kCtlRound = 8082;
constexpr int kCtlToleranceLabel = 29010, kCtlTolerance = 29011, kCtlUnlabelled = 29020;

const res::StringEntry kTestStrings[] = {{kStrCaption, "Test Data"}, {kStrNewRows, "New Rows"}, {kStrTolerance, "Tolerance:"}};

const res::DialogTemplate kTest = {
    kTestTemplate, kStrCaption, "Template Caption",
    {
        {kCtlNewRowCount, res::Kind::Edit, 0, "", 0, 0}, {kCtlNewRows, res::Kind::Button, kStrNewRows, "template text", 0, 1},
        {kCtlToleranceLabel, res::Kind::Static, kStrTolerance, "template text", 1, 0},
        {kCtlTolerance, res::Kind::Edit, 0, "", 1, 1}, {kCtlRound, res::Kind::Button, 0, "Round", 2, 0},
        {IDOK, res::Kind::Button, 1039, "template OK", -1, 0}, {IDCANCEL, res::Kind::Button, 1040, "template Cancel", -1, 1},
    }};

// Names strings that no table has: the dialog must still open with the template's texts.
const res::DialogTemplate kBroken = {
    kBrokenTemplate, kStrMissingCaption, "Broken Template",
    {
        {kCtlUnlabelled, res::Kind::Static, kStrMissingText, "Template words", 0, 0},
        {IDOK, res::Kind::Button, 1039, "OK", -1, 0}, {IDCANCEL, res::Kind::Button, 1040, "Cancel", -1, 1},
    }};

const res::DialogTemplate* const kTestTemplates[] = {&kTest, &kBroken};
const res::ResourceTable kTestTable = {"frame tests", kTestStrings, kTestTemplates};

class CTestDataDlg : public CDialog {
 public:
  explicit CTestDataDlg(int templateId = kTestTemplate) : CDialog(templateId, nullptr) {}

  uint32_t m_nNewRows = 1;
  double m_dEpsilon = 1e-10;
  BOOL m_bShowSelectedOnly = 0;
  BOOL m_bModelLocked = 0;

 protected:
  BOOL OnInitDialog() override {
    CDialog::OnInitDialog();
    ApplyGridEditLock(m_bShowSelectedOnly, m_bModelLocked);
    return 1;
  }
  void DoDataExchange(CDataExchange* pDX) override {
    if (TemplateId() != kTestTemplate) return;  // the broken template has none of these controls
    DDX_Text(pDX, kCtlNewRowCount, m_nNewRows);
    DDV_MinMaxUInt(pDX, m_nNewRows, 1, 100000);
    DDX_Text(pDX, kCtlTolerance, m_dEpsilon);
    DDV_MinMaxDouble(pDX, m_dEpsilon, 0.0, 1.0);
  }
};

class FrameTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    res::LinkResourceTable(kTestTable, true);
  }
  void TearDown() override {
    res::UnlinkResourceTable(kTestTable);
    DialogTest::TearDown();
  }
  static void SetText(CDialog& dlg, int id, const char* text) {
    ASSERT_NE(dlg.Item<QLineEdit>(id), nullptr) << id;
    dlg.Item<QLineEdit>(id)->setText(text);
  }
};

const std::string kLockedText =
    "The Model is locked.\nYou can not modify data in the spreadsheet.\n"
    "To enable editting, unlock the model from Edit->Unlock Model";
const std::string kSelectedText =
    "Only selected items will be displayed.\nYou can not modify data in the spreadsheet.\n"
    "To enable editting, turn off 'show only selected entities in spreadsheet' from Settings->Data Options.";

}  // namespace

TEST_F(FrameTest, CaptionsComeFromTheStringTableAndAMissingStringOnlyWritesADebugLine) {
  CTestDataDlg dlg;
  ASSERT_TRUE(dlg.InitDialogForTest());
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Test Data");
  EXPECT_EQ(dlg.GetDlgItemText(kCtlNewRows), "New Rows");
  EXPECT_EQ(dlg.GetDlgItemText(kCtlToleranceLabel), "Tolerance:");
  EXPECT_EQ(dlg.GetDlgItemText(IDOK), "OK");
  EXPECT_EQ(dlg.GetDlgItemText(IDCANCEL), "Cancel");
  EXPECT_EQ(dlg.GetDlgItemText(kCtlRound), "Round") << "a control without a string keeps its template text";
  EXPECT_TRUE(debugLines.empty());

  CTestDataDlg broken(kBrokenTemplate);
  ASSERT_TRUE(broken.InitDialogForTest());
  EXPECT_EQ(broken.windowTitle().toStdString(), "Broken Template") << "the template's caption stays";
  EXPECT_EQ(broken.GetDlgItemText(kCtlUnlabelled), "Template words");
  EXPECT_EQ(debugLines, (std::vector<std::string>{
                            "Error loading string in dialog [Broken Template]: stringID = 29998",
                            "Error loading string in dialog [Broken Template]: ctrlID = 29020, stringID = 29997",
                        }));
  EXPECT_TRUE(Messages().empty()) << "a developer's fault is never shown to the user";
}

TEST_F(FrameTest, LockedModelGuard) {
  struct Case { const char* name; BOOL showSelectedOnly, modelLocked; std::vector<std::string> messages; };
  const Case cases[] = {
      {"neither flag", 0, 0, {}},
      {"model locked", 0, 1, {kLockedText}},
      {"only selected shown", 1, 0, {kSelectedText}},
      // The second box deliberately repeats the first text before its own.
      {"both flags", 1, 1, {kLockedText, kLockedText + kSelectedText}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    prompter.Clear();
    CTestDataDlg dlg;
    dlg.m_bShowSelectedOnly = c.showSelectedOnly;
    dlg.m_bModelLocked = c.modelLocked;
    dlg.InitDialogForTest();
    EXPECT_EQ(Messages(), c.messages);
    const bool guarded = c.showSelectedOnly || c.modelLocked;
    for (int id : {IDOK, kCtlNewRowCount, kCtlNewRows, kCtlRound})
      EXPECT_EQ(dlg.GetDlgItem(id)->isEnabled(), !guarded) << "control " << id;
    EXPECT_TRUE(dlg.GetDlgItem(kCtlTolerance)->isEnabled()) << "other controls stay as they are";
    EXPECT_EQ(dlg.GetDlgItemText(IDCANCEL), guarded ? "Close" : "Cancel");
    EXPECT_EQ(dlg.PressButton(IDOK), !guarded);
    if (guarded) {
      EXPECT_TRUE(dlg.PressButton(IDCANCEL));
      EXPECT_EQ(dlg.ModalResult(), IDCANCEL);
    }
  }
}

TEST_F(FrameTest, RangeRefusalsKeepTheDialogOpen) {
  struct Case { int control; const char* text; const char* message; };
  const Case cases[] = {
      {kCtlNewRowCount, "0", "Please enter a number between 1 and 100000."},
      {kCtlNewRowCount, "-1", "Please enter a whole number that is not negative."},
      {kCtlTolerance, "abc", "Please enter a number."},
      {kCtlTolerance, "0,5", "Please enter a number."},
      {kCtlTolerance, "1.5", "Please enter a number between 0 and 1."},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.text));
    prompter.Clear();
    CTestDataDlg dlg;
    dlg.InitDialogForTest();
    SetText(dlg, c.control, c.text);
    EXPECT_TRUE(dlg.PressButton(IDOK));
    EXPECT_EQ(Messages(), std::vector<std::string>{c.message});
    EXPECT_EQ(dlg.ModalResult(), 0) << "the dialog stays open";
    EXPECT_EQ(dlg.focusWidget(), dlg.GetDlgItem(c.control)) << "the offending control has the focus";
  }
}

TEST_F(FrameTest, ValuesWithinRangeAreTakenOnOkButNotOnCancel) {
  CTestDataDlg dlg;
  dlg.m_nNewRows = 25;
  dlg.m_dEpsilon = 0.25;
  dlg.InitDialogForTest();
  EXPECT_EQ(dlg.GetDlgItemText(kCtlTolerance), "0.25");
  SetText(dlg, kCtlNewRowCount, " 100000 ");
  SetText(dlg, kCtlTolerance, "1e-3");
  EXPECT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(dlg.m_nNewRows, 100000u);
  EXPECT_EQ(dlg.m_dEpsilon, 0.001);
  EXPECT_TRUE(Messages().empty());

  CTestDataDlg cancelled;
  cancelled.InitDialogForTest();
  SetText(cancelled, kCtlNewRowCount, "77");
  EXPECT_TRUE(cancelled.PressButton(IDCANCEL));
  EXPECT_EQ(cancelled.ModalResult(), IDCANCEL);
  EXPECT_EQ(cancelled.m_nNewRows, 1u);
}

TEST_F(FrameTest, ExchangeIgnoresACommaDecimalLocale) {
  testsupport::ScopedCommaNumeric comma;
  if (!comma.ok()) GTEST_SKIP() << "no de_DE.UTF-8 locale and it could not be compiled with localedef";
  CTestDataDlg dlg;
  dlg.m_dEpsilon = 0.125;
  dlg.InitDialogForTest();
  EXPECT_EQ(dlg.GetDlgItemText(kCtlTolerance), "0.125");
  SetText(dlg, kCtlTolerance, "0.5");
  EXPECT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.m_dEpsilon, 0.5);
  EXPECT_EQ(dlg.ModalResult(), IDOK);
}
