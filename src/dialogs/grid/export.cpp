#include "dialogs/grid/export.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <xlsxwriter.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>

#include "tools/atomic_file.h"
#include "tools/format.h"
#include "tools/parse.h"
#include "tools/release.h"
#include "tools/labels.h"

namespace grid {
namespace {

std::string Lower(std::string s) {
  for (char& c : s)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return s;
}

std::string CannotWrite(const std::string& path, const std::string& reason) {
  return "Cannot write \"" + path + "\": " + reason;
}

bool FileExists(const std::string& path) {
  struct stat st {};
  return ::stat(path.c_str(), &st) == 0;
}

void AppendEscaped(std::string& out, const std::string& text) {
  if (text.find_first_of("&<>\"'") == std::string::npos) {
    out += text;
    return;
  }
  for (char c : text) {
    switch (c) {
      case '&': out += "&amp;"; break;
      case '<': out += "&lt;"; break;
      case '>': out += "&gt;"; break;
      case '"': out += "&quot;"; break;
      case '\'': out += "&#39;"; break;
      default: out += c;
    }
  }
}

// ---- HTML ----

constexpr const char* kHtmlStyle =
    "<style>\n"
    "table{border-collapse:collapse;margin:0 0 1.5em 0;font-family:sans-serif;font-size:10pt}\n"
    "caption{font-weight:bold;text-align:left;padding:0.3em 0}\n"
    "th,td{border:1px solid #999;padding:2px 6px;white-space:pre-wrap;text-align:left}\n"
    "th{background:#e8e8e8}\n"
    "td.r{text-align:right}\n"
    "</style>\n";

std::optional<std::string> ExportHtml(const Sheet& sheet, const std::string& path, bool append,
                                      const std::string& title) {
  try {
    if (append && FileExists(path)) {
      const std::string existing = tools::ReadWholeFile(path);
      // An empty file is no document to keep: start one.
      if (tools::Trim(existing).empty())
        tools::WriteFileAtomically(path, HtmlDocument(sheet, title));
      else
        tools::WriteFileAtomically(path, InsertIntoHtmlBody(existing, HtmlTable(sheet, title)));
    } else {
      tools::WriteFileAtomically(path, HtmlDocument(sheet, title));
    }
  } catch (const tools::FileError& e) {
    return e.what();
  }
  return std::nullopt;
}

// ---- Text ----

void AppendTextCell(std::string& out, const std::string& text) {
  const bool quote = text.find_first_of("\t\r\n") != std::string::npos || (!text.empty() && text.front() == '"');
  if (!quote) {
    out += text;
    return;
  }
  out += '"';
  for (char c : text) {
    if (c == '"') out += '"';
    out += c;
  }
  out += '"';
}

// Whether the file's last byte leaves the next text on a line of its own (an empty file does).
bool EndsOnNewLine(const std::string& path) {
  std::ifstream in(path, std::ios::binary | std::ios::ate);
  if (!in || in.tellg() <= 0) return true;
  in.seekg(-1, std::ios::end);
  return in.get() == '\n';
}

std::optional<std::string> ExportText(const Sheet& sheet, const std::string& path, bool append) {
  try {
    // Appending to a file that is not there yet creates it the same way a new export does.
    if (append && FileExists(path))
      tools::AppendToFile(path, (EndsOnNewLine(path) ? "" : "\r\n") + TabSeparatedText(sheet));
    else
      tools::WriteFileAtomically(path, TabSeparatedText(sheet));
  } catch (const tools::FileError& e) {
    return e.what();
  }
  return std::nullopt;
}

// ---- Workbook ----

// Above this many cells the worksheet is streamed row by row (strings inline) instead of
// being held in memory until the workbook is closed.
constexpr int64_t kConstantMemoryCells = 100000;
constexpr size_t kWorkbookMaxStringChars = 32767;

// A worksheet name: at most 31 characters, none of []:*?/\, not quoted.
std::string WorksheetName(const std::string& title) {
  std::string name;
  for (char c : title) name += (c != '\0' && std::strchr("[]:*?/\\", c)) ? '_' : c;
  while (!name.empty() && name.front() == '\'') name.erase(0, 1);
  name = tools::CutLabel(name, 31);
  while (!name.empty() && name.back() == '\'') name.pop_back();
  return tools::Trim(name).empty() ? "Sheet1" : name;
}

class Workbook {
 public:
  Workbook(const std::string& file, bool constantMemory, bool zip64) {
    lxw_workbook_options options{};
    options.constant_memory = constantMemory ? LXW_TRUE : LXW_FALSE;
    options.use_zip64 = zip64 ? LXW_TRUE : LXW_FALSE;
    book_ = workbook_new_opt(file.c_str(), &options);
  }
  ~Workbook() {
    // Closing is the only way to free the workbook; the file it leaves is removed by the caller.
    if (book_) workbook_close(book_);
  }
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;

