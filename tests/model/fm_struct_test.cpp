#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <tuple>

#include "dialogs/results/sample_struct.h"
#include "model/fm_struct.h"

namespace {

fmResult6Val Rec(int32_t node, double a, double b = 0) { return {node, {a, b, 0, 0, 0, 0}}; }

// Maximum, its case, minimum, its case of one component.
std::tuple<double, int, double, int> Extremes(const fmEnvelopeValue6& e, int k) {
  return {e.max[k], e.maxCase[k], e.min[k], e.minCase[k]};
}

// Three cases over nodes 1 and 2; case B lists them in the other order and adds node 3.
CfmStruct ThreeCases() {
  CfmStruct s;
  s.m_Solution.cases = {fmLoadCase(1, "A"), fmLoadCase(2, "B"), fmLoadCase(3, "C")};
  s.m_Solution.results.resize(3);
  s.m_Solution.results[0].displacements = {Rec(1, 1.0, 5.0), Rec(2, -2.0)};
  s.m_Solution.results[1].displacements = {Rec(2, 3.0), Rec(1, 1.0, -5.0), Rec(3, 7.0)};
  s.m_Solution.results[2].displacements = {Rec(1, -4.0), Rec(2, 3.0)};
  return s;
}

}  // namespace

TEST(DisplacementEnvelope, TiesStayWithTheEarlierCaseAndOnlyMarkedCasesTakePart) {
  const CfmStruct s = ThreeCases();
  std::vector<fmEnvelopeValue6> env;
  s.CalcNodalDisplacementEnvelope(env, {true, true, true});
  ASSERT_EQ(env.size(), 3u);  // order of the first case, then node 3 as it appears
  EXPECT_EQ(env[2].number, 3);
  // Node 1, Dx: 1 (A), 1 (B), -4 (C): the tie on the maximum stays with A.
  EXPECT_EQ(Extremes(env[0], 0), std::tuple(1.0, 0, -4.0, 2));
  EXPECT_EQ(env[0].minCase[1], 1);
  // Node 2, Dx: -2 (A), 3 (B), 3 (C): B's maximum is found although B lists node 2 first.
  EXPECT_EQ(env[1].number, 2);
  EXPECT_EQ(Extremes(env[1], 0), std::tuple(3.0, 1, -2.0, 0));
  EXPECT_EQ(Extremes(env[2], 0), std::tuple(7.0, 1, 7.0, 1));  // node 3 is only in case B

  s.CalcNodalDisplacementEnvelope(env, {false, false, true});
  ASSERT_EQ(env.size(), 2u);
  EXPECT_EQ(env[0].maxCase[0], 2);
  s.CalcNodalDisplacementEnvelope(env, {});
  EXPECT_TRUE(env.empty());
}

TEST(DisplacementEnvelope, MisalignedVectorsAreHarmless) {
  CfmStruct s = ThreeCases();
  s.m_Solution.results.resize(1);  // more marks than cases, and cases without results
  std::vector<fmEnvelopeValue6> env;
  s.CalcNodalDisplacementEnvelope(env, {true, true, true, true, true});
  ASSERT_EQ(env.size(), 2u);
  EXPECT_EQ(env[1].max[0], -2.0);
}

TEST(DisplacementEnvelope, NotANumberNeverWinsAndRepeatedNodesAreOneRecord) {
  CfmStruct s = ThreeCases();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double inf = std::numeric_limits<double>::infinity();
  s.m_Solution.results[0].displacements = {Rec(1, nan, nan), Rec(1, 2.0, nan), Rec(2, -inf, 3.0)};
  s.m_Solution.results[2].displacements = {Rec(1, -4.0, nan), Rec(2, 3.0, 3.0)};
  std::vector<fmEnvelopeValue6> env;
  s.CalcNodalDisplacementEnvelope(env, {true, false, true});
  ASSERT_EQ(env.size(), 2u);
  EXPECT_EQ(Extremes(env[0], 0), std::tuple(2.0, 0, -4.0, 2));
  EXPECT_TRUE(std::isnan(env[0].max[1]));  // no case gave node 1 a Dy: no value, no case
  EXPECT_EQ(std::pair(env[0].maxCase[1], env[0].minCase[1]), std::pair(-1, -1));
  EXPECT_EQ(env[1].min[0], -inf);
  // A tie between a record found by look-up (A) and one taken by position (C): A wins all the same.
  EXPECT_EQ(Extremes(env[1], 1), std::tuple(3.0, 0, 3.0, 0));
}

// Large enough to be shared among the cores: records out of line in the middle of one case,
// a shorter case and a node only the last case has must give what a plain search gives.
TEST(DisplacementEnvelope, ALargeModelSharedAmongCoresMatchesAPlainSearch) {
  constexpr int kNodes = 200000;
  CfmStruct s;
  s.m_Solution.cases = {fmLoadCase(1, "A"), fmLoadCase(2, "B"), fmLoadCase(3, "C")};
  s.m_Solution.results.resize(3);
  for (int c = 0; c < 3; ++c) {
    auto& d = s.m_Solution.results[static_cast<size_t>(c)].displacements;
    for (int i = 0; i < kNodes; ++i) d.push_back(Rec(i + 1, std::sin(0.01 * i + c), std::cos(0.02 * i * (c + 1))));
  }
  auto& b = s.m_Solution.results[1].displacements;
  std::swap(b[150000], b[150001]);
  std::swap(b[70000], b[120000]);
  s.m_Solution.results[2].displacements.resize(kNodes - 1000);
  s.m_Solution.results[2].displacements.push_back(Rec(kNodes + 5, 9.0));

  std::vector<fmEnvelopeValue6> env;
  s.CalcNodalDisplacementEnvelope(env, {true, true, true});
  ASSERT_EQ(env.size(), static_cast<size_t>(kNodes + 1));
  std::map<int32_t, fmEnvelopeValue6> expected;
  for (int c = 0; c < 3; ++c)
    for (const fmResult6Val& r : s.m_Solution.results[static_cast<size_t>(c)].displacements) {
      auto [it, added] = expected.try_emplace(r.number);
      fmEnvelopeValue6& e = it->second;
      for (int k = 0; k < 2; ++k) {
        if (added || r.v[k] > e.max[k]) e.max[k] = r.v[k], e.maxCase[k] = c;
        if (added || r.v[k] < e.min[k]) e.min[k] = r.v[k], e.minCase[k] = c;
      }
    }
  int wrong = 0;
  for (const fmEnvelopeValue6& e : env)
    for (int k = 0; k < 2; ++k) wrong += Extremes(e, k) != Extremes(expected.at(e.number), k);
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(env.back().number, kNodes + 5);
}

TEST(CfmStruct, FindsObjectsAndKnowsItsBase) {
  CfmStruct s = SampleStruct();
  EXPECT_EQ(s.FindNode(-1), nullptr);
  s.m_Nodes.push_back({4000000000u, fmNd::kSelected, 1, 2, 3});  // far from the others: searched by halves
  EXPECT_EQ(s.FindNode(4000000000LL)->z, 3.0);
  s.m_Nodes[1].id = 22;  // edited in place: the index is told
  s.TablesChanged();
  EXPECT_EQ(s.FindNode(2), nullptr);
  const CfmStruct copy = s;  // a copy has its own index
  EXPECT_EQ(copy.FindNode(22)->x, 20.0);

  s.m_Nodes.push_back({9, 0, 0, -2, 0});  // a footing node below the supports
  s.m_Nodes[0].y = -1;  // a supported node
  s.TablesChanged();
  EXPECT_EQ(s.BaseLevel(), -1.0);
}
