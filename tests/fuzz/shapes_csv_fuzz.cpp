// The shapes import: any text is imported or refused with fmException; what is imported
// exports and imports again unchanged, and holds no text a spreadsheet would run.
#include <cstdint>
#include <string>

#include "fuzz/fuzz_check.h"
#include "tools/fm_exception.h"
#include "tools/labels.h"
#include "tools/shape_table.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::vector<tools::fmSect_AISC> shapes;
  try {
    shapes = tools::ParseAiscCsv(TextOf(data, size), "fuzz.csv");
  } catch (const fmException&) {
    return 0;
  }
  for (const tools::fmSect_AISC& s : shapes)
    for (const std::string* text : {&s.edi, &s.label, &s.type, &s.tf}) {
      Require(tools::FirstInvalidUtf8(*text) == std::string::npos, "imported text is valid UTF-8");
      Require(text->empty() || (text->front() != '=' && text->front() != '@'), "no imported text begins with = or @");
    }
  const tools::AiscLibrary library(shapes);
  const std::string exported = tools::WriteAiscCsv(library);
  const std::vector<tools::fmSect_AISC> back = tools::ParseAiscCsv(exported, "exported.csv");
  Require(back == shapes, "an exported table imports unchanged");
  const tools::AiscLibrary binary = tools::AiscLibrary::Parse(library.SerializeIndex(), library.SerializeTable(), "fuzz");
  Require(binary.shapes() == shapes, "the library files read back unchanged");
  return 0;
}
