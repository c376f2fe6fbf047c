#include "dialogs/frame/CAboutDlg.h"
#include "support/DialogTest.h"
#include "tools/release.h"

using AboutTest = DialogTest;

TEST_F(AboutTest, VersionLineNamesTheTitleVersionAndBuild) {
  const std::string versionAndBuild = std::string("  Version ") + tools::kReleaseVersion + " (Build " +
                                      tools::kReleaseBuild + ")";
  for (const char* title : {"", "Norvane Bridge"}) {
    CAboutDlg dlg;
    if (*title) dlg.m_strAppTitle = title;
    dlg.m_strDriverType = "OpenGL 4.6";
    dlg.InitDialogForTest();
    EXPECT_EQ(dlg.GetDlgItemText(1003), (*title ? title : "Norvane") + versionAndBuild);
    EXPECT_EQ(dlg.GetDlgItemText(1006), "OpenGL 4.6");
  }
}

TEST_F(AboutTest, PrivateLabelShowsOnlyTheHostsTexts) {
  CPrivateLabelAboutDlg dlg;
  dlg.m_strTitle = "Acme Frames 3";
  dlg.m_strDescription = "Licensed to Acme Engineering";
  dlg.InitDialogForTest();
  EXPECT_EQ(dlg.GetDlgItemText(1003), "Acme Frames 3");
  EXPECT_EQ(dlg.GetDlgItemText(1006), "Licensed to Acme Engineering");
  EXPECT_EQ(dlg.GetDlgItem(1007), nullptr);
  EXPECT_EQ(dlg.GetDlgItem(1008), nullptr);
  EXPECT_TRUE(debugLines.empty());
}
