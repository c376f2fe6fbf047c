#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "dialogs/results/element_sample.h"
#include "dialogs/results/info_sheets.h"
#include "dialogs/results/modal_reports.h"
#include "dialogs/results/plate_reports.h"
#include "dialogs/results/report_kinds.h"
#include "tools/format.h"

using namespace results;

namespace {

// Builds one report kind of a structure as the results dialog does.
struct Built {
  grid::Sheet sheet;
  std::vector<std::string> messages;
  const std::string& At(int col, int row) const { return sheet.GetData(col, row); }
};

using Texts = std::vector<std::string>;

// The texts of the cells named, {col, row} each, in order.
Texts Cells(const Built& b, std::initializer_list<std::pair<int, int>> cells) {
  Texts texts;
  for (const auto& [col, row] : cells) texts.push_back(b.At(col, row));
  return texts;
}

Built Build(const CfmStruct& s, int kind, int combo = 0) {
  Built b;
  const ReportContext ctx{b.sheet, s, kind, 0, 0xF0F5FF, &b.messages};
  ResetReportGrid(ctx);
  BuildReport(ctx, combo);
  return b;
}

// A member from node 1 (at the origin) to node 3 (12 ft up) with n evenly spaced stations
// whose major moment is the station's number.
CfmStruct OneMember(int stations) {
  CfmStruct s = ElementSample();
  s.m_Members.resize(1);
  fmBmVMD b;
  b.number = 10;
  for (int i = 0; i < stations; ++i)
    b.m_VMD.push_back(Station(12.0 * i / (stations - 1), {1, 2, 3, 4, 5, static_cast<double>(i + 1)}, -0.5 * i, 0.25));
  s.m_Solution.results[0].memberStations = {b};
  return s;
}

}  // namespace

TEST(MemberReports, EndResultsShowTheFirstAndLastStationThenAnEmptyRow) {
  Built two = Build(OneMember(2), 6);
  ASSERT_EQ(two.sheet.MaxCols(), 8);
  EXPECT_EQ(two.sheet.MaxRows(), 3);
  EXPECT_EQ(two.sheet.GetColWidth(1), 11);  // 95 / 8
  EXPECT_EQ(Cells(two, {{1, 0}, {2, 0}, {3, 0}, {8, 0}, {1, 1}, {2, 1}, {2, 2}, {8, 2}, {1, 2}}),
            (Texts{"Member Id", "Distance (%L)", "Fx (Axial) [kip]", "Mz (Major Moment) [kip-ft]", "10", "0.000",
                   "100.000", "2.000", ""}));
  for (int col = 1; col <= 8; ++col) EXPECT_EQ(two.At(col, 3), "");

  Built eleven = Build(OneMember(11), 6);
  EXPECT_EQ(eleven.sheet.MaxRows(), 3);
  EXPECT_EQ(eleven.At(8, 1), "1.000");
  EXPECT_EQ(eleven.At(8, 2), "11.000");  // straight from the first to the eleventh
  EXPECT_EQ(eleven.At(2, 2), "100.000");
}

TEST(MemberReports, SegmentalResultsListEveryStationWithDeflections) {
  Built five = Build(OneMember(5), 7);
  ASSERT_EQ(five.sheet.MaxCols(), 10);
  EXPECT_EQ(five.sheet.MaxRows(), 6);
  EXPECT_EQ(five.sheet.GetColWidth(10), 9);  // 95 / 10
  EXPECT_EQ(Cells(five, {{9, 0}, {10, 0}, {2, 3}, {9, 5}, {2, 6}}),
            (Texts{"Dy (Major Deflection) [in]", "Dz (Minor Deflection) [in]", "50.000", "-2.000", ""}));

  // Show-selected with nothing selected: no member, no rows.
  CfmStruct none = OneMember(5);
  none.m_nShowSelected = 1;
  EXPECT_EQ(Build(none, 7).sheet.MaxRows(), 0);
  none.m_Members[0].flags |= CfmStruct::kSelected;
  EXPECT_EQ(Build(none, 7).sheet.MaxRows(), 6);
}

