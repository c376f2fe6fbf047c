#pragma once
// Ids of the library frame's own strings.
namespace res {

inline constexpr int kStrProgressCaption = 20010;
inline constexpr int kStrPrivateLabelCaption = 20011;
inline constexpr int kStrPrefGeneral = 20020;
inline constexpr int kStrPrefSolver = 20021;
inline constexpr int kStrPrefGraphics = 20022;
inline constexpr int kStrPrefTraditionalSelection = 20023;
inline constexpr int kStrPrefSolverCpus = 20024;
inline constexpr int kStrPrefFontName = 20025;
inline constexpr int kStrPrefSaveDrawingGrid = 20026;
inline constexpr int kStrPrefFillDiagrams = 20027;
inline constexpr int kStrPrefFillTransparency = 20028;

}  // namespace res
