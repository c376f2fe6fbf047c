#include <QPrinter>
#include <QSettings>

#include <regex>

#include "dialogs/grid/GridPrinter.h"
#include "dialogs/grid/TSpread.h"
#include "dialogs/model/CNodeDataDlg.h"
#include "resources/grid_ids.h"
#include "support/DialogTest.h"
#include "support/TempDir.h"
#include "support/files.h"
#include "support/run_program.h"

namespace {

const char* kPrintQuestion = "This will print the selected items to the default printer.\nDo you want to continue?";

// Pages of a PDF as Qt writes it: one "/Type /Page" object per page.
int PdfPages(const std::string& path) {
  const std::string pdf = ReadFileText(path);
  static const std::regex kPage("/Type /Page[^s]");
  return static_cast<int>(std::distance(std::sregex_iterator(pdf.begin(), pdf.end(), kPage), std::sregex_iterator()));
}

class GridPrintTest : public DialogTest {
 protected:
  // A grid of `rows` rows and `cols` columns of numbers, ids in column 1.
  void Fill(int rows, int cols, double width = 10) {
    std::vector<std::string> headers;
    for (int c = 1; c <= cols; ++c) headers.push_back(c == 1 ? "Node Id" : "Value " + std::to_string(c) + " [ft]");
    spread.InitializeGrid(0xF0F5FF, rows, cols, headers, std::vector<double>(cols, width), false);
    for (int r = 1; r <= rows; ++r)
      for (int c = 1; c <= cols; ++c) spread.sheet().SetData(c, r, std::to_string(c == 1 ? r : r * c));
    spread.Refresh();
  }
  int PrintToPdf(const std::string& path, const grid::Block& block, QPageLayout::Orientation* orientation = nullptr) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(path));
    int pages = 0;
    EXPECT_TRUE(spread.PrintBlock(printer, block, "Node Table", &pages));
    if (orientation) *orientation = printer.pageLayout().orientation();
    return pages;
  }

  TempDir dir;
  TSpread spread;
};

}  // namespace

TEST_F(GridPrintTest, AnsweringNoPrintsNothing) {
  Fill(10, 3);
  prompter.QueueAnswer(false);
  EXPECT_FALSE(spread.PrintGrid("Node Table"));
  EXPECT_EQ(Messages(), std::vector<std::string>{kPrintQuestion});
  EXPECT_EQ(prompter.prompts().size(), 1u) << "no printer is chosen after No";
}

TEST_F(GridPrintTest, YesPrintsTheSelectionThroughThePrintSetupToAPdf) {
  Fill(400, 4);
  spread.SetSelectBlock({1, 1, 4, 400});
  prompter.QueueAnswer(true);
  prompter.QueuePath(dir / "all.pdf");
  ASSERT_TRUE(spread.PrintGrid("Node Table"));
  ASSERT_EQ(prompter.prompts().size(), 2u);
  EXPECT_EQ(prompter.prompts()[1].kind, ScriptedPrompter::PromptKind::Print);
  EXPECT_EQ(prompter.prompts()[1].text, "Norvane") << "the print job's name";
  const std::string pdf = ReadFileText(dir / "all.pdf");
  EXPECT_TRUE(pdf.starts_with("%PDF"));
  const int longPages = PdfPages(dir / "all.pdf");
  EXPECT_GT(longPages, 1) << "a long table runs over several pages";

  // A few selected rows fit on one page.
  spread.SetSelectBlock({2, 10, 3, 20});
  prompter.QueueAnswer(true);
  prompter.QueuePath(dir / "some.pdf");
  ASSERT_TRUE(spread.PrintGrid("Node Table"));
  EXPECT_EQ(PdfPages(dir / "some.pdf"), 1);

  // Cancelling the print set-up prints nothing.
  prompter.QueueAnswer(true);
  prompter.QueueCancel();
  EXPECT_FALSE(spread.PrintGrid("Node Table"));
  EXPECT_EQ(FolderEntries(dir.path()), (std::vector<std::string>{"all.pdf", "some.pdf"}));
}

