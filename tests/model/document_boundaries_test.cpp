#include <gtest/gtest.h>

#include "dialogs/grid/sheet.h"
#include "dialogs/results/info_sheets.h"
#include "dialogs/results/nodal_reports.h"
#include "model/convert_units.h"
#include "model/document_helpers.h"
#include "model/solved_structure.h"
#include "tools/fm_exception.h"

using namespace doc_test;

namespace {

// Nodes 1 (footing, 3 ft below the supports), 2 and 3 on the support level, 4 and 5 on the
// floors at 12 and 24 ft; member 7 and shell 8 between them. Units of the building example:
// ft, kip, displacements in inches.
const char* kModel = R"(, "units": {"unit": [1, 0, 16, 40, 24, 56, 72, 0, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88]},
  "nodes": [{"id": 1, "x": 0, "y": -3, "z": 0}, {"id": 2, "x": 0, "y": 0, "z": 0}, {"id": 3, "x": 20, "y": 0, "z": 0},
            {"id": 4, "x": 0, "y": 12, "z": 0}, {"id": 5, "x": 0, "y": 24, "z": 0}],
  "members": [{"id": 7, "nodes": [2, 4], "material": 1, "section": 1}],
  "shells": [{"id": 8, "nodes": [2, 3, 5, 4], "material": 1, "thickness": 1}])";

model::ModelDocument Everything() {
  model::ModelDocument doc = Parse(kModel);
  fmSupport settled = fmSupport::Fixed(2);
  settled.displacement = {0, -0.25, 0, 0, 0.001, 0};
  doc.supports = {settled, fmSupport::Pinned(3)};
  doc.nodalSprings = {{1, {50, 50, 75, 0, 0, 1200}}};
  fmCoupledSpring coupled;
  coupled.node = 3;
  for (int t = 0; t < 21; ++t) coupled.k[static_cast<size_t>(t)] = t + 0.5;
  doc.coupledSprings = {coupled};
  doc.lineSprings = {{7, {0, 12.5, 0}}};
  doc.surfaceSprings = {{8, {0, 0, 3}}};
  fmMemberRelease pinned;
  pinned.member = 7;
  pinned.released[0][4] = pinned.released[0][5] = true;
  pinned.released[1][5] = true;
  doc.releases = {pinned};
  doc.constraints = {{1, {4, 5}, {0, 0}}, {2, {4, 5}, {2, 5}}};
  fmDiaphragm floor;
  floor.id = 1;
  floor.master = 4;
  floor.level = 12;
  fmDiaphragm set;
  set.id = 2;
  set.master = 5;
  set.byLevel = false;
  set.nodes = {5, 3};
  doc.diaphragms = {floor, set};
  doc.driftNodes = {4, 5};
  doc.envelopeCombinations = {"Dead", "D+L"};
  return doc;
}

}  // namespace

TEST(BoundaryRecords, EveryKindSurvivesWritingAndReading) {
  const model::ModelDocument doc = Everything();
  const std::string text = model::SerializeModelDocument(doc);
  EXPECT_NE(text.find("\"releases\""), std::string::npos);
  EXPECT_NE(text.find("\"displacements\""), std::string::npos);
  const model::ModelDocument back = RoundTrip(doc);
  EXPECT_EQ(back.supports, doc.supports);
  EXPECT_EQ(back.nodalSprings, doc.nodalSprings);
  EXPECT_EQ(back.coupledSprings, doc.coupledSprings);
  EXPECT_EQ(back.lineSprings, doc.lineSprings);
  EXPECT_EQ(back.surfaceSprings, doc.surfaceSprings);
  EXPECT_EQ(back.releases, doc.releases);
  EXPECT_EQ(back.constraints, doc.constraints);
  EXPECT_EQ(back.diaphragms, doc.diaphragms);
  EXPECT_EQ(back.driftNodes, doc.driftNodes);
  EXPECT_EQ(back.envelopeCombinations, doc.envelopeCombinations);
  EXPECT_EQ(back.releases[0].Text(), "000011000001");
  // Nothing of these goes into the results any more.
  EXPECT_EQ(text.find("\"results\""), std::string::npos);
}

