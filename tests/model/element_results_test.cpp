#include <gtest/gtest.h>

#include <cmath>

#include "dialogs/results/element_sample.h"
#include "model/document_helpers.h"
#include "model/solved_structure.h"
#include "model/wood_armer.h"
#include "tools/fm_exception.h"
#include "tools/format_number.h"
#include "tools/stress.h"

using namespace doc_test;

namespace {

std::string TwoNodesAnd(const std::string& results) {
  return R"(, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}, {"id": 2, "x": 0, "y": 12, "z": 0}], "results": )" +
         results;
}

std::string FailureOf(const std::string& results) {
  try {
    Parse(TwoNodesAnd(results));
  } catch (const model::DocumentLoadError& e) {
    return e.place() + ": " + e.problem();
  }
  return "loaded";
}

}  // namespace

TEST(ElementResultsDocument, MemberShellBrickModalAndDesignRecordsSurviveWritingAndReading) {
  model::ModelDocument doc;
  doc.nodes = SampleStruct().m_Nodes;
  doc.results = ElementSample().m_Solution;
  fmSolution& sol = doc.results;
  sol.results[1].shellResultants = {{20, {{{1, 2, 3, 4, 5}, {6, 7, 8, 9, 10}, {}, {0, 0, -1, 0, 0.5}}}}};
  sol.spectrum.memberStations = sol.results[0].memberStations;
  sol.eigenModes[0].error = 3.5e-12;
  sol.spectrumModes[0].participation = {1.25, -0.5, 0};
  sol.concreteDesign.beams = {{10, 6, 12.5, 0.44, 2, -3, -1, 0}};
  sol.concreteDesign.columns = {{11, "C12x12", 0.87, 2, 0, -20, 5, 1, 1, 1.1, 0.6, 1.76, 1.22}};
  sol.concreteDesign.shear = {{10, 0, "#4", 2, 3.2, -10, 0, 11.5, 2}};
  fmConcreteDesign::Plate plate;
  plate.shell = 20;
  plate.point[3] = {6, 1, 2, -3, -4, 0.1, 0.2, 0.3, 0.4};
  sol.concreteDesign.plates = {plate, {21, true, {}}};

  const model::ModelDocument back = model::ParseModelDocument(model::SerializeModelDocument(doc), "t.json");
  EXPECT_EQ(back.results, doc.results);
  EXPECT_EQ(back.results.results[0].memberStations[0].m_VMD[1].Dy, -0.1);
  EXPECT_TRUE(back.results.concreteDesign.plates[1].failed);
}

TEST(ElementResultsDocument, FaultyElementRecordsAreRefusedWithTheirPlace) {
  EXPECT_EQ(FailureOf(R"({"cases": [{"label": "D", "shellForces": [[20, 1, 2]]}]})"),
            "/results/cases/0/shellForces/0: expected 41 numbers: the shell number and 40 values");
  EXPECT_EQ(FailureOf(R"({"cases": [{"label": "D", "memberStations": [{"member": 3, "stations": [[0, 1, 2, 3, 4, 5, 6, 7]]}]}]})"),
            "/results/cases/0/memberStations/0/stations/0: expected 9 numbers: distance, Fx, Fy, Fz, Mx, My, Mz, Dy, Dz");
  EXPECT_EQ(FailureOf(R"({"cases": [{"label": "D", "memberStations": [{"member": 3, "stations": [[6, 0, 0, 0, 0, 0, 0, 0, 0], [2, 0, 0, 0, 0, 0, 0, 0, 0]]}]}]})"),
            "/results/cases/0/memberStations/0/stations/1/0: stations go from the start node to the end node: this one is "
            "before the one above it");
  EXPECT_EQ(FailureOf(R"({"cases": [{"label": "D", "memberStations": [{"member": 3, "stations": []}, {"member": 3, "stations": []}]}]})"),
            "/results/cases/0/memberStations/1: a second record of member 3 (the first is /results/cases/0/memberStations/0)");
  EXPECT_EQ(FailureOf(R"({"eigenModes": [{"omega2": 4, "error": -1, "shape": []}]})"),
            "/results/eigenModes/0/error: an error measure is a finite number not below 0");
}

