#pragma once
#include <functional>
#include <optional>
#include <string>

#include "dialogs/grid/sheet.h"

// Saving a grid to a file: an HTML table, tab-separated text or a workbook, chosen by the
// file's extension. Every export starts with the column headings (row 0) and holds the
// data rows 1..MaxRows of columns 1..MaxCols; the row-heading column is not exported.
namespace grid {

enum class ExportFormat { Html, Text, Workbook };

// "htm"/"html", "txt", "xls"/"xlsx", case ignored; nothing for any other extension.
// ".xls" gets the same workbook format as ".xlsx": spreadsheet programs recognise a
// workbook by its content, not its name.
std::optional<ExportFormat> ExportFormatOf(const std::string& path);

// Writes the sheet; returns the message to show on failure, nothing on success.
// With appendPreference, HTML goes into the body of an existing document and text is
// appended to an existing file; otherwise (and always for workbooks) the file is replaced
// atomically, so a failure never leaves a partial file behind. The title heads the HTML
// table and names the worksheet.
std::optional<std::string> ExportSheet(const Sheet& sheet, const std::string& path, bool appendPreference,
                                       const std::string& title);

// A table too long to hold as one sheet, written part by part: `fill` fills rows
// first..first+count-1 of the table (counted from 0) into rows 1..count of a small sheet, and
// the column headings into its row 0, as the table's own fill would. HTML and text are written
// as ExportSheet writes the whole table, byte for byte; a workbook needs the whole sheet, so it
// is filled once with every row. Parts are filled on all cores at once, each into its own
// sheet: `fill` must only read what it shares.
using FillRows = std::function<void(Sheet& part, int first, int count)>;
std::optional<std::string> ExportRows(int rows, const FillRows& fill, const std::string& path,
                                      bool appendPreference, const std::string& title, int rowsPerPart = 16384);

// The pieces, for the exports above and their tests.
std::string HtmlDocument(const Sheet& sheet, const std::string& title);
// One <table> element with the title as its caption.
std::string HtmlTable(const Sheet& sheet, const std::string& title);
// Inserts the table before the document's closing </body> (case ignored), or at the end
// when it has none.
std::string InsertIntoHtmlBody(const std::string& document, const std::string& table);
std::string EscapeHtml(const std::string& text);
// Tab between cells, "\r\n" after every row. A cell holding a tab or a line break, or
// starting with a quote, is quoted the way ParseTabSeparated reads it back.
std::string TabSeparatedText(const Sheet& sheet);

// A worksheet's rows, its heading row included.
inline constexpr int kWorkbookMaxRows = 1048576;
inline constexpr int kWorkbookMaxCols = 16384;

}  // namespace grid
