#pragma once
// Ids of the library frame's templates and its own strings.
namespace res {

inline constexpr int kIddAbout = 100;
inline constexpr int kIddPreferences = 130;
inline constexpr int kIddPrivateLabelAbout = 134;
inline constexpr int kIddProgress = 1545;

inline constexpr int kStrProgressCaption = 20010;
inline constexpr int kStrPrivateLabelCaption = 20011;

}  // namespace res