TEST(MemberReports, TheCombinationIsFormedFromItsCasesForItsReport) {
  Built b = Build(ElementSample(), 7, 2);  // D+W = 1.2 Dead + Wind X
  EXPECT_EQ(b.At(8, 2), "9.000");          // Mz at mid-length: 1.2 * 0 + 9
  EXPECT_EQ(b.At(9, 2), "0.080");          // Dy: 1.2 * -0.1 + 0.2
  EXPECT_EQ(b.At(3, 5), "-26.000");        // member 11 Fx: -24 - 2
}

TEST(MemberReports, TheEnvelopeTakesTwoRowsAStationAndNumbersCombinationsFromOne) {
  const CfmStruct s = ElementSample();  // envelope entries: Dead (1) and D+W (3)
  Built e = Build(s, 57);
  ASSERT_EQ(e.sheet.MaxCols(), 15);
  EXPECT_EQ(e.sheet.GetColWidth(15), 6);
  EXPECT_EQ(e.sheet.MaxRows(), 7 + 5);  // member 10: 3 stations, member 11: 2
  EXPECT_EQ(Cells(e, {{3, 0}, {15, 0}, {1, 1}, {3, 1}, {3, 2}}), (Texts{"max/min", "Comb#", "10", "max", "min"}));
  EXPECT_EQ(e.At(2, 2), "");  // the distance on the max row only
  // Mz at the start: max 6 by Dead (1), min -1.8 by D+W (3).
  EXPECT_EQ(Cells(e, {{14, 1}, {15, 1}, {14, 2}, {15, 2}, {2, 5}}), (Texts{"6.000", "1", "-1.800", "3", "100.000"}));
  EXPECT_EQ(e.At(1, 7), "");  // the empty row after member 10
  EXPECT_EQ(e.At(1, 8), "11");

  CfmStruct none = s;
  none.m_EnvelopeCombinations.clear();
  EXPECT_EQ(Build(none, 57).sheet.MaxRows(), 0);
}

TEST(MemberReports, TheConcreteEnvelopeListsMembersWithCriteria) {
  Built e = Build(ElementSample(), 22);
  ASSERT_EQ(e.sheet.MaxCols(), 8);
  EXPECT_EQ(e.At(3, 0), "max Mz (Major Moment) [kip-ft]");
  EXPECT_EQ(e.At(8, 0), "abs Fy Comb#");
  EXPECT_EQ(e.sheet.MaxRows(), 4);  // member 10's three stations and an empty row
  EXPECT_EQ(e.At(3, 3), "19.800");
  EXPECT_EQ(e.At(6, 3), "3");
}

TEST(ShellReports, TheResultLocationChoosesThePointsOfEachShell) {
  CfmStruct s = ElementSample();
  s.m_nShellResultLocation = 1;
  Built nodes = Build(s, 12);
  EXPECT_EQ(nodes.sheet.MaxRows(), 5);
  EXPECT_EQ(nodes.sheet.GetColWidth(3), 9);
  EXPECT_EQ(Cells(nodes, {{3, 0}, {6, 0}, {1, 1}}), (Texts{"Fxx [kip/ft]", "Mxx [kip-ft/ft]", "20"}));
  const char* expected[] = {"1", "2", "4", "3"};
  for (int row = 1; row <= 4; ++row) EXPECT_EQ(nodes.At(2, row), expected[row - 1]);
  for (int row = 1; row <= 5; ++row) EXPECT_NE(nodes.At(2, row), "Center");
  EXPECT_EQ(nodes.At(2, 5), "");

  s.m_nShellResultLocation = 2;
  Built both = Build(s, 12);
  EXPECT_EQ(both.sheet.MaxRows(), 6);
  EXPECT_EQ(both.At(2, 1), "Center");
  EXPECT_EQ(both.At(2, 2), "1");
  s.m_nShellResultLocation = 7;
  Built centre = Build(s, 12);
  EXPECT_EQ(centre.sheet.MaxRows(), 2);
  EXPECT_EQ(centre.At(2, 1), "Center");
  EXPECT_EQ(centre.At(6, 1), "10.000");

  // Bricks list the centre and eight nodes whatever the setting.
  Built brick = Build(s, 18);
  EXPECT_EQ(brick.sheet.MaxRows(), 10);
  EXPECT_EQ(Cells(brick, {{1, 0}, {2, 1}, {2, 9}, {3, 9}}), (Texts{"Brick Id", "Center", "3", "-6.000"}));
}

