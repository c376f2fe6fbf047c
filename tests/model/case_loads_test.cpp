#include <gtest/gtest.h>

#include "model/convert_units.h"
#include "model/json_reader.h"
#include "model/document_helpers.h"
#include "tools/fm_exception.h"

using namespace doc_test;

namespace {

// Two nodes, one member, one shell on four nodes, one brick, two load cases.
const std::string kModel = R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}, {"id": 2, "x": 10, "y": 0, "z": 0},
    {"id": 3, "x": 10, "y": 0, "z": 10}, {"id": 4, "x": 0, "y": 0, "z": 10},
    {"id": 5, "x": 0, "y": 5, "z": 0}, {"id": 6, "x": 10, "y": 5, "z": 0},
    {"id": 7, "x": 10, "y": 5, "z": 10}, {"id": 8, "x": 0, "y": 5, "z": 10}],
  "members": [{"id": 7, "nodes": [1, 2], "material": 0, "section": 0}],
  "shells": [{"id": 3, "nodes": [1, 2, 3, 4], "material": 0, "thickness": 0}],
  "bricks": [{"id": 9, "nodes": [1, 2, 3, 4, 5, 6, 7, 8], "material": 0}],
  "loadCases": [{"number": 1, "label": "DL", "type": "Dead"}, {"number": 2, "label": "LL", "type": "Live"}])";

std::string WithLoads(const std::string& dl, const std::string& ll = "") {
  return kModel + R"(, "caseLoads": [{"case": "DL")" + dl + R"(}, {"case": "LL")" + ll + "}]";
}

fmCaseLoad EveryKind() {
  fmCaseLoad cl;
  cl.selfWeight = {1, -1.0};
  cl.nodal = {{2, 0, 5.0}, {1, 5, -2.5}};
  cl.point = {{7, 0.25, 1, false, -10.0}, {7, 0.75, 3, true, 4.0}};
  cl.line = {{7, {0.1, 0.9}, {-1.0, -2.0}, 1, false}};
  cl.surface = {{3, 2, true, -0.05}};
  cl.area = {{{1, 2, 3, 4}, 1, -0.04, fmAreaLoad::OneWay}};
  cl.memberThermal = {{7, 30.0}};
  cl.shellThermal = {{3, -20.0}};
  cl.brickThermal = {{9, 15.0}};
  cl.nodalMasses = {{2, 0, 100.0}, {2, 4, 50.0}};
  cl.massFactor = 0.5;
  return cl;
}

}  // namespace

TEST(CaseLoads, EveryKindSurvivesSaveAndLoad) {
  model::ModelDocument doc = Parse(kModel);
  ASSERT_EQ(doc.caseLoads.size(), 2u);  // a document without the section: every case empty
  EXPECT_TRUE(doc.caseLoads[0].IsEmpty() && doc.caseLoads[1].IsEmpty());
  doc.caseLoads[1] = EveryKind();
  const std::string text = model::SerializeModelDocument(doc);
  EXPECT_NE(text.find(R"("direction": "OZ")"), std::string::npos);
  EXPECT_NE(text.find(R"("distribution": "one-way")"), std::string::npos);
  const model::ModelDocument back = model::ParseModelDocument(text, "m.json");
  EXPECT_TRUE(back.caseLoads[0].IsEmpty());
  EXPECT_EQ(back.caseLoads[1], doc.caseLoads[1]);
}

TEST(CaseLoads, RefusesLoadsItCannotPlaceWithThePlace) {
  const std::pair<std::string, std::string> cases[] = {
      {WithLoads(R"(, "nodal": [{"node": 12, "direction": "X", "magnitude": 1}])"),
       "/caseLoads/0/nodal/0/node: node 12 is not in \"nodes\""},
      {WithLoads("", R"(, "point": [{"member": 8, "ratio": 0.5, "direction": "Y", "magnitude": 1}])"),
       "/caseLoads/1/point/0/member: member 8 is not in \"members\""},
      {WithLoads(R"(, "point": [{"member": 7, "ratio": 1.5, "direction": "Y", "magnitude": 1}])"),
       "/caseLoads/0/point/0/ratio: a ratio must be from 0 to 1, not 1.5"},
      {WithLoads(R"(, "line": [{"member": 7, "startRatio": 0.6, "endRatio": 0.2, "start": 1, "end": 1,
                     "direction": "Y"}])"),
       "/caseLoads/0/line/0/endRatio: the end ratio 0.2 is before the start ratio 0.6"},
      {WithLoads(R"(, "line": [{"member": 7, "startRatio": -0.1, "start": 1, "end": 1, "direction": "Y"}])"),
       "/caseLoads/0/line/0/startRatio: a ratio must be from 0 to 1, not -0.1"},
      {WithLoads(R"(, "surface": [{"shell": 3, "direction": "OX", "magnitude": 1}])"),
       "/caseLoads/0/surface/0/direction: expected \"X\", \"Y\" or \"Z\", not \"OX\""},
      {WithLoads(R"(, "brickThermal": [{"brick": 3, "temperature": 1}])"),
       "/caseLoads/0/brickThermal/0/brick: brick 3 is not in \"bricks\""},
      {WithLoads(R"(, "area": [{"nodes": [1, 2], "direction": "Y", "magnitude": 1}])"),
       "/caseLoads/0/area/0/nodes: an area load needs at least 3 nodes, not 2"},
      {WithLoads(R"(, "area": [{"nodes": [1, 2, 44], "direction": "Y", "magnitude": 1}])"),
       "/caseLoads/0/area/0/nodes/2: node 44 is not in \"nodes\""},
      {WithLoads(R"(, "point": [{"member": 7, "ratio": 0.5, "direction": "Y", "system": "member",
                     "magnitude": 1}])"),
       "/caseLoads/0/point/0/system: expected \"global\" or \"local\", not \"member\""},
      {kModel + R"(, "caseLoads": [{"case": "LL"}, {"case": "DL"}])",
       "/caseLoads/0/case: expected the label of load case 1, \"DL\", not \"LL\""},
      {kModel + R"(, "caseLoads": [{"case": "DL"}])", "/caseLoads: expected one entry per load case (2), not 1"},
  };
  for (const auto& [body, refusal] : cases) EXPECT_EQ(Refusal(body), refusal) << body;
  EXPECT_NE(Refusal(WithLoads(R"(, "nodal": [{"node": 1, "direction": "X", "magnitude": 1e999}])")), "loaded");
}

