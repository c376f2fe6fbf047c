#include "dialogs/frame/CAboutDlg.h"
#include "support/DialogTest.h"
#include "tools/release.h"

using AboutTest = DialogTest;

TEST_F(AboutTest, VersionLineNamesTheTitleVersionAndBuild) {
  ASSERT_STRNE(tools::kReleaseVersion, "");
  ASSERT_STRNE(tools::kReleaseBuild, "");
  struct Case {
    const char* title;
    std::string line;
  };
  const Case cases[] = {
      {nullptr, std::string("Norvane  Version ") + tools::kReleaseVersion + " (Build " + tools::kReleaseBuild + ")"},
      {"Norvane Bridge", std::string("Norvane Bridge  Version ") + tools::kReleaseVersion + " (Build " +
                             tools::kReleaseBuild + ")"},
  };
  for (const Case& c : cases) {
    CAboutDlg dlg;
    if (c.title) dlg.m_strAppTitle = c.title;
    dlg.m_strDriverType = "OpenGL 4.6";
    dlg.InitDialogForTest();
    EXPECT_EQ(dlg.GetDlgItemText(1003), c.line);
    EXPECT_EQ(dlg.GetDlgItemText(1006), "OpenGL 4.6");
  }
}

TEST_F(AboutTest, FixedTextsComeFromTheStringTable) {
  CAboutDlg dlg;
  dlg.InitDialogForTest();
  EXPECT_EQ(dlg.windowTitle().toStdString(), *res::LoadString(1042));
  EXPECT_EQ(dlg.GetDlgItemText(1007), *res::LoadString(1034));
  EXPECT_EQ(dlg.GetDlgItemText(1008), *res::LoadString(1033));
  EXPECT_EQ(dlg.GetDlgItemText(IDOK), "OK");
  EXPECT_TRUE(debugLines.empty());
  EXPECT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
}

TEST_F(AboutTest, PrivateLabelShowsOnlyTheHostsTexts) {
  CPrivateLabelAboutDlg empty;
  empty.InitDialogForTest();
  EXPECT_EQ(empty.GetDlgItemText(1003), "");
  EXPECT_EQ(empty.GetDlgItemText(1006), "");
  EXPECT_EQ(empty.GetDlgItem(1007), nullptr);
  EXPECT_EQ(empty.GetDlgItem(1008), nullptr);

  CPrivateLabelAboutDlg dlg;
  dlg.m_strTitle = "Acme Frames 3";
  dlg.m_strDescription = "Licensed to Acme Engineering";
  dlg.InitDialogForTest();
  EXPECT_EQ(dlg.GetDlgItemText(1003), "Acme Frames 3");
  EXPECT_EQ(dlg.GetDlgItemText(1006), "Licensed to Acme Engineering");
  EXPECT_TRUE(debugLines.empty());
}

TEST_F(AboutTest, ModelessBoxCanBeDisabled) {
  CAboutDlg dlg;
  ASSERT_TRUE(dlg.Create());
  EXPECT_TRUE(dlg.isVisible());
  EXPECT_FALSE(dlg.isModal());
  dlg.EnableWindow(false);
  EXPECT_FALSE(dlg.isEnabled());
  dlg.EnableWindow(true);
  EXPECT_TRUE(dlg.isEnabled());
  dlg.hide();
}
