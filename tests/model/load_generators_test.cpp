#include <gtest/gtest.h>

#include "model/moving_load.h"
#include "model/pattern_load.h"

namespace {

// Members along X: member k (id 100 + k) from node k to node k + 1, with the given lengths;
// member 200 off the path. Cases DL (Dead) and LL (Live); combinations C1 = 1.2 DL + 1.6 LL,
// C0 = 1.4 DL + 0 LL, CD = 1.4 DL.
struct Lists {
  std::vector<fmNd> nodes;
  std::vector<fmBm> members;
  std::vector<fmLoadCase> cases{fmLoadCase(1, "DL", "Dead"), fmLoadCase(2, "LL", "Live")};
  std::vector<fmCaseLoad> loads = std::vector<fmCaseLoad>(2);
  std::vector<fmLoadComb> combs;

  explicit Lists(const std::vector<double>& spans) {
    double x = 0;
    nodes.push_back({1, 0, 0, 0, 0});
    for (size_t k = 0; k < spans.size(); ++k) {
      x += spans[k];
      nodes.push_back({static_cast<uint32_t>(k + 2), 0, x, 0, 0});
      fmBm m;
      m.id = static_cast<uint32_t>(101 + k);
      m.nodes = {static_cast<uint32_t>(k + 1), static_cast<uint32_t>(k + 2)};
      members.push_back(m);
    }
    nodes.push_back({900, 0, 0, 5, 0});
    fmBm off;
    off.id = 200;
    off.nodes = {1, 900};
    members.push_back(off);
    fmLoadComb c1("C1");
    c1.steelDesign = 1;
    c1.items = {{"DL", 1.2}, {"LL", 1.6}};
    fmLoadComb c0("C0");
    c0.items = {{"DL", 1.4}, {"LL", 0.0}};
    fmLoadComb cd("CD");
    cd.items = {{"DL", 1.4}};
    combs = {c1, c0, cd};
  }
  template <class G>
  G Generator(int caseIndex = 1) {
    G g;
    g.m_pMembers = &members;
    g.m_pNodes = &nodes;
    g.m_pLoadCases = &cases;
    g.m_pCaseLoads = &loads;
    g.m_pLoadCombs = &combs;
    g.m_nCase = caseIndex;
    return g;
  }
  std::vector<std::string> CaseLabels() const {
    std::vector<std::string> out;
    for (const auto& c : cases) out.push_back(c.name);
    return out;
  }
  std::vector<std::string> CombLabels() const {
    std::vector<std::string> out;
    for (const auto& c : combs) out.push_back(c.name);
    return out;
  }
};

fmPtLoad Pt(uint32_t member, double ratio, double magnitude = -10) { return {member, ratio, 1, false, magnitude}; }

const auto kYes = [](const std::string&) { return true; };
const auto kNo = [](const std::string&) { return false; };

std::vector<std::pair<uint32_t, double>> Places(const fmCaseLoad& cl) {
  std::vector<std::pair<uint32_t, double>> out;
  for (const auto& l : cl.point) out.emplace_back(l.member, l.ratio);
  return out;
}

}  // namespace

TEST(MovingLoad, PathOfTenWithStepThreeEndsWhenEveryLoadHasLeft) {
  Lists m({4, 6});                                // path length 10
  m.loads[1].point = {Pt(101, 0.0), Pt(102, 0.5)};  // at 0 and at 7 from the start
  auto g = m.Generator<model::MovingLoadGenerator>();
  ASSERT_TRUE(g.Run({101, 102}, 3, false, kNo)) << g.Refusal();
  // Positions 3, 6, 9 and 12 are tried; at 12 both loads have left the path.
  EXPECT_EQ(m.CaseLabels(), (std::vector<std::string>{"DL", "LL", "Moving_Dir1_LL_Step1", "Moving_Dir1_LL_Step2",
                                                      "Moving_Dir1_LL_Step3"}));
  ASSERT_EQ(m.loads.size(), 5u);
  // At 3: the first load 3 into the 4 long member; the second exactly at the path's end stays.
  EXPECT_EQ(Places(m.loads[2]), (std::vector<std::pair<uint32_t, double>>{{101, 0.75}, {102, 1.0}}));
  ASSERT_EQ(m.loads[3].point.size(), 1u);  // at 6 the second load is gone
  EXPECT_DOUBLE_EQ(m.loads[3].point[0].ratio, 2.0 / 6.0);
  EXPECT_DOUBLE_EQ(m.loads[4].point[0].ratio, 5.0 / 6.0);
  EXPECT_EQ(m.loads[4].point[0].member, 102u);
  EXPECT_EQ(m.cases[4].type, "Live");
}

