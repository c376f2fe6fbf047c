#include "dialogs/grid/workbook.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <ctime>
#include <mutex>
#include <new>
#include <unordered_map>
#include <vector>

#include "tools/atomic_file.h"
#include "tools/format.h"
#include "tools/labels.h"
#include "tools/parallel.h"
#include "tools/parse.h"
#include "tools/release.h"
#include "tools/zip_writer.h"

namespace grid {
namespace {

// A cell holds at most this many characters; longer texts are cut.
constexpr size_t kMaxStringChars = 32767;
// Up to this many cells the texts go into one shared table, as spreadsheet programs write
// them; beyond it each text stays in its cell, so that rows can be written on every core.
constexpr int64_t kSharedStringCells = 100000;
// Rows compressed as one piece, and pieces shared among the cores before they are written.
constexpr int kPieceRows = 8192;
constexpr size_t kPiecesPerRound = 8;
// zlib's level: on a million random coordinates level 1 takes well under half the time of
// the default (6) for a file about a fifth larger (bench/README.md).
constexpr int kLevel = 1;
// The most decimals a number format shows.
constexpr int kMaxDecimals = 30;

// ---- Number formats ----
// The grid's text of a number has a shape: decimals, exponent, percent sign. Shapes are
// numbered so that the styles of a workbook come out in the same order on every run.
enum Suffix { kNoSuffix, kPercent, kSpacePercent, kSuffixes };
constexpr int kShapes = (kMaxDecimals + 1) * 2 * kSuffixes;
constexpr int kGeneral = -1;

int ShapeOf(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
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
  if (count == 0 || decimals > kMaxDecimals) return kGeneral;
  bool exponent = false;
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
    ++i;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) ++i;
    if (digits() == 0) return kGeneral;
    exponent = true;
  }
  const std::string_view rest = text.substr(i);
  const int suffix = rest.empty() ? kNoSuffix : rest == "%" ? kPercent : rest == " %" ? kSpacePercent : -1;
  if (suffix < 0) return kGeneral;
  return (static_cast<int>(decimals) * 2 + (exponent ? 1 : 0)) * kSuffixes + suffix;
}

std::string FormatCode(int shape) {
  if (shape == kGeneral) return {};
  const int suffix = shape % kSuffixes, exponent = shape / kSuffixes % 2, decimals = shape / kSuffixes / 2;
  std::string code = "0";
  if (decimals > 0) code.append(".").append(static_cast<size_t>(decimals), '0');
  if (exponent) code += "E+00";
  if (suffix == kPercent) code += "%";
  if (suffix == kSpacePercent) code += " %";
  return code;
}

// The spreadsheet programs' own numbers for the formats they know; others are numbered from 164.
int BuiltInFormat(const std::string& code) {
  static const std::pair<const char*, int> kBuiltIn[] = {
      {"0", 1}, {"0.00", 2}, {"0%", 9}, {"0.00%", 10}, {"0.00E+00", 11}};
  for (const auto& [text, id] : kBuiltIn)
    if (code == text) return id;
  return 0;
}

// ---- XML text ----

