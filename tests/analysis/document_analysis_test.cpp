#include <gtest/gtest.h>

#include <cmath>

#include "analysis/document_analysis.h"
#include "model/document_helpers.h"
#include "model/response_spectrum_manager.h"

namespace {

using doc_test::Example;
using doc_test::Parse;

std::array<double, 3> ForceSum(const std::vector<fmResult6Val>& records) {
  std::array<double, 3> sum{};
  for (const auto& r : records)
    for (size_t d = 0; d < 3; ++d) sum[d] += r.v[d];
  return sum;
}

// The example solved: for every load case and combination the support and spring reactions
// give back (to 1e-9) the nodal loads of its cases (read from the document's own load records), and the
// modes and the response spectrum land in their records.
TEST(DocumentAnalysis, ExampleReactionsBalanceItsLoadsAndModesAreWritten) {
  model::ModelDocument doc = Example();
  // Only the nodal loads, whose sum is plain to add up here.
  for (fmCaseLoad& cl : doc.caseLoads) {
    fmCaseLoad nodalOnly;
    nodalOnly.nodal = cl.nodal;
    cl = std::move(nodalOnly);
  }
  analysis::AnalysisRequest request;
  request.modes = 6;
  request.spectra = model::DefaultSpectra();
  const auto summary = analysis::AnalyseDocument(doc, request);
  const fmSolution& s = doc.results;
  ASSERT_EQ(s.cases.size(), doc.loadCases.size() + doc.loadCombs.size());
  for (size_t i = 0; i < s.cases.size(); ++i) {
    std::array<double, 3> applied{};
    auto addCase = [&](const std::string& name, double factor) {
      for (const auto& l : doc.caseLoads[static_cast<size_t>(FindCaseIndex(doc.loadCases, name))].nodal)
        if (l.direction < 3) applied[static_cast<size_t>(l.direction)] += factor * l.magnitude;
    };
    if (i < doc.loadCases.size())
      addCase(doc.loadCases[i].name, 1);
    else
      for (const auto& item : doc.loadCombs[i - doc.loadCases.size()].items) addCase(item.caseName, item.factor);
    const fmCaseResults& r = s.results[i];
    EXPECT_EQ(r.displacements.size(), doc.nodes.size());
    EXPECT_EQ(r.reactions.size(), doc.supports.size());
    EXPECT_EQ(r.nodalSpringReactions.size(), doc.nodalSprings.size());
    const auto supports = ForceSum(r.reactions), springs = ForceSum(r.nodalSpringReactions);
    const double scale = std::max({std::abs(applied[0]), std::abs(applied[1]), std::abs(applied[2]), 1.0});
    for (size_t d = 0; d < 3; ++d)
      EXPECT_LT(std::abs(supports[d] + springs[d] + applied[d]), 1e-9 * scale) << s.cases[i].name << " direction " << d;
  }
  ASSERT_EQ(s.eigenModes.size(), 6u);
  for (const fmEigenMode& m : s.eigenModes) {
    double largest = 0;
    for (const auto& r : m.shape) largest = std::max({largest, std::abs(r.v[0]), std::abs(r.v[1]), std::abs(r.v[2])});
    EXPECT_NEAR(largest, 1, 1e-12);
  }
  EXPECT_LE(s.eigenModes[0].omega2, s.eigenModes[5].omega2);
  EXPECT_EQ(s.spectrumModes.size(), 6u);
  EXPECT_EQ(s.spectrum.reactions.size(), doc.supports.size());
  EXPECT_EQ(summary.lines.front().rfind("Static: 7 load cases, 4 combinations", 0), 0u) << summary.lines.front();
}

// A cantilever in the example's units (ft, kip, ksi; displacements in inches): the tip moves
// P L³ / 3EI = 1 kip × (120 in)³ / (3 × 29000 ksi × 999 in⁴) = 0.0198820 in.
TEST(DocumentAnalysis, UnitsOfTheDocumentAreHonoured) {
  const std::string text = R"(, "units": {"unit": [1, 0, 16, 40, 24, 56, 72, 0, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88]},
    "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}, {"id": 2, "x": 10, "y": 0, "z": 0}],
    "loadCases": [{"number": 1, "label": "P", "type": "Dead-D"}],
    "materials": [{"id": 1, "label": "Steel", "E": 29000, "nu": 0.3, "density": 0, "Tc": 0, "fc": 3, "fy": 50, "fys": 65}],
    "sections": [{"id": 1, "label": "S", "A": 0.184028, "Iz": 0.0481771, "Iy": 0.0174576, "J": 0.000195795}],
    "members": [{"id": 1, "nodes": [1, 2], "material": 1, "section": 1}],
    "supports": [{"node": 1, "restraints": "111111"}],
    "results": {"cases": [], "nodalLoads": [{"node": 2, "case": "P", "direction": "Y", "magnitude": -1}]})";
  model::ModelDocument doc = Parse(text);  // an older document: its nodal load is in the results
  analysis::AnalyseDocument(doc, {});
  const fmResult6Val& tip = doc.results.results[0].displacements[1];
  EXPECT_NEAR(tip.v[1], -1.0 * 120 * 120 * 120 / (3 * 29000 * 0.0481771 * 20736), 1e-9);
  EXPECT_NEAR(doc.results.results[0].reactions[0].v[5], 10.0, 1e-9);  // kip-ft