TEST(MovingLoad, LoadReachingAMemberEndExactlyStaysOnThatMember) {
  Lists m({4, 6});
  m.loads[1].point = {Pt(101, 0.0)};
  auto g = m.Generator<model::MovingLoadGenerator>();
  ASSERT_TRUE(g.Run({101, 102}, 2, false, kNo));
  // 2 gives ratio 0.5; 4 is the end of member 101, not the start of 102; 10 is the path's end.
  ASSERT_EQ(m.loads.size(), 7u);  // positions 2, 4, 6, 8, 10; 12 is off the path
  EXPECT_EQ(Places(m.loads[3]), (std::vector<std::pair<uint32_t, double>>{{101, 1.0}}));
  EXPECT_EQ(Places(m.loads[6]), (std::vector<std::pair<uint32_t, double>>{{102, 1.0}}));
}

TEST(MovingLoad, NegativeStepRunsTheReversedPath) {
  Lists m({4, 6});
  m.loads[1].point = {Pt(102, 1.0)};  // at x = 10
  auto g = m.Generator<model::MovingLoadGenerator>();
  ASSERT_TRUE(g.Run({101, 102}, -3, false, kNo)) << g.Refusal();
  ASSERT_EQ(m.cases.size(), 5u);
  EXPECT_EQ(m.cases[2].name, "Moving_Dir2_LL_Step1");
  EXPECT_EQ(Places(m.loads[2]), (std::vector<std::pair<uint32_t, double>>{{102, 0.5}}));   // x = 7
  EXPECT_EQ(Places(m.loads[3]), (std::vector<std::pair<uint32_t, double>>{{102, 0.0}}));   // x = 4
  EXPECT_EQ(Places(m.loads[4]), (std::vector<std::pair<uint32_t, double>>{{101, 0.25}}));  // x = 1
}

TEST(MovingLoad, MembersDrawnAgainstThePathAreTravelledBackwards) {
  Lists m({4, 6});
  m.members[1].nodes = {3, 2};  // 102 now drawn from x = 10 to x = 4
  m.loads[1].point = {Pt(101, 0.5)};
  auto g = m.Generator<model::MovingLoadGenerator>();
  ASSERT_TRUE(g.Run({101, 102}, 3, false, kNo));
  // x = 5 is 1 into 102 from its second node: ratio 5/6 from its first node.
  EXPECT_EQ(m.loads[2].point[0].member, 102u);
  EXPECT_DOUBLE_EQ(m.loads[2].point[0].ratio, 5.0 / 6.0);
  EXPECT_DOUBLE_EQ(m.loads[3].point[0].ratio, 2.0 / 6.0);
}

