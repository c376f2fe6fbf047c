// Strings of the spreadsheet grid, shared by every table dialog, and the grid settings dialog.
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
    {kStrDsPoints, "points"},
    {kStrDsPixels, "pixels"},
    {kStrDsColorLabel, "Alternate row color:"},
    {kStrDsColorTitle, "Alternate Row Color"},
    {kStrDsGroup, "Grid"},
};

using K = Kind;
constexpr int kBar = -1;

// The grid settings in one group, the colour button showing the colour it stands for.
const DialogTemplate kDataSettings = {
    kIddDataSettings, kStrDsCaption, "Spreadsheet Settings",
    {
        {kCtlDsGroup, K::Group, kStrDsGroup, "Grid", 0, 0},
        {kCtlDsFontSizeLabel, K::Static, kStrDsFontSize, "Font size:", 0, 0, 1, 1, kCtlDsGroup},
        {kCtlDsFontSize, K::Edit, 0, "", 0, 1, 1, 1, kCtlDsGroup, kAlignRight},
        {kCtlDsFontSizeUnit, K::Static, kStrDsPoints, "points", 0, 2, 1, 1, kCtlDsGroup},
        {kCtlDsRowHeightLabel, K::Static, kStrDsRowHeight, "Row height:", 1, 0, 1, 1, kCtlDsGroup},
        {kCtlDsRowHeight, K::Edit, 0, "", 1, 1, 1, 1, kCtlDsGroup, kAlignRight},
        {kCtlDsRowHeightUnit, K::Static, kStrDsPixels, "pixels", 1, 2, 1, 1, kCtlDsGroup},
        {kCtlDsColorLabel, K::Static, kStrDsColorLabel, "Alternate row color:", 2, 0, 1, 1, kCtlDsGroup},
        {kCtlDsColor, K::Button, 0, "", 2, 1, 1, 2, kCtlDsGroup},
        {kCtlDsShowRowHeader, K::Check, kStrDsShowRowHeader, "Show row headers in spreadsheets", 3, 0, 1, 3,
         kCtlDsGroup},
        {kCtlDsAppendSave, K::Check, kStrDsAppendSave, "Append to existing file when saving spreadsheet data", 4, 0, 1,
         3, kCtlDsGroup},
        {IDOK_, K::Button, kStrOk, "OK", kBar, 0, 1, 1, 0, kDefault},
        {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
    },
    0, 0};

const DialogTemplate* const kTemplates[] = {&kDataSettings};

}  // namespace

extern const ResourceTable kGridResources = {"grid", kStrings, kTemplates};

}  // namespace res
