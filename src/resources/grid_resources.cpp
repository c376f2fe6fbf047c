// Strings of the spreadsheet grid, shared by every table dialog.
#include "resources/grid_ids.h"
#include "resources/ids.h"
#include "resources/resources.h"

namespace res {
namespace {

const StringEntry kStrings[] = {
    {kStrPrint, "Print..."},
    {kStrNewRows, "New Rows"},
    {kStrSave, "Save..."},
    {kStrFillCopy, "Copy this value to the selected cells"},
    {kStrFillSeries, "Fill the selected cells as a series"},
    {kStrExportTitle, "Export Spreadsheet Data"},
    {kStrPrintQuestion, "This will print the selected items to the default printer.\nDo you want to continue?"},
    {kStrPrintPage, "Page %d of %d"},
    {kStrPrintFailed, "The table could not be printed on \"%s\"."},
    {kStrExportFilterHtml, "HTML File (*.htm)"},
    {kStrExportFilterText, "Tab Delimited Text File (*.txt)"},
    {kStrExportFilterXls, "Excel Book File (*.xls)"},
    {kStrExportFilterXlsx, "Excel Workbook (*.xlsx)"},
    {kStrDsColorTitle, "Alternate Row Color"},
};

}  // namespace

extern const ResourceTable kGridResources = {"grid", kStrings, {}};

}  // namespace res
