#include "dialogs/grid/export.h"

#include <gtest/gtest.h>

#include <charconv>
#include <clocale>
#include <cmath>
#include <cstring>
#include <map>
#include <random>
#include <regex>

#include "dialogs/grid/grid_ops.h"
#include "dialogs/grid/sheet.h"
#include "support/TempDir.h"
#include "support/comma_locale.h"
#include "support/file_size_limit.h"
#include "support/files.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace {

using grid::Sheet;
using Rows = std::vector<std::vector<std::string>>;

// As the dialogs fill it: headings with units in row 0, row headings (never exported) in column 0.
Sheet MakeSheet(const Rows& rows) {
  Sheet sheet;
  const int cols = static_cast<int>(rows.front().size());
  grid::InitializeGrid(sheet, 0xF0F5FF, static_cast<int>(rows.size()) - 1, cols, rows.front(),
                       std::vector<double>(cols, 12), false);
  for (size_t r = 1; r < rows.size(); ++r) {
    sheet.SetData(0, static_cast<int>(r), "row heading");
    for (int c = 0; c < cols; ++c) sheet.SetData(c + 1, static_cast<int>(r), rows[r][c]);
  }
  return sheet;
}

const Rows kNodes = {{"Node Id", "X [ft]", "Y [ft]", "Z [ft]", "Status"},
                     {"1", "0", "1.5", "-2.25e-07", "Normal"}, {"2", "20", "12", "25", "Frozen"}};

const Rows kAwkward = {{"Label", "Note <b>", "Value"}, {"Tom & Jerry", "<script>alert('x')</script>", "3"},
                       {"say \"hi\"", "a > b && c < d", "=SUM(A1:A2)"}, {"Ärger", "tab\there", "line\nbreak"},
                       {"", "\"quoted", " 7 "}};

size_t Count(const std::string& text, const std::string& what) {
  size_t n = 0;
  for (size_t p = text.find(what); p != std::string::npos; p = text.find(what, p + 1)) ++n;
  return n;
}

