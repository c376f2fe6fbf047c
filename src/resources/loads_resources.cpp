// Strings and templates of the load case and load combination dialogs.
#include "resources/grid_ids.h"
#include "resources/ids.h"
#include "resources/loads_ids.h"
#include "resources/resources.h"

namespace res {
namespace {

using K = Kind;
constexpr int kBar = -1;
constexpr int kSide = -2;

const StringEntry kStrings[] = {
    {kStrLoadCasesCaption, "Load Cases"},
    {kStrLoadCombosCaption, "Load Combinations"},
    {kStrLoadComboCaption, "Load Combination"},
    {kStrStdCombosCaption, "Standard Load Combinations"},
    {kStrCaseNote, "The optional load types are used in forming standard load combinations"},
    {kStrCaseDeleteRows, "Delete Rows"},
    {kStrComboListHeadings, "Combinations\tP-Delta\tSteel Design\tConcrete Design\tTotal Load Defl.\tLive Load Defl."},
    {kStrComboAdd, "Add"},
    {kStrComboModify, "Modify"},
    {kStrComboCopy, "Copy"},
    {kStrComboDelete, "Delete"},
    {kStrComboUnitCases, "Unit Cases"},
    {kStrComboGenerateStd, "Generate Std"},
    {kStrItemLabel, "Label:"},
    {kStrItemPDelta, "Perform P-Delta Analysis on this Load Combination"},
    {kStrItemSteelDesign, "Perform Steel Design using this Load Combination"},
    {kStrItemTotalDeflection, "Check Total Load Deflection"},
    {kStrItemLiveDeflection, "Check Live Load Deflection"},
    {kStrItemConcreteDesign, "Perform Concrete Design using this Load Combination"},
    {kStrItemSustained, "Sustained Load Factor:"},
    {kStrItemSpectrum, "Response Spectrum Load Factor:"},
    {kStrStdCode, "Design code:"},
    {kStrStdList, "Select standard load combinations:"},
    {kStrStdSelectAll, "Select All"},
    {kStrStdClearAll, "Clear All"},
    {kStrStdPDelta, "Perform P-Delta Analyses on the load combinations"},
};

// The load case table: the grid with the data-grid buttons on the right and the note on
// load types below it.
const DialogTemplate kLoadCase = {
    kIddLoadCase, kStrLoadCasesCaption, "Load Cases",
    {
        {kCtlGridPlaceholder, K::Placeholder, 0, "", 0, 0, 1, 1, 0, kStretchRow | kStretchCol},
        {kCtlCaseNote, K::Static, kStrCaseNote, "The optional load types ...", 1, 0},
        {kCtlNewRowCount, K::Edit, 0, "1", kSide, 0},
        {kCtlNewRows, K::Button, kStrNewRows, "New Rows", kSide, 1},
        {kCtlCaseDeleteRows, K::Button, kStrCaseDeleteRows, "Delete Rows", kSide, 2},
        {kCtlPrint, K::Button, kStrPrint, "Print...", kSide, 3},
        {kCtlSave, K::Button, kStrSave, "Save...", kSide, 4},
        {IDOK_, K::Button, kStrOk, "OK", kBar, 0, 1, 1, 0, kDefault},
        {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
    },
    560, 380};

const DialogTemplate kLoadCombo = {
    kIddLoadCombo, kStrLoadCombosCaption, "Load Combinations",
    {
        {kCtlComboList, K::ReportList, kStrComboListHeadings, "Combinations", 0, 0, 1, 1, 0, kStretchRow | kStretchCol},
        {kCtlComboAdd, K::Button, kStrComboAdd, "Add", kSide, 0},
        {kCtlComboModify, K::Button, kStrComboModify, "Modify", kSide, 1},
        {kCtlComboCopy, K::Button, kStrComboCopy, "Copy", kSide, 2},
        {kCtlComboDelete, K::Button, kStrComboDelete, "Delete", kSide, 3},
        {kCtlComboUnitCases, K::Button, kStrComboUnitCases, "Unit Cases", kSide, 4},
        {kCtlComboGenerateStd, K::Button, kStrComboGenerateStd, "Generate Std", kSide, 5},
        {IDOK_, K::Button, kStrOk, "OK", kBar, 0, 1, 1, 0, kDefault},
        {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
    },
    920, 420};

// One combination: label, flags and factors on the left, the case factors on the right.
const DialogTemplate kLoadComboItem = {
    kIddLoadComboItem, kStrLoadComboCaption, "Load Combination",
    {
        {kCtlItemLabelText, K::Static, kStrItemLabel, "Label:", 0, 0},
        {kCtlItemLabel, K::Edit, 0, "", 0, 1},
        {kCtlItemPDelta, K::Check, kStrItemPDelta, "P-Delta", 1, 0, 1, 2},
        {kCtlItemSteelDesign, K::Check, kStrItemSteelDesign, "Steel Design", 2, 0, 1, 2},
        {kCtlItemConcreteDesign, K::Check, kStrItemConcreteDesign, "Concrete Design", 3, 0, 1, 2},
        {kCtlItemTotalDeflection, K::Check, kStrItemTotalDeflection, "Total Load Deflection", 4, 0, 1, 2},
        {kCtlItemLiveDeflection, K::Check, kStrItemLiveDeflection, "Live Load Deflection", 5, 0, 1, 2},
        {kCtlItemSustainedText, K::Static, kStrItemSustained, "Sustained Load Factor:", 6, 0},
        {kCtlItemSustained, K::Edit, 0, "0", 6, 1},
        {kCtlItemSpectrumText, K::Static, kStrItemSpectrum, "Response Spectrum Load Factor:", 7, 0},
        {kCtlItemSpectrum, K::Edit, 0, "1", 7, 1},
        {kCtlGridPlaceholder, K::Placeholder, 0, "", 0, 2, 9, 1, 0, kStretchCol},
        {0, K::Static, 0, "", 8, 0, 1, 2, 0, kStretchRow},
        {kCtlPrint, K::Button, kStrPrint, "Print...", kSide, 0},
        {kCtlSave, K::Button, kStrSave, "Save...", kSide, 1},
        {IDOK_, K::Button, kStrOk, "OK", kBar, 0, 1, 1, 0, kDefault},
        {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
    },
    820, 420};

const DialogTemplate kStdLoadCombination = {
    kIddStdLoadCombination, kStrStdCombosCaption, "Standard Load Combinations",
    {
        {kCtlStdCodeText, K::Static, kStrStdCode, "Design code:", 0, 0},
        {kCtlStdCode, K::DropList, 0, "", 0, 1, 1, 1, 0, kStretchCol},
        {kCtlStdListText, K::Static, kStrStdList, "Select standard load combinations:", 1, 0, 1, 2},
        {kCtlStdList, K::CheckList, 0, "", 2, 0, 1, 2, 0, kStretchRow},
        {kCtlStdPDelta, K::Check, kStrStdPDelta, "P-Delta", 3, 0, 1, 2},
        {kCtlStdSelectAll, K::Button, kStrStdSelectAll, "Select All", kSide, 0},
        {kCtlStdClearAll, K::Button, kStrStdClearAll, "Clear All", kSide, 1},
        {IDOK_, K::Button, kStrOk, "OK", kBar, 0, 1, 1, 0, kDefault},
        {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
    },
    560, 480};

const DialogTemplate* const kTemplates[] = {&kLoadCase, &kLoadCombo, &kLoadComboItem, &kStdLoadCombination};

}  // namespace

extern const ResourceTable kLoadsResources = {"loads", kStrings, kTemplates};

}  // namespace res