TEST_F(GridPrintTest, LayoutRepeatsHeadingsPerPageAndTurnsWideTablesToLandscape) {
  struct Case {
    const char* name;
    int rows, cols;
    double width;
    grid::Block block;
    QPageLayout::Orientation orientation;
    int minPages, maxPages;
  };
  const std::vector<Case> cases = {
      {"narrow and short", 5, 3, 10, {}, QPageLayout::Portrait, 1, 1},
      {"empty grid still prints its headings", 0, 3, 10, {}, QPageLayout::Portrait, 1, 1},
      {"long", 1000, 3, 10, {}, QPageLayout::Portrait, 10, 30},
      {"wide", 20, 12, 12, {}, QPageLayout::Landscape, 1, 1},
      {"wider than landscape is scaled, never cut", 20, 40, 14, {}, QPageLayout::Landscape, 1, 1},
      {"a narrow block of a wide grid", 40, 40, 14, {1, 1, 3, 40}, QPageLayout::Portrait, 1, 1},
  };
  for (const auto& c : cases) {
    Fill(c.rows, c.cols, c.width);
    QPageLayout::Orientation orientation{};
    const std::string path = dir / (std::string(c.name) + ".pdf");
    const int pages = PrintToPdf(path, c.block, &orientation);
    EXPECT_EQ(orientation, c.orientation) << c.name;
    EXPECT_GE(pages, c.minPages) << c.name;
    EXPECT_LE(pages, c.maxPages) << c.name;
    EXPECT_EQ(PdfPages(path), pages) << c.name;
  }
}

TEST_F(GridPrintTest, APrinterThatCannotStartIsReported) {
  Fill(5, 3);
  prompter.QueueAnswer(true);
  const std::string path = dir / "missing/out.pdf";
  prompter.QueuePath(path);
  EXPECT_FALSE(spread.PrintGrid("Node Table"));
  EXPECT_EQ(Messages(), (std::vector<std::string>{kPrintQuestion, "The table could not be printed on \"" + path + "\"."}));
}

TEST(GridPrinterBlock, EmptyOrOversizedBlocksAreTheGridsOwn) {
  grid::Sheet sheet;
  sheet.SetMaxCols(4);
  sheet.SetMaxRows(9);
  struct Case {
    grid::Block in, out;
  };
  const std::vector<Case> cases = {
      {{}, {1, 1, 4, 9}},
      {{2, 3, 3, 5}, {2, 3, 3, 5}},
      {{0, -1, 99, 99}, {1, 1, 4, 9}},
  };
  for (const auto& c : cases) {
    const grid::Block b = GridPrinter(sheet, c.in, "").PrintedBlock();
    EXPECT_EQ(std::vector<int>({b.col1, b.row1, b.col2, b.row2}),
              std::vector<int>({c.out.col1, c.out.row1, c.out.col2, c.out.row2}));
  }
}

TEST_F(GridPrintTest, ExportAsksForAFileAndWritesItsFormat) {
  Fill(3, 3);
  prompter.QueuePath(dir / "grid.HTM");
  ASSERT_TRUE(spread.ExportGrid("Node Table"));
  ASSERT_EQ(prompter.prompts().size(), 1u);
  const FileDialogRequest& request = prompter.prompts()[0].request;
  EXPECT_EQ(request.title, "Export Spreadsheet Data");
  EXPECT_EQ(request.defaultExtension, "htm");
  EXPECT_EQ(request.defaultName, "*.htm");
  EXPECT_EQ(request.filters, (std::vector<std::string>{"HTML File (*.htm)", "Tab Delimited Text File (*.txt)",
                                                       "Excel Book File (*.xls)", "Excel Workbook (*.xlsx)"}));
  EXPECT_NE(ReadFileText(dir / "grid.HTM").find("<caption>Node Table</caption>"), std::string::npos);

  // The append preference is read at the time of the export.
  QSettings().setValue("Preferences/SpreadsheetAppendSave", 1);
  prompter.QueuePath(dir / "grid.HTM");
  ASSERT_TRUE(spread.ExportGrid("Node Table"));
  const std::string twice = ReadFileText(dir / "grid.HTM");
  size_t tables = 0;
  for (size_t p = twice.find("<table>"); p != std::string::npos; p = twice.find("<table>", p + 1)) ++tables;
  EXPECT_EQ(tables, 2u);

  QSettings().setValue("Preferences/SpreadsheetAppendSave", 0);
  prompter.QueuePath(dir / "grid.txt");
  ASSERT_TRUE(spread.ExportGrid());
  EXPECT_EQ(ReadFileText(dir / "grid.txt"),
            "Node Id\tValue 2 [ft]\tValue 3 [ft]\r\n1\t2\t3\r\n2\t4\t6\r\n3\t6\t9\r\n");
}