std::string Unescape(std::string s) {
  for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{
           {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&#39;", "'"}, {"&apos;", "'"}, {"&amp;", "&"}})
    for (size_t p = s.find(from); p != std::string::npos; p = s.find(from, p + to.size())) s.replace(p, from.size(), to);
  return s;
}

// Every heading and cell of the HTML tables in order; a cell holding a bare '<' would not match.
std::vector<std::string> HtmlCells(const std::string& html) {
  static const std::regex kCell(R"(<t[hd][^>]*>([^<]*)</t[hd]>)");
  std::vector<std::string> cells;
  for (auto it = std::sregex_iterator(html.begin(), html.end(), kCell); it != std::sregex_iterator(); ++it)
    cells.push_back(Unescape((*it)[1].str()));
  return cells;
}

std::vector<std::string> Flat(const std::vector<Rows>& tables) {
  std::vector<std::string> cells;
  for (const auto& rows : tables) for (const auto& row : rows) cells.insert(cells.end(), row.begin(), row.end());
  return cells;
}

// The worksheet's cells by reference ("B3"), shared strings resolved; type is the t attribute.
struct XlsxCell { std::string type, style, value; bool formula = false; };

std::map<std::string, XlsxCell> ReadWorksheet(const std::string& xlsx) {
  int status = 0;
  const std::string xml = CommandOutput("unzip -p '" + xlsx + "' xl/worksheets/sheet1.xml", &status);
  EXPECT_EQ(status, 0) << xlsx;
  const std::string sharedXml = CommandOutput("unzip -p '" + xlsx + "' xl/sharedStrings.xml 2>/dev/null");
  std::vector<std::string> shared;
  static const std::regex kSi(R"(<si>(?:<t[^>]*>([\s\S]*?)</t>|<t/>)</si>)");
  for (auto it = std::sregex_iterator(sharedXml.begin(), sharedXml.end(), kSi); it != std::sregex_iterator(); ++it)
    shared.push_back(Unescape((*it)[1].str()));

  auto between = [](const std::string& text, const std::string& open, const std::string& close) {
    const size_t a = text.find(open), b = a == std::string::npos ? a : text.find(close, a + open.size());
    return b == std::string::npos ? std::string() : text.substr(a + open.size(), b - a - open.size());
  };
  // Found by hand rather than by regular expressions: a streamed sheet has many cells.
  std::map<std::string, XlsxCell> cells;
  for (size_t pos = xml.find("<c "); pos != std::string::npos; pos = xml.find("<c ", pos + 1)) {
    const size_t tagEnd = xml.find('>', pos);
    const std::string attrs = xml.substr(pos, tagEnd - pos);
    const std::string body =
        xml[tagEnd - 1] == '/' ? "" : xml.substr(tagEnd + 1, xml.find("</c>", tagEnd) - tagEnd - 1);
    auto attr = [&](const std::string& name) { return between(attrs, " " + name + "=\"", "\""); };
    XlsxCell cell{attr("t"), attr("s"), between(body, "<v>", "</v>"), body.find("<f") != std::string::npos};
    if (cell.type == "inlineStr") cell.value = Unescape(between(body.substr(body.find("<t")), ">", "</t>"));
    if (cell.type == "s") cell.value = std::stoul(cell.value) < shared.size() ? shared[std::stoul(cell.value)] : "?";
    cells[attr("r")] = cell;
  }
  return cells;
}

// The number format code of each cell style ("s" attribute) of a workbook; "" for the
// general format. Built-in formats are named by their number.
std::vector<std::string> StyleNumberFormats(const std::string& xlsx) {
  const std::string xml = CommandOutput("unzip -p '" + xlsx + "' xl/styles.xml");
  std::map<std::string, std::string> codes = {{"0", ""}, {"1", "0"}, {"2", "0.00"}, {"9", "0%"}, {"10", "0.00%"},
                                              {"11", "0.00E+00"}};
  static const std::regex kNumFmt(R"re(<numFmt numFmtId="(\d+)" formatCode="([^"]*)")re");
  for (auto it = std::sregex_iterator(xml.begin(), xml.end(), kNumFmt); it != std::sregex_iterator(); ++it)
    codes[(*it)[1].str()] = Unescape((*it)[2].str());
  const size_t from = xml.find("<cellXfs"), to = xml.find("</cellXfs>");
  const std::string xfs = from == std::string::npos ? "" : xml.substr(from, to - from);
  std::vector<std::string> styles;
  static const std::regex kXf(R"re(<xf numFmtId="(\d+)")re");
  for (auto it = std::sregex_iterator(xfs.begin(), xfs.end(), kXf); it != std::sregex_iterator(); ++it)
    styles.push_back(codes.count((*it)[1].str()) ? codes[(*it)[1].str()] : "?");
  return styles;
}

}  // namespace

TEST(ExportSheet, RefusalsGiveTheirMessageAndWriteNothing) {
  TempDir dir;
  const Sheet nodes = MakeSheet(kNodes);
  Sheet huge;
  huge.SetMaxCols(1);
  huge.SetMaxRows(grid::kWorkbookMaxRows);  // one more than fits below the heading row
  const struct { std::string path; const Sheet* sheet; std::string message; } cases[] = {
      {dir / "nodes.csv", &nodes, "Invalid file format specified"},
      {dir / "missing/nodes.htm", &nodes,
       "Cannot write \"" + dir / "missing/nodes.htm" + "\": the folder \"" + dir / "missing" + "\" does not exist"},
      {dir / "big.xlsx", &huge,
       "Cannot write \"" + dir / "big.xlsx" +
           "\": the table has 1048576 rows, but a worksheet holds at most 1048575 rows below its heading row. "
           "Export to HTML or text instead."},
  };
  for (const auto& c : cases)
    for (bool append : {false, true}) EXPECT_EQ(grid::ExportSheet(*c.sheet, c.path, append, "Node Table"), c.message);
  EXPECT_TRUE(FolderEntries(dir.path()).empty());
}

TEST(ExportHtml, EscapesEveryCellAndAppendsTablesIntoTheBody) {
  const std::string single = grid::HtmlDocument(MakeSheet(kAwkward), "Loads & <Cases>");
  EXPECT_NE(single.find("<caption>Loads &amp; &lt;Cases&gt;</caption>"), std::string::npos);
  EXPECT_NE(single.find("&lt;script&gt;alert(&#39;x&#39;)&lt;/script&gt;"), std::string::npos);
  EXPECT_EQ(single.find("row heading"), std::string::npos) << "the row-heading column is not exported";
  EXPECT_EQ(HtmlCells(single), Flat({kAwkward}));

  TempDir dir;
  const std::string path = dir / "report.HTM";
  ASSERT_EQ(grid::ExportSheet(MakeSheet(kNodes), path, true, "Node Table"), std::nullopt);
  ASSERT_EQ(grid::ExportSheet(MakeSheet(kAwkward), path, true, "Notes"), std::nullopt);
  const std::string appended = ReadFileText(path);
  EXPECT_EQ(Count(appended, "<html>"), 1u);
  EXPECT_TRUE(appended.ends_with("</table>\n</body>\n</html>\n")) << appended;
  EXPECT_EQ(HtmlCells(appended), Flat({kNodes, kAwkward}));
  EXPECT_EQ(FolderEntries(dir.path()), std::vector<std::string>{"report.HTM"});

  ASSERT_EQ(grid::ExportSheet(MakeSheet(kNodes), path, false, "Node Table"), std::nullopt);
  EXPECT_EQ(HtmlCells(ReadFileText(path)), Flat({kNodes})) << "without append the file is replaced";
}

TEST(ExportText, TabsBetweenCellsAndCrLfAfterEveryRow) {
  TempDir dir;
  const std::string path = dir / "nodes.Txt";
  const std::string expected =
      "Node Id\tX [ft]\tY [ft]\tZ [ft]\tStatus\r\n1\t0\t1.5\t-2.25e-07\tNormal\r\n2\t20\t12\t25\tFrozen\r\n";
  ASSERT_EQ(grid::ExportSheet(MakeSheet(kNodes), path, false, "Node Table"), std::nullopt);
  EXPECT_EQ(ReadFileText(path), expected);
  ASSERT_EQ(grid::ExportSheet(MakeSheet(kNodes), path, true, "Node Table"), std::nullopt);
  EXPECT_EQ(ReadFileText(path), expected + expected);
  EXPECT_EQ(grid::ParseTabSeparated(grid::TabSeparatedText(MakeSheet(kAwkward))), kAwkward);

  // Appended text starts on a line of its own, whatever the file's last line ends with.
  for (const std::string& before : {std::string("line without newline"), std::string("unix line\n"),
                                    std::string("")}) {
    WriteFileText(path, before);
    ASSERT_EQ(grid::ExportSheet(MakeSheet(kNodes), path, true, "Node Table"), std::nullopt);
    const std::string glue = before.empty() || before.ends_with('\n') ? "" : "\r\n";
    EXPECT_EQ(ReadFileText(path), before + glue + expected) << before;
  }
}

TEST(ExportWorkbook, NumbersAsNumbersTextAsTextNeverFormulas) {
  // Small sheets keep shared strings; big ones are streamed with inline strings.
  // A cell is a number only when it was filled from one: column C of the first rows, then B.
  // Labels that look like numbers ("0012", "1E3") stay text.
  const auto filledFromNumber = [](size_t r, size_t c) { return r > 0 && (r <= 4 ? c == 2 : c == 1); };
  for (int extraRows : {0, 40000}) {
    TempDir dir;
    auto rows = kAwkward;
    rows.push_back({"0012", "-0.5", "1E3"});
    for (int i = 0; i < extraRows; ++i) rows.push_back({tools::Format("n%d", i), tools::Format("%d", i), "x"});
    const std::string path = dir / (extraRows ? "big.xlsx" : "small.XLS");
    Sheet sheet = MakeSheet(rows);
    for (size_t r = 1; r < rows.size(); ++r)
      for (size_t c = 0; c < rows[r].size(); ++c)
        if (filledFromNumber(r, c)) sheet.SetNumber(int(c + 1), int(r), rows[r][c]);
    ASSERT_EQ(grid::ExportSheet(sheet, path, true, "Loads: [all]"), std::nullopt);
    EXPECT_EQ(FolderEntries(dir.path()).size(), 1u) << "no temporary file is left";

    const auto cells = ReadWorksheet(path);
    for (size_t r = 0; r < rows.size(); r += r < 8 ? 1 : 997) {
      for (size_t c = 0; c < rows[r].size(); ++c) {
        const std::string ref = tools::Format("%c%d", int('A' + c), int(r + 1));
        const std::string& text = rows[r][c];
        if (text.empty()) { EXPECT_EQ(cells.count(ref), 0u) << ref; continue; }
        ASSERT_EQ(cells.count(ref), 1u) << ref;
        const XlsxCell& cell = cells.at(ref);
        EXPECT_FALSE(cell.formula) << ref;
        const auto number = filledFromNumber(r, c) ? tools::ParseDouble(text) : std::nullopt;
        EXPECT_EQ(cell.type, number ? "" : extraRows ? "inlineStr" : "s") << ref;
        if (number) EXPECT_EQ(tools::ParseDouble(cell.value), number) << ref << " holds " << cell.value;
        else EXPECT_EQ(cell.value, text) << ref;
        // Headings are bold; numbers have the format of their text ("0" for the integers here).
        EXPECT_EQ(!cell.style.empty() && cell.style != "0", r == 0 || number) << ref;
      }
    }
    EXPECT_EQ(cells.at("C3").value, "=SUM(A1:A2)");
    const std::string workbookXml = CommandOutput("unzip -p '" + path + "' xl/workbook.xml");
    EXPECT_NE(workbookXml.find("name=\"Loads_ _all_\""), std::string::npos) << workbookXml;
  }
}

TEST(ExportWorkbook, ATypedCellKeepsItsKindWhileItReadsAsANumber) {
  Sheet sheet = MakeSheet({{"Label", "X [ft]"}, {"A", "1"}, {"B", "2"}});
  sheet.SetNumber(2, 1, "1");
  sheet.SetNumber(2, 2, "2");
  sheet.SetTypedData(1, 1, "3");     // a label typed as digits stays a label
  sheet.SetTypedData(2, 1, " 2.5 ");
  sheet.SetTypedData(2, 2, "two");   // text now, and text it stays
  sheet.SetTypedData(2, 2, "4");
  EXPECT_FALSE(sheet.IsNumber(1, 1));
  EXPECT_TRUE(sheet.IsNumber(2, 1));
  EXPECT_FALSE(sheet.IsNumber(2, 2));
  TempDir dir;
  ASSERT_EQ(grid::ExportSheet(sheet, dir / "t.xlsx", false, "T"), std::nullopt);
  const auto cells = ReadWorksheet(dir / "t.xlsx");
  EXPECT_TRUE(cells.at("A2").type == "s" && cells.at("A2").value == "3");
  EXPECT_TRUE(cells.at("B2").type.empty() && cells.at("B2").value == "2.5");
  EXPECT_TRUE(cells.at("B3").type == "s" && cells.at("B3").value == "4");
}

// Once wrote <v>-0,5</v> under a comma-decimal locale, which spreadsheet programs cannot read.
TEST(ExportWorkbook, NumbersIgnoreACommaLocale) {
  testsupport::ScopedCommaNumeric comma;
  if (!comma.ok()) GTEST_SKIP() << "no comma-decimal locale";
  TempDir dir;
  ASSERT_EQ(grid::ExportSheet(MakeSheet({{"X [ft]"}, {"-0.5"}}), dir / "n.xlsx", false, "T"), std::nullopt);
  EXPECT_EQ(ReadWorksheet(dir / "n.xlsx").at("A2").value, "-0.5");
}

// The grid shows "%g" (six digits); a workbook holds the value itself, in a format showing
// what the grid shows, while text and HTML keep the grid's text.
TEST(ExportWorkbook, NumbersKeepFullPrecisionInTheFormatTheGridShows) {
  Sheet sheet = MakeSheet({{"X [ft]", "Y [ft]", "Ratio", "Id"}, {"", "", "", ""}, {"", "", "", ""}});
  sheet.SetNumberG(1, 1, 512345.678);
  sheet.SetNumberG(2, 1, 1.0 / 3);
  sheet.SetNumber(3, 1, 0.0041666, "0.417 %");
  sheet.SetNumber(4, 1, "17");
  sheet.SetNumberG(1, 2, -2.25e-7);
  sheet.SetNumberG(2, 2, 0.5);
  sheet.SetNumber(3, 2, std::nan(""), "n/a");  // not finite: the text alone, which is no number
  EXPECT_EQ(sheet.GetData(1, 1), "512346");
  EXPECT_EQ(sheet.GetData(2, 1), "0.333333");
  EXPECT_EQ(sheet.GetNumber(1, 1), 512345.678);
  EXPECT_EQ(sheet.GetNumber(3, 2), std::nullopt);

  TempDir dir;
  ASSERT_EQ(grid::ExportSheet(sheet, dir / "p.xlsx", false, "P"), std::nullopt);
  const auto cells = ReadWorksheet(dir / "p.xlsx");
  const auto formats = StyleNumberFormats(dir / "p.xlsx");
  const struct { const char* ref; double value; const char* format; } numbers[] = {
      {"A2", 512345.678, "0"}, {"B2", 1.0 / 3, "0.000000"}, {"C2", 0.0041666, "0.000 %"}, {"D2", 17, "0"},
      {"A3", -2.25e-7, "0.00E+00"}, {"B3", 0.5, "0.0"}};
  for (const auto& n : numbers) {
    const XlsxCell& cell = cells.at(n.ref);
    EXPECT_EQ(cell.type, "") << n.ref;
    EXPECT_EQ(tools::ParseDouble(cell.value), n.value) << n.ref << " holds " << cell.value;
    const size_t style = cell.style.empty() ? 0 : std::stoul(cell.style);
    ASSERT_LT(style, formats.size()) << n.ref;
    EXPECT_EQ(formats[style], n.format) << n.ref;
  }
  EXPECT_TRUE(cells.at("C3").type == "s" && cells.at("C3").value == "n/a");

  // Text keeps what the grid shows.
  ASSERT_EQ(grid::ExportSheet(sheet, dir / "p.txt", false, "P"), std::nullopt);
  EXPECT_EQ(ReadFileText(dir / "p.txt"),
            "X [ft]\tY [ft]\tRatio\tId\r\n512346\t0.333333\t0.417 %\t17\r\n-2.25e-07\t0.5\tn/a\t\r\n");
  ASSERT_EQ(grid::ExportSheet(sheet, dir / "p.htm", false, "P"), std::nullopt);
  EXPECT_NE(ReadFileText(dir / "p.htm").find(">512346</td>"), std::string::npos);
}

// A cell filled from a number holds that double exactly: "%.16G" lost a digit of about half
// of all coordinates. Small sheets and large ones (written in pieces on several threads).
TEST(ExportWorkbook, NumbersHoldTheirDoublesExactly) {
  const std::vector<double> awkward = {512345.678, 1.0 / 3, 0.1 + 0.2, -2.25e-7, 1e300, 5e-324, -0.0,
                                       123456789012345678.0, 4503599627370497.0};
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> coordinate(-5000.0, 5000.0);
  for (int rows : {1000, 60000}) {
    Sheet sheet = MakeSheet({{"X [ft]", "Y [ft]"}});
    sheet.SetMaxRows(rows);
    std::vector<double> values;
    for (int row = 1; row <= rows; ++row)
      for (int col = 1; col <= 2; ++col) {
        const size_t i = values.size();
        values.push_back(i < awkward.size() ? awkward[i] : coordinate(random));
        sheet.SetNumberG(col, row, values.back());
      }
    TempDir dir;
    ASSERT_EQ(grid::ExportSheet(sheet, dir / "n.xlsx", false, "Nodes"), std::nullopt);
    const auto cells = ReadWorksheet(dir / "n.xlsx");
    int inexact = 0;
    for (int row = 1; row <= rows; ++row)
      for (int col = 1; col <= 2; ++col) {
        const XlsxCell& cell = cells.at(tools::Format("%c%d", 'A' + col - 1, row + 1));
        const double expected = values[size_t(row - 1) * 2 + size_t(col - 1)];
        double held = 0;
        const auto [end, ec] = std::from_chars(cell.value.data(), cell.value.data() + cell.value.size(), held);
        const bool exact = ec == std::errc() && end == cell.value.data() + cell.value.size() && cell.type.empty() &&
                           std::memcmp(&held, &expected, sizeof held) == 0;
        if (!exact && ++inexact <= 5) ADD_FAILURE() << "row " << row << " holds " << cell.value << " for " << expected;
      }
    EXPECT_EQ(inexact, 0) << rows << " rows";
    EXPECT_EQ(cells.at("A2").value, "512345.678");
    EXPECT_EQ(cells.at("B2").value, "0.3333333333333333");
  }
}

// Whatever a text holds, the workbook stays well-formed and the text reads back as written:
// control characters and "_xHHHH_" use the workbook's escapes, bytes that are no UTF-8 become
// U+FFFD instead of breaking the shared strings.
TEST(ExportWorkbook, TextsStayWellFormedWhateverTheyHold) {
  Sheet sheet = MakeSheet({{"Label"}, {"bell\x07"}, {"_x0041_ stays"}, {"a\r\nb"}, {"bad \xC0\x80 bytes"},
                           {" padded "}, {"<&>"}, {"\xC3\x84rger"}});
  TempDir dir;
  ASSERT_EQ(grid::ExportSheet(sheet, dir / "t.xlsx", false, "Tab\there: [x]"), std::nullopt);
  const std::string strings = CommandOutput("unzip -p '" + dir / "t.xlsx" + "' xl/sharedStrings.xml");
  for (const char* part : {"<t>bell_x0007_</t>", "<t>_x005F_x0041_ stays</t>", "<t>a_x000D_\nb</t>",
                           "<t>bad \xEF\xBF\xBD\xEF\xBF\xBD bytes</t>", "<t xml:space=\"preserve\"> padded </t>",
                           "<t>&lt;&amp;&gt;</t>", "<t>\xC3\x84rger</t>"})
    EXPECT_NE(strings.find(part), std::string::npos) << part << " in " << strings;
  const std::string workbookXml = CommandOutput("unzip -p '" + dir / "t.xlsx" + "' xl/workbook.xml");
  EXPECT_NE(workbookXml.find("name=\"Tab_here_ _x_\""), std::string::npos) << workbookXml;
  int status = -1;
  CommandOutput("unzip -tq '" + dir / "t.xlsx" + "'", &status);
  EXPECT_EQ(status, 0);
}

// Past a file-size limit (as on a full disk) the export says why in the system's words, prints
// nothing of its own, leaves the old file as it was and nothing beside it.
TEST(ExportWorkbook, AFailedWriteKeepsTheOldFileAndSaysWhy) {
  std::mt19937_64 random(11);
  std::uniform_real_distribution<double> coordinate(-5000.0, 5000.0);
  for (int rows : {3000, 60000}) {
    Sheet sheet = MakeSheet({{"X [ft]", "Y [ft]"}});
    sheet.SetMaxRows(rows);
    for (int row = 1; row <= rows; ++row)
      for (int col = 1; col <= 2; ++col) sheet.SetNumberG(col, row, coordinate(random));
    TempDir dir;
    const std::string path = dir / "nodes.xlsx";
    WriteFileText(path, "the old workbook");
    testing::internal::CaptureStderr();
    const auto failure = WithFileSizeLimit(16384, [&] { return grid::ExportSheet(sheet, path, false, "Nodes"); });
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(failure, "Cannot write \"" + path + "\": File too large") << rows << " rows";
    EXPECT_TRUE(ReadFileText(path) == "the old workbook") << "the old file is kept";
    EXPECT_EQ(FolderEntries(dir.path()), std::vector<std::string>{"nodes.xlsx"});
  }
}
