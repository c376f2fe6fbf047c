#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "model/fm_result.h"

// Result records of members, shells and bricks, and the design records made from them.
// Shell points are numbered 0 for the centre and 1 to 4 for the shell's nodes in order;
// brick points 0 for the centre and 1 to 8 for its nodes.

inline constexpr int kShellPoints = 5;
inline constexpr int kBrickPoints = 9;

// One station along a member: its distance from the start node (length unit), the internal
// forces Fx (axial), Fy (major shear), Fz (minor shear), Mx (torsion), My (minor moment),
// Mz (major moment), and the deflections Dy (major) and Dz (minor) in the member's axes.
struct fmBmStation {
  double distance = 0;
  std::array<double, 6> force{};
  double Dy = 0, Dz = 0;

  bool operator==(const fmBmStation&) const = default;
};

// A member's stations, from its start node to its end node.
struct fmBmVMD {
  int32_t number = 0;
  std::vector<fmBmStation> m_VMD;

  bool operator==(const fmBmVMD&) const = default;
};

// A member's force envelope: per station its distance and the maxima and minima of the six
// forces with the 0-based index of the case or combination that gives each.
struct fmEnvelopeBmVMD {
  int32_t number = 0;
  std::vector<double> distance;
  std::vector<fmEnvelopeValue6> station;  // `number` of each is the station's position
};

// Forces and moments per length of a shell at its five points: Fxx, Fyy, Fxy (membrane),
// Mxx, Myy, Mxy (bending and twisting), Vxx, Vyy (transverse shear), in the shell's axes.
struct fmShellForce {
  int32_t number = 0;
  std::array<std::array<double, 8>, kShellPoints> point{};

  bool operator==(const fmShellForce&) const = default;
};

// What a shell's nodes carry: per node Fx, Fy, Fz and Mx, My in the shell's axes (a shell
// node has no drilling moment result).
struct fmShellNodalResultant {
  int32_t number = 0;
  std::array<std::array<double, 5>, 4> node{};

  bool operator==(const fmShellNodalResultant&) const = default;
};

// Stresses of one face of a shell (top: the local +z face) at its five points: Sxx, Syy,
// Szz, Sxy, Sxz, Syz.
struct fmShellStress {
  int32_t number = 0;
  std::array<std::array<double, 6>, kShellPoints> point{};

  bool operator==(const fmShellStress&) const = default;
};

// Stresses of a brick at its centre and eight nodes, global axes: Sx, Sy, Sz, Sxy, Syz, Sxz.
struct fmBrickStress {
  int32_t number = 0;
  std::array<std::array<double, 6>, kBrickPoints> point{};

  bool operator==(const fmBrickStress&) const = default;
};

// Wood-Armer design moments of a shell at its five points: Bot-Mux, Bot-Muy (not below 0),
// Top-Mux, Top-Muy (not above 0), each with the 0-based index of the combination that
// governs it (-1 when no combination took part).
struct fmWoodArmerMoment {
  int32_t number = 0;
  std::array<std::array<double, 4>, kShellPoints> moment{};
  std::array<std::array<int32_t, 4>, kShellPoints> comb{};
};

// The member envelope of concrete design, per station: the largest and smallest major
// moment Mz and the largest absolute major shear Fy over the concrete-design combinations,
// each with the 0-based index of its combination.
struct fmBmDesignEnvelope {
  struct Station {
    double distance = 0;
    double maxMz = 0, minMz = 0, absFy = 0;
    int32_t maxMzComb = -1, minMzComb = -1, absFyComb = -1;
  };
  int32_t number = 0;
  std::vector<Station> station;
};

// The results of a concrete design run, as its reports show them. Nothing in this program
// designs concrete; a host that does writes these records into the results section.
struct fmConcreteDesign {
  // Flexure of a beam at a station; an area of -1 means the section is too small.
  struct Beam {
    int32_t member = 0;
    double distance = 0;
    double botMu = 0, botAs = 0;
    int32_t botComb = 0;  // 0-based
    double topMu = 0, topAs = 0;
    int32_t topComb = 0;
    bool operator==(const Beam&) const = default;
  };
  // The governing check of a column.
  struct Column {
    int32_t member = 0;
    std::string section;
    double unityCheck = 0;
    int32_t comb = 0;  // 0-based
    double distance = 0;
    double Pu = 0, Muz = 0, Muy = 0;
    double MzFactor = 1, MyFactor = 1, betaD = 0;
    double As = 0, rho = 0;  // steel area, ratio in percent
    bool operator==(const Column&) const = default;
  };
  // Shear reinforcement at a station; a spacing of 0 means no stirrup is needed, -1 that the
  // section is too small.
  struct Shear {
    int32_t member = 0;
    double distance = 0;
    std::string size;
    int32_t legs = 0;
    double shear = 0, axial = 0, spacing = 0, phiVc = 0;
    int32_t comb = 0;  // 0-based
    bool operator==(const Shear&) const = default;
  };
  // A plate's design at its five points: depth used, the four Wood-Armer moments and the
  // four steel areas per length; `failed` when the design found no answer.
  struct Plate {
    int32_t shell = 0;
    bool failed = false;
    std::array<std::array<double, 9>, kShellPoints> point{};  // H, 4 moments, 4 areas
    bool operator==(const Plate&) const = default;
  };
  std::vector<Beam> beams;
  std::vector<Column> columns;
  std::vector<Shear> shear;
  std::vector<Plate> plates;

  bool operator==(const fmConcreteDesign&) const = default;
  bool empty() const { return beams.empty() && columns.empty() && shear.empty() && plates.empty(); }
};
