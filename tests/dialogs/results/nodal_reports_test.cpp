#include <gtest/gtest.h>

#include <functional>

#include "dialogs/grid/grid_ops.h"
#include "dialogs/results/nodal_reports.h"
#include "dialogs/results/sample_struct.h"

using namespace results;

namespace {

class NodalReports : public ::testing::Test {
 protected:
  ReportContext Context(int kind) {
    ReportContext ctx{sheet, s, kind};
    ResetReportGrid(ctx);
    return ctx;
  }
  std::vector<std::string> Row(int row) const {
    std::vector<std::string> cells;
    for (int col = 1; col <= sheet.MaxCols(); ++col) cells.push_back(sheet.GetData(col, row));
    return cells;
  }
  using Cells = std::vector<std::string>;

  CfmStruct s = SampleStruct();
  grid::Sheet sheet;
};

}  // namespace

TEST_F(NodalReports, DisplacementsInDisplayUnitsAndFormats) {
  s.m_Solution.units.unit[fmUnit::Displacement] = 1;  // solved in ft: shown in in
  s.m_DisplayFormat[fmUnit::Displacement] = 3;
  s.m_DisplayFormat[fmUnit::Rotation] = 7;
  Node_Displacements(Context(0), s.m_Solution.results[1].displacements);
  ASSERT_EQ(sheet.MaxRows(), 4);
  EXPECT_EQ(Row(0), (Cells{"Node Id", "Dx [in]", "Dy [in]", "Dz [in]", "Dox [rad]", "Doy [rad]", "Doz [rad]"}));
  EXPECT_EQ(Row(3), (Cells{"3", "6.0000", "0.0000", "0.0000", "0.00e+00", "0.00e+00", "1.00e-03"}));
  EXPECT_TRUE(sheet.IsLocked(2, 1));  // a report is never edited
}

TEST_F(NodalReports, SupportReactionsEndWithARedSumOfTheRowsShown) {
  Support_Reactions(Context(1), 1);
  ASSERT_EQ(sheet.MaxRows(), 3);
  EXPECT_EQ(Row(0), (Cells{"Node Id", "Rx [kip]", "Ry [kip]", "Rz [kip]", "Rox [kip-ft]", "Roy [kip-ft]", "Roz [kip-ft]"}));
  EXPECT_EQ(Row(1), (Cells{"1", "-1.500", "-0.900", "0.000", "0.000", "0.000", "9.000"}));
  EXPECT_EQ(Row(3), (Cells{"Sum", "-3.000", "0.000", "0.000", "0.000", "0.000", "18.000"}));
  EXPECT_EQ(sheet.GetForeColor(1, 3), grid::kRed);
  EXPECT_EQ(sheet.GetForeColor(2, 3), grid::kNoColor);

  // Only the selected support is shown and summed.
  s.m_Nodes[1].flags = fmNd::kSelected;
  s.m_nShowSelected = 1;
  Support_Reactions(Context(1), 0);
  ASSERT_EQ(sheet.MaxRows(), 2);
  EXPECT_EQ(Row(1), (Cells{"2", "0.000", "20.000", "0.000", "0.000", "0.000", "0.000"}));
  EXPECT_EQ(Row(2), (Cells{"Sum", "0.000", "20.000", "0.000", "0.000", "0.000", "0.000"}));
  EXPECT_EQ(sheet.GetForeColor(1, 2), grid::kRed);
  // The next report does not keep the red.
  Node_Displacements(Context(0), s.m_Solution.results[0].displacements);
  EXPECT_EQ(sheet.GetForeColor(1, 2), grid::kNoColor);
}

TEST_F(NodalReports, RowsOfNodesTheModelDoesNotHaveAreNamedAndNeverSummed) {
  s.m_Solution.results[0].reactions.push_back({77, {0, 5, 0, 0, 0, 1}});
  Support_Reactions(Context(1), 0);
  ASSERT_EQ(sheet.MaxRows(), 4);
  EXPECT_EQ(Row(3), (Cells{"77", "error finding node 77", "", "", "", "", ""}));
  EXPECT_EQ(Row(4), (Cells{"Sum", "0.000", "30.000", "0.000", "0.000", "0.000", "0.000"}));

  s.m_Solution.results[0].displacements.push_back({77, {1, 1, 1, 1, 1, 1}});
  Node_Displacements(Context(0), s.m_Solution.results[0].displacements);
  EXPECT_EQ(Row(5), (Cells{"77", "error finding node 77", "", "", "", "", ""}));

  s.m_Solution.results[0].constraintForces = {{5, {3, 78}, {0, 5}, {1.25, -2.5}}};
  Multi_DOF_Constraint_Forces(Context(51), 0);
  EXPECT_EQ(Row(1), (Cells{"5", "error finding node 78", "", "", "", "", ""}));

  s.m_EnvelopeCombinations = {"Dead"};
  Support_Reactions_Envelope(Context(56));
  ASSERT_EQ(sheet.MaxRows(), 6);
  EXPECT_EQ(Row(5)[0] + "|" + Row(5)[1] + "|" + Row(5)[2], "77|error finding node 77|");
  EXPECT_EQ(Row(6)[1] + Row(6)[2], "");
}

