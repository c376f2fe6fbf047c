#pragma once
// Control and string ids shared by templates and dialogs. Ids the system names keep their
// numbers; ids of our own are numbered in one range per family:
// frame 20000, units 21000, grid 22000, model 23000, loads 24000, results 25000,
// design 26000, geometry 27000; response spectra 24500 within the loads range.
namespace res {

inline constexpr int IDOK_ = 1;
inline constexpr int IDCANCEL_ = 2;

}  // namespace res
