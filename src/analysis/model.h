#pragma once
#include <array>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

// What the analysis reads: a structure in one consistent set of units (any force, length and
// time, e.g. lb, in, s), Y vertical and gravity along -Y. Elements, supports and loads name
// nodes, materials and sections by their position in the vectors here; ids are kept only for
// messages and results.
namespace analysis {

// The six degrees of freedom of a node, in global axes.
enum Dof { Ux, Uy, Uz, Rx, Ry, Rz };
inline constexpr int kNodeDofs = 6;
const char* DofName(int dof);  // "Dx" ... "Rz"

// Reports a stage of the work and how far the whole has come (0 to 1).
using Progress = std::function<void(const std::string& stage, double fraction)>;

// How the modal analysis spreads the elements' mass: half of a member's (or each node's share
// of a shell's or brick's) on the node's translations, or over the element's own shapes.
enum class MassModel { Lumped, Consistent };
const char* MassModelName(MassModel masses);  // "lumped", "consistent"

struct Node {
  uint32_t id = 0;
  double x = 0, y = 0, z = 0;
};

struct Material {
  double E = 0;
  double nu = 0;
  double weightDensity = 0;  // weight per volume; the mass is this over g
  double alpha = 0;          // thermal expansion per degree
  double G() const { return E / (2 * (1 + nu)); }
};

// Shear areas of zero ignore shear deformation in that plane.
struct Section {
  double A = 0, Ay = 0, Az = 0, Iy = 0, Iz = 0, J = 0;
};

enum class AxialBehaviour { Linear, TensionOnly, CompressionOnly };

// Local axes of a member: x from its first node to its second; y in the vertical plane
// through x, pointing up (global X for a vertical member), z = x × y; then both turned
// about x by the local angle.
struct Member {
  uint32_t id = 0;
  std::array<size_t, 2> nodes{};
  size_t material = 0;
  size_t section = 0;
  double angleDeg = 0;
  // Released end forces in local axes: [end][N, Vy, Vz, T, My, Mz].
  std::array<std::array<bool, 6>, 2> releases{};
  bool rigid = false;  // a rigid link: section and material are not read
  AxialBehaviour axial = AxialBehaviour::Linear;
};

// A four-node shell; nodes in order around its edge, local z along (n3 - n1) × (n4 - n2).
struct Shell {
  uint32_t id = 0;
  std::array<size_t, 4> nodes{};
  size_t material = 0;
  double thickness = 0;
};

// An eight-node brick: nodes 0-3 around one face, 4-7 around the opposite face in the same order.
struct Brick {
  uint32_t id = 0;
  std::array<size_t, 8> nodes{};
  size_t material = 0;
};

// A support holds the chosen degrees of freedom at the given values (settlements).
struct Support {
  size_t node = 0;
  std::array<bool, 6> held{};
  std::array<double, 6> value{};
};

// A spring to ground per degree of freedom (zero: none).
struct NodalSpring {
  size_t node = 0;
  std::array<double, 6> k{};
};

// A full symmetric 6×6 spring to ground: the upper triangle row by row (21 numbers).
struct CoupledSpring {
  size_t node = 0;
  std::array<double, 21> k{};
};

// Springs to ground along a member (force per length per length) or over a shell (force per
// area per length), in global X, Y, Z; lumped to the element's nodes.
struct LineSpring {
  size_t member = 0;
  std::array<double, 3> k{};
};
struct SurfaceSpring {
  size_t shell = 0;
  std::array<double, 3> k{};
};

// Two degrees of freedom that move together: u(nodes[0], dofs[0]) = u(nodes[1], dofs[1]).
struct Constraint {
  uint32_t id = 0;
  std::array<size_t, 2> nodes{};
  std::array<int, 2> dofs{};
};

// A floor rigid in its horizontal plane: X, Z and the rotation about Y of every node follow
// the first node's as one rigid body.
struct Diaphragm {
  std::vector<size_t> nodes;
};

struct NodalLoad {
  size_t node = 0;
  int dof = 0;  // forces along, moments about, global axes
  double value = 0;
};

// Member loads: direction 0-2 a force, 3-5 a moment, along or about the global axes or, with
// `local`, the member's. Distances are lengths from the member's first node.
struct MemberPointLoad {
  size_t member = 0;
  int direction = 0;
  bool local = false;
  double value = 0;
  double distance = 0;
};
struct MemberLineLoad {
  size_t member = 0;
  int direction = 0;
  bool local = false;
  std::array<double, 2> value{};     // per length at the start and end of the loaded stretch
  std::array<double, 2> distance{};  // start and end of the stretch
};

// A pressure on a shell (force per area), direction 0-2 along global X, Y, Z or the shell's
// local axes (local 2 is its normal).
struct SurfaceLoad {
  size_t shell = 0;
  int direction = 2;
  bool local = true;
  double value = 0;
};

// A uniform change of temperature of one element.
struct ThermalLoad {
  enum class Kind { Member, Shell, Brick };
  Kind kind = Kind::Member;
  size_t element = 0;
  double change = 0;
};

struct LoadCase {
  std::string name;
  double selfWeight = 0;  // multiplier of the elements' self weight, acting along -Y
  std::vector<NodalLoad> nodal;
  std::vector<MemberPointLoad> memberPoint;
  std::vector<MemberLineLoad> memberLine;
  std::vector<SurfaceLoad> surface;
  std::vector<ThermalLoad> thermal;
};

struct Combination {
  std::string name;
  std::vector<std::pair<size_t, double>> terms;  // load case position, factor
};

// An additional mass on one degree of freedom (3-5: a rotational inertia).
struct NodalMass {
  size_t node = 0;
  int dof = 0;
  double mass = 0;
};

struct Model {
  std::vector<Node> nodes;
  std::vector<Material> materials;
  std::vector<Section> sections;
  std::vector<Member> members;
  std::vector<Shell> shells;
  std::vector<Brick> bricks;
  std::vector<Support> supports;
  std::vector<NodalSpring> nodalSprings;
  std::vector<CoupledSpring> coupledSprings;
  std::vector<LineSpring> lineSprings;
  std::vector<SurfaceSpring> surfaceSprings;
  std::vector<Constraint> constraints;
  std::vector<Diaphragm> diaphragms;
  std::vector<LoadCase> cases;
  std::vector<Combination> combinations;
  std::vector<NodalMass> masses;
  double g = 386.08858267716535;  // in/s²
  // How many times tension-only and compression-only members are switched before giving up.
  int nonlinearIterationLimit = 30;
};

// A model the analysis cannot solve: the message names the node and degree of freedom or the
// element at fault.
class AnalysisError : public std::runtime_error {
 public:
  explicit AnalysisError(const std::string& message) : std::runtime_error(message) {}
};

}  // namespace analysis
