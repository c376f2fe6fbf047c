#include "dialogs/design/CSectionDlg.h"

#include <QApplication>
#include <QLineEdit>
#include <QTableView>

#include "dialogs/design/CAiscDataDlg.h"
#include "dialogs/frame/Form.h"
#include "dialogs/design/CRegularSectionDlg.h"
#include "dialogs/design/CThickDlg.h"
#include "dialogs/design/SectionsDialogTest.h"
#include "dialogs/design/section_grid.h"
#include "resources/grid_ids.h"
#include "resources/sections_ids.h"
#include "tools/atomic_file.h"

namespace {

using sectiongrid::kLabel;

fmSect Sect(const char* label, double scale = 1) {
  fmSect s(9);
  s.label = label;
  s.A = 10 * scale, s.Ay = 4 * scale, s.Az = 5 * scale, s.Iz = 100 * scale, s.Iy = 50 * scale, s.J = 2 * scale;
  s.b = 6, s.d = 12, s.tf = 0.5, s.tw = 0.3;
  return s;
}

std::vector<fmSect> Sample() { return {Sect("W1"), Sect("rigid_link"), Sect("W3", 2)}; }

class SectionDialogTest : public SectionsDialogTest {
 protected:
  void Open(bool locked = false, int length = 0 /* in */) {
    units.unit[fmUnit::Length] = length;
    dlg.m_pUnits = &units;
    dlg.m_pSections = &sections;
    dlg.m_bModelLocked = locked;
    dlg.InitDialogForTest();
  }
  grid::Sheet& sheet() { return dlg.Spread().sheet(); }
  void Activate(int row) { dlg.Spread().SetActiveCell(1, row); }
  // Answers Yes to the button's question and picks the file.
  void PressWithFile(int button, const std::string& path) {
    prompter.Clear();
    prompter.QueueAnswer(true);
    prompter.QueuePath(path);
    dlg.PressButton(button);
  }
  std::vector<std::string> Row(int row) {
    std::vector<std::string> cells;
    for (int col = 1; col <= sectiongrid::kColumnCount; ++col) cells.push_back(sheet().GetData(col, row));
    return cells;
  }

  fmUnit units;
  std::vector<fmSect> sections = Sample();
  CSectionDlg dlg;
};

// Presses OK in the regular-section calculator with a type and its dimensions.
std::function<void(CDialog&)> Regular(int type, std::vector<const char*> dims) {
  return [type, dims](CDialog& d) {
    auto& reg = static_cast<CRegularSectionDlg&>(d);
    reg.ChooseItem(frame::IdOf(&CRegularSectionDlg::m_nType), type);
    for (size_t i = 0; i < dims.size(); ++i)
      reg.Item<QLineEdit>(CRegularSectionDlg::DimensionId(static_cast<int>(i)))->setText(dims[i]);
    reg.PressButton(IDOK);
  };
}

}  // namespace