TEST_F(NodalReports, AReportWithNoRecordsKeepsItsHeadingsAndHasNoRows) {
  s.m_Solution = fmSolution();
  s.m_Solution.cases = {fmLoadCase(1, "Dead", "Dead-D")};
  s.m_Solution.results.resize(1);
  s.m_DriftNodes = {3};
  const std::pair<std::function<void()>, const char*> reports[] = {
      {[&] { Node_Displacements(Context(0), {}); }, "Node Id|Dx [in]|Dy [in]|Dz [in]|Dox [rad]|Doy [rad]|Doz [rad]"},
      {[&] { Node_Forces(Context(38), 0, {}); }, "Node Id|Fx [kip]|Fy [kip]|Fz [kip]|Mx [kip-ft]|My [kip-ft]|Mz [kip-ft]"},
      {[&] { Support_Reactions(Context(1), 0); }, "Node Id|Rx [kip]|Ry [kip]|Rz [kip]|Rox [kip-ft]|Roy [kip-ft]|Roz [kip-ft]"},
      {[&] { Spring_Reactions(Context(4), 0); }, "Member Id|SRx [kip]|SRy [kip]|SRz [kip]|SRox [kip-ft]|SRoy [kip-ft]|SRoz [kip-ft]"},
      {[&] { Multi_DOF_Constraint_Forces(Context(51), 0); },
       "Constraint Id|Node-1|DOF-1|Value-1 [kip or kip-ft]|Node-2|DOF-2|Value-2 [kip or kip-ft]"},
      {[&] { Story_Drift(Context(33), 0, {}); },
       "Node Id|Story Height [ft]|Dx [in]|X Drift [in]|X Drift Ratio|Dz [in]|Z Drift [in]|Z Drift Ratio"},
      {[&] { Node_Displacements_Envelope(Context(55)); },
       "Node Id|max/min|Dx [in]|Comb#|Dy [in]|Comb#|Dz [in]|Comb#|Dox [rad]|Comb#|Doy [rad]|Comb#|Doz [rad]|Comb#"},
      {[&] { Support_Reactions_Envelope(Context(56)); },
       "Node Id|max/min|Rx [kip]|Comb#|Ry [kip]|Comb#|Rz [kip]|Comb#|Rox [kip-ft]|Comb#|Roy [kip-ft]|Comb#|Roz [kip-ft]|Comb#"},
  };
  for (const auto& [report, headings] : reports) {
    report();
    std::string joined;
    for (const std::string& h : Row(0)) joined += (joined.empty() ? "" : "|") + h;
    EXPECT_EQ(joined, headings);
    EXPECT_EQ(sheet.MaxRows(), 0) << headings;
  }
}

TEST_F(NodalReports, SpringKindsListTheirOwnSpringsAndNameMissingElements) {
  fmCaseResults& r = s.m_Solution.results[0];
  r.nodalSpringReactions = {{3, {1, 0, 0, 0, 0, 0}}};
  r.coupledSpringReactions = {{4, {2, 0, 0, 0, 0, 0}}, {99, {1, 1, 1, 1, 1, 1}}};
  r.lineSpringReactions = {{7, {3, 0, 0, 0, 0, 0}}};
  r.surfaceSpringReactions = {{8, {4, 0, 0, 0, 0, 0}}};
  s.m_Members = {{7, 0, {3, 4}}};
  s.m_Shells = {{8, 0, {1, 2, 4, 3}}};
  const std::tuple<int, const char*, const char*, const char*> cases[] = {
      {2, "Node Id", "3", "1.000"}, {53, "Node Id", "4", "2.000"}, {4, "Member Id", "7", "3.000"},
      {5, "Shell4 Id", "8", "4.000"}};
  for (const auto& [kind, idHeading, id, srx] : cases) {
    Spring_Reactions(Context(kind), 0);
    EXPECT_EQ(Row(0)[0], idHeading);
    EXPECT_EQ(Row(1), (Cells{id, srx, "0.000", "0.000", "0.000", "0.000", "0.000"})) << kind;
  }
  Spring_Reactions(Context(3), 0);
  EXPECT_EQ(Row(2), (Cells{"99", "error finding node 99", "", "", "", "", ""}));
}

