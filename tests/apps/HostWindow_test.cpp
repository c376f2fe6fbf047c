#include <QAbstractButton>
#include <QComboBox>
#include <QImage>
#include <QMenuBar>
#include <QTableView>

#include <filesystem>

#include "apps/host/DialogRunner.h"
#include "apps/host/HostWindow.h"
#include "dialogs/frame/CDialog.h"
#include "dialogs/frame/CPreferencesDlg.h"
#include "dialogs/grid/CDataGridDlg.h"
#include "dialogs/loads/CCopyCaseLoadDlg.h"
#include "resources/units_ids.h"
#include "support/DialogTest.h"
#include "support/run_program.h"
#include "support/TempDir.h"
#include "support/files.h"
#include "tools/atomic_file.h"

namespace fs = std::filesystem;

namespace {

const std::string kExample = std::string(NORVANE_EXAMPLES_DIR) + "/building.json";
const std::string kSaveQuestion = "The model has been changed.\nDo you want to save the changes?";

class HostWindowTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    modelPath = dir / "building.json";
    fs::copy_file(kExample, modelPath);
    ASSERT_TRUE(window.OpenModel(modelPath));
  }
  std::string Write(const std::string& name, const std::string& text) {
    WriteFileText(dir / name, text);
    return dir / name;
  }
  // Runs the units dialog as the host does: length in metres, converting the stored coordinates.
  void ChangeLengthToMetres(int button) {
    auto dlg = CreateBoundDialog("CUnitsDlg", window.model(), &window);
    ASSERT_NE(dlg, nullptr);
    dlg->InitDialogForTest();
    auto* lengths = dlg->Item<QComboBox>(res::kCtlUnitsUnit + fmUnit::Length);
    ASSERT_TRUE(dlg->ChooseItem(res::kCtlUnitsUnit + fmUnit::Length, lengths->findText("m")));
    dlg->Item<QAbstractButton>(res::kCtlUnitsConvert + fmUnit::Length)->setChecked(true);
    ASSERT_TRUE(dlg->PressButton(button));
    TakeBackDialogResult("CUnitsDlg", *dlg, dlg->ModalResult(), window.model());
    window.RefreshView();
  }

  TempDir dir;
  std::string modelPath;
  HostWindow window;
};

}  // namespace

TEST_F(HostWindowTest, BadFilesAreExplainedAndTheOpenModelIsKept) {
  struct Case { const char* name; std::string path, place, problem; };
  const Case cases[] = {
      {"missing file", dir / "nowhere.json", "", std::string("No such file or directory")},
      {"malformed", Write("broken.json", "{\n  \"format\": \"norvane-model\"\n  \"schemaVersion\": 1\n}"),
       "line 3, column 3", "syntax error"},
      {"newer schema", Write("future.json", R"({"format": "norvane-model", "schemaVersion": 99})"), "/schemaVersion",
       "schema version 99 is newer than this program reads (1)"},
  };
  const model::ModelDocument before = window.model().doc;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    prompter.Clear();
    EXPECT_FALSE(window.OpenModel(c.path));
    ASSERT_EQ(prompter.prompts().size(), 1u);
    EXPECT_EQ(prompter.prompts()[0].icon, MessageIcon::Error);
    const std::string& text = prompter.prompts()[0].text;
    for (const std::string& part : {"\"" + c.path + "\"", c.place, c.problem})
      EXPECT_NE(text.find(part), std::string::npos) << part << " in " << text;
    EXPECT_EQ(window.model().path, modelPath);
    EXPECT_EQ(window.model().doc.nodes, before.nodes);
    EXPECT_FALSE(window.model().modified);
  }
}