TEST(CaseLoads, SaveRefusesANonFiniteLoadNamingIt) {
  model::ModelDocument doc = Parse(kModel);
  doc.caseLoads[1].point = {{7, 0.5, 1, false, std::numeric_limits<double>::infinity()}};
  try {
    model::SerializeModelDocument(doc);
    FAIL() << "saved an infinite load";
  } catch (const model::DocumentError& e) {
    EXPECT_EQ(e.place(), "/caseLoads/1/point/0/magnitude");
  }
}

TEST(CaseLoads, UnitChangeConvertsEachQuantityByItsFlag) {
  model::ModelDocument doc = Parse(kModel);
  doc.caseLoads[0] = EveryKind();
  doc.units.SetEnglish();
  fmUnit to = doc.units;  // English: kip, ft, kip-ft, kip/ft, ksf, deg F
  to.SetMetric();
  to.convert.fill(0);
  to.convert[fmUnit::Force] = 1;
  to.convert[fmUnit::Temperature] = 1;
  double f[fmUnit::QuantityCount];
  GetConversionFactors(f, doc.units, to);
  const fmCaseLoad before = doc.caseLoads[0];
  model::ChangeDocumentUnits(doc, to);
  const fmCaseLoad& after = doc.caseLoads[0];
  EXPECT_DOUBLE_EQ(after.nodal[0].magnitude, 5.0 * f[fmUnit::Force]);
  EXPECT_DOUBLE_EQ(after.nodal[1].magnitude, -2.5);  // a moment; Moment not flagged
  EXPECT_DOUBLE_EQ(after.point[0].magnitude, -10.0 * f[fmUnit::Force]);
  EXPECT_DOUBLE_EQ(after.point[0].ratio, 0.25);  // ratios have no unit
  EXPECT_DOUBLE_EQ(after.line[0].magnitude[1], -2.0);
  EXPECT_DOUBLE_EQ(after.memberThermal[0].temperature, 30.0 * f[fmUnit::Temperature]);
  EXPECT_DOUBLE_EQ(after.nodalMasses[0].weight, 100.0 * f[fmUnit::Force]);
  EXPECT_DOUBLE_EQ(after.selfWeight.factor, -1.0);
  EXPECT_DOUBLE_EQ(after.massFactor, 0.5);
  // A kip is 4.448 kN (independent value), a Fahrenheit degree of difference 5/9 of a Celsius one.
  ASSERT_EQ(doc.units.Label(fmUnit::Force), "kN");
  ASSERT_EQ(doc.units.Label(fmUnit::Temperature), "C");
  EXPECT_NEAR(f[fmUnit::Force], 4.4482216, 1e-6);
  EXPECT_NEAR(f[fmUnit::Temperature], 5.0 / 9.0, 1e-9);
  EXPECT_EQ(before.point[1], after.point[1]);  // a local moment with Moment not flagged
}

TEST(CaseLoads, OlderDocumentsTakeTheirNodalLoadsFromTheResults) {
  const auto doc = Parse(kModel + R"(, "results": {"nodalLoads": [
      {"node": 2, "case": "LL", "direction": "Y", "magnitude": -3},
      {"node": 99, "case": "LL", "direction": "Y", "magnitude": -3},
      {"node": 2, "case": "WIND", "direction": "X", "magnitude": 4}],
    "nodalMasses": [{"node": 1, "direction": "X", "magnitude": 7}]})");
  ASSERT_EQ(doc.caseLoads.size(), 2u);
  EXPECT_EQ(doc.caseLoads[1].nodal, (std::vector<fmNodalLoad>{{2, 1, -3.0}}));
  EXPECT_TRUE(doc.caseLoads[0].nodal.empty());
  EXPECT_EQ(doc.caseLoads[0].nodalMasses, (std::vector<fmNodalMass>{{1, 0, 7.0}}));
  EXPECT_TRUE(doc.results.nodalLoads.empty() && doc.results.nodalMasses.empty()) << "not kept as a second source";
  const std::string written = model::SerializeModelDocument(doc);
  EXPECT_EQ(written.find("\"nodalLoads\""), std::string::npos);
  EXPECT_EQ(RoundTrip(doc).caseLoads, doc.caseLoads);
}

