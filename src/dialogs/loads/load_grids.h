#pragma once
#include <optional>
#include <string>
#include <vector>

#include "dialogs/grid/sheet.h"
#include "dialogs/loads/load_combinations.h"
#include "model/fm_load.h"

// The two grids of the load dialogs, without any widget: the load case table (number,
// label, type) and the combination editor's case factors.
namespace loadgrid {

enum CaseColumn { kCaseNo = 1, kCaseLabel, kCaseType, kCaseColumnCount = kCaseType };

// The Type drop-down: the seven combined spellings and "Other".
std::vector<std::string> CaseTypeItems();

// One row per case: its 1-based number (locked), label and type (the drop-down entry that
// GetLoadCaseTypeIndex gives). The first case's label is locked.
void FillCases(grid::Sheet& sheet, const std::vector<fmLoadCase>& cases, grid::Color alternateRowColor, bool lockAll);
// New rows start with the type "Other".
void PrepareNewCaseRows(grid::Sheet& sheet, int firstNewRow);

struct CaseReadResult {
  std::optional<grid::GridFailure> failure;
  std::vector<fmLoadCase> cases;  // when there is no failure
};
// The rows as cases: every row up to the last one holding a label, and at least the rows
// that were filled from the model (so emptying an existing label is refused, never a silent
// deletion). Trailing new rows without a label are dropped.
CaseReadResult ReadCases(const grid::Sheet& sheet, int filledRows);

// Deletes rows row1..row2 and numbers the rest again; refused, with nothing deleted, when
// the first case is among them.
std::optional<grid::GridFailure> DeleteCaseRows(grid::Sheet& sheet, int row1, int row2);

enum FactorColumn { kFactorCase = 1, kFactorValue, kFactorColumnCount = kFactorValue };

// The editor's grid: "Case" (locked) and "Factor", one row per load case.
void FillFactors(grid::Sheet& sheet, const std::vector<loads::CombinationEdit::Row>& rows,
                 grid::Color alternateRowColor, bool lockAll);
std::vector<loads::CombinationEdit::Row> ReadFactors(const grid::Sheet& sheet);

// The title of the editor's printout and export: "Load Comb - <label> Table".
std::string FactorTableTitle(const std::string& label);

}  // namespace loadgrid