TEST_F(HostWindowTest, OkMarksTheModelModifiedAndQuittingThenAsksToSave) {
  const std::string original = tools::ReadWholeFile(modelPath);
  ChangeLengthToMetres(IDCANCEL);
  EXPECT_FALSE(window.model().modified);
  EXPECT_EQ(window.model().doc.units.Label(fmUnit::Length), "ft");
  EXPECT_TRUE(window.close()) << "an unchanged model closes without a question";
  EXPECT_TRUE(Messages().empty());

  ChangeLengthToMetres(IDOK);
  EXPECT_TRUE(window.model().modified);
  EXPECT_DOUBLE_EQ(window.model().doc.nodes[1].x, 20 * 0.3048);
  EXPECT_TRUE(window.windowTitle().startsWith("building.json*")) << window.windowTitle().toStdString();
  prompter.QueueCancel();  // Cancel: stay
  EXPECT_FALSE(window.close());
  prompter.QueueAnswer(false);  // No: closed, the file as it was
  EXPECT_TRUE(window.close());
  EXPECT_EQ(tools::ReadWholeFile(modelPath), original);
  EXPECT_EQ(Messages(), std::vector<std::string>(2, kSaveQuestion));

  prompter.Clear();
  window.model().modified = true;
  prompter.QueueAnswer(true);  // Yes: saved in place, then closed
  EXPECT_TRUE(window.close());
  EXPECT_EQ(Messages(), std::vector<std::string>{kSaveQuestion});
  EXPECT_FALSE(window.model().modified);
  const model::ModelDocument reread = model::LoadModelDocument(modelPath);
  EXPECT_EQ(reread.units.Label(fmUnit::Length), "m");
  EXPECT_DOUBLE_EQ(reread.nodes[1].x, 20 * 0.3048);
}

TEST(HostProgram, ShowRendersADialogAndRefusesWhatItCannot) {
  TempDir tmp;
  const std::string& dir = tmp.path();
  const std::string png = tmp / "conversion.png";
  auto r = testsupport::RunProgram(NORVANE_HOST_PATH, {"--show", "CUnitConversionDlg", "--screenshot", png});
  EXPECT_EQ(r.status, 0) << r.err;
  const QImage picture(QString::fromStdString(png));
  EXPECT_TRUE(picture.width() > 200 && picture.height() > 100) << picture.width() << "x" << picture.height();

  const struct { std::vector<std::string> args; int status; std::string message; } cases[] = {
      {{"--show", "CNoSuchDlg", "--screenshot", png}, 1, "norvane-host: Unknown dialog class \"CNoSuchDlg\""},
      {{"--frobnicate"}, 2, "norvane-host: unknown option --frobnicate"},
      {{"--model", dir + "/none.json", "--show", "CUnitsDlg", "--screenshot", png}, 1,
       "norvane-host: Cannot open model \"" + dir + "/none.json\""},
      {{"--show", "CComputeKDlg", "--press", "Solve", "--screenshot", png}, 1,
       "norvane-host: CComputeKDlg has no button \"Solve\""},
  };
  for (const auto& c : cases) {
    r = testsupport::RunProgram(NORVANE_HOST_PATH, c.args);
    EXPECT_TRUE(r.exited);
    EXPECT_EQ(r.status, c.status) << c.args[0];
    EXPECT_NE(r.err.find(c.message), std::string::npos) << r.err;
  }
}

namespace {

QAction* MenuAction(QWidget& window, const QString& text) {
  for (QAction* action : window.findChildren<QAction*>())
    if (action->text() == text) return action;
  return nullptr;
}

}  // namespace

TEST_F(HostWindowTest, OkWithoutAnEditLeavesTheModelUnmodified) {
  for (bool edit : {false, true}) {
    SCOPED_TRACE(edit ? "edited" : "untouched");
    auto dlg = CreateBoundDialog("CNodeDataDlg", window.model(), &window);
    dlg->InitDialogForTest();
    if (edit) static_cast<CDataGridDlg&>(*dlg).Spread().sheet().SetData(2, 1, "1.5");
    ASSERT_TRUE(dlg->PressButton(IDOK));
    EXPECT_EQ(dlg->ModalResult(), IDOK);
    EXPECT_EQ(TakeBackDialogResult("CNodeDataDlg", *dlg, IDOK, window.model()), edit);
    EXPECT_EQ(window.model().modified, edit);
  }
}

