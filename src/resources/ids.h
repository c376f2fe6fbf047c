#pragma once
// Control and string ids shared by templates and dialogs. Ids the system names keep their
// numbers; ids of our own are numbered in one range per family:
// frame 20000, units 21000, grid 22000, model 23000, loads 24000, results 25000,
// design 26000, geometry 27000; response spectra 24500 within the loads range.
//
// Ids that a form description leaves unnamed are assigned by the frame from ranges above
// 0xFFFF. A host's resource ids are 16-bit numbers, so these can never meet them, and they
// depend only on the description, so they are the same in every build:
// - a control: kAssignedControlBase + its position among the form's controls (control ids
//   need only be unique within their dialog);
// - a string: kAssignedStringBase + template id * kAssignedStringsPerForm + its position
//   among the form's strings (template ids are 16-bit, so no two forms share one).
namespace res {

inline constexpr int IDOK_ = 1;
inline constexpr int IDCANCEL_ = 2;

// Texts of the buttons every dialog has.
inline constexpr int kStrOk = 1039;
inline constexpr int kStrCancel = 1040;
inline constexpr int kStrClose = 20001;  // Cancel of a dialog that changes nothing, or of a locked model

inline constexpr int kAssignedControlBase = 0x10000;
inline constexpr int kAssignedStringBase = 0x1000000;
inline constexpr int kAssignedStringsPerForm = 128;

}  // namespace res