TEST(BoundaryRecords, RecordsThatDoNotFitTheModelAreRefusedWithTheirPlace) {
  const std::pair<const char*, const char*> cases[] = {
      {R"(, "nodalSprings": [{"node": 6, "k": [1, 1, 1, 0, 0, 0]}])", "/nodalSprings/0/node: node 6 is not in \"nodes\""},
      {R"(, "nodalSprings": [{"node": 1, "k": [1, 1, 1, 0, 0, 0]}, {"node": 1, "k": [2, 2, 2, 0, 0, 0]}])",
       "/nodalSprings/1/node: node 1 already has one (/nodalSprings/0)"},
      {R"(, "nodalSprings": [{"node": 1, "k": [1, 1, 1]}])",
       "/nodalSprings/0/k: expected 6 numbers: Kx, Ky, Kz, Kox, Koy, Koz"},
      {R"(, "lineSprings": [{"member": 9, "k": [1, 1, 1]}])", "/lineSprings/0/member: member 9 is not in \"members\""},
      {R"(, "surfaceSprings": [{"shell": 7, "k": [1, 1, 1]}])", "/surfaceSprings/0/shell: shell 7 is not in \"shells\""},
      {R"(, "releases": [{"member": 7, "start": "0000110"}])",
       "/releases/0/start: expected six digits 0 or 1 for Fx, Fy, Fz, Mx, My, Mz (1 released), not \"0000110\""},
      {R"(, "constraints": [{"id": 1, "node1": 4, "dof1": "X", "node2": 5, "dof2": "W"}])",
       "/constraints/0/dof2: expected one of X, Y, Z, OX, OY, OZ, not \"W\""},
      {R"(, "constraints": [{"id": 1, "node1": 4, "dof1": "OZ", "node2": 4, "dof2": "oz"}])",
       "/constraints/0/dof2: a degree of freedom cannot be constrained to itself"},
      {R"(, "constraints": [{"id": 1, "node1": 4, "dof1": "X", "node2": 5, "dof2": "X"},
                             {"id": 1, "node1": 4, "dof1": "Z", "node2": 5, "dof2": "Z"}])",
       "/constraints/1/id: constraint 1 already has one (/constraints/0)"},
      {R"(, "diaphragms": [{"id": 1, "master": 4, "level": 12, "nodes": [4, 5]}])",
       "/diaphragms/0: a diaphragm has either a \"level\" or \"nodes\""},
      {R"(, "diaphragms": [{"id": 1, "master": 5, "level": 12}])", "/diaphragms/0/master: node 5 is not at the level 12"},
      {R"(, "diaphragms": [{"id": 1, "master": 5, "nodes": [4, 9]}])", "/diaphragms/0/nodes/1: node 9 is not in \"nodes\""},
      {R"(, "driftNodes": [4, 5, 4])", "/driftNodes/2: node 4 is already in the drift stack (/driftNodes/0)"},
      {R"(, "supports": [{"node": 2, "restraints": "111000", "displacements": [0, 0, 0, 0.01, 0, 0]}])",
       "/supports/0/displacements/3: a displacement is prescribed only where the support restrains the node"},
  };
  for (const auto& [body, refusal] : cases) EXPECT_EQ(Refusal(kModel + std::string(body)), refusal) << body;
}

