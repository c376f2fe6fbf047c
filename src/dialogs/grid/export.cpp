#include "dialogs/grid/export.h"

#include "dialogs/grid/workbook.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <algorithm>
#include <map>
#include <thread>

#include "tools/atomic_file.h"
#include "tools/format.h"
#include "tools/parse.h"
#include "tools/parallel.h"
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
  // Most cells need no entity: copy them whole.
  if (std::none_of(text.begin(), text.end(), [](char c) { return c == '&' || c == '<' || c == '>' || c == '"' || c == '\''; })) {
    out += text;
    return;
  }
  tools::AppendHtmlEscaped(out, text);
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

constexpr std::string_view kHtmlTableEnd = "</tbody>\n</table>\n";
constexpr std::string_view kHtmlDocumentEnd = "</body>\n</html>\n";

std::string HtmlDocumentStart(const std::string& title) {
  std::string out = "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>";
  AppendEscaped(out, title.empty() ? std::string(tools::kProductName) : title);
  out += "</title>\n";
  out += kHtmlStyle;
  out += "</head>\n<body>\n";
  return out;
}

// The table's opening, caption and heading row, up to its first data row.
void AppendHtmlTableStart(std::string& out, const Sheet& sheet, const std::string& title) {
  out += "<table>\n";
  if (!title.empty()) {
    out += "<caption>";
    AppendEscaped(out, title);
    out += "</caption>\n";
  }
  out += "<thead>\n<tr>";
  for (int col = 1; col <= sheet.MaxCols(); ++col) {
    out += "<th>";
    AppendEscaped(out, sheet.GetData(col, 0));
    out += "</th>";
  }
  out += "</tr>\n</thead>\n<tbody>\n";
}

void AppendHtmlRows(std::string& out, const Sheet& sheet) {
  const int rows = sheet.MaxRows(), cols = sheet.MaxCols();
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
}

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
  // A plain loop: find_first_of searches its set once for every character, on millions of cells.
  const bool quote = std::any_of(text.begin(), text.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }) ||
                     (!text.empty() && text.front() == '"');
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

// Rows firstRow..MaxRows, one line each.
void AppendTextRows(std::string& out, const Sheet& sheet, int firstRow) {
  const int rows = sheet.MaxRows(), cols = sheet.MaxCols();
  for (int row = firstRow; row <= rows; ++row) {
    for (int col = 1; col <= cols; ++col) {
      if (col > 1) out += '\t';
      AppendTextCell(out, sheet.GetData(col, row));
    }
    out += "\r\n";
  }
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

std::optional<std::string> ExportWorkbook(const Sheet& sheet, const std::string& path, const std::string& title) {
  if (sheet.MaxRows() + 1 > kWorkbookMaxRows)
    return CannotWrite(path, tools::Format("the table has %d rows, but a worksheet holds at most %d rows below its "
                                           "heading row. Export to HTML or text instead.",
                                           sheet.MaxRows(), kWorkbookMaxRows - 1));
  if (sheet.MaxCols() > kWorkbookMaxCols)
    return CannotWrite(path, tools::Format("the table has %d columns, but a worksheet holds at most %d columns.",
                                           sheet.MaxCols(), kWorkbookMaxCols));

  return WriteWorkbookFile(sheet, path, title);
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
  std::string out;
  out.reserve(size_t(sheet.MaxRows() + 1) * size_t(sheet.MaxCols()) * 24 + 256);
  AppendHtmlTableStart(out, sheet, title);
  AppendHtmlRows(out, sheet);
  out += kHtmlTableEnd;
  return out;
}

std::string HtmlDocument(const Sheet& sheet, const std::string& title) {
  std::string out = HtmlDocumentStart(title);
  out += HtmlTable(sheet, title);
  out += kHtmlDocumentEnd;
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
  std::string out;
  out.reserve(size_t(sheet.MaxRows() + 1) * size_t(sheet.MaxCols()) * 12);
  AppendTextRows(out, sheet, 0);
  return out;
}

std::optional<std::string> ExportRows(int rows, const FillRows& fill, const std::string& path, bool appendPreference,
                                      const std::string& title, int rowsPerPart) {
  const auto format = ExportFormatOf(path);
  if (!format) return std::string("Invalid file format specified");
  rows = std::max(rows, 0);
  if (*format == ExportFormat::Workbook) {
    Sheet sheet;
    fill(sheet, 0, rows);
    return ExportWorkbook(sheet, path, title);
  }
  const bool html = *format == ExportFormat::Html;
  rowsPerPart = std::max(rowsPerPart, 1);
  const int partCount = rows == 0 ? 1 : static_cast<int>((int64_t(rows) + rowsPerPart - 1) / rowsPerPart);
  // A few parts at once, one a core, each with its own sheet and text; written in order.
  const int slots = static_cast<int>(std::min<unsigned>(
      std::clamp(std::thread::hardware_concurrency(), 1u, tools::kMaxWorkThreads), static_cast<unsigned>(partCount)));
  std::vector<Sheet> parts(static_cast<size_t>(slots));
  std::vector<std::string> texts(static_cast<size_t>(slots));
  const auto makePart = [&](int index, size_t slot) {
    const int first = index * rowsPerPart;
    const int count = std::min(rowsPerPart, rows - first);
    Sheet& part = parts[slot];
    std::string& text = texts[slot];
    fill(part, first, count);
    text.clear();
    // The headings come with the first part only.
    if (index == 0 && html) AppendHtmlTableStart(text, part, title);
    if (html)
      AppendHtmlRows(text, part);
    else
      AppendTextRows(text, part, index == 0 ? 0 : 1);
  };
  const auto eachPart = [&](const std::function<void(std::string_view)>& write) {
    for (int batch = 0; batch < partCount; batch += slots) {
      const int inBatch = std::min(slots, partCount - batch);
      tools::ParallelRanges(static_cast<size_t>(inBatch), 1, [&](size_t begin, size_t end) {
        for (size_t slot = begin; slot < end; ++slot) makePart(batch + static_cast<int>(slot), slot);
      });
      for (int slot = 0; slot < inBatch; ++slot) write(texts[static_cast<size_t>(slot)]);
    }
  };
  try {
    if (appendPreference && FileExists(path)) {
      // An append is all or nothing, so the table is made whole first (still without a sheet of it).
      std::string table;
      eachPart([&](std::string_view t) { table += t; });
      if (!html) {
        tools::AppendToFile(path, (EndsOnNewLine(path) ? "" : "\r\n") + table);
        return std::nullopt;
      }
      table += kHtmlTableEnd;
      const std::string existing = tools::ReadWholeFile(path);
      if (tools::Trim(existing).empty())
        tools::WriteFileAtomically(path, HtmlDocumentStart(title) + table + std::string(kHtmlDocumentEnd));
      else
        tools::WriteFileAtomically(path, InsertIntoHtmlBody(existing, table));
      return std::nullopt;
    }
    tools::FileReplacement file(path);
    if (html) file.Write(HtmlDocumentStart(title));
    eachPart([&](std::string_view t) { file.Write(t); });
    if (html) {
      file.Write(kHtmlTableEnd);
      file.Write(kHtmlDocumentEnd);
    }
    file.Commit();
  } catch (const tools::FileError& e) {
    return e.what();
  }
  return std::nullopt;
}

}  // namespace grid