TEST(ElementResultsModel, ACombinationWithoutElementResultsIsFormedFromItsCases) {
  const CfmStruct s = ElementSample();
  fmCaseResults scratch;
  const fmCaseResults& r = s.GetElementResults(2, scratch);
  ASSERT_EQ(&r, &scratch);
  ASSERT_EQ(r.memberStations.size(), 2u);
  const fmBmStation& mid = r.memberStations[0].m_VMD[1];
  EXPECT_DOUBLE_EQ(mid.distance, 6);
  EXPECT_DOUBLE_EQ(mid.force[5], 1.2 * 0 + 9);
  EXPECT_DOUBLE_EQ(mid.Dy, 1.2 * -0.1 + 0.2);
  EXPECT_DOUBLE_EQ(r.shellForces[0].point[2][3], 1.2 * 10 - 4);
  // Stresses only the dead load has: the wind adds nothing to them.
  EXPECT_DOUBLE_EQ(r.brickStresses[0].point[8][0], -7.2);
  // A load case keeps its own records.
  EXPECT_EQ(&s.GetElementResults(0, scratch), &s.m_Solution.results[0]);

  CfmStruct broken = s;
  broken.m_Solution.results.resize(2);  // no results of the combination at all
  EXPECT_THROW(broken.GetElementResults(2, scratch), fmException);
  broken = s;
  broken.m_LoadCombs[0].items.push_back({"Snow", 1});
  EXPECT_THROW(broken.GetElementResults(2, scratch), fmException);
}

TEST(ElementResultsModel, TheMemberEnvelopeTakesExtremesOverTheMarkedEntriesWithTiesToTheLowerIndex) {
  const CfmStruct s = ElementSample();
  std::vector<fmEnvelopeBmVMD> env;
  s.CalcBeamEnvelopVMD(env, {true, false, true});  // Dead and the formed D+W
  ASSERT_EQ(env.size(), 2u);
  const fmEnvelopeBmVMD& m = env[0];
  EXPECT_EQ(m.number, 10);
  ASSERT_EQ(m.station.size(), 3u);
  EXPECT_DOUBLE_EQ(m.distance[2], 12);
  // Mz at the start: Dead 6, D+W 1.2 * 6 - 9 = -1.8.
  EXPECT_DOUBLE_EQ(m.station[0].max[5], 6);
  EXPECT_EQ(m.station[0].maxCase[5], 0);
  EXPECT_DOUBLE_EQ(m.station[0].min[5], -1.8);
  EXPECT_EQ(m.station[0].minCase[5], 2);
  // Mz at the end: Dead -6, D+W -7.2 + 27 = 19.8.
  EXPECT_DOUBLE_EQ(m.station[2].max[5], 19.8);
  EXPECT_EQ(m.station[2].maxCase[5], 2);
  // Fx: Dead -10, D+W -12 + 2 = -10, a tie the lower index wins both ways.
  EXPECT_DOUBLE_EQ(m.station[1].max[0], -10);
  EXPECT_EQ(m.station[1].maxCase[0], 0);
  EXPECT_EQ(m.station[1].minCase[0], 0);

  s.CalcBeamEnvelopVMD(env, {false, false, false});
  EXPECT_TRUE(env.empty());
}

TEST(ElementResultsModel, ResponseSpectrumCombinationsAreThoseWithAFactorOnceASpectrumWasRun) {
  CfmStruct s = ElementSample();
  EXPECT_TRUE(s.IsResponseSpectrumLoadCombination(-1));
  EXPECT_FALSE(s.IsResponseSpectrumLoadCombination(0));  // a load case
  EXPECT_TRUE(s.IsResponseSpectrumLoadCombination(2));   // factor 1 and spectrum results
  s.m_LoadCombs[0].spectrumFactor = 0;
  EXPECT_FALSE(s.IsResponseSpectrumLoadCombination(2));
  s.m_LoadCombs[0].spectrumFactor = 0.5;
  s.m_Solution.spectrumModes.clear();
  s.m_Solution.spectrum = fmCaseResults();
  EXPECT_FALSE(s.IsResponseSpectrumLoadCombination(2));
}

