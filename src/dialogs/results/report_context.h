#pragma once
#include <string>
#include <vector>

#include "dialogs/grid/sheet.h"
#include "model/fm_struct.h"

// What every report builder works with: the grid it fills, the solved structure it reads,
// the report kind being shown (some builders serve several kinds) and the object of an
// information sheet.
namespace results {

struct ReportContext {
  grid::Sheet& sheet;
  const CfmStruct& model;
  int reportType = -1;
  int queryId = 0;
  grid::Color alternateRowColor = 0xF0F5FF;
  // Where a report that refuses to show (principal results of a response-spectrum
  // combination) leaves its message for the user; ignored when null.
  std::vector<std::string>* messages = nullptr;
};

inline void Tell(const ReportContext& ctx, std::string message) {
  if (ctx.messages) ctx.messages->push_back(std::move(message));
}

// Back to no rows and one column with an empty heading; colours of an earlier report go.
void ResetReportGrid(const ReportContext& ctx);

// Which load cases and combinations take part in envelopes: entry i is true when the name
// of case i equals, without regard to case, one of the model's envelope combination names.
std::vector<bool> EnvelopeLoadCombs(const CfmStruct& model);

}  // namespace results
