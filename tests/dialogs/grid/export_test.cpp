#include "dialogs/grid/export.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <map>
#include <regex>
#include <set>

#include "dialogs/grid/grid_ops.h"
#include "dialogs/grid/sheet.h"
#include "support/TempDir.h"
#include "support/files.h"
#include "tools/parse.h"

namespace {

using grid::Sheet;

// A grid as the dialogs fill it: headings with units in row 0, row headings that must not
// be exported in column 0.
Sheet MakeSheet(const std::vector<std::vector<std::string>>& rows) {
  Sheet sheet;
  const int cols = static_cast<int>(rows.front().size());
  std::vector<std::string> headers = rows.front();
  grid::InitializeGrid(sheet, 0xF0F5FF, static_cast<int>(rows.size()) - 1, cols, headers,
                       std::vector<double>(cols, 12), false);
  for (size_t r = 1; r < rows.size(); ++r) {
    sheet.SetData(0, static_cast<int>(r), "row heading");
    for (int c = 0; c < cols; ++c) sheet.SetData(c + 1, static_cast<int>(r), rows[r][c]);
  }
  return sheet;
}

const std::vector<std::vector<std::string>> kNodes = {
    {"Node Id", "X [ft]", "Y [ft]", "Z [ft]", "Status"},
    {"1", "0", "1.5", "-2.25e-07", "Normal"},
    {"2", "20", "12", "25", "Frozen"},
};

const std::vector<std::vector<std::string>> kAwkward = {
    {"Label", "Note <b>", "Value"},
    {"Tom & Jerry", "<script>alert('x')</script>", "3"},
    {"say \"hi\"", "a > b && c < d", "=SUM(A1:A2)"},
    {"Ärger", "tab\there", "line\nbreak"},
    {"", "\"quoted", " 7 "},
};

// ---- A small HTML reader: checks that every element is closed in order, that text holds
// no bare markup characters, and collects the cells of every table.
struct HtmlScan {
  std::string error;                                    // empty when well formed
  std::map<std::string, int> elements;                  // opened, by name
  std::vector<std::vector<std::vector<std::string>>> tables;  // table -> row -> cell
  std::vector<std::string> captions;
};

std::string Unescape(const std::string& text, std::string& error) {
  static const std::map<std::string, std::string> kEntities = {
      {"&amp;", "&"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&#39;", "'"}};
  std::string out;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '>' || text[i] == '"' || text[i] == '\'') error = "bare markup character in \"" + text + "\"";
    if (text[i] != '&') {
      out += text[i];
      continue;
    }
    const size_t semi = text.find(';', i);
    const auto it = semi == std::string::npos ? kEntities.end() : kEntities.find(text.substr(i, semi - i + 1));
    if (it == kEntities.end()) {
      error = "bare & in \"" + text + "\"";
      return out;
    }
    out += it->second;
    i = semi;
  }
  return out;
}

HtmlScan ScanHtml(const std::string& html) {
  static const std::set<std::string> kVoid = {"meta", "br", "col", "hr"};
  HtmlScan scan;
  std::vector<std::string> open;
  std::string text;
  size_t i = 0;
  while (i < html.size() && scan.error.empty()) {
    if (html[i] != '<') {
      text += html[i++];
      continue;
    }
    const std::string inner = Unescape(text, scan.error);
    text.clear();
    if (!open.empty() && (open.back() == "td" || open.back() == "th")) scan.tables.back().back().push_back(inner);
    if (!open.empty() && open.back() == "caption") scan.captions.push_back(inner);
    const size_t close = html.find('>', i);
    if (close == std::string::npos) {
      scan.error = "unterminated tag";
      break;
    }
    std::string tag = html.substr(i + 1, close - i - 1);
    i = close + 1;
    if (tag.starts_with("!")) continue;
    const bool closing = tag.starts_with("/");
    if (closing) tag.erase(0, 1);
    std::string name = tag.substr(0, tag.find_first_of(" \t\n"));
    for (char& c : name) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (closing) {
      if (open.empty() || open.back() != name) scan.error = "unexpected </" + name + ">";
      else open.pop_back();
      continue;
    }
    ++scan.elements[name];
    if (name == "table") scan.tables.emplace_back();
    if (name == "tr") scan.tables.back().emplace_back();
    if (!kVoid.count(name)) open.push_back(name);
    if (name == "style") {  // raw text up to its end tag
      const size_t end = html.find("</style>", i);
      i = end == std::string::npos ? html.size() : end;
    }
  }
  if (scan.error.empty() && !open.empty()) scan.error = "<" + open.back() + "> never closed";
  return scan;
}

// ---- Workbook reading: the worksheet's cells by reference, strings resolved.
struct XlsxCell {
  std::string type;  // the t attribute: "", "s", "inlineStr", "str" ...
  std::string style;
  std::string value;  // number text or the string
  bool formula = false;
};

std::string XmlText(std::string s) {
  for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{
           {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&apos;", "'"}, {"&amp;", "&"}}) {
    for (size_t p = s.find(from); p != std::string::npos; p = s.find(from, p + to.size())) s.replace(p, from.size(), to);
  }
  return s;
}

std::map<std::string, XlsxCell> ReadWorksheet(const std::string& xlsx) {
  int status = 0;
  const std::string sheetXml = CommandOutput("unzip -p '" + xlsx + "' xl/worksheets/sheet1.xml", &status);
  EXPECT_EQ(status, 0) << "unzip failed on " << xlsx;
  const std::string sharedXml = CommandOutput("unzip -p '" + xlsx + "' xl/sharedStrings.xml 2>/dev/null");
  std::vector<std::string> shared;
  static const std::regex kSi(R"(<si>(?:<t[^>]*>([\s\S]*?)</t>|<t/>)</si>)");
  for (auto it = std::sregex_iterator(sharedXml.begin(), sharedXml.end(), kSi); it != std::sregex_iterator(); ++it)
    shared.push_back(XmlText((*it)[1].str()));

  // Found by hand rather than by regular expressions: a streamed sheet has many cells.
  std::map<std::string, XlsxCell> cells;
  auto between = [](const std::string& text, const std::string& open, const std::string& close) {
    const size_t a = text.find(open);
    if (a == std::string::npos) return std::string();
    const size_t b = text.find(close, a + open.size());
    return b == std::string::npos ? std::string() : text.substr(a + open.size(), b - a - open.size());
  };
  for (size_t pos = sheetXml.find("<c "); pos != std::string::npos; pos = sheetXml.find("<c ", pos + 1)) {
    const size_t tagEnd = sheetXml.find('>', pos);
    const bool empty = sheetXml[tagEnd - 1] == '/';
    const std::string attrs = sheetXml.substr(pos, tagEnd - pos);
    const std::string body = empty ? "" : sheetXml.substr(tagEnd + 1, sheetXml.find("</c>", tagEnd) - tagEnd - 1);
    auto attr = [&](const std::string& name) { return between(attrs, " " + name + "=\"", "\""); };
    XlsxCell cell{attr("t"), attr("s"), "", body.find("<f") != std::string::npos};
    if (cell.type == "inlineStr") {
      const size_t t = body.find("<t");
      cell.value = XmlText(between(body.substr(t), ">", "</t>"));
    } else {
      cell.value = between(body, "<v>", "</v>");
    }
    if (cell.type == "s") {
      const size_t index = std::stoul(cell.value);
      cell.value = index < shared.size() ? shared[index] : "<bad index>";
    }
    cells[attr("r")] = cell;
  }
  return cells;
}

std::string CellRef(int col, int row) { return std::string(1, char('A' + col - 1)) + std::to_string(row + 1); }

}  // namespace

TEST(ExportFormat, ChosenByExtensionWithoutRegardToCase) {
  const std::vector<std::pair<std::string, std::optional<grid::ExportFormat>>> cases = {
      {"a.htm", grid::ExportFormat::Html},       {"/x/b.HTM", grid::ExportFormat::Html},
      {"c.Html", grid::ExportFormat::Html},      {"d.txt", grid::ExportFormat::Text},
      {"e.TXT", grid::ExportFormat::Text},       {"f.xls", grid::ExportFormat::Workbook},
      {"g.XLSX", grid::ExportFormat::Workbook},  {"h.csv", std::nullopt},
      {"noextension", std::nullopt},             {"i.htm.bak", std::nullopt},
      {"dir.htm/file", std::nullopt},            {"j.", std::nullopt},
  };
  for (const auto& [path, format] : cases) EXPECT_EQ(grid::ExportFormatOf(path), format) << path;
}

TEST(ExportSheet, UnknownExtensionWritesNothing) {
  TempDir dir;
  const Sheet sheet = MakeSheet(kNodes);
  for (const char* name : {"nodes.csv", "nodes", "nodes.pdf"}) {
    for (bool append : {false, true}) {
      EXPECT_EQ(grid::ExportSheet(sheet, (dir / name), append, "Node Table"), "Invalid file format specified");
    }
  }
  EXPECT_TRUE(FolderEntries(dir.path()).empty());
}

TEST(ExportHtml, EscapesEveryCellAndReadsBackAsTheSheet) {
  const Sheet sheet = MakeSheet(kAwkward);
  const std::string html = grid::HtmlDocument(sheet, "Loads & <Cases>");
  EXPECT_TRUE(html.starts_with("<!DOCTYPE html>\n"));
  EXPECT_NE(html.find("<meta charset=\"utf-8\">"), std::string::npos);
  EXPECT_NE(html.find("Tom &amp; Jerry"), std::string::npos);
  EXPECT_NE(html.find("&lt;script&gt;alert(&#39;x&#39;)&lt;/script&gt;"), std::string::npos);
  EXPECT_NE(html.find("say &quot;hi&quot;"), std::string::npos);
  EXPECT_EQ(html.find("row heading"), std::string::npos) << "the row-heading column is not exported";

  const HtmlScan scan = ScanHtml(html);
  ASSERT_EQ(scan.error, "");
  EXPECT_EQ(scan.elements.at("html"), 1);
  EXPECT_EQ(scan.elements.at("body"), 1);
  EXPECT_EQ(scan.elements.at("thead"), 1);
  ASSERT_EQ(scan.tables.size(), 1u);
  EXPECT_EQ(scan.tables[0], kAwkward);
  EXPECT_EQ(scan.captions, std::vector<std::string>{"Loads & <Cases>"});
}

TEST(ExportHtml, AppendInsertsTheTableIntoTheExistingBody) {
  TempDir dir;
  const std::string path = dir / "report.htm";
  ASSERT_EQ(grid::ExportSheet(MakeSheet(kNodes), path, true, "Node Table"), std::nullopt);
  ASSERT_EQ(grid::ExportSheet(MakeSheet(kAwkward), path, true, "Notes"), std::nullopt);

  const HtmlScan scan = ScanHtml(ReadFileText(path));
  ASSERT_EQ(scan.error, "");
  EXPECT_EQ(scan.elements.at("html"), 1);
  EXPECT_EQ(scan.elements.at("body"), 1);
  ASSERT_EQ(scan.tables.size(), 2u);
  EXPECT_EQ(scan.tables[0], kNodes);
  EXPECT_EQ(scan.tables[1], kAwkward);
  EXPECT_EQ(scan.captions, (std::vector<std::string>{"Node Table", "Notes"}));
  EXPECT_EQ(FolderEntries(dir.path()), std::vector<std::string>{"report.htm"});

  // Without the preference the file is replaced.
  ASSERT_EQ(grid::ExportSheet(MakeSheet(kNodes), path, false, "Node Table"), std::nullopt);
  EXPECT_EQ(ScanHtml(ReadFileText(path)).tables.size(), 1u);
}

TEST(ExportHtml, AppendFindsTheBodyEndInAnyCaseOrAppendsAtTheEnd) {
  struct Case {
    std::string existing, expectedStart, expectedEnd;
  };
  const std::vector<Case> cases = {
      {"<HTML><BODY><p>Notes</p></BODY></HTML>\n", "<HTML><BODY><p>Notes</p>\n<table>", "</table>\n</BODY></HTML>\n"},
      {"<html><body>a</body><!-- </Body> -->\n</html>", "<html><body>a\n<table>", "</table>\n</body><!-- </Body> -->\n</html>"},
      {"plain notes", "plain notes\n<table>", "</tbody>\n</table>\n"},
  };
  for (const auto& c : cases) {
    TempDir dir;
    const std::string path = dir / "out.HTM";
    WriteFileText(path, c.existing);
    ASSERT_EQ(grid::ExportSheet(MakeSheet(kNodes), path, true, ""), std::nullopt);
    const std::string text = ReadFileText(path);
    EXPECT_TRUE(text.starts_with(c.expectedStart)) << text;
    EXPECT_TRUE(text.ends_with(c.expectedEnd)) << text;
  }
  // An empty file gets a whole document.
  TempDir dir;
  WriteFileText(dir / "empty.htm", "");
  ASSERT_EQ(grid::ExportSheet(MakeSheet(kNodes), dir / "empty.htm", true, "T"), std::nullopt);
  EXPECT_EQ(ScanHtml(ReadFileText(dir / "empty.htm")).elements["html"], 1);
}

TEST(ExportText, TabsBetweenCellsAndCrLfAfterEveryRow) {
  TempDir dir;
  const std::string path = dir / "nodes.Txt";
  const std::string expected =
      "Node Id\tX [ft]\tY [ft]\tZ [ft]\tStatus\r\n"
      "1\t0\t1.5\t-2.25e-07\tNormal\r\n"
      "2\t20\t12\t25\tFrozen\r\n";
  ASSERT_EQ(grid::ExportSheet(MakeSheet(kNodes), path, false, "Node Table"), std::nullopt);
  EXPECT_EQ(ReadFileText(path), expected);
  ASSERT_EQ(grid::ExportSheet(MakeSheet(kNodes), path, true, "Node Table"), std::nullopt);
  EXPECT_EQ(ReadFileText(path), expected + expected);
  ASSERT_EQ(grid::ExportSheet(MakeSheet(kNodes), path, false, "Node Table"), std::nullopt);
  EXPECT_EQ(ReadFileText(path), expected);
  EXPECT_EQ(FolderEntries(dir.path()), std::vector<std::string>{"nodes.Txt"});
}

TEST(ExportText, CellsWithTabsOrBreaksAreQuotedAndReadBack) {
  const Sheet sheet = MakeSheet(kAwkward);
  const std::string text = grid::TabSeparatedText(sheet);
  EXPECT_NE(text.find("\"tab\there\"\t\"line\nbreak\"\r\n"), std::string::npos);
  EXPECT_EQ(grid::ParseTabSeparated(text), kAwkward);
}

TEST(ExportWorkbook, NumbersAsNumbersTextAsTextNeverFormulas) {
  // Small sheets keep shared strings; big ones are streamed with inline strings.
  for (int extraRows : {0, 40000}) {
    TempDir dir;
    auto rows = kAwkward;
    rows.push_back({"1e3", "-0.5", "12abc"});
    for (int i = 0; i < extraRows; ++i) rows.push_back({"n" + std::to_string(i), std::to_string(i), "x"});
    const std::string path = dir / (extraRows ? "big.xlsx" : "small.XLS");
    ASSERT_EQ(grid::ExportSheet(MakeSheet(rows), path, true, "Loads: [all]"), std::nullopt);
    EXPECT_EQ(FolderEntries(dir.path()).size(), 1u) << "no temporary file is left";

    const auto cells = ReadWorksheet(path);
    for (size_t r = 0; r < rows.size(); r += r < 8 ? 1 : 997) {
      for (size_t c = 0; c < rows[r].size(); ++c) {
        const std::string ref = CellRef(int(c) + 1, int(r));
        const std::string& text = rows[r][c];
        if (text.empty()) {
          EXPECT_EQ(cells.count(ref), 0u) << ref;
          continue;
        }
        ASSERT_EQ(cells.count(ref), 1u) << ref;
        const XlsxCell& cell = cells.at(ref);
        EXPECT_FALSE(cell.formula) << ref;
        const auto number = r > 0 ? tools::ParseDouble(text) : std::nullopt;
        if (number) {
          EXPECT_EQ(cell.type, "") << ref;
          EXPECT_DOUBLE_EQ(std::stod(cell.value), *number) << ref;
        } else {
          EXPECT_EQ(cell.type, extraRows ? "inlineStr" : "s") << ref;
          EXPECT_EQ(cell.value, text) << ref;
        }
        EXPECT_EQ(!cell.style.empty() && cell.style != "0", r == 0) << ref << ": headings alone are bold";
      }
    }
    EXPECT_EQ(cells.at("C3").value, "=SUM(A1:A2)");
    const std::string workbookXml = CommandOutput("unzip -p '" + path + "' xl/workbook.xml");
    EXPECT_NE(workbookXml.find("name=\"Loads_ _all_\""), std::string::npos) << workbookXml;
  }
}

TEST(ExportWorkbook, TooManyRowsForAWorksheetIsRefused) {
  TempDir dir;
  Sheet sheet;
  sheet.SetMaxCols(1);
  sheet.SetMaxRows(grid::kWorkbookMaxRows);  // one more than fits below the heading row
  const auto message = grid::ExportSheet(sheet, dir / "big.xlsx", false, "");
  ASSERT_TRUE(message);
  EXPECT_EQ(*message, "Cannot write \"" + dir / "big.xlsx" +
                          "\": the table has 1048576 rows, but a worksheet holds at most 1048575 rows below its "
                          "heading row. Export to HTML or text instead.");
  EXPECT_TRUE(FolderEntries(dir.path()).empty());
}

TEST(ExportSheet, UnwritablePlacesGiveAMessageAndLeaveNoFile) {
  TempDir dir;
  WriteFileText(dir / "plain", "not a folder");
  const Sheet sheet = MakeSheet(kNodes);
  for (const char* ext : {"htm", "txt", "xls", "xlsx"}) {
    for (bool append : {false, true}) {
      const std::string missing = dir / "missing/nodes." + ext;
      EXPECT_EQ(grid::ExportSheet(sheet, missing, append, "Node Table"),
                "Cannot write \"" + missing + "\": the folder \"" + (dir / "missing") + "\" does not exist");
      const std::string underFile = dir / "plain/nodes." + ext;
      EXPECT_EQ(grid::ExportSheet(sheet, underFile, append, "Node Table"),
                "Cannot write \"" + underFile + "\": \"" + (dir / "plain") + "\" is not a folder");
    }
  }
  EXPECT_EQ(FolderEntries(dir.path()), std::vector<std::string>{"plain"});
  EXPECT_EQ(ReadFileText(dir / "plain"), "not a folder");
}

TEST(ExportSheet, WithoutAppendTheWholeFileIsReplaced) {
  TempDir dir;
  for (const char* name : {"t.txt", "t.htm", "t.xlsx"}) {
    const std::string path = (dir / name);
    WriteFileText(path, "old contents that are much longer than nothing at all");
    ASSERT_EQ(grid::ExportSheet(MakeSheet(kNodes), path, false, "Node Table"), std::nullopt);
    EXPECT_EQ(ReadFileText(path).find("old contents"), std::string::npos) << name;
  }
  EXPECT_EQ(FolderEntries(dir.path()), (std::vector<std::string>{"t.htm", "t.txt", "t.xlsx"}));
}