  lxw_workbook* get() const { return book_; }
  lxw_error Close() {
    lxw_workbook* book = book_;
    book_ = nullptr;
    return workbook_close(book);
  }

 private:
  lxw_workbook* book_ = nullptr;
};

// The number format that shows a value the way the grid's text shows it: as many decimals,
// exponential notation when the text has an exponent, a trailing percent sign (the value then
// being the fraction). Empty (the spreadsheet's general format) for any other text.
std::string NumberFormatOf(std::string_view text) {
  text = tools::Trim(text);
  size_t i = 0;
  auto digits = [&] {
    const size_t from = i;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i;
    return i - from;
  };
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) ++i;
  size_t count = digits();
  size_t decimals = 0;
  if (i < text.size() && text[i] == '.') {
    ++i;
    decimals = digits();
    count += decimals;
  }
  if (count == 0) return {};
  std::string format = "0";
  if (decimals > 0) format.append(".").append(decimals, '0');
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
    ++i;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) ++i;
    if (digits() == 0) return {};
    format += "E+00";
  }
  const std::string_view rest = text.substr(i);
  if (rest == "%" || rest == " %") return format + std::string(rest);
  return rest.empty() ? format : std::string();
}

class Writer {
 public:
  explicit Writer(lxw_workbook* book) : book_(book) {}

  lxw_error Cell(lxw_worksheet* ws, lxw_row_t row, lxw_col_t col, const std::string& text, lxw_format* format,
                 std::optional<double> number) {
    if (text.empty()) return LXW_NO_ERROR;
    if (number) return worksheet_write_number(ws, row, col, *number, NumberFormat(text));
    // Always a string, never a formula: a cell reading "=A1" is the text "=A1".
    if (text.size() > kWorkbookMaxStringChars && tools::CountChars(text) > kWorkbookMaxStringChars)
      return worksheet_write_string(ws, row, col, tools::CutLabel(text, kWorkbookMaxStringChars).c_str(),
                                    format);
    return worksheet_write_string(ws, row, col, text.c_str(), format);
  }

 private:
  lxw_format* NumberFormat(const std::string& text) {
    std::string code = NumberFormatOf(text);
    if (code.empty()) return nullptr;
    auto [it, added] = formats_.try_emplace(std::move(code), nullptr);
    if (added) {
      it->second = workbook_add_format(book_);
      if (it->second) format_set_num_format(it->second, it->first.c_str());
    }
    return it->second;
  }

  lxw_workbook* book_;
  std::map<std::string, lxw_format*, std::less<>> formats_;
};