TEST(ShellReports, PrincipalStressesOfPureShearAndTheBottomFaceInTheTopsColumns) {
  CfmStruct s = ElementSample();  // top: Sxy = 10 alone; bottom: Sxx = 3, Syy = -1
  Built p = Build(s, 17);
  ASSERT_EQ(p.sheet.MaxCols(), 8);
  EXPECT_EQ(Cells(p, {{3, 0}, {8, 0}, {3, 1}, {4, 1}, {5, 1}, {6, 1}, {7, 1}}),
            (Texts{"Top-S1 [kip/in^2]", "Bot-Von Mises [kip/in^2]", "10.000", "-10.000",
                   tools::Format("%.3f", std::sqrt(300.0)), "3.000", "-1.000"}));

  Built top = Build(s, 15), bottom = Build(s, 16);
  for (int col = 1; col <= 8; ++col) EXPECT_EQ(top.At(col, 0), bottom.At(col, 0));
  EXPECT_EQ(top.At(3, 0), "Sxx [kip/in^2]");
  EXPECT_EQ(top.At(6, 1), "10.000");
  EXPECT_EQ(bottom.At(3, 1), "3.000");
  EXPECT_EQ(bottom.At(6, 1), "0.000");
}

TEST(ShellReports, PrincipalForcesAndMomentsWithAnglesInDegrees) {
  Built p = Build(ElementSample(), 14);
  ASSERT_EQ(p.sheet.MaxCols(), 10);
  EXPECT_EQ(p.At(5, 0), "F-Angle [deg]");
  // Dead at the centre: Fxx 1, Fyy 2, Fxy 3: centre 1.5, radius sqrt(0.25 + 9).
  EXPECT_EQ(p.At(3, 1), tools::Format("%.3f", 1.5 + std::sqrt(9.25)));
  EXPECT_EQ(p.At(5, 1), tools::Format("%.3f", 0.5 * std::atan2(6.0, -1.0) * 180 / M_PI));
  // V: (0.5, 0.25).
  EXPECT_EQ(p.At(9, 1), tools::Format("%.3f", std::hypot(0.5, 0.25)));
  EXPECT_EQ(p.At(10, 1), tools::Format("%.3f", std::atan2(0.25, 0.5) * 180 / M_PI));
}

TEST(ShellReports, PrincipalResultsOfAResponseSpectrumCombinationAreRefused) {
  const CfmStruct s = ElementSample();  // D+W has a spectrum factor of 1 and a spectrum was run
  for (int kind : {14, 17, 19}) {
    Built b = Build(s, kind, 2);
    EXPECT_EQ(b.sheet.MaxRows(), 0) << kind;
    ASSERT_EQ(b.messages.size(), 1u) << kind;
    EXPECT_EQ(b.messages[0], kind == 14 ? kNoPrincipalForces : kNoPrincipalStresses);
  }
  EXPECT_EQ(std::string(kNoPrincipalForces),
            "Principal forces and moments are not available to load combination that contains response spectrum "
            "analysis results.");
  EXPECT_TRUE(Build(s, 17, 0).messages.empty());
}

TEST(BrickReports, PrincipalStressesWithDirectionCosines) {
  CfmStruct s = ElementSample();
  for (auto& p : s.m_Solution.results[0].brickStresses[0].point) p = {0, 0, 5, 3, 0, 0};
  Built b = Build(s, 19);
  ASSERT_EQ(b.sheet.MaxCols(), 15);
  EXPECT_EQ(Cells(b, {{4, 0}, {6, 0}, {7, 0}, {15, 0}}),
            (Texts{"S2 [kip/in^2]", "Von Mises [kip/in^2]", "v1x", "v3z"}));
  EXPECT_EQ(b.sheet.MaxRows(), 10);
  EXPECT_EQ(Cells(b, {{3, 1}, {4, 1}, {5, 1}, {6, 1}}),
            (Texts{"5.000", "3.000", "-3.000", tools::Format("%.3f", std::sqrt(0.5 * (4 + 36 + 64)))}));
  EXPECT_EQ(b.At(9, 1), "1.000");  // v1 along z
  EXPECT_EQ(b.At(10, 1), "0.707");
}