  // The same cantilever loaded through its case loads: the 1 kip as a point load at the tip
  // (ratio 1), then 0.1 kip/ft along the whole member, whose tip moves w L^4 / 8EI.
  const double EI = 29000 * 0.0481771 * 20736;  // kip-in^2
  doc.caseLoads[0] = fmCaseLoad{};
  doc.caseLoads[0].point = {{1, 1.0, 1, false, -1.0}};
  analysis::AnalyseDocument(doc, {});
  EXPECT_NEAR(doc.results.results[0].displacements[1].v[1], -1.0 * 120 * 120 * 120 / (3 * EI), 1e-9);
  doc.caseLoads[0] = fmCaseLoad{};
  doc.caseLoads[0].line = {{1, {0, 1}, {-0.1, -0.1}, 1, false}};
  analysis::AnalyseDocument(doc, {});
  EXPECT_NEAR(doc.results.results[0].displacements[1].v[1], -(0.1 / 12) * std::pow(120.0, 4) / (8 * EI), 1e-9);
  EXPECT_NEAR(doc.results.results[0].reactions[0].v[1], 1.0, 1e-9);  // 0.1 kip/ft over 10 ft
}

// A massless cantilever (10 ft, E 29000 ksi, Iy 362 in^4) whose case carries 1 kip down at the
// tip, with that case as combination mass: one mass of 1 kip / g at the tip, so the first
// mode is the weak-axis sway with T = 2 pi sqrt(m / (3 E Iy / L^3)) = 0.0749 s.
TEST(DocumentAnalysis, ACombinationMassMakesTheCasesGravityLoadsMasses) {
  model::ModelDocument doc = Parse(R"(, "units": {"unit": [1, 0, 16, 40, 24, 56, 72, 0, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88]},
    "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}, {"id": 2, "x": 10, "y": 0, "z": 0}],
    "loadCases": [{"number": 1, "label": "P", "type": "Dead-D"}],
    "materials": [{"id": 1, "label": "Steel", "E": 29000, "nu": 0.3, "density": 0, "Tc": 0, "fc": 3, "fy": 50, "fys": 65}],
    "sections": [{"id": 1, "label": "S", "A": 0.184028, "Iz": 0.0481771, "Iy": 0.0174576, "J": 0.000195795}],
    "members": [{"id": 1, "nodes": [1, 2], "material": 1, "section": 1}],
    "supports": [{"node": 1, "restraints": "111111"}],
    "caseLoads": [{"case": "P", "point": [{"member": 1, "ratio": 1, "direction": "Y", "magnitude": -1}],
                   "massFactor": 1}])");
  analysis::AnalysisRequest request;
  request.modes = 1;
  analysis::AnalyseDocument(doc, request);
  ASSERT_EQ(doc.results.eigenModes.size(), 1u);
  const double m = 1.0 / 386.08858267716535, k = 3 * 29000 * 0.0174576 * 20736 / std::pow(120.0, 3);
  const double period = 2 * 3.141592653589793 / std::sqrt(doc.results.eigenModes[0].omega2);
  EXPECT_NEAR(period, 2 * 3.141592653589793 * std::sqrt(m / k), 1e-9);
  EXPECT_NEAR(period, 0.0749, 1e-4);
}

// A refused analysis names what is wrong and leaves the document as it was.
TEST(DocumentAnalysis, RefusalLeavesTheDocumentUntouched) {
  model::ModelDocument doc = Example();
  doc.supports.clear();
  const model::ModelDocument before = doc;
  try {
    analysis::AnalyseDocument(doc, {});
    ADD_FAILURE() << "an unsupported model was solved";
  } catch (const analysis::AnalysisError& e) {
    EXPECT_NE(std::string(e.what()).find("is free to move"), std::string::npos) << e.what();
  }
  EXPECT_TRUE(doc.results == before.results);

  doc.members[0].nodes[1] = 999;
  EXPECT_THROW(analysis::AnalyseDocument(doc, {}), analysis::AnalysisError);
}

}  // namespace
