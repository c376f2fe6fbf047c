#include "tools/shape_bundle.h"

#include <unordered_set>

#include "tools/atomic_file.h"
#include "tools/fm_exception.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace tools {
namespace {

std::vector<std::string_view> Words(std::string_view line) {
  std::vector<std::string_view> words;
  size_t i = 0;
  while (true) {
    i = line.find_first_not_of(" \t\r", i);
    if (i == std::string_view::npos) return words;
    const size_t end = line.find_first_of(" \t\r", i);
    words.push_back(line.substr(i, end == std::string_view::npos ? std::string_view::npos : end - i));
    if (end == std::string_view::npos) return words;
    i = end;
  }
}

}  // namespace

std::vector<fmSect_AISC> ParseAiscSource(std::string_view text, const std::string& file) {
  const auto fail = [&](size_t line, const std::string& what) {
    throw fmException(Format("%s, line %zu: ", file.c_str(), line) + what);
  };
  std::vector<fmSect_AISC> shapes;
  std::unordered_set<std::string> labels;
  std::string type;
  std::vector<int> columns;  // column index in the published layout, per word
  size_t lineNo = 0, pos = 0;
  while (pos < text.size()) {
    const size_t end = text.find('\n', pos);
    const std::string_view line = text.substr(pos, end == std::string_view::npos ? std::string_view::npos : end - pos);
    pos = end == std::string_view::npos ? text.size() : end + 1;
    ++lineNo;
    const auto words = Words(line);
    if (words.empty() || words[0].starts_with('#')) continue;
    if (words[0].starts_with('@')) {
      type = std::string(words[0].substr(1));
      columns.clear();
      for (size_t w = 1; w < words.size(); ++w) {
        int k = 0;
        while (k < kAiscColumnCount && words[w] != AiscColumnNames()[static_cast<size_t>(k)]) ++k;
        if (k == kAiscColumnCount) fail(lineNo, "unknown column " + std::string(words[w]));
        columns.push_back(k);
      }
      if (columns.size() < 2 || columns[0] != 1) fail(lineNo, "the first column must be AISC_Manual_Label");
      continue;
    }
    if (columns.empty()) fail(lineNo, "a shape before any @TYPE line");
    if (words.size() != columns.size())
      fail(lineNo, Format("%zu values where the @%s line names %zu", words.size(), type.c_str(), columns.size()));
    fmSect_AISC s;
    s.type = type;
    std::string_view edi = "=";
    for (size_t w = 0; w < words.size(); ++w) {
      const int k = columns[w];
      const std::string_view v = words[w];
      if (k == 0)
        edi = v;
      else if (k == 1)
        s.label = std::string(v);
      else if (k == 3)
        s.tf = v == "-" ? "" : std::string(v);
      else if (k >= kAiscTextColumnCount && v != "-") {
        const auto number = ParseDouble(v);
        if (!number) fail(lineNo, "\"" + std::string(v) + "\" is not a number");
        s.values[static_cast<size_t>(k - kAiscTextColumnCount)] = *number;
      }
    }
    s.edi.assign(edi == "=" ? std::string_view(s.label) : edi);
    std::string key = s.label;
    for (char& c : key)
      if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    if (!labels.insert(key).second) fail(lineNo, "the label " + s.label + " appears twice");
    shapes.push_back(std::move(s));
  }
  return shapes;
}

BundledTables BuildBundledTables(const std::string& dataDir) {
  const std::string source = dataDir + "/" + kAiscSourceFile;
  std::string text;
  try {
    text = ReadWholeFile(source);
  } catch (const FileError& e) {
    throw fmException(e.what());
  }
  const AiscLibrary library(ParseAiscSource(text, source));
  return {library.SerializeIndex(), library.SerializeTable(), SerializeNdsTable(BuildNdsTable())};
}

void WriteBundledTables(const std::string& dataDir) {
  const BundledTables t = BuildBundledTables(dataDir);
  try {
    // The index points into the table: they change together or not at all.
    WriteFilesTogether({{dataDir + "/" + kAiscTableFile, t.aiscTable},
                        {dataDir + "/" + kAiscIndexFile, t.aiscIndex},
                        {dataDir + "/" + kNdsTableFile, t.nds}});
  } catch (const FileError& e) {
    throw fmException(e.what());
  }
}

}  // namespace tools