// An older document kept supports, springs, the drift stack and the envelope list only as
// copies in its results, in the results' units (here lb and inches against the model's kip
// and feet): they become the model's records, converted; copies at nodes the model does not
// have are left out; the next save writes them in the model's sections only.
TEST(BoundaryRecords, CopiesInAnOlderResultsSectionBecomeTheModelsRecords) {
  const std::string results = R"(, "results": {
      "units": {"unit": [0, 0, 15, 37, 21, 53, 69, 0, 101, 103, 69, 85, 5, 69, 37, 105, 69, 85]},
      "cases": [{"label": "Dead"}],
      "supports": [{"node": 2, "flag": "111111", "values": [0, -0.5, 0, 0, 0, 0]}, {"node": 99, "flag": "111111"}],
      "nodalSprings": [{"node": 1, "flag": "111000", "k": [50000, 50000, 50000, 0, 0, 12000]}],
      "coupledSprings": [{"node": 3, "k": [1000, 0, 0, 2000, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 12000, 0, 0, 0, 0, 0]}],
      "driftNodes": [4, 77, 5],
      "envelopeCombinations": ["Dead"]})";
  const model::ModelDocument doc = Parse(kModel + results);
  ASSERT_EQ(doc.supports.size(), 1u);
  EXPECT_EQ(doc.supports[0].node, 2u);
  EXPECT_DOUBLE_EQ(doc.supports[0].displacement[1], -0.5);  // inches both
  ASSERT_EQ(doc.nodalSprings.size(), 1u);
  EXPECT_DOUBLE_EQ(doc.nodalSprings[0].k[0], 50.0);  // 50000 lb/in = 50 kip/in
  EXPECT_DOUBLE_EQ(doc.nodalSprings[0].k[5], 1.0);   // 12000 lb-in/rad = 1 kip-ft/rad
  ASSERT_EQ(doc.coupledSprings.size(), 1u);
  EXPECT_DOUBLE_EQ(doc.coupledSprings[0].k[0], 1.0);   // lb/in to kip/in
  EXPECT_DOUBLE_EQ(doc.coupledSprings[0].k[3], 2.0);   // lb/rad to kip/rad
  EXPECT_DOUBLE_EQ(doc.coupledSprings[0].k[15], 1.0);  // lb-in/rad to kip-ft/rad
  EXPECT_EQ(doc.driftNodes, (std::vector<uint32_t>{4, 5}));
  EXPECT_EQ(doc.envelopeCombinations, std::vector<std::string>{"Dead"});

  const std::string saved = model::SerializeModelDocument(doc);
  EXPECT_EQ(saved.find("\"flag\""), std::string::npos) << saved;
  EXPECT_EQ(RoundTrip(doc).nodalSprings, doc.nodalSprings);

  // The model's own section wins over the copies.
  const model::ModelDocument own = Parse(kModel + std::string(R"(, "driftNodes": [5])") + results);
  EXPECT_EQ(own.driftNodes, std::vector<uint32_t>{5});
  EXPECT_EQ(own.nodalSprings.size(), 1u);
}

// A copy too large for the model's units is left out, so the model saves and opens again.
TEST(BoundaryRecords, ACopyThatWouldNotBeAFiniteNumberIsLeftOut) {
  std::string model = kModel;
  const std::string kipPerInch = "71, 39, 108", poundPerInch = "71, 37, 108";
  model.replace(model.find(kipPerInch), kipPerInch.size(), poundPerInch);  // the model's springs in lb/in
  const model::ModelDocument doc = Parse(model + R"(, "results": {
      "units": {"unit": [1, 0, 16, 40, 24, 56, 72, 0, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88]},
      "nodalSprings": [{"node": 1, "flag": "100000", "k": [1e306, 0, 0, 0, 0, 0]},
                       {"node": 2, "flag": "100000", "k": [2, 0, 0, 0, 0, 0]}]})");
  ASSERT_EQ(doc.nodalSprings.size(), 1u);
  EXPECT_EQ(doc.nodalSprings[0].node, 2u);
  EXPECT_DOUBLE_EQ(doc.nodalSprings[0].k[0], 2000.0);  // 2 kip/in
  EXPECT_NO_THROW(RoundTrip(doc));
}

