#include <gtest/gtest.h>

#include <cmath>

#include "analysis/analysis_test_models.h"
#include "analysis/document_analysis.h"
#include "analysis/element_results.h"
#include "dialogs/results/report_kinds.h"
#include "model/document_helpers.h"
#include "model/solved_structure.h"

namespace {

// A 10 ft cantilever in the example's units (ft, kip, kip-ft; displacements in inches): case
// P a 1 kip tip load, case W 0.1 kip/ft along it, and the combination 1.2 P + 1.6 W.
model::ModelDocument Cantilever() {
  model::ModelDocument doc = doc_test::Parse(
      R"(, "units": {"unit": [1, 0, 16, 40, 24, 56, 72, 0, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88]},
    "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}, {"id": 2, "x": 10, "y": 0, "z": 0}],
    "loadCases": [{"number": 1, "label": "P", "type": "Dead-D"}, {"number": 2, "label": "W", "type": "Live-L"}],
    "loadCombinations": [{"label": "1.2P+1.6W", "items": [{"case": "P", "factor": 1.2}, {"case": "W", "factor": 1.6}]}],
    "materials": [{"id": 1, "label": "Steel", "E": 29000, "nu": 0.3, "density": 0, "Tc": 0}],
    "sections": [{"id": 1, "label": "S", "A": 0.184028, "Iz": 0.0481771, "Iy": 0.0174576, "J": 0.000195795}],
    "members": [{"id": 7, "nodes": [1, 2], "material": 1, "section": 1}],
    "supports": [{"node": 1, "restraints": "111111"}])");
  doc.caseLoads[0].point = {{7, 1.0, 1, false, -1.0}};
  doc.caseLoads[1].line = {{7, {0, 1}, {-0.1, -0.1}, 1, false}};
  return doc;
}

}  // namespace

// Stations in the document's units: distances in ft, moments in kip-ft, deflections in
// inches (P L³ / 3EI at the tip); the combination's stations are formed from its cases.
TEST(DocumentElementResults, MemberStationsAreWrittenInTheDocumentsUnits) {
  model::ModelDocument doc = Cantilever();
  analysis::AnalysisRequest request;
  request.memberStations = 5;
  analysis::AnalyseDocument(doc, request);
  const auto& p = doc.results.results[0].memberStations;
  ASSERT_EQ(p.size(), 1u);
  EXPECT_EQ(p[0].number, 7);
  ASSERT_EQ(p[0].m_VMD.size(), 5u);
  EXPECT_DOUBLE_EQ(p[0].m_VMD[1].distance, 2.5);
  EXPECT_NEAR(p[0].m_VMD[0].force[5], -10, 1e-9);  // kip-ft, hogging
  EXPECT_NEAR(p[0].m_VMD[2].force[1], -1, 1e-9);
  const double EI = 29000 * 0.0481771 * 20736;  // kip-in²
  EXPECT_NEAR(p[0].m_VMD[4].Dy, -120.0 * 120 * 120 / (3 * EI), 1e-9);
  EXPECT_NEAR(p[0].m_VMD[4].Dy, doc.results.results[0].displacements[1].v[1], 1e-12);
  // Nothing switches off: the combination stores none and is formed when asked.
  EXPECT_TRUE(doc.results.results[2].memberStations.empty());

  const model::ModelDocument back = model::ParseModelDocument(model::SerializeModelDocument(doc), "c.json");
  const CfmStruct s = model::SolvedStructure(back);
  fmCaseResults scratch;
  const auto& formed = s.GetElementResults(2, scratch).memberStations;
  ASSERT_EQ(formed.size(), 1u);
  EXPECT_NEAR(formed[0].m_VMD[0].force[5], 1.2 * -10 + 1.6 * -5, 1e-9);  // w L² / 2 = 5 kip-ft
  grid::Sheet sheet;
  results::BuildReport({sheet, s, 6}, 2);
  EXPECT_EQ(sheet.GetData(8, 1), "-20.000");
  EXPECT_EQ(sheet.GetData(2, 2), "100.000");
}

// The spectrum's element results: per direction the modes' values by SRSS (or ABSSUM), then
// the directions added with their factors.
TEST(DocumentElementResults, SpectrumElementResultsCombineModesAndDirections) {
  using namespace analysis_test;
  Model m = FrameModel();
  const auto nodes = Line(m, 100, 1);
  Fix(m, nodes[0]);
  Eigen::VectorXd a = Eigen::VectorXd::Zero(12), b = Eigen::VectorXd::Zero(12), zero = Eigen::VectorXd::Zero(12);
  a[6 + Uy] = 0.3;
  b[6 + Uy] = -0.4;
  b[6 + Uz] = 0.1;
  const fmUnit units;  // any units: the combination is compared with its own modes' records
  fmCaseResults ra, rb, srss, abs;
  analysis::WriteElementResults(m, a, {}, {}, units, 3, ra);
  analysis::WriteElementResults(m, b, {}, {}, units, 3, rb);
  const std::vector<std::array<Eigen::VectorXd, 3>> modes = {{a, zero, zero}, {b, zero, b}};
  analysis::WriteSpectrumElementResults(m, modes, {1.0, 0.0, 0.5}, false, units, 3, srss);
  analysis::WriteSpectrumElementResults(m, modes, {1.0, 0.0, 0.5}, true, units, 3, abs);
  const double ma = ra.memberStations[0].m_VMD[0].force[5], mb = rb.memberStations[0].m_VMD[0].force[5];
  ASSERT_NE(ma, 0);
  // X: modes a and b; Z: mode b alone, with factor 0.5.
  EXPECT_NEAR(srss.memberStations[0].m_VMD[0].force[5], std::hypot(ma, mb) + 0.5 * std::fabs(mb), 1e-9);
  EXPECT_NEAR(abs.memberStations[0].m_VMD[0].force[5], std::fabs(ma) + 1.5 * std::fabs(mb), 1e-9);
  EXPECT_DOUBLE_EQ(srss.memberStations[0].m_VMD[2].distance, ra.memberStations[0].m_VMD[2].distance);
}
