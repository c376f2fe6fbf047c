#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "model/fm_element_results.h"
#include "model/fm_load.h"
#include "model/fm_result.h"
#include "tools/fm_unit.h"

// The results of one load case or combination, as the solver leaves them.
struct fmCaseResults {
  std::vector<fmResult6Val> displacements;           // per node
  std::vector<fmResult6Val> reactions;               // per support node
  std::vector<fmResult6Val> nodalSpringReactions;    // per node with a spring
  std::vector<fmResult6Val> coupledSpringReactions;  // per node with a coupled spring
  std::vector<fmResult6Val> lineSpringReactions;     // per member with a line spring
  std::vector<fmResult6Val> surfaceSpringReactions;  // per shell with a surface spring
  std::vector<fmConstraintForce> constraintForces;
  // Element results. A combination that holds none is formed from its load cases when asked
  // (CfmStruct::GetElementResults).
  std::vector<fmBmVMD> memberStations;                // per member
  std::vector<fmShellForce> shellForces;              // per shell
  std::vector<fmShellNodalResultant> shellResultants;  // per shell
  std::array<std::vector<fmShellStress>, 2> shellStresses;  // top (local +z face), bottom
  std::vector<fmBrickStress> brickStresses;           // per brick

  bool operator==(const fmCaseResults&) const = default;
  bool HasElementResults() const {
    return !memberStations.empty() || !shellForces.empty() || !shellResultants.empty() ||
           !shellStresses[0].empty() || !shellStresses[1].empty() || !brickStresses.empty();
  }
};

// A mode whose eigenvalue is zero, or below zero by no more than round-off (a millionth of the
// largest eigenvalue of its list), is a rigid-body mode: it has no period.
bool IsRigidBodyMode(double omega2, const std::vector<double>& omega2OfAllModes);

struct fmEigenMode {
  double omega2 = 0;  // eigenvalue: the square of the circular frequency
  std::vector<fmResult6Val> shape;
  double error = 0;  // ‖Kφ − ω²Mφ‖ / ‖Kφ‖ of the computed pair

  bool operator==(const fmEigenMode&) const = default;
};

// One mode of a response-spectrum analysis: per excitation direction X, Y, Z its modal
// displacements and inertial forces.
struct fmSpectrumMode {
  double omega2 = 0;
  std::array<std::vector<fmResult6Val>, 3> displacements;
  std::array<std::vector<fmResult6Val>, 3> inertialForces;
  std::array<double, 3> participation{};  // Γ = φᵀMr / φᵀMφ for excitation along X, Y, Z

  bool operator==(const fmSpectrumMode&) const = default;
};

// What a solver run produced: the model document's "results" section. Every value is in
// `units`. What the run analysed (supports, springs, the drift stack, the envelope list) is
// the model's own (ModelDocument), not kept here.
struct fmSolution {
  // A nodal force (direction 0 to 2) or moment (3 to 5) of a load case, by the case's label.
  struct NodalLoad {
    int32_t node = 0;
    std::string caseName{};
    int32_t direction = 0;
    double magnitude = 0;
    bool operator==(const NodalLoad&) const = default;
  };
  // An additional mass; directions 3 to 5 are rotational masses.
  struct NodalMass {
    int32_t node = 0;
    int32_t direction = 0;
    double magnitude = 0;
    bool operator==(const NodalMass&) const = default;
  };

  fmUnit units;
  std::vector<fmLoadCase> cases;       // load cases and combinations, in result order
  std::vector<fmCaseResults> results;  // one per entry of cases
  std::vector<fmEigenMode> eigenModes;
  std::vector<fmSpectrumMode> spectrumModes;
  fmCaseResults spectrum;  // the response-spectrum modal combination
  std::vector<NodalLoad> nodalLoads;
  std::vector<NodalMass> nodalMasses;
  fmConcreteDesign concreteDesign;

  bool operator==(const fmSolution&) const = default;
  // Nothing solved and nothing recorded: a document without a results section.
  bool IsEmpty() const {
    fmSolution none;
    none.units = units;
    return *this == none;
  }
};

// Names of the six degrees of freedom: "X", "Y", "Z", "OX", "OY", "OZ".
const std::array<const char*, 6>& DofNames();