std::optional<std::string> WriteWorkbook(const Sheet& sheet, const std::string& file, const std::string& target,
                                         const std::string& title) {
  const int rows = sheet.MaxRows(), cols = sheet.MaxCols();
  // The workbook library prints numbers and widths with printf, so with a comma locale a
  // spreadsheet program would read "-0,5" as text; it lives until the workbook is closed.
  const tools::ScopedCLocale cLocale;
  const int64_t cells = int64_t(rows + 1) * cols;
  // A zip member over 4 GB needs the ZIP64 extension; estimate the worksheet's XML generously.
  const bool zip64 = cells * 64 > (int64_t(3) << 30);
  Workbook book(file, cells > kConstantMemoryCells, zip64);
  if (!book.get()) return CannotWrite(target, "the workbook could not be created");

  // The library copies the texts; it only declares them writable.
  std::string docTitle = title, author = tools::kProductName;
  lxw_doc_properties properties{};
  properties.title = docTitle.data();
  properties.author = author.data();
  workbook_set_properties(book.get(), &properties);

  const std::string name = WorksheetName(title);
  lxw_worksheet* ws = workbook_add_worksheet(
      book.get(), workbook_validate_sheet_name(book.get(), name.c_str()) == LXW_NO_ERROR ? name.c_str() : nullptr);
  if (!ws) return CannotWrite(target, "the worksheet could not be created");
  lxw_format* bold = workbook_add_format(book.get());
  format_set_bold(bold);

  for (int col = 1; col <= cols; ++col) {
    const double width = sheet.GetColWidth(col);
    worksheet_set_column(ws, lxw_col_t(col - 1), lxw_col_t(col - 1), width > 0 ? width : LXW_DEF_COL_WIDTH, nullptr);
  }
  worksheet_freeze_panes(ws, 1, 0);

  Writer writer(book.get());
  for (int row = 0; row <= rows; ++row) {
    for (int col = 1; col <= cols; ++col) {
      const lxw_error err =
          writer.Cell(ws, lxw_row_t(row), lxw_col_t(col - 1), sheet.GetData(col, row), row == 0 ? bold : nullptr,
                      row > 0 ? sheet.GetNumber(col, row) : std::nullopt);
      if (err != LXW_NO_ERROR) return CannotWrite(target, lxw_strerror(err));
    }
  }
  if (const lxw_error err = book.Close(); err != LXW_NO_ERROR) {
    if (err == LXW_ERROR_CREATING_XLSX_FILE && errno != 0) return CannotWrite(target, tools::SystemErrorText(errno));
    return CannotWrite(target, lxw_strerror(err));
  }
  return std::nullopt;
}

std::optional<std::string> ExportWorkbook(const Sheet& sheet, const std::string& path, const std::string& title) {
  if (sheet.MaxRows() + 1 > kWorkbookMaxRows)
    return CannotWrite(path, tools::Format("the table has %d rows, but a worksheet holds at most %d rows below its "
                                           "heading row. Export to HTML or text instead.",
                                           sheet.MaxRows(), kWorkbookMaxRows - 1));
  if (sheet.MaxCols() > kWorkbookMaxCols)
    return CannotWrite(path, tools::Format("the table has %d columns, but a worksheet holds at most %d columns.",
                                           sheet.MaxCols(), kWorkbookMaxCols));

  // The library writes the file itself, so it writes beside the target and the finished
  // workbook is renamed into place.
  try {
    tools::ReplaceFileWith(path, [&](const std::string& temp) {
      errno = 0;
      if (auto failure = WriteWorkbook(sheet, temp, path, title)) throw tools::FileError(*failure);
    });
  } catch (const tools::FileError& e) {
    return std::string(e.what());
  }
  return std::nullopt;
}

}  // namespace

std::optional<ExportFormat> ExportFormatOf(const std::string& path) {
  const std::string ext = Lower(std::filesystem::path(path).extension().string());
  if (ext == ".htm" || ext == ".html") return ExportFormat::Html;
  if (ext == ".txt") return ExportFormat::Text;
  if (ext == ".xls" || ext == ".xlsx") return ExportFormat::Workbook;
  return std::nullopt;
}