TEST(ShellReports, WoodArmerMomentsOfTheConcreteDesignCombination) {
  CfmStruct s = ElementSample();
  Built w = Build(s, 23);
  ASSERT_EQ(w.sheet.MaxCols(), 10);
  EXPECT_EQ(w.At(3, 0), "Bot-Mux [kip-ft/ft]");
  EXPECT_EQ(w.At(10, 0), "Top-Muy Comb#");
  // By hand (see the model test): 15, 5.6, 0, -7.525, all by D+W (3).
  EXPECT_EQ(Cells(w, {{3, 1}, {4, 1}, {5, 1}, {6, 1}, {7, 1}}), (Texts{"15.000", "5.600", "0.000", "-7.525", "3"}));
}

TEST(ModalReports, APeriodOfOneSecondShowsAsOne) {
  CfmStruct s = ElementSample();
  s.m_Solution.eigenModes[0].omega2 = 6.283185308 * 6.283185308;
  s.m_Solution.eigenModes[0].error = 2.5e-13;
  Built e = Build(s, 20);
  ASSERT_EQ(e.sheet.MaxCols(), 6);
  EXPECT_EQ(e.sheet.GetColWidth(6), 15);
  EXPECT_EQ(e.At(5, 0), "Eigenvalue (rad/sec)^2");
  EXPECT_EQ(e.sheet.MaxRows(), 2);
  EXPECT_EQ(Cells(e, {{1, 1}, {2, 1}, {3, 1}, {4, 1}, {5, 1}, {6, 1}}),
            (Texts{"1", "1", "1", "6.283", "39.48", "2.5e-13"}));
  EXPECT_EQ(e.At(2, 2), "0.5");  // ω² four times as large

  s.m_Solution.spectrumModes[0].participation = {1.2345, -0.0001, 0};
  Built p = Build(s, 34);
  ASSERT_EQ(p.sheet.MaxCols(), 5);
  EXPECT_EQ(p.sheet.GetColWidth(1), 19);
  EXPECT_EQ(Cells(p, {{3, 0}, {2, 1}, {3, 1}, {4, 1}}), (Texts{"SX Participation", "1", "1.234", "-0.0001"}));
}

TEST(ModalReports, StatisticsCountTheModelWithItsItemNames) {
  CfmStruct s = ElementSample();
  Built none = Build(s, 28);
  ASSERT_EQ(none.sheet.MaxCols(), 2);
  EXPECT_EQ(none.At(1, 0), "Item");
  EXPECT_EQ(none.At(2, 0), "Value");
  const int rows = none.sheet.MaxRows();
  ASSERT_EQ(rows, 20);
  EXPECT_EQ(Cells(none, {{1, 5}, {1, 7}, {1, 10}}),
            (Texts{"column RC design criteria", "Steel design criteria", "Shells"}));
  EXPECT_EQ(none.At(2, 9), "2");  // Members
  EXPECT_EQ(Cells(none, {{1, 18}, {2, 18}, {1, 20}}), (Texts{"Load Cases", "0", "Additional Nodal Masses"}));
  for (int row = 1; row <= rows; ++row) EXPECT_NE(none.At(1, row).rfind("Loads in case - ", 0), 0u);

  s.m_LoadCases = {fmLoadCase(1, "Dead", "Dead-D")};
  s.m_CaseLoads.resize(1);
  s.m_CaseLoads[0].nodal.resize(3);
  s.m_CaseLoads[0].nodalMasses.resize(2);
  Built one = Build(s, 28);
  EXPECT_EQ(one.sheet.MaxRows(), 29);
  EXPECT_EQ(Cells(one, {{1, 20}, {2, 20}, {1, 21}, {2, 21}, {1, 28}, {2, 29}}),
            (Texts{"Loads in case - Dead", "", "Nodal Loads", "3", "Brick Thermal Loads", "2"}));
}

TEST(ConcreteReports, WithoutDesignRecordsTheTablesShowTheirHeadingsOnly) {
  const CfmStruct s = ElementSample();
  Built beam = Build(s, 24);
  EXPECT_EQ(beam.sheet.MaxRows(), 0);
  ASSERT_EQ(beam.sheet.MaxCols(), 8);
  EXPECT_EQ(beam.At(4, 0), "Bot-As [in^2] (-1.0 means section too small)");
  Built column = Build(s, 25);
  ASSERT_EQ(column.sheet.MaxCols(), 13);
  EXPECT_EQ(column.sheet.GetColWidth(1), 7);
  EXPECT_EQ(column.At(8, 0), "Muy [kip-ft]");
  Built shear = Build(s, 26);
  ASSERT_EQ(shear.sheet.MaxCols(), 9);
  EXPECT_EQ(shear.At(7, 0), "Stirrup/tie-spacing [in] (blank means stirrup not needed, -1.0 means section too small)");
  Built plate = Build(s, 27);
  ASSERT_EQ(plate.sheet.MaxCols(), 11);
  EXPECT_EQ(plate.At(3, 0), "Design-H");
}