// XML has no control characters at all, not even escaped: they become spaces.
void AppendAttribute(std::string& out, std::string_view text) {
  std::string clean(text);
  std::replace_if(clean.begin(), clean.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
  tools::AppendHtmlEscaped(out, clean);
}

bool IsHexDigit(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

// "_x0041_" in a cell's text is read as an escaped character; a text holding such a pattern
// escapes its underscore so that it reads back as written.
bool LooksEscaped(std::string_view text, size_t at) {
  if (at + 7 > text.size() || text[at + 1] != 'x' || text[at + 6] != '_') return false;
  for (size_t k = at + 2; k < at + 6; ++k)
    if (!IsHexDigit(text[k])) return false;
  return true;
}

// A cell's text as XML content: markup escaped, control characters (which XML cannot hold)
// as the workbook's _xHHHH_ escapes, bytes that are no UTF-8 as U+FFFD so that the part
// stays well-formed.
void AppendText(std::string& out, std::string_view text) {
  bool plain = true;
  for (const char ch : text) {
    const auto c = static_cast<unsigned char>(ch);
    if (c < 0x20 || c >= 0x80 || c == '&' || c == '<' || c == '>' || c == '_') {
      plain = false;
      break;
    }
  }
  if (plain) {
    out += text;
    return;
  }
  for (size_t i = 0; i < text.size();) {
    const auto c = static_cast<unsigned char>(text[i]);
    if (c >= 0x80) {
      char32_t cp = 0;
      bool ok = false;
      const size_t n = tools::DecodeUtf8(text, i, cp, ok);
      if (!ok || cp == 0xFFFE || cp == 0xFFFF) out += "\xEF\xBF\xBD";
      else out.append(text.substr(i, n));
      i += n;
      continue;
    }
    switch (c) {
      case '&': out += "&amp;"; break;
      case '<': out += "&lt;"; break;
      case '>': out += "&gt;"; break;
      case '_': out += LooksEscaped(text, i) ? "_x005F_" : "_"; break;
      case '\t':
      case '\n': out += static_cast<char>(c); break;
      default:
        if (c < 0x20) {
          static constexpr char kHex[] = "0123456789ABCDEF";
          out += "_x00";
          out += kHex[c >> 4];
          out += kHex[c & 15];
          out += '_';
        } else {
          out += static_cast<char>(c);
        }
    }
    ++i;
  }
}

// <t>text</t>, cut to what a cell holds, keeping blanks at either end.
void AppendTextElement(std::string& out, std::string_view text) {
  std::string cut;
  if (text.size() > kMaxStringChars && tools::CountChars(text) > kMaxStringChars) {
    cut = tools::CutLabel(text, kMaxStringChars);
    text = cut;
  }
  auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
  out += !text.empty() && (blank(text.front()) || blank(text.back())) ? "<t xml:space=\"preserve\">" : "<t>";
  AppendText(out, text);
  out += "</t>";
}

template <class T>
void AppendNumber(std::string& out, T value) {
  char buf[32];
  // The shortest text that reads back as the same double.
  const auto result = std::to_chars(buf, buf + sizeof buf, value);
  out.append(buf, result.ptr);
}

std::string ColumnName(int col) {
  std::string name;
  for (; col > 0; col = (col - 1) / 26) name.insert(name.begin(), static_cast<char>('A' + (col - 1) % 26));
  return name;
}

// The width a workbook stores for a column this many digits wide: a digit of the default
// font is 7 pixels and a column has 5 pixels of padding, kept to 1/256 of a digit.
double StoredWidth(double chars) {
  if (!(chars > 0)) chars = 8.43;  // the spreadsheet programs' default
  const double pixels = std::floor(chars * 7 + 0.5) + 5;
  return std::floor(pixels / 7 * 256) / 256;
}

constexpr const char* kXmlDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
constexpr const char* kMainNamespace = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
constexpr const char* kRelationships = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";

// ---- What the sheet holds ----

struct Survey {
  std::vector<char> shapes = std::vector<char>(kShapes, 0);  // the shapes of its number cells
  uint64_t xmlBound = 0;  // the most bytes its worksheet part can take
};

Survey SurveySheet(const Sheet& sheet) {
  Survey survey;
  std::mutex merge;
  const int rows = sheet.MaxRows(), cols = sheet.MaxCols();
  tools::ParallelRanges(static_cast<size_t>(rows) + 1, 65536, [&](size_t begin, size_t end) {
    Survey part;
    for (size_t r = begin; r < end; ++r) {
      const int row = static_cast<int>(r);
      part.xmlBound += 32;
      for (int col = 1; col <= cols; ++col) {
        const std::string& text = sheet.GetData(col, row);
        if (text.empty()) continue;
        // An escaped character takes at most 7 bytes; a number at most 24.
        part.xmlBound += 96 + 7 * text.size();
        if (row > 0 && sheet.IsNumber(col, row))
          if (const int shape = ShapeOf(text); shape != kGeneral) part.shapes[static_cast<size_t>(shape)] = 1;
      }
    }
    const std::lock_guard lock(merge);
    survey.xmlBound += part.xmlBound;
    for (size_t s = 0; s < part.shapes.size(); ++s) survey.shapes[s] |= part.shapes[s];
  });
  survey.xmlBound += 4096 + 128 * static_cast<uint64_t>(cols);
  return survey;
}

// Cell styles: 0 plain, 1 the bold heading, then one per number format used.
struct Styles {
  std::vector<int> ofShape = std::vector<int>(kShapes, 0);
  std::string xml;
};

Styles MakeStyles(const Survey& survey) {
  Styles styles;
  std::string numFmts, xfs;
  int custom = 164, count = 2, customCount = 0;
  for (int shape = 0; shape < kShapes; ++shape) {
    if (!survey.shapes[static_cast<size_t>(shape)]) continue;
    const std::string code = FormatCode(shape);
    int id = BuiltInFormat(code);
    if (id == 0) {
      id = custom++;
      ++customCount;
      numFmts += "<numFmt numFmtId=\"" + std::to_string(id) + "\" formatCode=\"";
      AppendAttribute(numFmts, code);
      numFmts += "\"/>";
    }
    xfs += "<xf numFmtId=\"" + std::to_string(id) +
           "\" fontId=\"0\" fillId=\"0\" borderId=\"0\" xfId=\"0\" applyNumberFormat=\"1\"/>";
    styles.ofShape[static_cast<size_t>(shape)] = count++;
  }
  std::string& x = styles.xml;
  x = kXmlDeclaration;
  x += "<styleSheet xmlns=\"";
  x += kMainNamespace;
  x += "\">";
  if (customCount > 0) x += "<numFmts count=\"" + std::to_string(customCount) + "\">" + numFmts + "</numFmts>";
  x += "<fonts count=\"2\"><font><sz val=\"11\"/><color theme=\"1\"/><name val=\"Calibri\"/><family val=\"2\"/>"
       "</font><font><b/><sz val=\"11\"/><color theme=\"1\"/><name val=\"Calibri\"/><family val=\"2\"/></font>"
       "</fonts><fills count=\"2\"><fill><patternFill patternType=\"none\"/></fill><fill><patternFill "
       "patternType=\"gray125\"/></fill></fills><borders count=\"1\"><border><left/><right/><top/><bottom/>"
       "<diagonal/></border></borders><cellStyleXfs count=\"1\"><xf numFmtId=\"0\" fontId=\"0\" fillId=\"0\" "
       "borderId=\"0\"/></cellStyleXfs>";
  x += "<cellXfs count=\"" + std::to_string(count) +
       "\"><xf numFmtId=\"0\" fontId=\"0\" fillId=\"0\" borderId=\"0\" xfId=\"0\"/><xf numFmtId=\"0\" "
       "fontId=\"1\" fillId=\"0\" borderId=\"0\" xfId=\"0\" applyFont=\"1\"/>" +
       xfs + "</cellXfs>";
  x += "<cellStyles count=\"1\"><cellStyle name=\"Normal\" xfId=\"0\" builtinId=\"0\"/></cellStyles>"
       "<dxfs count=\"0\"/><tableStyles count=\"0\"/></styleSheet>";
  return styles;
}

// The texts of a small sheet, each once, in order of first use.
class SharedStrings {
 public:
  uint32_t Index(std::string_view text) {
    ++uses_;
    const auto [it, added] = index_.try_emplace(text, static_cast<uint32_t>(texts_.size()));
    if (added) texts_.push_back(text);
    return it->second;
  }
  std::string Xml() const {
    std::string x = kXmlDeclaration;
    x += "<sst xmlns=\"";
    x += kMainNamespace;
    x += "\" count=\"" + std::to_string(uses_) + "\" uniqueCount=\"" + std::to_string(texts_.size()) + "\">";
    for (std::string_view text : texts_) {
      x += "<si>";
      AppendTextElement(x, text);
      x += "</si>";
    }
    x += "</sst>";
    return x;
  }

 private:
  std::unordered_map<std::string_view, uint32_t> index_;
  std::vector<std::string_view> texts_;
  uint64_t uses_ = 0;
};

// The worksheet part, written in pieces of rows.
class WorksheetXml {
 public:
  WorksheetXml(const Sheet& sheet, const Styles& styles) : sheet_(sheet), styles_(styles) {
    for (int col = 0; col <= sheet.MaxCols(); ++col) names_.push_back(ColumnName(col));
  }

  void Header(std::string& out) const {
    const int cols = sheet_.MaxCols();
    out += kXmlDeclaration;
    out += "<worksheet xmlns=\"";
    out += kMainNamespace;
    out += "\" xmlns:r=\"";
    out += kRelationships;
    out += "\"><dimension ref=\"A1";
    if (cols > 1 || sheet_.MaxRows() > 0) {
      out += ':';
      out += names_[static_cast<size_t>(std::max(cols, 1))];
      AppendNumber(out, sheet_.MaxRows() + 1);
    }
    // The heading row stays in view.
    out += "\"/><sheetViews><sheetView tabSelected=\"1\" workbookViewId=\"0\"><pane ySplit=\"1\" "
           "topLeftCell=\"A2\" activePane=\"bottomLeft\" state=\"frozen\"/><selection pane=\"bottomLeft\"/>"
           "</sheetView></sheetViews><sheetFormatPr defaultRowHeight=\"15\"/>";
    if (cols > 0) {
      out += "<cols>";
      for (int col = 1; col <= cols; ++col) {
        out += "<col min=\"";
        AppendNumber(out, col);
        out += "\" max=\"";
        AppendNumber(out, col);
        out += "\" width=\"";
        AppendNumber(out, StoredWidth(sheet_.GetColWidth(col)));
        out += "\" customWidth=\"1\"/>";
      }
      out += "</cols>";
    }
    out += "<sheetData>";
  }

  static void Footer(std::string& out) {
    out += "</sheetData><pageMargins left=\"0.7\" right=\"0.7\" top=\"0.75\" bottom=\"0.75\" header=\"0.3\" "
           "footer=\"0.3\"/></worksheet>";
  }

  // Rows [first, end) of the grid (0 being the headings); texts in their cells, or as
  // indexes into `shared`.
  void Rows(std::string& out, int first, int end, SharedStrings* shared) const {
    const int cols = sheet_.MaxCols();
    char rowText[16];
    for (int row = first; row < end; ++row) {
      const auto rowEnd = std::to_chars(rowText, rowText + sizeof rowText, row + 1).ptr;
      const std::string_view rowNumber(rowText, static_cast<size_t>(rowEnd - rowText));
      bool open = false;
      for (int col = 1; col <= cols; ++col) {
        const std::string& text = sheet_.GetData(col, row);
        if (text.empty()) continue;
        if (!open) {
          out += "<row r=\"";
          out += rowNumber;
          out += "\">";
          open = true;
        }
        out += "<c r=\"";
        out += names_[static_cast<size_t>(col)];
        out += rowNumber;
        out += '"';
        if (row > 0 && sheet_.IsNumber(col, row)) {
          const std::optional<double> value = sheet_.GetNumber(col, row);
          if (value && std::isfinite(*value)) {
            const int shape = ShapeOf(text);
            if (shape != kGeneral) {
              out += " s=\"";
              AppendNumber(out, styles_.ofShape[static_cast<size_t>(shape)]);
              out += '"';
            }
            out += "><v>";
            AppendNumber(out, *value);
            out += "</v></c>";
            continue;
          }
        }
        // Always a text, never a formula: a cell reading "=A1" is the text "=A1".
        if (row == 0) out += " s=\"1\"";
        if (shared) {
          out += " t=\"s\"><v>";
          AppendNumber(out, shared->Index(text));
          out += "</v></c>";
        } else {
          out += " t=\"inlineStr\"><is>";
          AppendTextElement(out, text);
          out += "</is></c>";
        }
      }
      if (open) out += "</row>";
    }
  }

 private:
  const Sheet& sheet_;
  const Styles& styles_;
  std::vector<std::string> names_;
};

std::string PackagePart(const char* body) { return std::string(kXmlDeclaration) + body; }

std::string ContentTypes() {
  return PackagePart(
      "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
      "<Default Extension=\"rels\" ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
      "<Default Extension=\"xml\" ContentType=\"application/xml\"/>"
      "<Override PartName=\"/xl/workbook.xml\" "
      "ContentType=\"application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml\"/>"
      "<Override PartName=\"/xl/worksheets/sheet1.xml\" "
      "ContentType=\"application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml\"/>"
      "<Override PartName=\"/xl/styles.xml\" "
      "ContentType=\"application/vnd.openxmlformats-officedocument.spreadsheetml.styles+xml\"/>"
      "<Override PartName=\"/xl/sharedStrings.xml\" "
      "ContentType=\"application/vnd.openxmlformats-officedocument.spreadsheetml.sharedStrings+xml\"/>"
      "<Override PartName=\"/docProps/core.xml\" "
      "ContentType=\"application/vnd.openxmlformats-package.core-properties+xml\"/>"
      "<Override PartName=\"/docProps/app.xml\" "
      "ContentType=\"application/vnd.openxmlformats-officedocument.extended-properties+xml\"/>"
      "</Types>");
}

std::string PackageRelationships() {
  return PackagePart(
      "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
      "<Relationship Id=\"rId1\" "
      "Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument\" "
      "Target=\"xl/workbook.xml\"/>"
      "<Relationship Id=\"rId2\" "
      "Type=\"http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties\" "
      "Target=\"docProps/core.xml\"/>"
      "<Relationship Id=\"rId3\" "
      "Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/extended-properties\" "
      "Target=\"docProps/app.xml\"/>"
      "</Relationships>");
}

std::string WorkbookRelationships() {
  return PackagePart(
      "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
      "<Relationship Id=\"rId1\" "
      "Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet\" "
      "Target=\"worksheets/sheet1.xml\"/>"
      "<Relationship Id=\"rId2\" "
      "Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/styles\" "
      "Target=\"styles.xml\"/>"
      "<Relationship Id=\"rId3\" "
      "Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/sharedStrings\" "
      "Target=\"sharedStrings.xml\"/>"
      "</Relationships>");
}

std::string WorkbookPart(const std::string& sheetName) {
  std::string x = kXmlDeclaration;
  x += "<workbook xmlns=\"";
  x += kMainNamespace;
  x += "\" xmlns:r=\"";
  x += kRelationships;
  x += "\"><workbookPr/><bookViews><workbookView/></bookViews><sheets><sheet name=\"";
  AppendAttribute(x, sheetName);
  x += "\" sheetId=\"1\" r:id=\"rId1\"/></sheets></workbook>";
  return x;
}

std::string CoreProperties(const std::string& title) {
  char now[32] = "1980-01-01T00:00:00Z";
  const std::time_t t = std::time(nullptr);
  std::tm utc{};
  if (::gmtime_r(&t, &utc)) std::strftime(now, sizeof now, "%Y-%m-%dT%H:%M:%SZ", &utc);
  std::string x = kXmlDeclaration;
  x += "<cp:coreProperties xmlns:cp=\"http://schemas.openxmlformats.org/package/2006/metadata/core-properties\" "
       "xmlns:dc=\"http://purl.org/dc/elements/1.1/\" xmlns:dcterms=\"http://purl.org/dc/terms/\" "
       "xmlns:dcmitype=\"http://purl.org/dc/dcmitype/\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">";
  if (!title.empty()) {
    x += "<dc:title>";
    AppendText(x, title);
    x += "</dc:title>";
  }
  x += "<dc:creator>";
  x += tools::kProductName;
  x += "</dc:creator><dcterms:created xsi:type=\"dcterms:W3CDTF\">";
  x += now;
  x += "</dcterms:created></cp:coreProperties>";
  return x;
}

std::string AppProperties() {
  return PackagePart("<Properties xmlns=\"http://schemas.openxmlformats.org/officeDocument/2006/extended-properties\">"
                     "<Application>Norvane</Application></Properties>");
}

void WritePackage(const Sheet& sheet, int fd, const std::string& path, const std::string& title) {
  const int rows = sheet.MaxRows(), cols = sheet.MaxCols();
  const Survey survey = SurveySheet(sheet);
  const Styles styles = MakeStyles(survey);
  const WorksheetXml worksheet(sheet, styles);

  tools::ZipWriter zip(fd, path);
  zip.Add("[Content_Types].xml", ContentTypes(), kLevel);
  zip.Add("_rels/.rels", PackageRelationships(), kLevel);
  zip.Add("docProps/app.xml", AppProperties(), kLevel);
  zip.Add("docProps/core.xml", CoreProperties(title), kLevel);
  zip.Add("xl/workbook.xml", WorkbookPart(WorksheetName(title)), kLevel);
  zip.Add("xl/_rels/workbook.xml.rels", WorkbookRelationships(), kLevel);
  zip.Add("xl/styles.xml", styles.xml, kLevel);

  SharedStrings shared;
  if (int64_t(rows + 1) * cols <= kSharedStringCells) {
    std::string xml;
    worksheet.Header(xml);
    worksheet.Rows(xml, 0, rows + 1, &shared);
    WorksheetXml::Footer(xml);
    zip.Add("xl/worksheets/sheet1.xml", xml, kLevel);
  } else {
    // Pieces of rows made and compressed on every core, written in order.
    const size_t pieces = static_cast<size_t>(rows + 1 + kPieceRows - 1) / kPieceRows;
    zip.Begin("xl/worksheets/sheet1.xml", survey.xmlBound >= 0xFFFFFFFFu);
    // The buffers are kept from round to round: fresh memory costs the kernel more than the copy.
    std::vector<std::string> xml(kPiecesPerRound);
    std::vector<tools::DeflatedPiece> done(kPiecesPerRound);
    for (size_t first = 0; first < pieces; first += kPiecesPerRound) {
      const size_t count = std::min(kPiecesPerRound, pieces - first);
      tools::ParallelRanges(count, 1, [&](size_t begin, size_t end) {
        for (size_t k = begin; k < end; ++k) {
          const size_t piece = first + k;
          xml[k].clear();
          if (piece == 0) worksheet.Header(xml[k]);
          const int from = static_cast<int>(piece) * kPieceRows;
          worksheet.Rows(xml[k], from, std::min(from + kPieceRows, rows + 1), nullptr);
          if (piece + 1 == pieces) WorksheetXml::Footer(xml[k]);
          tools::DeflatePiece(xml[k], kLevel, piece + 1 == pieces, done[k]);
        }
      });
      for (size_t k = 0; k < count; ++k) zip.Write(done[k]);
    }
    zip.End();
  }
  zip.Add("xl/sharedStrings.xml", shared.Xml(), kLevel);
  zip.Close();
}

std::string CannotWrite(const std::string& path, int err) {
  return "Cannot write \"" + path + "\": " + tools::SystemErrorText(err);
}

}  // namespace

std::string NumberFormatOf(std::string_view text) { return FormatCode(ShapeOf(text)); }

std::string WorksheetName(const std::string& title) {
  std::string name;
  for (char c : title)
    name += (c != '\0' && std::strchr("[]:*?/\\", c)) || static_cast<unsigned char>(c) < 0x20 ? '_' : c;
  while (!name.empty() && name.front() == '\'') name.erase(0, 1);
  name = tools::CutLabel(name, 31);
  while (!name.empty() && name.back() == '\'') name.pop_back();
  return tools::Trim(name).empty() || tools::FirstInvalidUtf8(name) != std::string::npos ? "Sheet1" : name;
}

std::optional<std::string> WriteWorkbookFile(const Sheet& sheet, const std::string& path, const std::string& title) {
  try {
    tools::ReplaceFileWith(path, [&](const std::string& temp) {
      const int fd = ::open(temp.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC);
      if (fd < 0) throw tools::FileError(CannotWrite(path, errno));
      try {
        WritePackage(sheet, fd, path, title);
      } catch (...) {
        ::close(fd);
        throw;
      }
      // A full disk may only show when the data reaches it.
      if (::fsync(fd) != 0) {
        const int err = errno;
        ::close(fd);
        throw tools::FileError(CannotWrite(path, err));
      }
      if (::close(fd) != 0) throw tools::FileError(CannotWrite(path, errno));
    });
  } catch (const tools::FileError& e) {
    return std::string(e.what());
  } catch (const std::bad_alloc&) {
    return CannotWrite(path, ENOMEM);
  }
  return std::nullopt;
}

}  // namespace grid
