#pragma once
#include "dialogs/results/sample_struct.h"

// The sample structure with elements and their results: member 10 (node 1 to 3, a column
// 12 ft long, three stations) and member 11 (node 2 to 4, two stations), shell 20 on nodes
// 1, 2, 4, 3 and brick 30. Load cases "Dead" and "Wind X" hold element results; "D+W" is the
// combination 1.2 Dead + 1.0 Wind X, flagged for concrete design, stored without element
// results so that it is formed from its cases.
inline fmBmStation Station(double distance, std::array<double, 6> force, double dy = 0, double dz = 0) {
  fmBmStation s;
  s.distance = distance;
  s.force = force;
  s.Dy = dy;
  s.Dz = dz;
  return s;
}

inline CfmStruct ElementSample() {
  CfmStruct s = SampleStruct();
  CfmStruct::Member a, b;
  a.id = 10;
  a.node = {1, 3};
  a.rcCriteria = "Beam-1";
  b.id = 11;
  b.node = {2, 4};
  s.m_Members = {a, b};
  CfmStruct::Shell4 shell;
  shell.id = 20;
  shell.node = {1, 2, 4, 3};
  s.m_Shells = {shell};
  CfmStruct::Brick brick;
  brick.id = 30;
  brick.node = {1, 2, 4, 3, 1, 2, 4, 3};
  s.m_Bricks = {brick};
  fmLoadComb comb("D+W");
  comb.concreteDesign = 1;
  comb.items = {{"Dead", 1.2}, {"Wind X", 1.0}};
  s.m_LoadCombs = {comb};

  fmCaseResults& dead = s.m_Solution.results[0];
  dead.memberStations = {
      {10, {Station(0, {-10, 1, 0, 0, 0, 6}), Station(6, {-10, 1, 0, 0, 0, 0}, -0.1), Station(12, {-10, 1, 0, 0, 0, -6})}},
      {11, {Station(0, {-20, 0, 0, 0, 0, 0}), Station(12, {-20, 0, 0, 0, 0, 0})}}};
  fmCaseResults& wind = s.m_Solution.results[1];
  wind.memberStations = {
      {10, {Station(0, {2, -3, 0, 0, 0, -9}), Station(6, {2, -3, 0, 0, 0, 9}, 0.2), Station(12, {2, -3, 0, 0, 0, 27})}},
      {11, {Station(0, {-2, 0, 0, 0, 0, 0}), Station(12, {-2, 0, 0, 0, 0, 0})}}};
  fmShellForce f;
  f.number = 20;
  for (size_t p = 0; p < kShellPoints; ++p) f.point[p] = {1, 2, 3, 10, -2, 5, 0.5, 0.25};
  dead.shellForces = {f};
  for (size_t p = 0; p < kShellPoints; ++p) f.point[p] = {0, 0, 0, -4, 1, 1, 0, 0};
  wind.shellForces = {f};
  fmShellStress top, bottom;
  top.number = bottom.number = 20;
  for (size_t p = 0; p < kShellPoints; ++p) {
    top.point[p] = {0, 0, 0, 10, 0, 0};
    bottom.point[p] = {3, -1, 0, 0, 0, 0};
  }
  dead.shellStresses = {std::vector<fmShellStress>{top}, std::vector<fmShellStress>{bottom}};
  fmBrickStress bs;
  bs.number = 30;
  for (size_t p = 0; p < kBrickPoints; ++p) bs.point[p] = {-6, 0, 0, 0, 0, 0};
  dead.brickStresses = {bs};
  return s;
}