TEST_F(HostWindowTest, MenusLockTheModelShowOnlySelectedRowsAndNameDialogsByCaption) {
  QAction* lock = MenuAction(window, "Lock Model");
  QAction* unlock = MenuAction(window, "Unlock Model");
  QAction* selectedOnly = MenuAction(window, "Show only selected entities in spreadsheet");
  ASSERT_TRUE(lock && unlock && selectedOnly);
  EXPECT_FALSE(unlock->isEnabled());
  lock->trigger();
  EXPECT_TRUE(window.model().doc.display.modelLocked);
  EXPECT_TRUE(window.model().modified) << "the lock is saved with the model";
  EXPECT_TRUE(unlock->isEnabled());
  {
    auto dlg = CreateBoundDialog("CNodeDataDlg", window.model(), &window);
    dlg->InitDialogForTest();
    EXPECT_EQ(dlg->GetDlgItemText(IDCANCEL), "Close");
    ASSERT_EQ(Messages().size(), 1u);
    EXPECT_EQ(Messages()[0].rfind("The Model is locked.\n", 0), 0u) << Messages()[0];
  }
  unlock->trigger();
  prompter.Clear();

  window.model().doc.nodes[1].flags |= fmNd::kSelected;
  window.model().doc.nodes[4].flags |= fmNd::kSelected;
  selectedOnly->trigger();
  EXPECT_TRUE(window.model().doc.display.showSelectedOnly);
  auto dlg = CreateBoundDialog("CNodeDataDlg", window.model(), &window);
  dlg->InitDialogForTest();
  const grid::Sheet& sheet = static_cast<CDataGridDlg&>(*dlg).Spread().sheet();
  ASSERT_EQ(sheet.MaxRows(), 2);
  EXPECT_EQ(sheet.GetData(1, 2), "5");
  EXPECT_EQ(Messages().size(), 1u);

  QAction* nodes = window.findChild<QAction*>("CNodeDataDlg");
  ASSERT_NE(nodes, nullptr);
  EXPECT_EQ(nodes->text().toStdString(), "Node Data");
  EXPECT_EQ(nodes->toolTip().toStdString(), "CNodeDataDlg");
}

TEST_F(HostWindowTest, PreferencesOpenWithTheGridSettingsTheGridsUse) {
  auto dlg = CreateBoundDialog("CPreferencesDlg", window.model(), &window);
  auto& prefs = static_cast<CPreferencesDlg&>(*dlg);
  EXPECT_EQ(prefs.m_nRowHeight, 14u) << "the grid's own default, not the dialog's";
  EXPECT_EQ(prefs.m_nSpreadFontSize, 7u);
  QSettings().setValue("Preferences/SpreadRowHeight", 20);
  EXPECT_EQ(static_cast<CPreferencesDlg&>(*CreateBoundDialog("CPreferencesDlg", window.model(), &window)).m_nRowHeight,
            20u);
}

TEST_F(HostWindowTest, CopyLoadsCopiesEveryKindOfTheSourceCaseTimesTheFactor) {
  model::ModelDocument& doc = window.model().doc;
  doc.caseLoads[0].point = {{doc.members[0].id, 0.5, 1, false, -3.0}};
  doc.caseLoads[0].selfWeight = {1, -1.0};
  const fmCaseLoad source = doc.caseLoads[0];
  ASSERT_FALSE(source.nodal.empty());
  auto dlg = CreateBoundDialog("CCopyCaseLoadDlg", window.model(), &window);
  auto& copy = static_cast<CCopyCaseLoadDlg&>(*dlg);
  copy.m_nFrom = 0;
  copy.m_nTo = 2;
  copy.m_dFactor = 1.5;
  copy.m_bDeleteExisting = 1;
  dlg->InitDialogForTest();
  EXPECT_EQ(dlg->windowTitle().toStdString(), "Copy Loads");
  ASSERT_TRUE(dlg->PressButton(IDOK));
  ASSERT_EQ(dlg->ModalResult(), IDOK);
  EXPECT_TRUE(TakeBackDialogResult("CCopyCaseLoadDlg", *dlg, IDOK, window.model()));
  fmCaseLoad expected = source;
  expected.Scale(1.5);
  expected.massFactor = doc.caseLoads[2].massFactor;
  EXPECT_EQ(doc.caseLoads[2], expected);
  EXPECT_EQ(doc.caseLoads[0], source);
  EXPECT_TRUE(window.model().modified);
}