TEST(MovingLoad, LoadsOffThePathAndOtherKindsStandInEveryCase) {
  Lists m({4, 6});
  fmCaseLoad& ll = m.loads[1];
  ll.point = {Pt(101, 0.0), Pt(200, 0.3, -7)};
  ll.nodal = {{2, 0, 5.0}};
  ll.line = {{101, {0, 1}, {-1, -1}, 1, false}};
  ll.selfWeight = {1, -0.5};
  const fmCaseLoad before = ll;
  auto g = m.Generator<model::MovingLoadGenerator>();
  ASSERT_TRUE(g.Run({101, 102}, 3, false, kNo));
  ASSERT_EQ(m.loads.size(), 5u);
  for (size_t i = 2; i < m.loads.size(); ++i) {
    fmCaseLoad others = m.loads[i];
    std::erase_if(others.point, [](const fmPtLoad& l) { return l.member != 200; });
    fmCaseLoad expected = before;
    expected.point = {Pt(200, 0.3, -7)};
    EXPECT_EQ(others, expected) << i;
  }
  EXPECT_EQ(m.loads[1], before);
  EXPECT_TRUE(m.loads[0].IsEmpty());
}

TEST(MovingLoad, CopiesOnlyCombinationsUsingTheCaseWithAFactor) {
  Lists m({4, 6});
  m.loads[1].point = {Pt(101, 0.0)};
  auto g = m.Generator<model::MovingLoadGenerator>();
  ASSERT_TRUE(g.Run({101, 102}, 5, false, kNo));  // positions 5 and 10
  EXPECT_EQ(m.CombLabels(),
            (std::vector<std::string>{"C1", "C0", "CD", "Moving1_C1_Dir1_Step1", "Moving1_C1_Dir1_Step2"}));
  const fmLoadComb& copy = m.combs[4];
  EXPECT_EQ(copy.items, (std::vector<fmLoadCombItem>{{"DL", 1.2}, {"Moving_Dir1_LL_Step2", 1.6}}));
  EXPECT_EQ(copy.steelDesign, 1);
}

TEST(MovingLoad, RefusalsAddNothing) {
  Lists m({4, 6});
  m.loads[1].point = {Pt(101, 0.0)};
  const Lists original = m;
  struct Case {
    std::vector<int64_t> path;
    double step;
    int caseIndex;
    const char* refusal;
  };
  const Case cases[] = {
      {{101, 102}, 0, 1, "Moving step may be positive or negative, but not zero"},
      {{101, 102, 101}, 3, 1, "Duplicate member id 101 found"},
      {{101, 150}, 3, 1, "Member id 150 not found"},
      {{101, 102}, 3, -1, "Invalid moving load case"},
      {{}, 3, 1, "Number of members must be greater than 0"},
  };
  for (const Case& c : cases) {
    auto g = m.Generator<model::MovingLoadGenerator>(c.caseIndex);
    EXPECT_FALSE(g.Run(c.path, c.step, false, kYes));
    EXPECT_EQ(g.Refusal(), c.refusal);
  }
  // Prefixes: a combination label that the copies would extend, and labels too long.
  m.combs.push_back(fmLoadComb("moving2_c0_dir1_old"));
  auto g = m.Generator<model::MovingLoadGenerator>();
  EXPECT_FALSE(g.Run({101, 102}, 3, false, kYes));
  EXPECT_EQ(g.Refusal(), "Moving load combination prefix (Moving2_C0_Dir1_) already exists");
  m.combs.pop_back();
  m.combs.push_back(fmLoadComb(std::string(104, 'c')));  // "Moving4_" + 104 + "_Dir1_" = 118: allowed
  EXPECT_TRUE(g.Process({101, 102}, 3, "Dir1")) << g.Refusal();
  m = original;
  m.combs.push_back(fmLoadComb(std::string(105, 'c')));  // 119
  g = m.Generator<model::MovingLoadGenerator>();
  EXPECT_FALSE(g.Process({101, 102}, 3, "Dir1"));
  EXPECT_EQ(g.Refusal(), "Moving load combination prefix (Moving4_" + std::string(105, 'c') + "_Dir1_) too long");
  m = original;
  m.cases[1].SetName(std::string(107, 'L'));  // "Moving_Dir1_" + 107 + "_" = 120
  g = m.Generator<model::MovingLoadGenerator>();
  EXPECT_FALSE(g.Process({101, 102}, 3, "Dir1"));
  EXPECT_EQ(g.Refusal(), "Moving load case prefix (Moving_Dir1_" + std::string(107, 'L') + "_) too long");
  EXPECT_EQ(m.cases.size(), 2u);
  EXPECT_EQ(m.combs.size(), 3u);
}

