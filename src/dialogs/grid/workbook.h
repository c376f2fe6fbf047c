#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "dialogs/grid/sheet.h"

// The workbook export: one worksheet in an Office Open XML package (.xlsx), written here
// rather than by a library so that a number cell holds its value exactly (the shortest text
// that reads back as the same double) and the export uses every core.
namespace grid {

// Writes the sheet as a workbook beside `path` and renames it into place; the message to
// show on failure, nothing on success. The title names the worksheet and the document.
std::optional<std::string> WriteWorkbookFile(const Sheet& sheet, const std::string& path, const std::string& title);

// The number format showing a value the way the grid's text shows it: as many decimals,
// exponential notation when the text has an exponent, a trailing percent sign (the value then
// being the fraction). Empty (the general format) for any other text.
std::string NumberFormatOf(std::string_view text);

// A worksheet name: at most 31 characters, none of []:*?/\, not quoted, never empty.
std::string WorksheetName(const std::string& title);

}  // namespace grid
