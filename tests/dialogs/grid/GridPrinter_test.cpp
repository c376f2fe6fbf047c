#include <QPdfDocument>
#include <QPdfSelection>
#include <QPrinter>
#include <QSettings>

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

// The PDF is read back with Qt's own PDF module, in the process.
int PdfPages(const std::string& path) {
  QPdfDocument pdf;
  return pdf.load(QString::fromStdString(path)) == QPdfDocument::Error::None ? pdf.pageCount() : -1;
}

std::string PdfPageText(const std::string& path, int page) {
  QPdfDocument pdf;
  if (pdf.load(QString::fromStdString(path)) != QPdfDocument::Error::None) return {};
  return pdf.getAllText(page - 1).text().toStdString();
}

class GridPrintTest : public DialogTest {
 protected:
  void Fill(int rows, int cols, double width = 10) {
    std::vector<std::string> headers;
    for (int c = 1; c <= cols; ++c) headers.push_back(c == 1 ? "Node Id" : "Value " + std::to_string(c) + " [ft]");
    spread.InitializeGrid(0xF0F5FF, rows, cols, headers, std::vector<double>(cols, width), false);
    for (int r = 1; r <= rows; ++r)
      for (int c = 1; c <= cols; ++c) spread.sheet().SetData(c, r, std::to_string(c == 1 ? r : r * c));
    spread.Refresh();
  }

  // Returns the page count, 0 on failure.
  int PrintToPdf(const std::string& path, QPageLayout::Orientation* orientation = nullptr) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(path));
    int pages = 0;
    if (!spread.PrintBlock(printer, {}, "Node Table", &pages)) return 0;
    if (orientation) *orientation = printer.pageLayout().orientation();
    return pages;
  }

  TempDir dir;
  TSpread spread;
};

}  // namespace

TEST_F(GridPrintTest, AsksFirstThenPrintsTheSelectionThroughThePrintSetup) {
  Fill(400, 4);
  prompter.QueueAnswer(false);
  EXPECT_FALSE(spread.PrintGrid("Node Table"));
  EXPECT_EQ(prompter.prompts().size(), 1u) << "no printer is chosen after No";

  spread.SetSelectBlock({2, 10, 3, 20});
  prompter.QueueAnswer(true);
  prompter.QueuePath(dir / "some.pdf");
  ASSERT_TRUE(spread.PrintGrid("Node Table"));
  EXPECT_EQ(prompter.prompts()[2].kind, ScriptedPrompter::PromptKind::Print);
  EXPECT_EQ(prompter.prompts()[2].text, "Norvane") << "the print job's name";
  EXPECT_EQ(PdfPages(dir / "some.pdf"), 1);
  const std::string text = PdfPageText(dir / "some.pdf", 1);
  EXPECT_NE(text.find("Value 3 [ft]"), std::string::npos) << text;
  EXPECT_EQ(text.find("Value 4 [ft]"), std::string::npos) << "only the selected columns are printed";
  EXPECT_NE(text.find("Node Id"), std::string::npos) << "and the ids, so no printed row is anonymous";

  const std::string unwritable = dir / "missing/out.pdf";
  prompter.QueueAnswer(true);
  prompter.QueuePath(unwritable);
  EXPECT_FALSE(spread.PrintGrid("Node Table"));
  EXPECT_EQ(Messages(), (std::vector<std::string>{kPrintQuestion, kPrintQuestion, kPrintQuestion,
                                                  "The table could not be printed on \"" + unwritable + "\"."}));
  EXPECT_EQ(FolderEntries(dir.path()), std::vector<std::string>{"some.pdf"});
}

TEST_F(GridPrintTest, OneSelectedCellPrintsTheWholeTableWithinFifteenMillimetreMargins) {
  Fill(5, 4);
  const struct { const char* name; grid::Block block; std::vector<int> columns; int rows; } cases[] = {
      {"nothing selected", {}, {1, 2, 3, 4}, 5},
      {"the cell clicked last", {3, 2, 3, 2}, {1, 2, 3, 4}, 5},
      {"a block without the ids", {3, 2, 4, 3}, {1, 3, 4}, 2},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    GridPrinter layout(spread.sheet(), c.block, "Node Table");
    EXPECT_EQ(layout.PrintedColumns(), c.columns);
    EXPECT_EQ(layout.PrintedBlock().row2 - layout.PrintedBlock().row1 + 1, c.rows);
  }
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromStdString(dir / "margins.pdf"));
  printer.setPageMargins(QMarginsF(2, 2, 2, 2), QPageLayout::Millimeter);
  ASSERT_TRUE(spread.PrintBlock(printer, {}, "Node Table"));
  const QMarginsF margins = printer.pageLayout().margins(QPageLayout::Millimeter);
  for (double side : {margins.left(), margins.top(), margins.right(), margins.bottom()}) EXPECT_GE(side, 14.99);
}