TEST_F(SectionDialogTest, ShowsAndSavesTheRigidLinkAsZerosAndRowNumbersAsIds) {
  dlg.m_nActiveSection = 3;
  Open();
  EXPECT_EQ(sheet().GetData(3, 0), "Iz [in^4]");
  EXPECT_EQ(Row(1), (std::vector<std::string>{"1", "W1", "100", "50", "2", "10", "4", "5", "6", "12", "0.5", "0.3"}));
  EXPECT_EQ(Row(2), (std::vector<std::string>{"2", "rigid_link", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0"}));
  EXPECT_TRUE(sheet().IsLocked(1, 2));
  EXPECT_EQ(sheet().ActiveCell(), (grid::CellRef{1, 3}));

  sheet().SetData(kLabel, 3, "W1");  // equal labels are accepted for sections
  sheet().SetData(sectiongrid::kTw, 1, "");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_TRUE(Messages().empty());
  ASSERT_EQ(sections.size(), 3u);
  EXPECT_EQ(sections[0].id, 1);
  EXPECT_EQ(sections[0].tw, 0);
  EXPECT_EQ(sections[1].A, 0);
  EXPECT_EQ(sections[2].label, "W1");
  EXPECT_EQ(sections[2].Iz, 200);
  EXPECT_EQ(dlg.m_nActiveSection, 3);
}

TEST_F(SectionDialogTest, ARefusalKeepsTheDialogOpenWithTheRowActive) {
  Open();
  sheet().SetData(sectiongrid::kJ, 2, "0.1");  // typed into the rigid link
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), 0);
  EXPECT_EQ(Messages(), std::vector<std::string>{"RIGID_LINK section must have zero for every section property."});
  EXPECT_EQ(sheet().ActiveCell(), (grid::CellRef{1, 2}));
  EXPECT_EQ(sections, Sample());
}

TEST_F(SectionDialogTest, LockedModelDisablesEditingAndSaysSoOnce) {
  Open(true);
  for (int id : {IDOK, res::kCtlNewRowCount, res::kCtlNewRows, res::kCtlSecRegular, res::kCtlSecAisc, res::kCtlSecNds,
                 res::kCtlSecRigidLink, res::kCtlSecAssign, res::kCtlSecImportAisc})
    EXPECT_FALSE(dlg.GetDlgItem(id)->isEnabled()) << id;
  EXPECT_TRUE(dlg.GetDlgItem(res::kCtlSecExportAisc)->isEnabled());
  EXPECT_EQ(dlg.GetDlgItemText(IDCANCEL), "Close");
  EXPECT_EQ(Messages(), std::vector<std::string>{"The Model is locked.\nYou can not modify data in the spreadsheet."});
  EXPECT_TRUE(sheet().IsLockedAll());
}

TEST_F(SectionDialogTest, RegularSectionNeverOverwritesRowOneAndAsksBeforeOverwriting) {
  Open();
  scripts[res::kIddRegularSection] = Regular(0, {"10", "20"});
  Activate(1);
  ASSERT_TRUE(dlg.PressButton(res::kCtlSecRegular));
  ASSERT_EQ(sheet().MaxRows(), 4);
  EXPECT_EQ(Row(4), (std::vector<std::string>{"4", "Rect10x20", "6666.67", "1666.67", "4573.63", "200", "166.667",
                                              "166.667", "10", "20", "0", "0"}));
  EXPECT_EQ(Row(1)[1], "W1");

  scripts[res::kIddRegularSection] = Regular(3, {"10", "20", "0.5", "0.3"});
  Activate(3);
  prompter.QueueAnswer(false);
  dlg.PressButton(res::kCtlSecRegular);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Do you want to override the current section?"});
  EXPECT_EQ(Row(3)[1], "W3");
  prompter.QueueAnswer(true);
  dlg.PressButton(res::kCtlSecRegular);
  EXPECT_EQ(Row(3)[1], "Tee10x20x0.5x0.3");
  EXPECT_EQ(Row(3)[5], "10.85");
  EXPECT_EQ(opened[res::kIddRegularSection], 2);
  EXPECT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(sections[3].label, "Rect10x20");
}

TEST_F(SectionDialogTest, RigidLinkIsWrittenOnceOnly) {
  Open();
  dlg.PressButton(res::kCtlSecRigidLink);
  EXPECT_EQ(Messages(), std::vector<std::string>{"RIGID_LINK section already exists"});
  EXPECT_EQ(sheet().MaxRows(), 3);

  sheet().SetData(kLabel, 2, "Link2");
  prompter.Clear();
  Activate(0);
  dlg.PressButton(res::kCtlSecRigidLink);
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Row(4), (std::vector<std::string>{"4", "RIGID_LINK", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0"}));
}

TEST_F(SectionDialogTest, AiscShapeFillsTheRowInTheDocumentUnits) {
  Open(false, 1);  // ft
  sheet().SetData(kLabel, 3, "W14X90");
  Activate(3);
  int preselected = -1;
  scripts[res::kIddAiscData] = [&](CDialog& d) {
    preselected = static_cast<CAiscDataDlg&>(d).m_nSelectedShape;
    d.PressButton(IDOK);
  };
  dlg.PressButton(res::kCtlSecAisc);
  EXPECT_TRUE(Messages().empty()) << "a known shape opens without a question";
  EXPECT_EQ(preselected, tools::get_shape("W14X90"));
  EXPECT_EQ(sheet().GetData(sectiongrid::kA, 3), "0.184028");  // 26.5 in^2
  EXPECT_EQ(sheet().GetData(sectiongrid::kIz, 3), "0.0481771");
}

TEST_F(SectionDialogTest, ExportAndImportAskFirstAndReportBadFiles) {
  Open();
  TempDir files;
  PressWithFile(res::kCtlSecExportAisc, files / "shapes.csv");
  EXPECT_EQ(prompter.prompts()[1].request.title, "Export AISC Sections to a CSV File");
  EXPECT_EQ(tools::ReadWholeFile(files / "shapes.csv").rfind("EDI_Std_Nomenclature,AISC_Manual_Label,Type,", 0), 0u);

  tools::WriteFileAtomically(files / "bad.csv", "AISC_Manual_Label,Type,A,Ix,Iy\nX,W,1,2,3\n");
  PressWithFile(res::kCtlSecImportAisc, files / "bad.csv");
  ASSERT_EQ(Messages().size(), 2u);
  EXPECT_EQ(Messages()[0].rfind("You are about to import AISC table to this program from a csv", 0), 0u);
  EXPECT_NE(Messages()[1].find("line 1: the header lacks the column(s) J."), std::string::npos) << Messages()[1];
  EXPECT_EQ(dlg.m_bAiscTableImported, 0);

  tools::WriteFileAtomically(files / "good.csv", "AISC_Manual_Label,Type,A,Ix,Iy,J\nW16.99X89.99,W,26,1000,300,4\n");
  PressWithFile(res::kCtlSecImportAisc, files / "good.csv");
  EXPECT_EQ(Messages().size(), 1u);
  EXPECT_EQ(dlg.m_bAiscTableImported, 1);
  EXPECT_EQ(tools::get_shape("W16.99X89.99"), 0);
}

TEST_F(SectionsDialogTest, ThicknessLabelsMustDifferWhereSectionLabelsMayNot) {
  fmUnit units;
  std::vector<fmThick> thicknesses(2);
  thicknesses[0].label = "Slab", thicknesses[1].label = "Wall";
  thicknesses[0].thickness = thicknesses[1].thickness = 0.5;
  const auto original = thicknesses;
  CThickDlg dlg;
  dlg.m_pUnits = &units;
  dlg.m_pThicknesses = &thicknesses;
  dlg.InitDialogForTest();
  auto& sheet = dlg.Spread().sheet();
  sheet.SetData(2, 2, "slab");
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), 0);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Duplicate label [slab] can not be used."});
  EXPECT_EQ(thicknesses, original);
  sheet.SetData(2, 2, "Wall");
  sheet.SetData(3, 2, "0.75");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(thicknesses[1].thickness, 0.75);
}

TEST_F(SectionDialogTest, ADoubleAngleMakesASectionOkAcceptsOrIsRefusedWhenChosen) {
  // The published double angles carry no J; the single angle of the same size does.
  TempDir files;
  tools::WriteFileAtomically(files / "angles.csv",
                             "AISC_Manual_Label,Type,A,d,b,t,Ix,Iy,J\n"
                             "L8X4X1,L,11.1,4,8,1,69.7,11.6,3.68\n"
                             "2L8X4X1LLBB,2L,22.2,8,4,1,139,47.3,\n"
                             "2L6X6X1,2L,22,6,6,1,70.9,152,\n");
  tools::ascii_binary(files / "angles.csv");
  Open();
  Activate(3);
  std::string shown;
  const auto choose = [&](const char* label) {
    return [&, label](CDialog& d) {
      d.Item<QLineEdit>(res::kCtlShapeFind)->setText(label);
      d.PressButton(IDOK);
    };
  };
  scripts[res::kIddAiscData] = choose("2L6X6X1");
  prompter.QueueAnswer(true);  // replace W3
  dlg.PressButton(res::kCtlSecAisc);
  ASSERT_EQ(Messages().size(), 2u);
  EXPECT_EQ(Messages()[1],
            "The table gives no J for 2L6X6X1, and the single angle L6X6X1 it would be derived from is not in the "
            "library. Choose another shape or enter the section by hand.");
  EXPECT_EQ(sheet().GetData(kLabel, 3), "W3") << "nothing chosen, nothing written";

  prompter.Clear();
  scripts[res::kIddAiscData] = choose("2L8X4X1LLBB");
  prompter.QueueAnswer(true);
  dlg.PressButton(res::kCtlSecAisc);
  EXPECT_EQ(Row(3), (std::vector<std::string>{"3", "2L8X4X1LLBB", "139", "47.3", "7.36", "22.2", "16", "8", "4", "8",
                                              "1", "1"}));
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), IDOK) << (Messages().empty() ? "" : Messages().back());
  EXPECT_DOUBLE_EQ(sections[2].J, 7.36);
}

TEST_F(SectionDialogTest, TheTableShowsEveryColumnAtItsFirstSize) {
  // Small sections in ft: every cell as long as "%g" makes it ("1.23457e-05").
  for (fmSect& s : sections)
    for (double* v : {&s.A, &s.Ay, &s.Az, &s.Iz, &s.Iy, &s.J, &s.b, &s.d, &s.tf, &s.tw}) *v = 1.234567e-5;
  Open(false, 1);
  dlg.show();
  dlg.resize(dlg.sizeHint());  // the size it opens at on a screen wide enough
  QApplication::processEvents();
  const QTableView* view = dlg.Spread().view();
  const int last = view->model()->columnCount() - 1;
  EXPECT_LE(view->columnViewportPosition(last) + view->columnWidth(last), view->viewport()->width())
      << "the last column (tw) is cut off";
  dlg.hide();
}