TEST(MovingLoad, SecondRunForTheSameCaseAndDirectionIsRefused) {
  Lists m({4, 6});
  m.loads[1].point = {Pt(102, 0.5)};
  auto g = m.Generator<model::MovingLoadGenerator>();
  ASSERT_TRUE(g.Run({101, 102}, 3, false, kNo));
  const auto cases = m.cases.size(), combs = m.combs.size();
  EXPECT_FALSE(g.Run({101, 102}, 3, false, kNo));
  EXPECT_EQ(g.Refusal(), "Moving load case prefix (Moving_Dir1_LL_) already exists");
  EXPECT_EQ(m.cases.size(), cases);
  EXPECT_EQ(m.loads.size(), cases);
  EXPECT_EQ(m.combs.size(), combs);
  EXPECT_TRUE(g.Run({101, 102}, -3, false, kNo)) << "the other direction has its own prefix";
}

TEST(MovingLoad, BiDirectionalKeepsTheFirstDirectionWhenTheSecondIsRefused) {
  Lists m({4, 6});
  m.loads[1].point = {Pt(101, 0.5), Pt(102, 0.5)};
  m.cases.emplace_back(3, "Moving_Dir2_LL_x", "Live");
  m.loads.emplace_back();
  auto g = m.Generator<model::MovingLoadGenerator>();
  EXPECT_TRUE(g.Run({101, 102}, -3, true, kNo)) << "the sign is ignored";
  EXPECT_EQ(g.Refusals(), (std::vector<std::string>{"Moving load case prefix (Moving_Dir2_LL_) already exists"}));
  EXPECT_EQ(m.cases[3].name, "Moving_Dir1_LL_Step1");
  EXPECT_EQ(m.cases.size(), m.loads.size());
}

TEST(MovingLoad, UnconnectedPathAsksFirst) {
  Lists m({4, 6, 2});
  m.loads[1].point = {Pt(101, 0.0)};
  std::string asked;
  auto g = m.Generator<model::MovingLoadGenerator>();
  EXPECT_FALSE(g.Run({101, 103}, 1, false, [&](const std::string& q) {
    asked = q;
    return false;
  }));
  EXPECT_EQ(asked, model::MovingLoadGenerator::kConnectionQuestion);
  EXPECT_TRUE(g.Refusal().empty());
  EXPECT_EQ(m.cases.size(), 2u);
  EXPECT_TRUE(g.Run({101, 103}, 1, false, kYes));
}

TEST(MovingLoad, MoveLoadFindsTheMemberInThePath) {
  const std::vector<uint32_t> path{5, 6};
  const std::vector<bool> forward{true, false};
  const std::vector<double> lengths{2, 8};
  fmPtLoad l = Pt(6, 1.0);  // member 6 is travelled from its second node
  EXPECT_TRUE(model::MovingLoadGenerator::MoveLoad(l, path, forward, lengths, 2));
  EXPECT_DOUBLE_EQ(l.ratio, 0.75);
  fmPtLoad stray = Pt(9, 0.5);  // not on the path: taken as on its first member
  EXPECT_TRUE(model::MovingLoadGenerator::MoveLoad(stray, path, forward, lengths, 3));
  EXPECT_EQ(stray.member, 6u);
  EXPECT_DOUBLE_EQ(stray.ratio, 1.0 - 2.0 / 8.0);
  EXPECT_FALSE(model::MovingLoadGenerator::MoveLoad(l, path, forward, lengths, 6.5));
}

