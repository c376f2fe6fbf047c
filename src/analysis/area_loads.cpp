#include "analysis/area_loads.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "analysis/model.h"

namespace analysis {
namespace {

using Point = Eigen::Vector2d;
using Polygon = std::vector<Point>;

double Cross(const Point& a, const Point& b) { return a.x() * b.y() - a.y() * b.x(); }

double Area(const Polygon& p) {
  double twice = 0;
  for (size_t i = 0; i < p.size(); ++i) twice += Cross(p[i], p[(i + 1) % p.size()]);
  return twice / 2;
}

// The part of a convex polygon where f(x) = a·x + b ≤ 0.
Polygon Clip(const Polygon& p, const Point& a, double b) {
  Polygon out;
  for (size_t i = 0; i < p.size(); ++i) {
    const Point& u = p[i];
    const Point& v = p[(i + 1) % p.size()];
    const double fu = a.dot(u) + b, fv = a.dot(v) + b;
    if (fu <= 0) out.push_back(u);
    if ((fu < 0 && fv > 0) || (fu > 0 && fv < 0)) out.push_back(u + (v - u) * (fu / (fu - fv)));
  }
  return out;
}

// The extent along y of a convex polygon at x.
double ExtentAt(const Polygon& p, double x) {
  double lo = INFINITY, hi = -INFINITY;
  for (size_t i = 0; i < p.size(); ++i) {
    const Point& u = p[i];
    const Point& v = p[(i + 1) % p.size()];
    if ((u.x() - x) * (v.x() - x) > 0) continue;
    if (u.x() == v.x()) {
      lo = std::min({lo, u.y(), v.y()});
      hi = std::max({hi, u.y(), v.y()});
    } else {
      const double y = u.y() + (v.y() - u.y()) * (x - u.x()) / (v.x() - u.x());
      lo = std::min(lo, y);
      hi = std::max(hi, y);
    }
  }
  return hi > lo ? hi - lo : 0;
}

}  // namespace

std::vector<EdgeLoad> DistributeAreaLoad(const std::vector<Eigen::Vector3d>& corners, double pressure, bool oneWay,
                                         const std::string& what) {
  const size_t n = corners.size();
  if (n < 3) throw AnalysisError(what + " has fewer than three nodes.");
  // The polygon in its own plane, counter-clockwise about its normal (Newell's).
  Eigen::Vector3d normal = Eigen::Vector3d::Zero();
  double size = 0;
  for (size_t i = 0; i < n; ++i) {
    normal += corners[i].cross(corners[(i + 1) % n]);
    size = std::max(size, (corners[(i + 1) % n] - corners[i]).norm());
  }
  if (!(normal.norm() > 1e-9 * size * size)) throw AnalysisError(what + " encloses no area.");
  normal.normalize();
  Eigen::Vector3d u = Eigen::Vector3d::Zero();
  for (size_t i = 0; i < n && u.norm() == 0; ++i) u = corners[(i + 1) % n] - corners[i];
  u.normalize();
  const Eigen::Vector3d v = normal.cross(u);
  Polygon p;
  for (const auto& c : corners) p.emplace_back((c - corners[0]).dot(u), (c - corners[0]).dot(v));
  for (size_t i = 0; i < n; ++i)
    if (Cross(p[(i + 1) % n] - p[i], p[(i + 2) % n] - p[(i + 1) % n]) < -1e-9 * size * size)
      throw AnalysisError(what + " is not a convex polygon.");

  // Each edge's tangent and inward normal; the distance of x from edge e's line is
  // inward[e]·(x - p[e]).
  std::vector<Point> tangent(n), inward(n);
  std::vector<double> length(n);
  std::vector<char> takesPart(n, 0);
  for (size_t e = 0; e < n; ++e) {
    const Point d = p[(e + 1) % n] - p[e];
    length[e] = d.norm();
    if (length[e] <= 1e-9 * size) continue;
    tangent[e] = d / length[e];
    inward[e] = Point(-tangent[e].y(), tangent[e].x());
    takesPart[e] = 1;
  }
  if (oneWay)
    for (size_t e = 0; e < n; ++e)
      if (takesPart[e] && std::abs(Cross(tangent[e], tangent[0])) > 1e-6) takesPart[e] = 0;

  std::vector<EdgeLoad> out;
  for (size_t e = 0; e < n; ++e) {
    if (!takesPart[e]) continue;
    Polygon region = p;
    for (size_t f = 0; f < n && region.size() >= 3; ++f)
      if (f != e && takesPart[f])
        // distance to e - distance to f ≤ 0
        region = Clip(region, inward[e] - inward[f], -inward[e].dot(p[e]) + inward[f].dot(p[f]));
    if (region.size() < 3) continue;
    // In the edge's axes: s along it from its first corner, t inward.
    for (Point& x : region) {
      const Point r = x - p[e];
      x = Point(tangent[e].dot(r), inward[e].dot(r));
    }
    EdgeLoad load;
    load.edge = e;
    load.beforeStart = pressure * std::abs(Area(Clip(region, Point(1, 0), 0)));
    load.afterEnd = pressure * std::abs(Area(Clip(region, Point(-1, 0), length[e])));
    Polygon along = Clip(Clip(region, Point(-1, 0), 0), Point(1, 0), -length[e]);
    std::vector<double> breaks = {0, length[e]};
    for (const Point& x : along) breaks.push_back(std::clamp(x.x(), 0.0, length[e]));
    std::sort(breaks.begin(), breaks.end());
    breaks.erase(std::unique(breaks.begin(), breaks.end(), [&](double a, double b) { return b - a <= 1e-12 * size; }),
                 breaks.end());
    for (double s : breaks) load.profile.emplace_back(s, pressure * ExtentAt(along, s));
    out.push_back(std::move(load));
  }
  return out;
}

}  // namespace analysis
