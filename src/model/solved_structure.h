#pragma once
#include <string>
#include <vector>

#include "model/document.h"
#include "model/fm_struct.h"

namespace model {

// The solved structure of a document: its nodes, properties, units, display settings and
// show-selected flag with the solution of its "results" section. A document never solved
// lists its load cases and combinations, without results.
CfmStruct SolvedStructure(const ModelDocument& doc);

// Where the solution does not fit the model: result records naming nodes the model does not
// have, and displacement vectors that leave nodes out. At most `limit` lines, the last
// saying how many more there are; none when everything fits.
std::vector<std::string> CheckSolution(const ModelDocument& doc, size_t limit = 10);

}  // namespace model