// A long way is found by halving over the path's running length: it must land where walking
// member by member lands, ends of members and the path's end included.
TEST(MovingLoad, LongMovesLandWhereAMemberByMemberWalkLands) {
  std::vector<uint32_t> path;
  std::vector<bool> forward;
  std::vector<double> lengths, start{0};
  for (uint32_t k = 0; k < 40; ++k) {
    path.push_back(100 + k);
    forward.push_back(k % 3 != 0);
    lengths.push_back(k % 5 == 0 ? 2.0 : 0.5 + 0.25 * (k % 7));  // ends on quarter feet
    start.push_back(start.back() + lengths.back());
  }
  for (double ratio : {0.0, 0.3, 1.0})
    for (double d = 0.25; d <= start.back() + 1; d += 0.25) {
      fmPtLoad walked = Pt(100, ratio), halved = walked;
      const bool onW = model::MovingLoadGenerator::MoveLoadFrom(walked, 0, path, forward, lengths, d);
      const bool onH = model::MovingLoadGenerator::MoveLoadFrom(halved, 0, path, forward, lengths, d, &start);
      ASSERT_EQ(onW, onH) << "ratio " << ratio << " distance " << d;
      if (!onW) continue;
      EXPECT_EQ(walked.member, halved.member) << "ratio " << ratio << " distance " << d;
      EXPECT_NEAR(walked.ratio, halved.ratio, 1e-12) << "ratio " << ratio << " distance " << d;
    }
}

namespace {

// Which path spans (1-based) carry point loads in a generated case.
std::vector<int> LoadedSpans(const fmCaseLoad& cl) {
  std::vector<int> spans;
  for (const auto& l : cl.point)
    if (l.member != 200 && (spans.empty() || spans.back() != static_cast<int>(l.member - 100)))
      spans.push_back(static_cast<int>(l.member - 100));
  return spans;
}

}  // namespace

TEST(PatternLoad, TwoSpansGiveOddEvenAndS1) {
  Lists m({5, 5});
  m.loads[1].point = {Pt(101, 0.5), Pt(102, 0.5)};
  auto g = m.Generator<model::PatternLoadGenerator>();
  ASSERT_TRUE(g.Run({101, 102}, kNo)) << g.Refusal();
  EXPECT_EQ(m.CaseLabels(),
            (std::vector<std::string>{"DL", "LL", "Pattern_LL_Odd", "Pattern_LL_Even", "Pattern_LL_S1"}));
  EXPECT_EQ(LoadedSpans(m.loads[2]), (std::vector<int>{1}));
  EXPECT_EQ(LoadedSpans(m.loads[3]), (std::vector<int>{2}));
  EXPECT_EQ(LoadedSpans(m.loads[4]), (std::vector<int>{1, 2}));
  EXPECT_EQ(m.CombLabels(), (std::vector<std::string>{"C1", "C0", "CD", "Pattern1_C1_Odd", "Pattern1_C1_Even",
                                                      "Pattern1_C1_S1"}));
  EXPECT_EQ(m.combs[5].items[1].caseName, "Pattern_LL_S1");
}

TEST(PatternLoad, SixSpansLoadAdjacentPairsAndAlternateSpansBeyond) {
  Lists m({3, 3, 3, 3, 3, 3});
  for (uint32_t id = 101; id <= 106; ++id) m.loads[1].point.push_back(Pt(id, 0.5));
  auto g = m.Generator<model::PatternLoadGenerator>();
  ASSERT_TRUE(g.Run({101, 102, 103, 104, 105, 106}, kNo));
  ASSERT_EQ(m.cases.size(), 2u + 7u);  // Odd, Even, S1 to S5
  EXPECT_EQ(m.cases[2].name, "Pattern_LL_Odd");
  EXPECT_EQ(LoadedSpans(m.loads[2]), (std::vector<int>{1, 3, 5}));
  EXPECT_EQ(LoadedSpans(m.loads[3]), (std::vector<int>{2, 4, 6}));
  EXPECT_EQ(m.cases[4].name, "Pattern_LL_S1");
  EXPECT_EQ(LoadedSpans(m.loads[4]), (std::vector<int>{1, 2, 4, 6}));
  EXPECT_EQ(LoadedSpans(m.loads[5]), (std::vector<int>{2, 3, 5}));
  EXPECT_EQ(LoadedSpans(m.loads[6]), (std::vector<int>{1, 3, 4, 6}));
  EXPECT_EQ(LoadedSpans(m.loads[8]), (std::vector<int>{1, 3, 5, 6}));
  EXPECT_EQ(m.cases[8].name, "Pattern_LL_S5");
}

