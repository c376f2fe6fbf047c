// Strings and templates of the response spectrum dialogs.
#include "resources/grid_ids.h"
#include "resources/ids.h"
#include "resources/resources.h"
#include "resources/spectra_ids.h"

namespace res {
namespace {

using K = Kind;
constexpr int kBar = -1;
constexpr int kSide = -2;

const StringEntry kStrings[] = {
    {kStrSpectraCaption, "Response Spectra"},
    {kStrSpectrumDataCaption, "Response Spectrum Data"},
    {kStrSpectrumAnalysisCaption, "Response Spectrum Analysis"},
    {kStrSpecCa, "Ca:"},
    {kStrSpecCv, "Cv:"},
    {kStrSpecSds, "SDS:"},
    {kStrSpecSd1, "SD1:"},
    {kStrChartPeriod, "Period [sec]"},
    {kStrChartAcceleration, "Sa [g]"},
    {kStrSpectraHeadings, "Spectrum Name\tNumber of Points"},
    {kStrSpectraGenerate, "Add from Code..."},
    {kStrSpectraImport, "Add from File..."},
    {kStrSpectraModify, "Modify..."},
    {kStrSpectraDelete, "Delete"},
    {kStrSpectraExport, "Export..."},
    {kStrSpectraClose, "Close"},
    {kStrSpecName, "Name:"},
    {kStrSpecDeleteRows, "Delete Rows"},
    {kStrRsaPerform, "Perform response spectrum analysis"},
    {kStrRsaDirections, "Excitation directions"},
    {kStrRsaSpectrum, "Spectrum"},
    {kStrRsaFactor, "Contribution factor"},
    {kStrRsaX, "Direction-X:"},
    {kStrRsaX + 1, "Direction-Y:"},
    {kStrRsaX + 2, "Direction-Z:"},
    {kStrRsaCombination, "Modal combination:"},
    {kStrRsaDamping, "Critical damping ratio:"},
    {kStrRsaSpectra, "Spectra..."},
};

const DialogTemplate kResponseSpectra = {
    kIddResponseSpectra, kStrSpectraCaption, "Response Spectra",
    {
        {kCtlSpectraList, K::ReportList, kStrSpectraHeadings, "Spectrum Name\tNumber of Points", 0, 0, 1, 1, 0,
         kStretchRow | kStretchCol},
        {kCtlSpectraFile, K::Static, 0, "", 1, 0},
        {kCtlSpectraGenerate, K::Button, kStrSpectraGenerate, "Add from Code...", kSide, 0},
        {kCtlSpectraImport, K::Button, kStrSpectraImport, "Add from File...", kSide, 1},
        {kCtlSpectraModify, K::Button, kStrSpectraModify, "Modify...", kSide, 2},
        {kCtlSpectraDelete, K::Button, kStrSpectraDelete, "Delete", kSide, 3},
        {kCtlSpectraExport, K::Button, kStrSpectraExport, "Export...", kSide, 4},
        {IDCANCEL_, K::Button, kStrSpectraClose, "Close", kBar, 0, 1, 1, 0, kDefault},
    },
    620, 380};

// The name above the points; the curve of the points beside them.
const DialogTemplate kResponseSpectrumData = {
    kIddResponseSpectrumData, kStrSpectrumDataCaption, "Response Spectrum Data",
    {
        {kCtlSpecNameText, K::Static, kStrSpecName, "Name:", 0, 0},
        {kCtlSpecName, K::Edit, 0, "", 0, 1, 1, 2},
        {kCtlGridPlaceholder, K::Placeholder, 0, "", 1, 0, 1, 2, 0, kStretchRow},
        {kCtlSpecDataChart, K::Placeholder, 0, "", 1, 2, 1, 1, 0, kStretchCol},
        {kCtlNewRowCount, K::Edit, 0, "1", kSide, 0},
        {kCtlNewRows, K::Button, kStrNewRows, "New Rows", kSide, 1},
        {kCtlSpecDeleteRows, K::Button, kStrSpecDeleteRows, "Delete Rows", kSide, 2},
        {kCtlPrint, K::Button, kStrPrint, "Print...", kSide, 3},
        {kCtlSave, K::Button, kStrSave, "Save...", kSide, 4},
        {IDOK_, K::Button, kStrOk, "OK", kBar, 0, 1, 1, 0, kDefault},
        {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
    },
    960, 480};

const DialogTemplate kResponseSpectrumAnalysis = {
    kIddResponseSpectrumAnalysis, kStrSpectrumAnalysisCaption, "Response Spectrum Analysis",
    {
        {kCtlRsaPerform, K::Check, kStrRsaPerform, "Perform response spectrum analysis", 0, 0, 1, 2},
        {kCtlRsaDirectionGroup, K::Group, kStrRsaDirections, "Excitation directions", 1, 0, 1, 2},
        {kCtlRsaSpectrumHead, K::Static, kStrRsaSpectrum, "Spectrum", 0, 1, 1, 1, kCtlRsaDirectionGroup},
        {kCtlRsaFactorHead, K::Static, kStrRsaFactor, "Contribution factor", 0, 2, 1, 1, kCtlRsaDirectionGroup},
        {kCtlRsaXText, K::Static, kStrRsaX, "Direction-X:", 1, 0, 1, 1, kCtlRsaDirectionGroup},
        {kCtlRsaSpectrumX, K::DropList, 0, "", 1, 1, 1, 1, kCtlRsaDirectionGroup, kStretchCol},
        {kCtlRsaFactorX, K::Edit, 0, "", 1, 2, 1, 1, kCtlRsaDirectionGroup, kNarrow},
        {kCtlRsaXText + 1, K::Static, kStrRsaX + 1, "Direction-Y:", 2, 0, 1, 1, kCtlRsaDirectionGroup},
        {kCtlRsaSpectrumX + 1, K::DropList, 0, "", 2, 1, 1, 1, kCtlRsaDirectionGroup, kStretchCol},
        {kCtlRsaFactorX + 1, K::Edit, 0, "", 2, 2, 1, 1, kCtlRsaDirectionGroup, kNarrow},
        {kCtlRsaXText + 2, K::Static, kStrRsaX + 2, "Direction-Z:", 3, 0, 1, 1, kCtlRsaDirectionGroup},
        {kCtlRsaSpectrumX + 2, K::DropList, 0, "", 3, 1, 1, 1, kCtlRsaDirectionGroup, kStretchCol},
        {kCtlRsaFactorX + 2, K::Edit, 0, "", 3, 2, 1, 1, kCtlRsaDirectionGroup, kNarrow},
        {kCtlRsaCombinationText, K::Static, kStrRsaCombination, "Modal combination:", 2, 0},
        {kCtlRsaCombination, K::DropList, 0, "", 2, 1},
        {kCtlRsaDampingText, K::Static, kStrRsaDamping, "Critical damping ratio:", 3, 0},
        {kCtlRsaDamping, K::Edit, 0, "", 3, 1, 1, 1, 0, kNarrow},
        {0, K::Static, 0, "", 4, 0, 1, 2, 0, kStretchRow},
        {kCtlRsaSpectra, K::Button, kStrRsaSpectra, "Spectra...", kSide, 0},
        {IDOK_, K::Button, kStrOk, "OK", kBar, 0, 1, 1, 0, kDefault},
        {IDCANCEL_, K::Button, kStrCancel, "Cancel", kBar, 1},
    },
    620, 0};

const DialogTemplate* const kTemplates[] = {&kResponseSpectra, &kResponseSpectrumData, &kResponseSpectrumAnalysis};

}  // namespace

extern const ResourceTable kSpectraResources = {"spectra", kStrings, kTemplates};

}  // namespace res
