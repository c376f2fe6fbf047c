#include "analysis/continuum.h"

namespace analysis {
namespace {
[[noreturn]] void NotYet(const char* what, uint32_t id) {
  throw AnalysisError(std::string(what) + " " + std::to_string(id) + ": this version analyses members only.");
}
}  // namespace

Eigen::Matrix3d ShellAxes(const Model&, const Shell& s) { NotYet("Shell", s.id); }
Matrix24 ShellStiffness(const Model&, const Shell& s) { NotYet("Shell", s.id); }
std::array<double, 4> ShellNodalAreas(const Model&, const Shell& s) { NotYet("Shell", s.id); }
Vector24 ShellPressureLoads(const Model&, const Shell& s, const Eigen::Vector3d&) { NotYet("Shell", s.id); }
Vector24 ShellThermalLoads(const Model&, const Shell& s, double) { NotYet("Shell", s.id); }
Matrix24 BrickStiffness(const Model&, const Brick& b) { NotYet("Brick", b.id); }
std::array<double, 8> BrickNodalVolumes(const Model&, const Brick& b) { NotYet("Brick", b.id); }
Vector24 BrickThermalLoads(const Model&, const Brick& b, double) { NotYet("Brick", b.id); }

}  // namespace analysis
