#pragma once
#include <Eigen/Dense>
#include <vector>

// An area load is a uniform pressure on a plane convex polygon of nodes that no shell models
// (a floor on its beams); it reaches the structure through the polygon's edges. Each edge
// that takes part carries the part of the polygon nearer to it than to any other edge that
// takes part: two-way, every edge (the polygon cut by the bisectors of its corners: a
// rectangle's long edges carry trapezoids, its short ones triangles); one-way, only the
// edges parallel to the first (each carries the polygon up to halfway to the opposite one).
// The pressure acts on the polygon's true area.
namespace analysis {

struct EdgeLoad {
  size_t edge = 0;  // from corner `edge` to the next one
  // Force per length along the edge at distances from its first corner, linear between.
  std::vector<std::pair<double, double>> profile;
  // Forces of the edge's part that lies beyond its first and its second corner (a one-way
  // polygon whose opposite edge is longer): they act at those corners.
  double beforeStart = 0, afterEnd = 0;
};

// Throws AnalysisError (naming `what`) for fewer than three corners, a polygon without area
// or one that is not convex.
std::vector<EdgeLoad> DistributeAreaLoad(const std::vector<Eigen::Vector3d>& corners, double pressure, bool oneWay,
                                         const std::string& what);

}  // namespace analysis
