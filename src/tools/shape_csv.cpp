#include <algorithm>
#include <charconv>
#include <cmath>
#include <unordered_map>

#include "tools/fm_exception.h"
#include "tools/format.h"
#include "tools/labels.h"
#include "tools/parse.h"
#include "tools/shape_table.h"

// The exchange form of the steel table: comma-separated, one header line with the published
// column names, one shape per line. Fields may be quoted ("...", with "" for a quote), as
// spreadsheet programs write them; lines may end in "\r\n".
namespace tools {
namespace {

struct Cell {
  std::string text;
  size_t column;  // 1-based field number, as a spreadsheet numbers its columns
};

[[noreturn]] void Refuse(const std::string& file, const std::string& what) {
  throw fmException("Cannot import \"" + file + "\": " + what);
}

// The 1-based line of the first byte that is not valid UTF-8, or 0.
size_t FirstBadUtf8Line(std::string_view text) {
  const size_t at = FirstInvalidUtf8(text);
  if (at == std::string_view::npos) return 0;
  return 1 + static_cast<size_t>(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
}

// Splits one record; a quoted field may not span lines (the table has no such cells).
bool SplitLine(std::string_view line, std::vector<Cell>& cells, size_t& faultColumn) {
  cells.clear();
  size_t i = 0;
  while (true) {
    Cell cell{{}, cells.size() + 1};
    if (i < line.size() && line[i] == '"') {
      ++i;
      while (true) {
        if (i >= line.size()) {
          faultColumn = cell.column;
          return false;
        }
        if (line[i] == '"') {
          if (i + 1 < line.size() && line[i + 1] == '"') {
            cell.text.push_back('"');
            i += 2;
            continue;
          }
          ++i;
          break;
        }
        cell.text.push_back(line[i++]);
      }
      if (i < line.size() && line[i] != ',') {
        faultColumn = cell.column;
        return false;
      }
    } else {
      const size_t end = line.find(',', i);
      cell.text = std::string(line.substr(i, end == std::string_view::npos ? std::string_view::npos : end - i));
      i = end == std::string_view::npos ? line.size() : end;
    }
    cells.push_back(std::move(cell));
    if (i >= line.size()) return true;
    ++i;  // the comma
    if (i == line.size()) {
      cells.push_back({{}, cells.size() + 1});
      return true;
    }
  }
}

std::string Upper(std::string_view s) {
  std::string out(s);
  for (char& c : out)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return out;
}

// The shortest text that reads back as the same double, independent of the locale.
std::string ShortestNumber(double v) {
  char buf[64];
  const auto [end, ec] = std::to_chars(buf, buf + sizeof buf, v);
  return ec == std::errc() ? std::string(buf, end) : Format("%.17g", v);
}

std::string CsvField(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string out = "\"";
  for (char c : text) {
    if (c == '"') out.push_back('"');
    out.push_back(c);
  }
  return out + "\"";
}

}  // namespace

std::vector<fmSect_AISC> ParseAiscCsv(std::string_view text, const std::string& file) {
  if (text.size() > kMaxAiscCsvBytes)
    Refuse(file,
           Format("the file is too large for a shape table (%zu bytes; at most %zu).", text.size(), kMaxAiscCsvBytes));
  if (text.find('\0') != std::string_view::npos) Refuse(file, "this is not a text file (it holds binary data).");
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  if (Trim(text).empty()) Refuse(file, "the file is empty.");
  if (const size_t line = FirstBadUtf8Line(text))
    Refuse(file, Format("line %zu: the text is not UTF-8; save the table as UTF-8 or plain ASCII CSV.", line));

  std::vector<Cell> cells;
  size_t pos = 0, lineNo = 0;
  const auto nextLine = [&](std::string_view& line) {
    if (pos >= text.size()) return false;
    const size_t end = text.find('\n', pos);
    line = text.substr(pos, end == std::string_view::npos ? std::string_view::npos : end - pos);
    pos = end == std::string_view::npos ? text.size() : end + 1;
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    ++lineNo;
    return true;
  };

  // Header: map each known column to its position; unknown columns are ignored.
  std::string_view line;
  nextLine(line);
  size_t fault = 0;
  if (!SplitLine(line, cells, fault)) Refuse(file, Format("line 1, column %zu: a quoted name is not closed.", fault));
  const size_t width = cells.size();
  std::vector<int> columnOf(kAiscColumnCount, -1);
  for (size_t c = 0; c < cells.size(); ++c) {
    const std::string_view name = Trim(cells[c].text);
    for (int k = 0; k < kAiscColumnCount; ++k)
      if (name == AiscColumnNames()[static_cast<size_t>(k)]) {
        if (columnOf[static_cast<size_t>(k)] >= 0)
          Refuse(file, Format("line 1, column %zu: the column %s appears twice.", cells[c].column,
                              std::string(name).c_str()));
        columnOf[static_cast<size_t>(k)] = static_cast<int>(c);
      }
  }
  // The label and type, and the properties without which no section can be made.
  static constexpr const char* kRequired[] = {"AISC_Manual_Label", "Type", "A", "Ix", "Iy", "J"};
  std::string missing;
  for (const char* name : kRequired) {
    int k = 0;
    while (std::string_view(AiscColumnNames()[static_cast<size_t>(k)]) != name) ++k;
    if (columnOf[static_cast<size_t>(k)] < 0) missing += missing.empty() ? name : std::string(", ") + name;
  }
  if (!missing.empty())
    Refuse(file, "line 1: the header lacks the column(s) " + missing +
                     ". The first line must name the columns, as in EDI_Std_Nomenclature,AISC_Manual_Label,Type,...");

  std::vector<fmSect_AISC> shapes;
  std::unordered_map<std::string, size_t> lineOfLabel;
  while (nextLine(line)) {
    if (Trim(line).empty()) continue;
    if (!SplitLine(line, cells, fault))
      Refuse(file, Format("line %zu, column %zu: a quoted field is not closed.", lineNo, fault));
    if (cells.size() != width)
      Refuse(file, Format("line %zu: %zu fields where the header names %zu.", lineNo, cells.size(), width));
    fmSect_AISC s;
    std::string* texts[] = {&s.edi, &s.label, &s.type, &s.tf};
    for (int k = 0; k < kAiscColumnCount; ++k) {
      const int c = columnOf[static_cast<size_t>(k)];
      if (c < 0) continue;
      const Cell& cell = cells[static_cast<size_t>(c)];
      const std::string_view value = Trim(cell.text);
      const char* name = AiscColumnNames()[static_cast<size_t>(k)];
      const auto where = [&] { return Format("line %zu, column %zu (%s)", lineNo, cell.column, name); };
      if (k < kAiscTextColumnCount) {
        if (value.size() > kAiscMaxLabelBytes)
          Refuse(file, where() + Format(": the text is longer than %zu bytes.", kAiscMaxLabelBytes));
        *texts[k] = std::string(value);
        continue;
      }
      if (value.empty()) continue;  // not applicable to this shape
      const auto number = ParseDouble(value);
      if (!number) Refuse(file, where() + ": \"" + std::string(value) + "\" is not a number.");
      s.values[static_cast<size_t>(k - kAiscTextColumnCount)] = *number;
    }
    const auto where = [&](int k) {
      const int c = columnOf[static_cast<size_t>(k)];
      return Format("line %zu, column %zu (%s)", lineNo, cells[static_cast<size_t>(c)].column,
                    AiscColumnNames()[static_cast<size_t>(k)]);
    };
    if (s.label.empty()) Refuse(file, where(1) + ": the shape has no label.");
    if (s.type.empty()) Refuse(file, where(2) + ": the shape has no type.");
    if (const std::string rule = IsValidLabel(s.label); !rule.empty())
      Refuse(file, where(1) + ": Section label can only " + rule);
    // The other name goes into exports beside the label, so it keeps the same rule.
    if (const std::string rule = IsValidLabel(s.edi); !s.edi.empty() && !rule.empty())
      Refuse(file, where(0) + ": Section label can only " + rule);
    if (!IsKnownShapeType(s.type))
      Refuse(file, where(2) + ": \"" + s.type + "\" is not a shape type (W, M, S, HP, C, MC, L, WT, MT, ST, 2L, HSS or PIPE).");
    if (!s.tf.empty() && s.tf != "T" && s.tf != "F") Refuse(file, where(3) + ": \"" + s.tf + "\" is not T or F.");
    // What the section table refuses: A, Ix, Iy and J must be positive (a double angle may
    // leave J to its single angle), the dimensions a section takes may not be negative.
    for (const int v : {aisc::A, aisc::Ix, aisc::Iy, aisc::J}) {
      if (v == aisc::J && s.type == "2L" && !s.Has(v)) continue;
      if (!s.Has(v) || !(s.Value(v) > 0))
        Refuse(file, where(v + kAiscTextColumnCount) + ": the shape " + s.label + " needs a positive value.");
    }
    for (const int v : {aisc::d, aisc::Ht, aisc::OD, aisc::bf, aisc::B, aisc::b, aisc::tw, aisc::tf, aisc::t,
                        aisc::tdes})
      if (s.Has(v) && !(s.Value(v) >= 0) && columnOf[static_cast<size_t>(v + kAiscTextColumnCount)] >= 0)
        Refuse(file, where(v + kAiscTextColumnCount) + ": the shape " + s.label + " may not have a negative value.");
    const auto [it, added] = lineOfLabel.emplace(Upper(s.label), lineNo);
    if (!added)
      Refuse(file, where(1) + Format(": the label %s is already used on line %zu.", s.label.c_str(), it->second));
    shapes.push_back(std::move(s));
  }
  if (shapes.empty()) Refuse(file, "the file names its columns but holds no shapes.");
  return shapes;
}

std::string WriteAiscCsv(const AiscLibrary& library) {
  std::string out;
  for (int k = 0; k < kAiscColumnCount; ++k) {
    if (k) out += ',';
    out += AiscColumnNames()[static_cast<size_t>(k)];
  }
  out += "\n";
  for (const auto& s : library.shapes()) {
    out += CsvField(s.edi) + ',' + CsvField(s.label) + ',' + CsvField(s.type) + ',' + CsvField(s.tf);
    for (double v : s.values) {
      out += ',';
      if (!std::isnan(v)) out += ShortestNumber(v);
    }
    out += "\n";
  }
  return out;
}

}  // namespace tools