// Converted values checked against published conversions: 1 kip/in = 175.1268 kN/m,
// 1 kip-ft = 1.355818 kN-m, 1 kip = 4.448222 kN, 1 ksf = 47.88026 kN/m², 1 kip/ft³ =
// 157.0875 kN/m³, 1 in = 25.4 mm, 1 ft = 0.3048 m.
TEST(BoundaryRecords, AUnitChangeConvertsStiffnessesDisplacementsAndLevels) {
  model::ModelDocument doc = Everything();
  fmUnit to = doc.units;
  to.unit[fmUnit::Length] = 4;                 // m
  to.unit[fmUnit::Force] = 18;                 // kN
  to.unit[fmUnit::Displacement] = 2;           // mm
  to.unit[fmUnit::NodeSpring] = 46;            // kN/m
  to.unit[fmUnit::NodeRotationalSpring] = 114;  // kN-m/rad
  to.unit[fmUnit::LineSpring] = 78;            // kN/m^2
  to.unit[fmUnit::AreaSpring] = 94;            // kN/m^3
  to.convert.fill(1);
  model::ChangeDocumentUnits(doc, to);
  const auto near = [](double got, double want) { EXPECT_NEAR(got, want, 2e-6 * std::abs(want)); };
  near(doc.nodalSprings[0].k[0], 50 * 175.12684);
  near(doc.nodalSprings[0].k[2], 75 * 175.12684);
  near(doc.nodalSprings[0].k[5], 1200 * 1.3558179);
  near(doc.coupledSprings[0].k[0], 0.5 * 175.12684);   // Kx_Kx
  near(doc.coupledSprings[0].k[3], 3.5 * 4.4482216);   // Kx_Kox, force per radian
  near(doc.coupledSprings[0].k[20], 20.5 * 1.3558179);  // Koz_Koz
  near(doc.lineSprings[0].k[1], 12.5 * 47.880259);
  near(doc.surfaceSprings[0].k[2], 3 * 157.08746);
  near(doc.supports[0].displacement[1], -0.25 * 25.4);
  EXPECT_DOUBLE_EQ(doc.supports[0].displacement[4], 0.001);  // radians stay
  near(doc.diaphragms[0].level, 12 * 0.3048);
  // The master stays on its level.
  EXPECT_NEAR(doc.nodes[3].y, doc.diaphragms[0].level, 1e-12);

  // Without the convert flags the numbers stay and are read in the new units.
  model::ModelDocument kept = Everything();
  to.convert.fill(0);
  model::ChangeDocumentUnits(kept, to);
  EXPECT_EQ(kept.nodalSprings, Everything().nodalSprings);
}

TEST(BoundaryRecords, AStiffnessTooLargeForTheNewUnitsRefusesTheChange) {
  model::ModelDocument doc = Everything();
  doc.lineSprings[0].k[0] = 1e307;
  const model::ModelDocument before = doc;
  fmUnit to = doc.units;
  to.unit[fmUnit::LineSpring] = 75;  // N/m^2
  to.convert.fill(1);
  EXPECT_THROW(model::ChangeDocumentUnits(doc, to), fmException);
  EXPECT_EQ(doc.lineSprings, before.lineSprings);
  EXPECT_EQ(doc.units, before.units);
}

