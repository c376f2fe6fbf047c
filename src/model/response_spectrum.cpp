#include "model/response_spectrum.h"

#include <charconv>
#include <cmath>
#include <filesystem>

#include "tools/atomic_file.h"
#include "tools/fm_exception.h"
#include "tools/format.h"
#include "tools/labels.h"
#include "tools/parse.h"

namespace model {
namespace {

// Splits a line into its fields at commas, semicolons, tabs or runs of blanks.
std::vector<std::string_view> Fields(std::string_view line) {
  std::vector<std::string_view> fields;
  size_t i = 0;
  while (i < line.size()) {
    while (i < line.size() && (line[i] == ' ' || line[i] == '\t')) ++i;
    if (i >= line.size()) break;
    size_t end = i;
    while (end < line.size() && line[end] != ',' && line[end] != ';' && line[end] != '\t' && line[end] != ' ') ++end;
    fields.push_back(line.substr(i, end - i));
    i = end;
    while (i < line.size() && (line[i] == ' ' || line[i] == '\t')) ++i;
    if (i < line.size() && (line[i] == ',' || line[i] == ';')) {
      ++i;
      if (tools::Trim(line.substr(i)).empty()) fields.push_back({});  // "1.0," has an empty second field
    }
  }
  return fields;
}

}  // namespace

int FirstBadSpectrumPoint(const std::vector<fmSpectrumPoint>& points) {
  for (size_t i = 0; i < points.size(); ++i) {
    const fmSpectrumPoint& p = points[i];
    if (!std::isfinite(p.period) || !std::isfinite(p.acceleration)) return static_cast<int>(i);
    if (i > 0 && !(p.period > points[i - 1].period)) return static_cast<int>(i);
  }
  return -1;
}

std::vector<fmSpectrumPoint> ParseSpectrumPoints(std::string_view text) {
  std::vector<fmSpectrumPoint> points;
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);  // a spreadsheet's byte order mark
  size_t lineNo = 0, start = 0;
  bool seenContent = false;
  while (start < text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string_view::npos) end = text.size();
    std::string_view line = text.substr(start, end - start);
    start = end + 1;
    ++lineNo;
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    const std::string_view trimmed = tools::Trim(line);
    if (trimmed.empty() || trimmed.front() == '#') continue;
    const std::vector<std::string_view> fields = Fields(trimmed);
    const bool firstContent = !seenContent;
    seenContent = true;
    const std::string where = "line " + std::to_string(lineNo) + ": ";
    const auto period = tools::ParseDouble(fields.empty() ? std::string_view() : fields[0]);
    if (!period && firstContent) continue;  // a heading such as "Period,Sa"
    if (fields.size() != 2)
      throw fmException(where + "expected two values, period and acceleration, found " +
                        std::to_string(fields.size()));
    if (!period) throw fmException(where + "the period \"" + std::string(fields[0]) + "\" is not a number");
    const auto acceleration = tools::ParseDouble(fields[1]);
    if (!acceleration)
      throw fmException(where + "the acceleration \"" + std::string(fields[1]) + "\" is not a number");
    if (*period < 0) throw fmException(where + "the period must not be negative");
    if (*acceleration < 0) throw fmException(where + "the acceleration must not be negative");
    if (!points.empty() && !(*period > points.back().period))
      throw fmException(where + "the period " + tools::FormatG(*period) + " does not increase (the line before has " +
                        tools::FormatG(points.back().period) + ")");
    points.push_back({*period, *acceleration});
  }
  if (points.empty()) throw fmException("the file holds no points");
  return points;
}

std::string ExactNumberText(double value) {
  char buffer[32];
  const auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value);
  return ec == std::errc() ? std::string(buffer, end) : tools::Format("%.17g", value);
}

std::string SpectrumPointsText(const std::vector<fmSpectrumPoint>& points, bool csv) {
  std::string out;
  out.reserve(points.size() * 24);
  for (const fmSpectrumPoint& p : points) {
    out += ExactNumberText(p.period);
    out += csv ? ',' : '\t';
    out += ExactNumberText(p.acceleration);
    out += '\n';
  }
  return out;
}

fmResponseSpectrum ImportSpectrumFile(const std::string& path, std::string_view name) {
  std::string text;
  try {
    text = tools::ReadWholeFile(path, size_t(64) << 20);
  } catch (const tools::FileError& e) {
    throw fmException(e.what());
  }
  fmResponseSpectrum spectrum;
  try {
    spectrum.points = ParseSpectrumPoints(text);
  } catch (const fmException& e) {
    throw fmException(path + ", " + e.what());
  }
  const std::string stem = std::filesystem::path(path).stem().string();
  spectrum.name = tools::CutLabel(tools::Trim(name).empty() ? std::string_view(stem) : tools::Trim(name));
  if (spectrum.name.empty()) throw fmException(path + ": the spectrum needs a name");
  return spectrum;
}

void ExportSpectrumFile(const fmResponseSpectrum& spectrum, const std::string& path) {
  const std::string ext = std::filesystem::path(path).extension().string();
  tools::WriteFileAtomically(path, SpectrumPointsText(spectrum.points, tools::EqualsNoCase(ext, ".csv")));
}

}  // namespace model