TEST_F(HostWindowTest, TheLoadTablesAndGeneratorsAreListedAndOpenOnTheExamplesLoads) {
  QAction* points = window.findChild<QAction*>("CPointLoadDataDlg");
  ASSERT_NE(points, nullptr);
  EXPECT_EQ(points->text().toStdString(), "Member Point Loads");
  for (const char* name : {"CNodalLoadDataDlg", "CLineLoadDataDlg", "CShellLoadDataDlg", "CAreaLoadDataDlg",
                           "CMemberThermalLoadDataDlg", "CShell4ThermalLoadDataDlg", "CBrickThermalLoadDataDlg",
                           "CNodalMassDataDlg", "CCombMassDataDlg", "CMovingLoadDlg", "CPatternLoadDataDlg"})
    EXPECT_NE(window.findChild<QAction*>(name), nullptr) << name;

  window.model().doc.display.showSelectedOnly = true;  // a table turns read-only, a generator does not
  {
    auto dlg = CreateBoundDialog("CPointLoadDataDlg", window.model(), &window);
    dlg->InitDialogForTest();
    const grid::Sheet& sheet = static_cast<CDataGridDlg&>(*dlg).Spread().sheet();
    ASSERT_EQ(sheet.MaxRows(), 1);
    EXPECT_EQ(sheet.GetData(2, 1), "2: Live");
    EXPECT_TRUE(sheet.IsLockedAll());
  }
  prompter.Clear();
  auto dlg = CreateBoundDialog("CMovingLoadDlg", window.model(), &window);
  dlg->InitDialogForTest();
  EXPECT_TRUE(Messages().empty());
  const grid::Sheet& path = static_cast<CDataGridDlg&>(*dlg).Spread().sheet();
  ASSERT_EQ(path.MaxRows(), 2) << "the selected girders";
  EXPECT_EQ(path.GetData(1, 1), "13");
  EXPECT_EQ(path.GetData(1, 2), "14");
  EXPECT_FALSE(path.IsLockedAll());
}

// The main window reads its node table from the document's vector and its summary from a
// table model: no item per node or fact, and both follow every change of the document.
TEST_F(HostWindowTest, TheNodeTableShowsTheDocumentsNodesAndFollowsItsChanges) {
  const auto* view = window.findChild<QTableView*>("nodes");
  ASSERT_NE(view, nullptr);
  const QAbstractItemModel& table = *view->model();
  const auto cell = [&](int row, int col) { return table.index(row, col).data().toString().toStdString(); };
  const QAbstractItemModel& facts = *window.findChild<QTableView*>("summary")->model();
  const auto summary = [&](const QString& key) {
    const auto found = facts.match(facts.index(0, 0), Qt::DisplayRole, key, -1, Qt::MatchExactly);
    return found.size() == 1 ? facts.index(found[0].row(), 1).data().toString().toStdString() : std::string("?");
  };
  ASSERT_EQ(table.rowCount(), 44);
  EXPECT_EQ(summary("Nodes"), "44");
  EXPECT_EQ(table.headerData(1, Qt::Horizontal).toString().toStdString(), "X [ft]");
  // Node 2 lies at x = 20 ft, shown with the length's three decimals.
  EXPECT_EQ(cell(1, 0), "2");
  EXPECT_EQ(cell(1, 1), "20.000");
  EXPECT_EQ(cell(1, 4), "");

  window.model().doc.nodes[1].flags |= fmNd::kSelected;
  ChangeLengthToMetres(IDOK);
  EXPECT_EQ(table.headerData(1, Qt::Horizontal).toString().toStdString(), "X [m]");
  EXPECT_EQ(cell(1, 1), "6.096");  // 20 ft
  EXPECT_EQ(cell(1, 4), "yes");

  window.model().doc.nodes.resize(3);
  window.RefreshView();
  EXPECT_EQ(table.rowCount(), 3);
  EXPECT_EQ(summary("Nodes"), "3");
  EXPECT_FALSE(table.index(3, 1).data().isValid());
  window.model().modified = false;
  ASSERT_TRUE(window.NewModel());
  EXPECT_EQ(table.rowCount(), 0);
}
