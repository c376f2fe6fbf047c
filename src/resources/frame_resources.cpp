// Strings and templates of the library frame: about boxes, progress and preferences.
#include "resources/frame_ids.h"
#include "resources/ids.h"
#include "resources/resources.h"

namespace res {
namespace {

using K = Kind;
constexpr int kBar = -1;  // the bottom button bar

const StringEntry kStrings[] = {
    {1033, "Copyright (C) 2026 The Norvane developers. All rights reserved."},
    {1034, "Norvane: structural analysis and design of 3-D frames, shells and solids"},
    {1039, "OK"},
    {1040, "Cancel"},
    {1042, "About Norvane"},
    {1349, "Preferences"},
    {1350, "Data Folder:"},
    {1351, "Automatic file backup period:"},
    {1352, "minutes"},
    {1353, "Response Animation"},
    {1354, "Number of frames:"},
    {1355, "Duration per frame:"},
    {1356, "Lock model after analysis is performed successfully."},
    {1357, "Use the external HTML viewer (e.g. Internet Explorer)"},
    {1358, "Use rubber-banding while drawing elements"},
    {1359, "Spreadsheet Settings"},
    {1360, "Show row headers in spreadsheets"},
    {1361, "Row height:"},
    {1362, "Font size:"},
    {1363, "second(s)"},
    {1516, "Append to existing file when saving spreadsheet to htm/txt format"},
    {1585, "Maximum memory for Out-of-core solver (MB):"},
    {kStrProgressCaption, "Sparse Matrix Factorization..."},
    {kStrPrivateLabelCaption, "About"},
    {kStrPrefGeneral, "General"},
    {kStrPrefSolver, "Solver"},
    {kStrPrefGraphics, "Graphics"},
    {kStrPrefTraditionalSelection, "Use traditional selection rectangle\n(may not work on some newer systems)"},
    {kStrPrefSolverCpus, "Number of CPUs for sparse solver:"},
    {kStrPrefFontName, "Font name:"},
    {kStrPrefSaveDrawingGrid, "Save drawing grid settings"},
    {kStrPrefFillDiagrams, "Fill moment and shear diagrams"},
    {kStrPrefFillTransparency, "Fill transparency value [0 - 1.0]:"},
};

const DialogTemplate kAbout = {
    100, 1042, "About Norvane",
    {
        {1007, K::Static, 1034, "Norvane", 0, 0},
        {1003, K::Static, 0, "", 1, 0},
        {1006, K::Static, 0, "", 2, 0},
        {1008, K::Static, 1033, "Copyright", 3, 0},
        {IDOK_, K::Button, 1039, "OK", kBar, 0, 1, 1, 0, kDefault},
    },
    420, 0};

const DialogTemplate kPrivateLabelAbout = {
    134, kStrPrivateLabelCaption, "About",
    {
        {1003, K::Static, 0, "", 0, 0},
        {1006, K::Static, 0, "", 1, 0},
        {IDOK_, K::Button, 1039, "OK", kBar, 0, 1, 1, 0, kDefault},
    },
    360, 0};

const DialogTemplate kProgress = {
    1545, kStrProgressCaption, "Sparse Matrix Factorization...",
    {
        {1325, K::Progress, 0, "", 0, 0, 1, 1, 0, kStretchCol},
    },
    360, 0};

// Preferences: general and animation on the left, spreadsheet and solver on the right,
// graphics across the bottom. Number edits are narrow; the folder edit takes the spare width.
constexpr uint32_t kNum = kNarrow;
const DialogTemplate kPreferences = {
    130, 1349, "Preferences",
    {
        {1190, K::Group, kStrPrefGeneral, "General", 0, 0},
        {1163, K::Static, 1350, "Data Folder:", 0, 0, 1, 3, 1190},
        {1339, K::FolderEdit, 0, "", 1, 0, 1, 3, 1190},
        {1164, K::Static, 1351, "Automatic file backup period:", 2, 0, 1, 1, 1190},
        {3380, K::Edit, 0, "", 2, 1, 1, 1, 1190, kNum},
        {1165, K::Static, 1352, "minutes", 2, 2, 1, 1, 1190, kStretchCol},
        {1010, K::Check, 1356, "Lock model after analysis", 3, 0, 1, 3, 1190},
        {1011, K::Check, 1357, "Use the external HTML viewer", 4, 0, 1, 3, 1190},
        {1013, K::Check, 1358, "Use rubber-banding", 5, 0, 1, 3, 1190},
        {1015, K::Check, kStrPrefTraditionalSelection, "Use traditional selection rectangle", 6, 0, 1, 3, 1190},

        {1166, K::Group, 1353, "Response Animation", 1, 0},
        {1167, K::Static, 1354, "Number of frames:", 0, 0, 1, 1, 1166},
        {3381, K::Edit, 0, "", 0, 1, 1, 1, 1166, kNum},
        {1168, K::Static, 1355, "Duration per frame:", 1, 0, 1, 1, 1166},
        {3382, K::Edit, 0, "", 1, 1, 1, 1, 1166, kNum},
        {1172, K::Static, 1363, "second(s)", 1, 2, 1, 1, 1166, kStretchCol},

        {1169, K::Group, 1359, "Spreadsheet Settings", 0, 1},
        {1012, K::Check, 1360, "Show row headers in spreadsheets", 0, 0, 1, 2, 1169},
        {1170, K::Static, 1361, "Row height:", 1, 0, 1, 1, 1169},
        {3383, K::Edit, 0, "", 1, 1, 1, 1, 1169, kNum | kStretchCol},
        {1171, K::Static, 1362, "Font size:", 2, 0, 1, 1, 1169},
        {3384, K::Edit, 0, "", 2, 1, 1, 1, 1169, kNum},
        {1014, K::Check, 1516, "Append to existing file when saving spreadsheet data", 3, 0, 1, 2, 1169},

        {1191, K::Group, kStrPrefSolver, "Solver", 1, 1},
        {1173, K::Static, 1585, "Maximum memory for Out-of-core solver (MB):", 0, 0, 1, 1, 1191},
        {3385, K::Edit, 0, "", 0, 1, 1, 1, 1191, kNum | kStretchCol},
        {1174, K::Static, kStrPrefSolverCpus, "Number of CPUs for sparse solver:", 1, 0, 1, 1, 1191},
        {3386, K::Edit, 0, "", 1, 1, 1, 1, 1191, kNum},

        {1192, K::Group, kStrPrefGraphics, "Graphics", 2, 0, 1, 2},
        {1175, K::Static, kStrPrefFontName, "Font name:", 0, 0, 1, 1, 1192},
        {1338, K::FontCombo, 0, "", 0, 1, 1, 1, 1192},
        {1176, K::Static, 1362, "Font size:", 0, 2, 1, 1, 1192, kAlignRight},
        {3387, K::Edit, 0, "", 0, 3, 1, 1, 1192, kNum},
        {1016, K::Check, kStrPrefSaveDrawingGrid, "Save drawing grid settings", 1, 0, 1, 2, 1192},
        {1017, K::Check, kStrPrefFillDiagrams, "Fill moment and shear diagrams", 1, 2, 1, 3, 1192},
        {1177, K::Static, kStrPrefFillTransparency, "Fill transparency value [0 - 1.0]:", 2, 0, 1, 1, 1192},
        {3388, K::Edit, 0, "", 2, 1, 1, 1, 1192, kNum},
        {1178, K::Static, 0, "", 2, 4, 1, 1, 1192, kStretchCol},

        {IDOK_, K::Button, 1039, "OK", kBar, 0, 1, 1, 0, kDefault},
        {IDCANCEL_, K::Button, 1040, "Cancel", kBar, 1},
    },
    0, 0};

const DialogTemplate* const kTemplates[] = {&kAbout, &kPrivateLabelAbout, &kProgress, &kPreferences};

}  // namespace

extern const ResourceTable kFrameResources = {"frame", kStrings, kTemplates};

}  // namespace res
