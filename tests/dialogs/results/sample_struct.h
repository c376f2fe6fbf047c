#pragma once
#include "model/fm_struct.h"

// A small solved structure for the results tests: four nodes (1 and 2 supported at the
// base, 3 and 4 a storey above), two load cases and a combination, two eigen modes and one
// spectrum mode. Units: lengths in ft, displacements in in, forces in kip, moments in kip-ft;
// the solution is stored in the same units unless a test changes them.
inline CfmStruct SampleStruct() {
  CfmStruct s;
  s.m_Units.SetEnglish();
  s.m_DisplayFormat.fill(2);
  s.m_Nodes = {{1, 0, 0, 0, 0}, {2, 0, 20, 0, 0}, {3, 0, 0, 12, 0}, {4, 0, 20, 12, 0}};
  fmSolution& sol = s.m_Solution;
  sol.units = s.m_Units;
  sol.cases = {fmLoadCase(1, "Dead", "Dead-D"), fmLoadCase(2, "Wind X", "Wind-W"), fmLoadCase(3, "D+W")};
  sol.results.resize(3);
  sol.results[0].displacements = {{1, {}}, {2, {}}, {3, {0, -0.01, 0, 0, 0, 0}}, {4, {0, -0.02, 0, 0, 0, 0}}};
  sol.results[0].reactions = {{1, {0, 10, 0, 0, 0, 0}}, {2, {0, 20, 0, 0, 0, 0}}};
  sol.results[1].displacements = {{1, {}}, {2, {}}, {3, {0.5, 0, 0, 0, 0, 0.001}}, {4, {0.5, 0, 0, 0, 0, 0.001}}};
  sol.results[1].reactions = {{1, {-1.5, -0.9, 0, 0, 0, 9}}, {2, {-1.5, 0.9, 0, 0, 0, 9}}};
  sol.results[2].displacements = {{1, {}}, {2, {}}, {3, {0.5, -0.01, 0, 0, 0, 0.001}}, {4, {0.5, -0.02, 0, 0, 0, 0.001}}};
  sol.results[2].reactions = {{1, {-1.5, 9.1, 0, 0, 0, 9}}, {2, {-1.5, 20.9, 0, 0, 0, 9}}};
  sol.eigenModes = {{39.47841760435743, {{3, {1, 0, 0, 0, 0, 0}}}}, {157.91367041742973, {{3, {0, 0, 1, 0, 0, 0}}}}};
  fmSpectrumMode mode;
  mode.omega2 = 39.47841760435743;
  mode.displacements[0] = {{3, {0.25, 0, 0, 0, 0, 0}}};
  mode.inertialForces[0] = {{3, {2, 0, 0, 0, 0, 0}}};
  sol.spectrumModes = {mode};
  sol.spectrum.displacements = {{3, {0.25, 0, 0, 0, 0, 0}}};
  sol.spectrum.reactions = {{1, {1, 0, 0, 0, 0, 0}}};
  s.m_EnvelopeCombinations = {"dead", "D+W"};
  s.m_DriftNodes = {3};
  s.m_Supports = {fmSupport::Fixed(1), fmSupport::Fixed(2)};
  return s;
}