TEST_F(GridPrintTest, EveryPageRepeatsTitleAndHeadingsAndIsNumbered) {
  Fill(300, 3);
  const int pages = PrintToPdf(dir / "long.pdf");
  ASSERT_GT(pages, 2);
  EXPECT_EQ(PdfPages(dir / "long.pdf"), pages);
  for (int page = 1; page <= pages; ++page) {
    SCOPED_TRACE(page);
    const std::string text = PdfPageText(dir / "long.pdf", page);
    EXPECT_NE(text.find("Node Table"), std::string::npos) << text;
    EXPECT_NE(text.find("Node Id"), std::string::npos);
    EXPECT_NE(text.find("Value 3 [ft]"), std::string::npos);
    EXPECT_NE(text.find("Page " + std::to_string(page) + " of " + std::to_string(pages)), std::string::npos);
  }
  EXPECT_NE(PdfPageText(dir / "long.pdf", pages).find("900"), std::string::npos) << "the last row is printed";
}

TEST_F(GridPrintTest, WideTablesTurnToLandscapeAndAreScaledNeverCut) {
  const struct { const char* name; int rows, cols; QPageLayout::Orientation orientation; } cases[] = {
      {"empty grid still prints its headings", 0, 3, QPageLayout::Portrait},
      {"wider than landscape", 20, 40, QPageLayout::Landscape},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Fill(c.rows, c.cols, 14);
    const std::string path = dir / (std::string(c.name) + ".pdf");
    QPageLayout::Orientation orientation{};
    EXPECT_EQ(PrintToPdf(path, &orientation), 1);
    EXPECT_EQ(orientation, c.orientation);
    EXPECT_EQ(PdfPages(path), 1);
    EXPECT_NE(PdfPageText(path, 1).find("Value " + std::to_string(c.cols) + " [ft]"), std::string::npos)
        << "the last column is on the page";
  }
}

TEST_F(GridPrintTest, ExportAsksForAFileAndAppendsWhenThePreferenceSaysSo) {
  Fill(3, 3);
  prompter.QueuePath(dir / "grid.txt");
  ASSERT_TRUE(spread.ExportGrid("Node Table"));
  const FileDialogRequest& request = prompter.prompts()[0].request;
  EXPECT_EQ(request.title, "Export Spreadsheet Data");
  EXPECT_EQ(request.defaultName, "*.htm");
  const std::string text = "Node Id\tValue 2 [ft]\tValue 3 [ft]\r\n1\t2\t3\r\n2\t4\t6\r\n3\t6\t9\r\n";
  EXPECT_EQ(ReadFileText(dir / "grid.txt"), text);

  EXPECT_TRUE(request.confirmReplace) << "replacing a file is asked about";
  QSettings().setValue("Preferences/SpreadsheetAppendSave", 1);  // read at the time of the export
  prompter.QueuePath(dir / "grid.txt");
  ASSERT_TRUE(spread.ExportGrid("Node Table"));
  EXPECT_EQ(ReadFileText(dir / "grid.txt"), text + text);
  EXPECT_FALSE(prompter.prompts()[1].request.confirmReplace) << "appending replaces nothing";

  prompter.QueuePath(dir / "grid.csv");
  EXPECT_FALSE(spread.ExportGrid());
  EXPECT_EQ(Messages(), std::vector<std::string>{"Invalid file format specified"});
  EXPECT_EQ(FolderEntries(dir.path()), std::vector<std::string>{"grid.txt"});
}

TEST_F(GridPrintTest, NodeDialogPrintsAndSavesItsTableUnderItsTitle) {
  fmUnit units;
  std::vector<fmNd> nodes = {{1, 0, 2.0, 0, 1.5}, {2, 0, 4.0, 0, 1.5}};
  CNodeDataDlg dlg;
  dlg.m_pUnits = &units, dlg.m_pNodes = &nodes, dlg.m_bModelLocked = 1;  // print and save stay open when locked
  dlg.InitDialogForTest();
  prompter.Clear();

  prompter.QueueAnswer(true);
  prompter.QueuePath(dir / "nodes.pdf");
  ASSERT_TRUE(dlg.PressButton(res::kCtlPrint));
  EXPECT_EQ(Messages(), std::vector<std::string>{kPrintQuestion});
  EXPECT_NE(PdfPageText(dir / "nodes.pdf", 1).find("Node Table"), std::string::npos);

  prompter.QueuePath(dir / "nodes.xlsx");
  ASSERT_TRUE(dlg.PressButton(res::kCtlSave));
  const std::string workbook = CommandOutput("unzip -p '" + dir / "nodes.xlsx" + "' xl/workbook.xml");
  EXPECT_NE(workbook.find("name=\"Node Table\""), std::string::npos) << workbook;
  EXPECT_EQ(nodes.size(), 2u);
}

TEST(HostPrintToPdf, PrintsTheWholeTableOfAGridDialog) {
  TempDir dir;
  const std::string pdf = dir / "nodes.pdf";
  auto r = testsupport::RunProgram(NORVANE_HOST_PATH, {"--show", "CNodeDataDlg", "--print-to-pdf", pdf});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "Wrote " + pdf + " (1 page)\n");
  EXPECT_NE(PdfPageText(pdf, 1).find("Page 1 of 1"), std::string::npos);

  // A results report prints under its window title, as its "Print..." does.
  const std::string report = dir / "reactions.pdf";
  r = testsupport::RunProgram(NORVANE_HOST_PATH, {"--show", "CResultsDlg", "--kind", "1", "--print-to-pdf", report});
  EXPECT_EQ(r.status, 0) << r.err;
  const std::string text = PdfPageText(report, 1);
  EXPECT_NE(text.find("Support Reactions - ["), std::string::npos) << text;
  EXPECT_NE(text.find("Sum"), std::string::npos) << text;
}