// Hand calculation by the Wood-Armer rules.
// Mxx = 10, Myy = -2, Mxy = 5: bottom 10 + 5 = 15 and -2 + 5 = 3; top 10 - 5 = 5 > 0, so
// Top-Mux = 0 and Top-Muy = -2 - 25/10 = -4.5.
// Mxx = -8, Myy = 4, Mxy = 2: bottom -8 + 2 < 0, so Bot-Mux = 0 and Bot-Muy = 4 + 4/8 = 4.5;
// top -8 - 2 = -10 and 4 - 2 = 2 > 0, so Top-Muy = 0 and Top-Mux = -8 - 4/4 = -9.
TEST(WoodArmer, DesignMomentsMatchAHandCalculation) {
  model::WoodArmerMoments m = model::WoodArmer(10, -2, 5);
  EXPECT_DOUBLE_EQ(m.botMux, 15);
  EXPECT_DOUBLE_EQ(m.botMuy, 3);
  EXPECT_DOUBLE_EQ(m.topMux, 0);
  EXPECT_DOUBLE_EQ(m.topMuy, -4.5);
  m = model::WoodArmer(-8, 4, 2);
  EXPECT_DOUBLE_EQ(m.botMux, 0);
  EXPECT_DOUBLE_EQ(m.botMuy, 4.5);
  EXPECT_DOUBLE_EQ(m.topMux, -9);
  EXPECT_DOUBLE_EQ(m.topMuy, 0);
  // All hogging: no bottom steel; the top takes the moments with the twist added.
  m = model::WoodArmer(-10, -10, 2);
  EXPECT_DOUBLE_EQ(m.botMux, 0);
  EXPECT_DOUBLE_EQ(m.botMuy, 0);
  EXPECT_DOUBLE_EQ(m.topMux, -12);
  EXPECT_DOUBLE_EQ(m.topMuy, -12);
  EXPECT_FALSE(std::signbit(model::WoodArmer(10, 10, 0).topMux));
}

TEST(WoodArmer, TheEnvelopeRunsOverTheConcreteDesignCombinations) {
  const CfmStruct s = ElementSample();
  std::vector<fmWoodArmerMoment> w;
  s.CalcWoodArmerMoments(w);
  ASSERT_EQ(w.size(), 1u);
  // D+W: Mxx = 12 - 4 = 8, Myy = -2.4 + 1 = -1.4, Mxy = 6 + 1 = 7: bottom 15 and 5.6; top
  // 8 - 7 = 1 > 0, so Top-Mux = 0 and Top-Muy = -1.4 - 49/8 = -7.525.
  EXPECT_DOUBLE_EQ(w[0].moment[0][0], 15);
  EXPECT_DOUBLE_EQ(w[0].moment[0][1], 5.6);
  EXPECT_DOUBLE_EQ(w[0].moment[4][2], 0);
  EXPECT_DOUBLE_EQ(w[0].moment[4][3], -7.525);
  EXPECT_EQ(w[0].comb[0][0], 2);

  CfmStruct none = s;
  none.m_LoadCombs[0].concreteDesign = 0;
  none.CalcWoodArmerMoments(w);
  EXPECT_TRUE(w.empty());
}

TEST(ElementResultsModel, TheConcreteEnvelopeCoversMembersWithCriteriaNotExcluded) {
  CfmStruct s = ElementSample();
  std::vector<fmBmDesignEnvelope> env;
  s.CalcBeamDesignEnvelope(env);
  ASSERT_EQ(env.size(), 1u);  // member 11 has no criteria
  EXPECT_EQ(env[0].number, 10);
  EXPECT_DOUBLE_EQ(env[0].station[2].maxMz, 19.8);
  EXPECT_DOUBLE_EQ(env[0].station[2].absFy, std::fabs(1.2 * 1 - 3));
  EXPECT_EQ(env[0].station[2].absFyComb, 2);
  s.m_Members[0].rcExcluded = true;
  s.CalcBeamDesignEnvelope(env);
  EXPECT_TRUE(env.empty());
}

TEST(PrincipalStress, PlaneStatesGiveTheirPrincipalValuesAndDirections) {
  double s1, s2, angle;
  tools::Calc_Principal_Stress_2D(s1, s2, angle, 0, 0, 10);  // pure shear
  EXPECT_DOUBLE_EQ(s1, 10);
  EXPECT_DOUBLE_EQ(s2, -10);
  EXPECT_DOUBLE_EQ(angle, 45);
  EXPECT_DOUBLE_EQ(tools::VonMises(s1, s2, 0), std::sqrt(300.0));
  // Mohr's circle of (50, -10, 40): centre 20, radius 50, 2θ = atan2(80, 60).
  tools::Calc_Principal_Stress_2D(s1, s2, angle, 50, -10, 40);
  EXPECT_DOUBLE_EQ(s1, 70);
  EXPECT_DOUBLE_EQ(s2, -30);
  EXPECT_NEAR(angle, 26.56505117707799, 1e-12);
  tools::Calc_Principal_Stress_2D(s1, s2, angle, -5, 3, 0);
  EXPECT_DOUBLE_EQ(s1, 3);
  EXPECT_DOUBLE_EQ(angle, 90);
  double r;
  tools::Calc_Result_Stress_2D(r, angle, -3, 4);
  EXPECT_DOUBLE_EQ(r, 5);
  EXPECT_NEAR(angle, 126.86989764584402, 1e-12);
  tools::Calc_Result_Stress_2D(r, angle, 0, 0);
  EXPECT_EQ(angle, 0);
}

