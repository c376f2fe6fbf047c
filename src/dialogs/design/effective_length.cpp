#include "dialogs/design/effective_length.h"

#include <algorithm>
#include <cmath>

#include "tools/fm_exception.h"

namespace design {

double BracedEquation(double k, double ga, double gb) {
  const double pi = kAlignmentPi;
  const double x = pi / k;
  return ga * gb * pi * pi / (4.0 * k * k) + ((ga + gb) / 2.0) * (1.0 - x / std::tan(x)) +
         (2.0 / x) * std::tan(pi / (2.0 * k)) - 1.0;
}

double UnbracedEquation(double k, double ga, double gb) {
  const double pi = kAlignmentPi;
  const double x = pi / k;
  return (ga * gb * pi * pi / (k * k) - 36.0) / (6.0 * (ga + gb)) - x / std::tan(x);
}

double AlignmentEquation(FrameKind kind, double k, double ga, double gb) {
  return kind == FrameKind::Braced ? BracedEquation(k, ga, gb) : UnbracedEquation(k, ga, gb);
}

double rtbis(const std::function<double(double)>& f, double x1, double x2, double xacc, int maxBisections) {
  const double f1 = f(x1);
  const double f2 = f(x2);
  // Signs rather than the product f1 * f2, which underflows to 0 for tiny values; an
  // infinite or undefined end value brackets nothing.
  const bool sameSign = (f1 >= 0.0 && f2 >= 0.0) || (f1 <= 0.0 && f2 <= 0.0);
  if (!std::isfinite(f1) || !std::isfinite(f2) || sameSign) throw fmException(kNotBracketed);
  double rtb = f1 < 0.0 ? x1 : x2;
  double dx = f1 < 0.0 ? x2 - x1 : x1 - x2;
  for (int j = 0; j < maxBisections; ++j) {
    dx *= 0.5;
    const double xmid = rtb + dx;
    const double fmid = f(xmid);
    if (fmid <= 0.0) rtb = xmid;
    if (std::fabs(dx) < xacc || fmid == 0.0) return rtb;
  }
  throw fmException(kTooManyBisections);
}

double ComputeK(FrameKind kind, double ga, double gb) {
  const KBracket b = BracketOf(kind);
  return rtbis([&](double k) { return AlignmentEquation(kind, k, ga, gb); }, b.lower, b.upper, kBisectionAccuracy);
}

KResult SolveK(FrameKind kind, double ga, double gb) {
  try {
    return {ComputeK(kind, ga, gb), {}};
  } catch (const fmException& e) {
    return {std::nullopt, e.GetMessage()};
  }
}

std::vector<CurvePoint> SampleEquation(FrameKind kind, double ga, double gb, int count) {
  std::vector<CurvePoint> points;
  if (count < 2) return points;
  const KBracket b = BracketOf(kind);
  points.reserve(static_cast<size_t>(count));
  for (int i = 0; i < count; ++i) {
    // Evenly spaced in log K, so the steep start of the long sway bracket is drawn finely.
    const double k = i == count - 1 ? b.upper : b.lower * std::pow(b.upper / b.lower, double(i) / (count - 1));
    const double f = AlignmentEquation(kind, k, ga, gb);
    if (std::isfinite(f)) points.push_back({k, f});
  }
  return points;
}

PlotRange ChoosePlotRange(const std::vector<CurvePoint>& curve) {
  std::vector<double> values;
  values.reserve(curve.size());
  for (const CurvePoint& p : curve) values.push_back(p.f);
  if (values.empty()) return {-1.0, 1.0};
  std::sort(values.begin(), values.end());
  // The middle of the samples sets the scale; steep ends beyond it are cut off.
  const auto at = [&values](double q) { return values[static_cast<size_t>(q * (values.size() - 1))]; };
  double lower = std::min(0.0, at(0.05));
  double upper = std::max(0.0, at(0.95));
  const double span = upper - lower;
  if (span <= 0.0) return {-1.0, 1.0};
  lower = std::max(lower - 0.1 * span, values.front() - 0.05 * span);
  upper = std::min(upper + 0.1 * span, values.back() + 0.05 * span);
  if (lower >= 0.0) lower = -0.05 * span;
  if (upper <= 0.0) upper = 0.05 * span;
  return {lower, upper};
}

}  // namespace design