TEST(ConcreteReports, DesignRecordsFillTheirRows) {
  CfmStruct s = ElementSample();
  s.m_Solution.concreteDesign.beams = {{10, 6, 12.5, -1, 2, -3, 0.44, 0}};
  s.m_Solution.concreteDesign.plates = {{20, true, {}}};
  Built beam = Build(s, 24);
  ASSERT_EQ(beam.sheet.MaxRows(), 1);
  EXPECT_EQ(Cells(beam, {{2, 1}, {4, 1}, {5, 1}}), (Texts{"50.000", "-1.000", "3"}));
  Built plate = Build(s, 27);
  EXPECT_EQ(plate.sheet.MaxRows(), 2);
  EXPECT_EQ(plate.At(3, 1), "Error");
}

TEST(InfoSheets, MemberShellAndBrickSheetsPrintTheirResultsPerCase) {
  const CfmStruct s = ElementSample();
  Texts lines;
  // `count` lines from the `from`th after the line `first` (which is the 0th); none when short.
  const auto after = [&lines](const std::string& first, size_t from, size_t count) {
    const auto it = std::find(lines.begin(), lines.end(), first);
    if (static_cast<size_t>(lines.end() - it) < from + count) return Texts{};
    return Texts(it + static_cast<std::ptrdiff_t>(from), it + static_cast<std::ptrdiff_t>(from + count));
  };
  ASSERT_TRUE(GetBeamInfo(s, lines, 10));
  EXPECT_EQ(after("**INTERNAL FORCES AND MOMENTS", 1, 4),
            (Texts{"*Load Combination [Dead]", "  @Start: Fx = -10.000;  Fy = 1.000;  Fz = 0.000 (kip)",
                   "        Mx = 0.000;  My = 0.000;  Mz = 6.000 (kip-ft)",
                   "  @End: Fx = -10.000;  Fy = 1.000;  Fz = 0.000 (kip)"}));
  EXPECT_EQ(after("**INTERNAL FORCES AND MOMENTS", 6, 2),
            (Texts{"  Max Mz = 6.000 (kip-ft) @ Distance = 0.000 (ft)",
                   "  Absolute Max Dy = -0.100 (in) @ Distance = 6.000 (ft)"}));
  // The combination, formed from its cases: Mz 19.8 at the end, Dy 0.08 at mid-length.
  EXPECT_EQ(after("*Load Combination [D+W]", 5, 2), (Texts{"  Max Mz = 19.800 (kip-ft) @ Distance = 12.000 (ft)",
                                                           "  Absolute Max Dy = 0.080 (in) @ Distance = 6.000 (ft)"}));

  ASSERT_TRUE(GetShell4Info(s, lines, 20));
  EXPECT_EQ(after("**INTERNAL FORCES AND MOMENTS", 2, 4),
            (Texts{"  @Node-1", "  Fxx = 1.000;  Fyy = 2.000;  Fxy = 3.000 (kip/ft)",
                   "  Mxx = 10.000;  Myy = -2.000;  Mxy = 5.000 (kip-ft/ft)", "  Vxx = 0.500;  Vyy = 0.250 (kip/ft)"}));
  EXPECT_NE(std::find(lines.begin(), lines.end(), "  @Center"), lines.end());

  ASSERT_TRUE(GetBrickInfo(s, lines, 30));
  EXPECT_EQ(after("**BRICK STRESSES", 2, 3), (Texts{"  @Node-1", "  Sx = -6.000;  Sy = 0.000;  Sz = 0.000 (kip/in^2)",
                                                    "  Sxy = 0.000;  Syz = 0.000;  Sxz = 0.000 (kip/in^2)"}));
  // Wind X holds no stresses of the brick.
  EXPECT_EQ(after("*Load Combination [Wind X]", 1, 1), Texts{"error finding brick 30"});
}