TEST_F(NodalReports, ConstraintForcesNameTheirDegreesOfFreedom) {
  s.m_Solution.results[0].constraintForces = {{5, {3, 4}, {0, 5}, {1.25, -2.5}}};
  Multi_DOF_Constraint_Forces(Context(51), 0);
  EXPECT_EQ(Row(0), (Cells{"Constraint Id", "Node-1", "DOF-1", "Value-1 [kip or kip-ft]", "Node-2", "DOF-2",
                           "Value-2 [kip or kip-ft]"}));
  EXPECT_EQ(Row(1), (Cells{"5", "3", "X", "1.250", "4", "OZ", "-2.500"}));
}

TEST_F(NodalReports, StoryDriftRatioUsesBothUnitFactors) {
  // Heights in ft, displacements in in: a drift of 0.72 in over a 12 ft storey is 0.5 %.
  s.m_Nodes.push_back({5, 0, 0, 24, 0});
  s.m_DriftNodes = {3, 5};
  s.m_DisplayFormat[fmUnit::Displacement] = 3;
  s.m_Solution.results[1].displacements = {{3, {0.72, 0, 0.12, 0, 0, 0}}, {5, {1.08, 0, 0.12, 0, 0, 0}}};
  Story_Drift(Context(33), 1, s.m_Solution.results[1].displacements);
  EXPECT_EQ(Row(0), (Cells{"Node Id", "Story Height [ft]", "Dx [in]", "X Drift [in]", "X Drift Ratio", "Dz [in]",
                           "Z Drift [in]", "Z Drift Ratio"}));
  // The first drift node against the base, which does not move.
  EXPECT_EQ(Row(1), (Cells{"3", "12.000", "0.7200", "0.7200", "0.500 %", "0.1200", "0.1200", "0.083 %"}));
  EXPECT_EQ(Row(2), (Cells{"5", "12.000", "1.0800", "0.3600", "0.250 %", "0.1200", "0.0000", "0.000 %"}));
  // A workbook gets the ratios themselves, unrounded: 0.12 in over 144 in.
  EXPECT_DOUBLE_EQ(sheet.GetNumber(5, 1).value_or(-1), 0.005);
  EXPECT_DOUBLE_EQ(sheet.GetNumber(8, 1).value_or(-1), 0.12 / 144);
  EXPECT_DOUBLE_EQ(sheet.GetNumber(2, 2).value_or(-1), 12);
}

TEST_F(NodalReports, StoryDriftNamesMissingNodesAndLevelNodesHaveNoRatio) {
  s.m_DriftNodes = {77, 3, 4};
  Story_Drift(Context(33), 1, s.m_Solution.results[1].displacements);
  ASSERT_EQ(sheet.MaxRows(), 3);
  EXPECT_EQ(Row(1)[1], "error finding node 77");
  EXPECT_EQ(Row(2)[4], "0.347 %");  // 0.5 in over 12 ft
  // Node 4 is level with node 3: no storey, no ratio.
  EXPECT_EQ(Row(3), (Cells{"4", "0.000", "0.500", "0.000", "", "0.000", "0.000", ""}));
}

TEST_F(NodalReports, EnvelopesShowMaximaAndMinimaWithOneBasedCombinationNumbers) {
  s.m_EnvelopeCombinations = {"WIND X", "d+w", "missing"};  // cases 2 and 3, named without regard to case
  Node_Displacements_Envelope(Context(55));
  ASSERT_EQ(sheet.MaxRows(), 8);
  EXPECT_EQ(Row(0), (Cells{"Node Id", "max/min", "Dx [in]", "Comb#", "Dy [in]", "Comb#", "Dz [in]", "Comb#",
                           "Dox [rad]", "Comb#", "Doy [rad]", "Comb#", "Doz [rad]", "Comb#"}));
  EXPECT_EQ(Row(5), (Cells{"3", "max", "0.500", "2", "0.000", "2", "0.000", "2", "0.000", "2", "0.000", "2", "0.001",
                           "2"}));
  EXPECT_EQ(Row(6)[1] + " " + Row(6)[4] + " " + Row(6)[5], "min -0.010 3");

  Support_Reactions_Envelope(Context(56));
  ASSERT_EQ(sheet.MaxRows(), 4);
  EXPECT_EQ(Row(3), (Cells{"2", "max", "-1.500", "2", "20.900", "3", "0.000", "2", "0.000", "2", "0.000", "2",
                           "9.000", "2"}));

  s.m_EnvelopeCombinations.clear();
  Node_Displacements_Envelope(Context(55));
  EXPECT_EQ(sheet.MaxRows(), 0);
}
