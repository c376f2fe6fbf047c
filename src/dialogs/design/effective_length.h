#pragma once
#include <functional>
#include <optional>
#include <string>
#include <vector>

// The effective length factor K of a column from the relative stiffness ratios GA (top)
// and GB (bottom), by the alignment-chart equations of braced and sway frames.
namespace design {

inline constexpr double kAlignmentPi = 3.141592654;
inline constexpr double kBisectionAccuracy = 0.0001;
inline constexpr int kMaxBisections = 40;
inline constexpr double kGMin = 0.0;
inline constexpr double kGMax = 1000.0;

inline constexpr const char* kNotBracketed = "Root must be bracketed for bisection in rtbis";
inline constexpr const char* kTooManyBisections = "Too many bisections in rtbis";

enum class FrameKind { Braced, Unbraced };

struct KBracket {
  double lower, upper;
};
// The brackets leave out the limits 0.5 and 1.0 (braced) and 1.0 (sway) on purpose.
inline constexpr KBracket kBracedBracket = {0.51, 0.99};
inline constexpr KBracket kUnbracedBracket = {1.01, 20.0};
inline constexpr KBracket BracketOf(FrameKind kind) {
  return kind == FrameKind::Braced ? kBracedBracket : kUnbracedBracket;
}

// f(K) whose root is K. The sway equation divides by GA + GB: at GA = GB = 0 it is
// infinite everywhere and has no root.
double BracedEquation(double k, double ga, double gb);
double UnbracedEquation(double k, double ga, double gb);
double AlignmentEquation(FrameKind kind, double k, double ga, double gb);

// Bisection for a root of f in [x1, x2] to within xacc, at most maxBisections halvings.
// Throws fmException with kNotBracketed when f does not change sign over the bracket (or
// is not finite at either end), kTooManyBisections when the halvings run out.
double rtbis(const std::function<double(double)>& f, double x1, double x2, double xacc,
             int maxBisections = kMaxBisections);

// K of a braced or unbraced frame; throws fmException as rtbis does.
double ComputeK(FrameKind kind, double ga, double gb);

// Both results of one computation: a K or the failure's text.
struct KResult {
  std::optional<double> k;
  std::string error;
};
KResult SolveK(FrameKind kind, double ga, double gb);

// Samples of f over the bracket for a picture; points where f is not finite are left out.
struct CurvePoint {
  double k, f;
};
std::vector<CurvePoint> SampleEquation(FrameKind kind, double ga, double gb, int count);

// A vertical range that shows where the curve crosses zero: it holds 0, the ends of the
// curve where they are moderate, and cuts off the steep branches that would flatten the rest.
struct PlotRange {
  double lower, upper;
};
PlotRange ChoosePlotRange(const std::vector<CurvePoint>& curve);

}  // namespace design
