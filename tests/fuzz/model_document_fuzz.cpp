// The model document reader: any text is read or refused with a DocumentLoadError; what is
// read saves and reads back to the same text, and every report can be built from it.
#include <cstdint>
#include <string>

#include "dialogs/grid/sheet.h"
#include "dialogs/results/report_context.h"
#include "dialogs/results/report_kinds.h"
#include "fuzz/fuzz_check.h"
#include "model/document.h"
#include "model/json_reader.h"
#include "model/solved_structure.h"
#include "tools/fm_exception.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  model::ModelDocument doc;
  try {
    doc = model::ParseModelDocument(TextOf(data, size), "fuzz.json");
  } catch (const model::DocumentLoadError&) {
    return 0;
  }
  const std::string saved = model::SerializeModelDocument(doc);
  const model::ModelDocument back = model::ParseModelDocument(saved, "saved.json");
  Require(model::SerializeModelDocument(back) == saved, "a saved document reads back as it was saved");

  const CfmStruct solved = model::SolvedStructure(doc);
  for (int kind = 0; kind <= results::kLastReportKind; ++kind) {
    if (!results::IsReportBuilt(kind)) continue;
    const size_t entries = results::ComboEntries(solved, kind).size();
    for (size_t index = 0; index < std::max<size_t>(entries, 1) && index < 3; ++index) {
      grid::Sheet sheet;
      const int query = doc.nodes.empty() ? 1 : static_cast<int>(doc.nodes.front().id);
      const results::ReportContext ctx{sheet, solved, kind, query, doc.display.alternateRowColor};
      try {
        results::ResetReportGrid(ctx);
        results::BuildReport(ctx, static_cast<int>(index));
      } catch (const fmException&) {
        // A model library refusal is shown to the user; anything else is a fault.
      }
    }
  }
  return 0;
}
