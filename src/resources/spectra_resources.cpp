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
    {kStrSpectrumDataCaption, "Response Spectrum Data"},
    {kStrSpecCa, "Ca:"},
    {kStrSpecCv, "Cv:"},
    {kStrSpecSds, "SDS:"},
    {kStrSpecSd1, "SD1:"},
    {kStrChartPeriod, "Period [sec]"},
    {kStrChartAcceleration, "Sa [g]"},
    {kStrSpecName, "Name:"},
    {kStrSpecDeleteRows, "Delete Rows"},
};

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

const DialogTemplate* const kTemplates[] = {&kResponseSpectrumData};

}  // namespace

extern const ResourceTable kSpectraResources = {"spectra", kStrings, kTemplates};

}  // namespace res