TEST_F(GridPrintTest, ExportRefusalsAreShownAndWriteNothing) {
  Fill(3, 3);
  prompter.QueuePath(dir / "grid.csv");
  EXPECT_FALSE(spread.ExportGrid());
  prompter.QueuePath(dir / "none/grid.xlsx");
  EXPECT_FALSE(spread.ExportGrid());
  prompter.QueueCancel();
  EXPECT_FALSE(spread.ExportGrid());
  EXPECT_EQ(Messages(), (std::vector<std::string>{
                            "Invalid file format specified",
                            "Cannot write \"" + dir / "none/grid.xlsx" + "\": the folder \"" + dir / "none" +
                                "\" does not exist"}));
  EXPECT_TRUE(FolderEntries(dir.path()).empty());
}

TEST_F(GridPrintTest, NodeDialogPrintsAndSavesItsTableUnderItsTitle) {
  fmUnit units;
  std::vector<fmNd> nodes;
  for (uint32_t i = 1; i <= 120; ++i) nodes.push_back({i, 0, i * 2.0, 0, 1.5});
  CNodeDataDlg dlg;
  dlg.m_pUnits = &units;
  dlg.m_pNodes = &nodes;
  dlg.m_bModelLocked = 1;  // printing and saving stay open to a locked model
  dlg.InitDialogForTest();
  EXPECT_EQ(Messages().size(), 1u);
  prompter.Clear();

  prompter.QueueAnswer(true);
  prompter.QueuePath(dir / "nodes.pdf");
  ASSERT_TRUE(dlg.PressButton(res::kCtlPrint));
  EXPECT_EQ(Messages(), std::vector<std::string>{kPrintQuestion});
  EXPECT_GT(PdfPages(dir / "nodes.pdf"), 1);

  prompter.QueuePath(dir / "nodes.xlsx");
  ASSERT_TRUE(dlg.PressButton(res::kCtlSave));
  const std::string workbook = CommandOutput("unzip -p '" + dir / "nodes.xlsx" + "' xl/workbook.xml");
  EXPECT_NE(workbook.find("name=\"Node Table\""), std::string::npos) << workbook;
  EXPECT_EQ(nodes.size(), 120u);
}

TEST(HostPrintToPdf, PrintsTheWholeTableOfAGridDialog) {
  TempDir dir;
  const std::string pdf = dir / "nodes.pdf";
  auto r = testsupport::RunProgram(NORVANE_HOST_PATH, {"--show", "CNodeDataDlg", "--print-to-pdf", pdf});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "Wrote " + pdf + " (1 page)\n");
  EXPECT_TRUE(ReadFileText(pdf).starts_with("%PDF"));
  EXPECT_EQ(PdfPages(pdf), 1);

  struct Case {
    std::vector<std::string> args;
    int status;
    std::string message;
  };
  const std::vector<Case> cases = {
      {{"--print-to-pdf", pdf}, 2, "norvane-host: --print-to-pdf needs --show CLASS"},
      {{"--show", "CDataSettingsDlg", "--print-to-pdf", pdf}, 1, "norvane-host: CDataSettingsDlg has no table to print"},
      {{"--show", "CNodeDataDlg", "--print-to-pdf", dir / "no/n.pdf"}, 1,
       "norvane-host: Cannot write \"" + dir / "no/n.pdf" + "\""},
  };
  for (const auto& c : cases) {
    r = testsupport::RunProgram(NORVANE_HOST_PATH, c.args);
    EXPECT_EQ(r.status, c.status) << c.args[1];
    EXPECT_NE(r.err.find(c.message), std::string::npos) << r.err;
  }
}