std::optional<std::string> ExportSheet(const Sheet& sheet, const std::string& path, bool appendPreference,
                                       const std::string& title) {
  const auto format = ExportFormatOf(path);
  if (!format) return std::string("Invalid file format specified");
  switch (*format) {
    case ExportFormat::Html: return ExportHtml(sheet, path, appendPreference, title);
    case ExportFormat::Text: return ExportText(sheet, path, appendPreference);
    case ExportFormat::Workbook: return ExportWorkbook(sheet, path, title);
  }
  return std::string("Invalid file format specified");
}

std::string EscapeHtml(const std::string& text) {
  std::string out;
  out.reserve(text.size());
  AppendEscaped(out, text);
  return out;
}

std::string HtmlTable(const Sheet& sheet, const std::string& title) {
  const int rows = sheet.MaxRows(), cols = sheet.MaxCols();
  std::string out;
  out.reserve(size_t(rows + 1) * size_t(cols) * 24 + 256);
  out += "<table>\n";
  if (!title.empty()) {
    out += "<caption>";
    AppendEscaped(out, title);
    out += "</caption>\n";
  }
  out += "<thead>\n<tr>";
  for (int col = 1; col <= cols; ++col) {
    out += "<th>";
    AppendEscaped(out, sheet.GetData(col, 0));
    out += "</th>";
  }
  out += "</tr>\n</thead>\n<tbody>\n";
  std::vector<const char*> openCell(static_cast<size_t>(cols) + 1);
  for (int col = 1; col <= cols; ++col)
    openCell[col] = sheet.GetColAlign(col) == Align::Right ? "<td class=\"r\">" : "<td>";
  for (int row = 1; row <= rows; ++row) {
    out += "<tr>";
    for (int col = 1; col <= cols; ++col) {
      out += openCell[col];
      AppendEscaped(out, sheet.GetData(col, row));
      out += "</td>";
    }
    out += "</tr>\n";
  }
  out += "</tbody>\n</table>\n";
  return out;
}

std::string HtmlDocument(const Sheet& sheet, const std::string& title) {
  std::string out = "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>";
  AppendEscaped(out, title.empty() ? std::string(tools::kProductName) : title);
  out += "</title>\n";
  out += kHtmlStyle;
  out += "</head>\n<body>\n";
  out += HtmlTable(sheet, title);
  out += "</body>\n</html>\n";
  return out;
}

std::string InsertIntoHtmlBody(const std::string& document, const std::string& table) {
  // The last </body> outside comments; a commented-out one must not take the table.
  static constexpr std::string_view kClose = "</body";
  const std::string_view doc(document);
  size_t at = std::string::npos;
  for (size_t pos = doc.find('<'); pos != std::string::npos; pos = doc.find('<', pos + 1)) {
    if (doc.substr(pos, 4) == "<!--") {
      const size_t end = doc.find("-->", pos + 4);
      if (end == std::string::npos) break;
      pos = end + 2;
      continue;
    }
    if (pos + kClose.size() < doc.size() && tools::EqualsNoCase(doc.substr(pos, kClose.size()), kClose)) {
      const char next = doc[pos + kClose.size()];
      if (next == '>' || next == ' ' || next == '\t' || next == '\r' || next == '\n') at = pos;
    }
  }
  if (at == std::string::npos) {
    std::string out = document;
    if (!out.empty() && out.back() != '\n') out += '\n';
    return out + table;
  }
  std::string out;
  out.reserve(document.size() + table.size() + 1);
  out.append(document, 0, at);
  if (at > 0 && document[at - 1] != '\n') out += '\n';
  out += table;
  out.append(document, at, std::string::npos);
  return out;
}

std::string TabSeparatedText(const Sheet& sheet) {
  const int rows = sheet.MaxRows(), cols = sheet.MaxCols();
  std::string out;
  out.reserve(size_t(rows + 1) * size_t(cols) * 12);
  for (int row = 0; row <= rows; ++row) {
    for (int col = 1; col <= cols; ++col) {
      if (col > 1) out += '\t';
      AppendTextCell(out, sheet.GetData(col, row));
    }
    out += "\r\n";
  }
  return out;
}

}  // namespace grid
