#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <vector>

// The loads of one load case. A model keeps one fmCaseLoad per load case, in the order of
// its load cases (ModelDocument::caseLoads[i] belongs to loadCases[i]).
//
// Directions are 0 to 5: X, Y, Z, then OX, OY, OZ (moments, or rotational masses). A load in
// the global system acts along the global axes; with `local` along the element's own axes.
// Magnitudes are in the model's units: a force or moment (nodal and point loads), a force or
// moment per length (line loads), a force per area (surface and area loads), a temperature
// difference (thermal loads). Gravity acts along -Y.

// Self weight: every element whose material has a density and that is not excluded from
// self weight carries factor × its weight along the global axis `direction` (0 to 2). A dead
// load case normally has direction 1 (Y) and factor -1; factor 0 means no self weight.
struct fmSelfWeight {
  int32_t direction = 1;
  double factor = 0;
  bool operator==(const fmSelfWeight&) const = default;
};

struct fmNodalLoad {
  uint32_t node = 0;
  int32_t direction = 0;  // global
  double magnitude = 0;
  bool operator==(const fmNodalLoad&) const = default;
};

// A concentrated force or moment on a member, at `ratio` (0 to 1) of its length from its
// first node.
struct fmPtLoad {
  uint32_t member = 0;
  double ratio = 0;
  int32_t direction = 0;
  bool local = false;
  double magnitude = 0;
  bool operator==(const fmPtLoad&) const = default;
};

// A linearly varying force or moment per length on the stretch of a member from ratio[0] to
// ratio[1] (0 <= ratio[0] <= ratio[1] <= 1, from its first node); magnitude[0] at the start
// of the stretch, magnitude[1] at its end.
struct fmLineLoad {
  uint32_t member = 0;
  std::array<double, 2> ratio{0, 1};
  std::array<double, 2> magnitude{};
  int32_t direction = 0;
  bool local = false;
  bool operator==(const fmLineLoad&) const = default;
};

// A uniform pressure on one four-node shell; direction 0 to 2 (local 2 is the normal).
struct fmSurfaceLoad {
  uint32_t shell = 0;
  int32_t direction = 2;
  bool local = true;
  double magnitude = 0;
  bool operator==(const fmSurfaceLoad&) const = default;
};

// A uniform pressure on a plane polygon of nodes (at least three, in order around it) that
// no shell models, e.g. a floor carried by its beams. The load is passed to the members
// along the polygon's edges: TwoWay by the tributary area of each edge (the polygon cut by
// the bisectors of its corners), OneWay only to the edges that run parallel to its first
// edge (nodes[0] to nodes[1]), each carrying half the span to the opposite edge.
struct fmAreaLoad {
  enum Distribution : int32_t { TwoWay = 0, OneWay = 1 };
  std::vector<uint32_t> nodes;
  int32_t direction = 1;  // global, 0 to 2
  double magnitude = 0;
  int32_t distribution = TwoWay;
  bool operator==(const fmAreaLoad&) const = default;
};

// A uniform temperature difference (from the temperature at which the element is free of
// stress) of one member, shell or brick.
struct fmThermalLoad {
  uint32_t element = 0;
  double temperature = 0;
  bool operator==(const fmThermalLoad&) const = default;
};

// An additional mass at a node for dynamic analysis, given as its weight (force unit) for
// directions 0 to 2 and as weight × length² (moment unit × length unit) for 3 to 5.
struct fmNodalMass {
  uint32_t node = 0;
  int32_t direction = 0;
  double weight = 0;
  bool operator==(const fmNodalMass&) const = default;
};

struct fmCaseLoad {
  fmSelfWeight selfWeight;
  std::vector<fmNodalLoad> nodal;
  std::vector<fmPtLoad> point;        // sorted by member, then ratio (SortLoads)
  std::vector<fmLineLoad> line;       // sorted by member, then start ratio
  std::vector<fmSurfaceLoad> surface;
  std::vector<fmAreaLoad> area;
  std::vector<fmThermalLoad> memberThermal, shellThermal, brickThermal;
  std::vector<fmNodalMass> nodalMasses;
  // Combination mass: with a non-zero factor, the case's gravity loads (its global loads along
  // -Y) times this factor become masses for dynamic analysis. Self weight is not among them:
  // the analysis gives every element the mass of its own weight.
  double massFactor = 0;

  bool IsEmpty() const { return *this == fmCaseLoad{}; }
  // Every magnitude (not ratios, directions or the mass factor) multiplied by `factor`.
  void Scale(double factor);
  // Adds the loads of `other` to these; self weight factors add when the directions agree,
  // else `other`'s replaces a zero factor here.
  void Append(const fmCaseLoad& other);
  bool operator==(const fmCaseLoad&) const = default;
};

// Sorts point and line loads by member number, then position; stable, so loads at the same
// place keep their order.
void SortPointLoads(std::vector<fmPtLoad>& loads);
void SortLineLoads(std::vector<fmLineLoad>& loads);

// The six direction names "X", "Y", "Z", "OX", "OY", "OZ"; the index of a name (without
// regard to case) or -1.
const std::array<const char*, 6>& LoadDirectionNames();
int LoadDirectionIndex(const std::string& name);

// "Copy Loads": every load of case `from`, times `factor`, is added to case `to`; with
// deleteExisting the loads of `to` are removed first. The combination mass factor is a setting
// of the case, not a load, and stays as it was. False, with nothing changed, when a case is
// outside the list, the cases are the same or the factor is 0 or not finite.
bool CopyCaseLoads(std::vector<fmCaseLoad>& caseLoads, size_t from, size_t to, double factor, bool deleteExisting);

// Keeps caseLoads in step with a changed list of load cases: origin[i] is the former index
// of new case i, or -1 for a new case (which gets no loads). Loads of cases no longer listed
// are dropped.
void ReorderCaseLoads(std::vector<fmCaseLoad>& caseLoads, const std::vector<int>& origin);