TEST(PrincipalStress, SolidStatesAreOrderedWithARightHandedSetOfDirections) {
  // Sz = 5 alone, and an xy shear of 3 about Sx = Sy = 0: principal values 5, 3, -3 with
  // the shear's directions at 45 degrees in the xy plane.
  const tools::Principal3D p = tools::PrincipalStresses3D({0, 0, 5, 3, 0, 0});
  EXPECT_NEAR(p.value[0], 5, 1e-12);
  EXPECT_NEAR(p.value[1], 3, 1e-12);
  EXPECT_NEAR(p.value[2], -3, 1e-12);
  EXPECT_NEAR(p.direction[0][2], 1, 1e-12);
  EXPECT_NEAR(p.direction[1][0], std::sqrt(0.5), 1e-12);
  EXPECT_NEAR(p.direction[1][1], std::sqrt(0.5), 1e-12);
  const auto& a = p.direction[0];
  const auto& b = p.direction[1];
  const auto& c = p.direction[2];
  EXPECT_NEAR(c[0], a[1] * b[2] - a[2] * b[1], 1e-12);
  EXPECT_NEAR(c[1], a[2] * b[0] - a[0] * b[2], 1e-12);
  EXPECT_NEAR(c[2], a[0] * b[1] - a[1] * b[0], 1e-12);
  // A general state comes back as the tensor: σ = Σ value_i v_i v_iᵀ.
  const std::array<double, 6> s = {12, -4, 7, 3, -2, 5};
  const tools::Principal3D q = tools::PrincipalStresses3D(s);
  EXPECT_GE(q.value[0], q.value[1]);
  EXPECT_GE(q.value[1], q.value[2]);
  auto component = [&](int i, int j) {
    double sum = 0;
    for (int k = 0; k < 3; ++k) sum += q.value[k] * q.direction[k][i] * q.direction[k][j];
    return sum;
  };
  EXPECT_NEAR(component(0, 0), 12, 1e-10);
  EXPECT_NEAR(component(1, 1), -4, 1e-10);
  EXPECT_NEAR(component(0, 1), 3, 1e-10);
  EXPECT_NEAR(component(1, 2), -2, 1e-10);
  EXPECT_NEAR(component(0, 2), 5, 1e-10);
  const tools::Principal3D zero = tools::PrincipalStresses3D({0, 0, 0, 0, 0, 0});
  EXPECT_EQ(zero.value[0], 0);
  EXPECT_EQ(zero.direction[2][2], 1);
}

TEST(FormatNumber, FourSignificantDigitsFixedOrExponentialByMagnitude) {
  EXPECT_EQ(tools::format_number(6.283185308 / std::sqrt(6.283185308 * 6.283185308), 4), "1");
  EXPECT_EQ(tools::format_number(0.24554, 4), "0.2455");
  EXPECT_EQ(tools::format_number(39.47841760435743, 4), "39.48");
  EXPECT_EQ(tools::format_number(1234.4, 4), "1234");
  EXPECT_EQ(tools::format_number(12345, 4), "1.234e+04");
  EXPECT_EQ(tools::format_number(99999, 4), "1e+05");
  EXPECT_EQ(tools::format_number(0.0001234, 4), "0.0001234");
  EXPECT_EQ(tools::format_number(0.00001234, 4), "1.234e-05");
  EXPECT_EQ(tools::format_number(-2.5, 4), "-2.5");
  EXPECT_EQ(tools::format_number(0, 4), "0");
  EXPECT_EQ(tools::format_number(3.5e-12, 4), "3.5e-12");
}

TEST(ElementResultsDocument, ElementRecordsOfElementsTheModelLacksAreWarnedOf) {
  model::ModelDocument doc = Parse(TwoNodesAnd(
      R"({"cases": [{"label": "D", "memberStations": [{"member": 8, "stations": [[0, 0, 0, 0, 0, 0, 0, 0, 0]]}],
          "brickStresses": [[4, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
          0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0]]}]})"));
  const auto lines = model::CheckSolution(doc);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0], "results of \"D\": member stations name member 8, which the model does not have");
  EXPECT_EQ(lines[1], "results of \"D\": brick stresses name brick 4, which the model does not have");
}
