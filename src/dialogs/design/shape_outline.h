#pragma once
#include <string>
#include <vector>

#include "tools/shape_table.h"

// The outline of a cross-section to scale, with the dimensions an engineer checks, for the
// pictures of the regular-section calculator and the shape browsers. Coordinates in the
// section's own length unit: x to the right, y up, origin at the lower left corner of the
// bounding box.
namespace design {

struct Point {
  double x, y;
};

// A dimension line from `from` to `to`, drawn `offset` (in the same units) to the side of
// the segment (positive: to the left walking from `from` to `to`), labelled `text`.
struct DimensionMark {
  Point from, to;
  double offset;
  std::string text;
};

struct Outline {
  // Closed loops; a loop inside another is a hole (drawn with the even-odd rule).
  std::vector<std::vector<Point>> loops;
  std::vector<DimensionMark> marks;
  double width = 0, height = 0;  // bounding box
  bool IsEmpty() const { return loops.empty(); }
};

// unit: the length label appended to the values ("in"); empty for none.
Outline RectangleOutline(double b, double d, const std::string& unit);
Outline RoundOutline(double D, const std::string& unit);
Outline WideFlangeOutline(double b, double d, double tf, double tw, const std::string& unit);
Outline TeeOutline(double b, double d, double tf, double tw, const std::string& unit);
Outline ChannelOutline(double b, double d, double tf, double tw, const std::string& unit);
// b: the horizontal leg, d: the vertical one; the marks carry the names given.
Outline AngleOutline(double b, double d, double t, const std::string& unit, const char* bName = "b",
                     const char* dName = "d");
Outline TubeOutline(double b, double d, double t, const std::string& unit);
Outline RingOutline(double D, double t, const std::string& unit);

// The outline of the regular-section calculator's shape (type 0 to 3) from its four boxes.
Outline RegularSectionOutline(int type, const double dims[4], const std::string& unit);
// The outline of a table shape (whose dimensions are in inches) in a length unit of the given
// size in inches; empty when its dimensions are not in the table.
Outline SteelShapeOutline(const tools::fmSect_AISC& shape, double unitInInches = 1, const std::string& unit = "in");
Outline LumberOutline(const tools::fmSect_NDS& shape, double unitInInches = 1, const std::string& unit = "in");

}  // namespace design