TEST(PatternLoad, RatioScalesPointAndLineLoadsOfLoadedSpansOnly) {
  Lists m({5, 5});
  fmCaseLoad& ll = m.loads[1];
  ll.point = {Pt(101, 0.5, -10), Pt(200, 0.5, -3)};
  ll.line = {{102, {0, 1}, {-2, -4}, 1, false}, {200, {0, 1}, {-1, -1}, 1, false}};
  ll.nodal = {{3, 0, 7.0}};
  ll.surface = {{1, 2, true, -0.1}};
  const fmCaseLoad before = ll;
  auto g = m.Generator<model::PatternLoadGenerator>();
  ASSERT_TRUE(g.Run({101, 102}, kNo));
  EXPECT_EQ(m.loads[4], before) << "ratio 1.0 with both spans loaded reproduces the case";
  // Odd: 101's point load stays, 102's line load goes, loads off the path stand.
  EXPECT_EQ(m.loads[2].point, before.point);
  EXPECT_EQ(m.loads[2].line, (std::vector<fmLineLoad>{before.line[1]}));
  EXPECT_EQ(m.loads[2].nodal, before.nodal);
  EXPECT_EQ(m.loads[2].surface, before.surface);

  Lists half({5, 5});
  half.loads[1] = before;
  auto h = half.Generator<model::PatternLoadGenerator>();
  h.m_dRatio = 0.5;
  ASSERT_TRUE(h.Run({101, 102}, kNo));
  const fmCaseLoad& even = half.loads[3];
  ASSERT_EQ(even.line.size(), 2u);
  EXPECT_EQ(even.line[0].magnitude, (std::array<double, 2>{-1, -2}));
  EXPECT_EQ(even.line[1], before.line[1]);  // off the path: not scaled
  EXPECT_EQ(even.point, (std::vector<fmPtLoad>{Pt(200, 0.5, -3)}));
}

TEST(PatternLoad, RefusalsAndPreselection) {
  Lists m({5, 5});
  auto g = m.Generator<model::PatternLoadGenerator>();
  EXPECT_FALSE(g.Run({101}, kNo));
  EXPECT_EQ(g.Refusal(), "Number of members must be greater than or equal to 2");
  EXPECT_FALSE(g.Run({101, 101}, kNo));
  EXPECT_EQ(g.Refusal(), "Duplicate member id 101 found");
  ASSERT_TRUE(g.Run({101, 102}, kNo));
  const size_t cases = m.cases.size(), combs = m.combs.size();
  EXPECT_FALSE(g.Run({101, 102}, kNo));
  EXPECT_EQ(g.Refusal(), "Pattern load case prefix (Pattern_LL_) already exists");
  EXPECT_EQ(m.cases.size(), cases);
  EXPECT_EQ(m.combs.size(), combs);
  g.m_nCase = 5000;
  EXPECT_FALSE(g.Run({101, 102}, kNo));
  EXPECT_EQ(g.Refusal(), "Invalid load case");

  auto p = m.Generator<model::PatternLoadGenerator>(-1);
  m.cases = {fmLoadCase(1, "D", "Dead-D"), fmLoadCase(2, "W", "Wind"), fmLoadCase(3, "Occupancy", "l")};
  p.PreselectCase();
  EXPECT_EQ(p.m_nCase, 2);
  m.cases.pop_back();
  p.m_nCase = -1;
  p.PreselectCase();
  EXPECT_EQ(p.m_nCase, 0);
}