// The drift of the first floor is measured from the supports' level, not from the footing
// below it, although the results list no supports: 0.5 in over 12 ft is 0.347 %
// (over 15 ft from the footing it would be 0.278 %).
TEST(BoundaryRecords, DriftIsMeasuredFromTheSupportLevelWhenResultsListNoSupports) {
  const model::ModelDocument doc = Parse(kModel + std::string(R"(, "loadCases": [{"number": 1, "label": "Wind"}],
      "supports": [{"node": 2, "restraints": "111111"}, {"node": 3, "restraints": "111111"}],
      "driftNodes": [4, 5],
      "results": {"cases": [{"label": "Wind", "displacements": [[1, 0, 0, 0, 0, 0, 0], [2, 0, 0, 0, 0, 0, 0],
          [3, 0, 0, 0, 0, 0, 0], [4, 0.5, 0, 0.25, 0, 0, 0], [5, 1.1, 0, 0.25, 0, 0, 0]]}]})"));
  const CfmStruct s = model::SolvedStructure(doc);
  EXPECT_EQ(s.BaseLevel(), 0.0);
  grid::Sheet sheet;
  const results::ReportContext ctx{sheet, s, 33};
  results::Story_Drift(ctx, 0, s.m_Solution.results[0].displacements);
  ASSERT_EQ(sheet.MaxRows(), 2);
  EXPECT_EQ(sheet.GetData(2, 1), "12.000");
  EXPECT_EQ(sheet.GetData(5, 1), "0.347 %");
  EXPECT_EQ(sheet.GetData(8, 1), "0.174 %");  // 0.25 in over 144 in
  EXPECT_EQ(sheet.GetData(5, 2), "0.417 %");  // 0.6 in over 144 in
}

TEST(BoundaryRecords, RemovingNodesTakesTheRecordsThatNameThem) {
  model::ModelDocument doc = Everything();
  std::erase_if(doc.nodes, [](const fmNd& n) { return n.id == 5; });
  const size_t changed = model::RemoveBoundariesAtMissingObjects(doc);
  EXPECT_EQ(doc.constraints.size(), 0u);
  EXPECT_EQ(doc.driftNodes, std::vector<uint32_t>{4});
  ASSERT_EQ(doc.diaphragms.size(), 1u);  // the set's master was node 5
  EXPECT_EQ(doc.diaphragms[0].id, 1u);
  EXPECT_EQ(changed, 4u);
  EXPECT_NO_THROW(RoundTrip(doc));
}

namespace {

std::vector<std::string> SectionOf(const std::vector<std::string>& lines, const std::string& heading) {
  auto at = std::find(lines.begin(), lines.end(), heading);
  if (at == lines.end()) return {"(no " + heading + ")"};
  auto end = std::find_if(at + 1, lines.end(), [](const std::string& l) { return l.rfind("**", 0) == 0; });
  return {at + 1, end};
}

}  // namespace

// The information sheets read the model's records, in the model's units, with the display
// formats of their quantities; the results hold none of them.
TEST(BoundaryRecords, InformationSheetsShowTheModelsSupportsAndSprings) {
  model::ModelDocument doc = Everything();
  doc.display.format.fill(1);                   // two decimals
  doc.display.format[fmUnit::NodeSpring] = 0;   // one
  const CfmStruct s = model::SolvedStructure(doc);
  using Lines = std::vector<std::string>;
  Lines lines;
  ASSERT_TRUE(results::GetNodeInfo(s, lines, 2));
  EXPECT_EQ(SectionOf(lines, "**SUPPORT"), (Lines{"  Flag: 111111", "  Dx = 0.00;  Dy = -0.25;  Dz = 0.00 (in)",
                                                  "  Dox = 0.000;  Doy = 0.001;  Doz = 0.000 (rad)"}));
  EXPECT_EQ(SectionOf(lines, "**NODAL SPRING"), Lines{"  None"});

  ASSERT_TRUE(results::GetNodeInfo(s, lines, 1));
  EXPECT_EQ(SectionOf(lines, "**SUPPORT"), Lines{"  None"});
  EXPECT_EQ(SectionOf(lines, "**NODAL SPRING"), (Lines{"  Flag: 111001", "  Kx = 50.0;  Ky = 50.0;  Kz = 75.0 (kip/in)",
                                                       "  Kox = 0.00;  Koy = 0.00;  Koz = 1200.00 (kip-ft/rad)"}));

  ASSERT_TRUE(results::GetNodeInfo(s, lines, 3));
  const Lines coupled = SectionOf(lines, "**NODAL COUPLED SPRING");
  ASSERT_EQ(coupled.size(), 7u);
  EXPECT_EQ(coupled[0], "  Kx_Kx = 0.5;  Kx_Ky = 1.5;  Kx_Kz = 2.5; (kip/in)");
  EXPECT_EQ(coupled[2], "  Kx_Kox = 3.5;  Kx_Koy = 4.5;  Kx_Koz = 5.5 (kip/rad)");
  EXPECT_EQ(coupled[6], "  Koy_Koy = 18.50;  Koy_Koz = 19.50;  Koz_Koz = 20.50 (kip-ft/rad)");

  ASSERT_TRUE(results::GetBeamInfo(s, lines, 7));
  EXPECT_EQ(SectionOf(lines, "**LINE SPRING"), (Lines{"  Flag: 010", "  Kx = 0.00;  Ky = 12.50;  Kz = 0.00 (kip/ft^2)"}));
  ASSERT_TRUE(results::GetShell4Info(s, lines, 8));
  EXPECT_EQ(SectionOf(lines, "**SURFACE SPRING"), (Lines{"  Flag: 001", "  Kx = 0.00;  Ky = 0.00;  Kz = 3.00 (kip/ft^3)"}));
}
