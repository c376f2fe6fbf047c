#pragma once
#include <string>
#include <vector>

#include "dialogs/grid/sheet.h"
#include "dialogs/results/report_context.h"

// The information sheets of one node, member, shell or brick: its data, its loads per load
// case and its results per load case or combination, as text lines. Lines beginning with
// "**" head a section, with "*" name a case, with two blanks carry values. Numbers take
// their quantity's display format; the unit ends a line in parentheses.
namespace results {

// Each returns false, with the one line "error finding %s %ld", when the model has no such
// object. A result the solution does not hold for the object shows as that line too.
bool GetNodeInfo(const CfmStruct& model, std::vector<std::string>& lines, long id);
bool GetBeamInfo(const CfmStruct& model, std::vector<std::string>& lines, long id);
bool GetShell4Info(const CfmStruct& model, std::vector<std::string>& lines, long id);
bool GetBrickInfo(const CfmStruct& model, std::vector<std::string>& lines, long id);

// One column headed `heading` (width 95) with the lines from row 1, one empty row before
// every section heading after the first line, and one empty row at the end.
void FillInfoSheet(grid::Sheet& sheet, grid::Color alternateRowColor, const std::vector<std::string>& lines,
                   const std::string& heading);

// The sheet of ctx.reportType (29 node, 30 member, 31 shell, 32 brick) for ctx.queryId.
void Query(const ReportContext& ctx);

}  // namespace results
