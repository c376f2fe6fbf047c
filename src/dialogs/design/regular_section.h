#pragma once
#include <array>
#include <string>

#include "model/fm_section.h"

namespace design {

// The shapes of the regular-section calculator, in the order of its drop-down.
enum RegularSectionType { kRectangle = 0, kRound = 1, kWideFlange = 2, kTee = 3, kRegularSectionTypeCount };

// Each dimension box accepts this range.
inline constexpr double kMinDimension = 0.0001;
inline constexpr double kMaxDimension = 1e20;

// The dimensions a type uses (1 to 4), and the value shown in the boxes it does not use.
int DimensionCount(int type);
inline constexpr const char* kUnusedDimensionText = "0.0001";

// The check on OK for the flanged shapes: empty when accepted, else the refusal text.
std::string CheckRegularSection(int type, const std::array<double, 4>& dims);

// Section properties of the shape (b = dims[0], d = dims[1], tf = dims[2], tw = dims[3]).
fmSect ComputeRegularSection(int type, const std::array<double, 4>& dims);

}  // namespace design