TEST(CaseLoads, OlderCopiesAreTakenOverInTheDocumentsUnitsAndIgnoredBesideCaseLoads) {
  // Results kept in kN and m, the model in kip and ft: 4.4482216 kN is 1 kip.
  const std::string results = R"(, "results": {"units": {"unit": [4, 0, 18, 46, 30, 62, 78, 0, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88]},
    "nodalLoads": [{"node": 2, "case": "LL", "direction": "Y", "magnitude": -4.4482216152605}]})";
  const auto old = Parse(kModel + results);
  ASSERT_EQ(old.caseLoads[1].nodal.size(), 1u);
  EXPECT_NEAR(old.caseLoads[1].nodal[0].magnitude, -1.0, 1e-6);  // the unit table's kip of 4.448222 kN
  const auto both = Parse(kModel + R"(, "caseLoads": [{"case": "DL"}, {"case": "LL"}])" + results);
  EXPECT_TRUE(both.caseLoads[1].nodal.empty()) << "the case loads are the source";
}

TEST(CaseLoads, ReorderKeepsLoadsWithTheirCases) {
  std::vector<fmCaseLoad> loads(3);
  for (int i = 0; i < 3; ++i) loads[static_cast<size_t>(i)].massFactor = i + 1;
  ReorderCaseLoads(loads, {2, -1, 0});  // case 3 moved up, a new case, case 1; case 2 deleted
  ASSERT_EQ(loads.size(), 3u);
  EXPECT_EQ(loads[0].massFactor, 3);
  EXPECT_TRUE(loads[1].IsEmpty());
  EXPECT_EQ(loads[2].massFactor, 1);
}

TEST(CaseLoads, ScaleAndAppendCopyEveryKind) {
  fmCaseLoad target;
  target.point = {{7, 0.9, 1, false, 1.0}};
  fmCaseLoad source = EveryKind();
  source.Scale(2.0);
  EXPECT_DOUBLE_EQ(source.line[0].magnitude[1], -4.0);
  EXPECT_DOUBLE_EQ(source.line[0].ratio[1], 0.9);
  EXPECT_DOUBLE_EQ(source.brickThermal[0].temperature, 30.0);
  target.Append(source);
  ASSERT_EQ(target.point.size(), 3u);  // sorted by member, then ratio
  EXPECT_DOUBLE_EQ(target.point[0].ratio, 0.25);
  EXPECT_DOUBLE_EQ(target.point[2].ratio, 0.9);
  EXPECT_DOUBLE_EQ(target.selfWeight.factor, -2.0);
  EXPECT_EQ(target.area.size(), 1u);
}

TEST(CaseLoads, CopyLoadsAddsEveryKindTimesTheFactorAndDeletesTheTargetsFirstWhenAsked) {
  std::vector<fmCaseLoad> loads(2);
  loads[0] = EveryKind();
  loads[0].massFactor = 0.75;
  loads[1].nodal = {{1, 0, 9.0}};
  loads[1].massFactor = 0.5;
  auto added = loads;
  ASSERT_TRUE(CopyCaseLoads(added, 0, 1, -2.0, false));
  EXPECT_EQ(added[1].nodal, (std::vector<fmNodalLoad>{{1, 0, 9.0}, {2, 0, -10.0}, {1, 5, 5.0}}));
  EXPECT_DOUBLE_EQ(added[1].line[0].magnitude[1], 4.0);
  EXPECT_DOUBLE_EQ(added[1].selfWeight.factor, 2.0) << "-1 times -2";
  EXPECT_EQ(added[1].area.size(), 1u);
  EXPECT_EQ(added[1].nodalMasses.size(), loads[0].nodalMasses.size());
  EXPECT_EQ(added[1].massFactor, 0.5) << "a setting of the case, not a load";
  EXPECT_EQ(added[0], loads[0]);

  auto replaced = loads;
  ASSERT_TRUE(CopyCaseLoads(replaced, 0, 1, 1.0, true));
  fmCaseLoad expected = loads[0];
  expected.massFactor = 0.5;
  EXPECT_EQ(replaced[1], expected);

  for (auto [from, to, factor] : {std::tuple{0, 0, 1.0}, {0, 1, 0.0}, {0, 2, 1.0}, {0, 1, std::nan("")}}) {
    auto same = loads;
    EXPECT_FALSE(CopyCaseLoads(same, static_cast<size_t>(from), static_cast<size_t>(to), factor, true));
    EXPECT_EQ(same, loads);
  }
}
