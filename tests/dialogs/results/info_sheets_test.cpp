#include <gtest/gtest.h>
#include <algorithm>

#include "dialogs/results/info_sheets.h"
#include "dialogs/results/sample_struct.h"

using namespace results;
using Lines = std::vector<std::string>;

namespace {

// The sample with a member, a shell and a brick, their properties and loads.
CfmStruct Described() {
  CfmStruct s = SampleStruct();
  s.m_Nodes.push_back({5, 0, 0, 0, 10});
  s.m_Nodes.push_back({6, 0, 20, 0, 10});
  fmMat steel(1);
  steel.label = "Steel-A992";
  s.m_Materials = {steel};
  fmSect w(1);
  w.label = "W12X26";
  s.m_Sections = {w};
  fmThick slab(1);
  slab.label = "Slab8in";
  slab.thickness = 0.666667;
  s.m_Thicknesses = {slab};
  CfmStruct::Member beam;
  beam.id = 7;
  beam.node = {3, 4};
  beam.material = 1;
  beam.section = 1;
  beam.angle = 90;
  beam.nonlinearity = 1;
  beam.flags = CfmStruct::kSelfWeightExcluded;
  beam.steelCriteria = "AISC 360";
  beam.steelExcluded = true;
  s.m_Members = {beam};
  CfmStruct::Shell4 shell;
  shell.id = 8;
  shell.node = {1, 2, 6, 5};
  shell.material = 1;
  shell.thickness = 1;
  shell.flags = CfmStruct::kInactive;
  s.m_Shells = {shell};
  CfmStruct::Brick brick;
  brick.id = 9;
  brick.node = {1, 2, 3, 4, 5, 6, 7, 8};
  brick.material = 2;  // no such material
  s.m_Bricks = {brick};
  s.m_PointLoads = {{7, "Wind X", 1, true, -2.5, 10}};
  s.m_LineLoads = {{7, "Dead", 1, false, {-0.5, -0.75}, {0, 20}}};
  s.m_MemberThermalLoads = {{7, "Dead", 30}};
  s.m_SurfaceLoads = {{8, "Dead", 1, false, -0.05}};
  s.m_Solution.nodalLoads = {{3, "Wind X", 0, 4.5}, {3, "Dead", 1, -10}, {3, "Dead", 5, 2}};
  s.m_Solution.nodalMasses = {{3, 0, 0.25}, {3, 3, 1.5}};
  s.m_Solution.nodalSprings = {{3, "111000", {100, 200, 300, 4, 5, 6}}};
  return s;
}

}  // namespace

TEST(InfoSheet, RowsLeaveOneEmptyRowBeforeEachLaterSection) {
  grid::Sheet sheet;
  FillInfoSheet(sheet, 0xF0F5FF, {"NODES", "  Node-1 = 1", "**PROPERTIES"}, "Brick 9 Information");
  ASSERT_EQ(sheet.MaxRows(), 5);
  ASSERT_EQ(sheet.MaxCols(), 1);
  EXPECT_EQ(sheet.GetData(1, 0), "Brick 9 Information");
  EXPECT_EQ(sheet.GetColWidth(1), 95);
  EXPECT_EQ(sheet.GetData(1, 1), "NODES");
  EXPECT_EQ(sheet.GetData(1, 2), "  Node-1 = 1");
  EXPECT_EQ(sheet.GetData(1, 3), "");
  EXPECT_EQ(sheet.GetData(1, 4), "**PROPERTIES");
  // A first line that is a section heading gets no empty row before it.
  FillInfoSheet(sheet, 0xF0F5FF, {"**COORDINATES", "  x"}, "Node 1 Information");
  EXPECT_EQ(sheet.MaxRows(), 3);
  EXPECT_EQ(sheet.GetData(1, 1), "**COORDINATES");
}

TEST(NodeInfo, DataLoadsAndResultsOfASupportedNode) {
  CfmStruct s = Described();
  s.m_Solution.results.resize(2);  // the combination has no results: its lines say so
  s.m_DisplayFormat[fmUnit::Displacement] = 7;
  Lines lines;
  ASSERT_TRUE(GetNodeInfo(s, lines, 1));
  const Lines expected = {
      "**COORDINATES",
      "  x = 0.000;  y = 0.000;  z = 0.000 (ft)",
      "**SUPPORT",
      "  Flag: 111111",
      "  Dx = 0.00e+00;  Dy = 0.00e+00;  Dz = 0.00e+00 (in)",
      "  Dox = 0.000;  Doy = 0.000;  Doz = 0.000 (rad)",
      "**NODAL SPRING",
      "  None",
      "**NODAL COUPLED SPRING",
      "  None",
      "**NODAL LOADS",
      "  None",
      "**ADDITIONAL NODAL MASS",
      "  None",
      "**DISPLACEMENTS",
      "*Load Combination [Dead]",
      "  Dx = 0.00e+00;  Dy = 0.00e+00;  Dz = 0.00e+00 (in)",
      "  Dox = 0.000;  Doy = 0.000;  Doz = 0.000 (rad)",
      "*Load Combination [Wind X]",
      "  Dx = 0.00e+00;  Dy = 0.00e+00;  Dz = 0.00e+00 (in)",
      "  Dox = 0.000;  Doy = 0.000;  Doz = 0.000 (rad)",
      "*Load Combination [D+W]",
      "error finding node 1",
      "**SUPPORT REACTIONS",
      "*Load Combination [Dead]",
      "  Rx = 0.000;  Ry = 10.000;  Rz = 0.000 (kip)",
      "  Rox = 0.000;  Roy = 0.000;  Roz = 0.000 (kip-ft)",
      "*Load Combination [Wind X]",
      "  Rx = -1.500;  Ry = -0.900;  Rz = 0.000 (kip)",
      "  Rox = 0.000;  Roy = 0.000;  Roz = 9.000 (kip-ft)",
      "*Load Combination [D+W]",
      "error finding node 1",
      "**NODAL SPRING REACTIONS",
      "  None",
      "**NODAL COUPLED SPRING REACTIONS",
      "  None",
  };
  EXPECT_EQ(lines, expected);
}

TEST(NodeInfo, SpringsLoadsGroupedByCaseAndMasses) {
  CfmStruct s = Described();
  fmSolution::CoupledSpring coupled;
  coupled.node = 3;
  for (int i = 0; i < 21; ++i) coupled.k[static_cast<size_t>(i)] = i + 1;
  s.m_Solution.coupledSprings = {coupled};
  s.m_Solution.results[0].nodalSpringReactions = {{3, {1, 2, 3, 4, 5, 6}}};
  s.m_DisplayFormat.fill(0);
  Lines lines;
  ASSERT_TRUE(GetNodeInfo(s, lines, 3));
  auto section = [&](const std::string& heading) {
    Lines out;
    auto it = std::find(lines.begin(), lines.end(), heading);
    if (it == lines.end()) return out;
    for (++it; it != lines.end() && it->rfind("**", 0) != 0; ++it) out.push_back(*it);
    return out;
  };
  EXPECT_EQ(section("**NODAL SPRING"), (Lines{"  Flag: 111000", "  Kx = 100.0;  Ky = 200.0;  Kz = 300.0 (kip/in)",
                                             "  Kox = 4.0;  Koy = 5.0;  Koz = 6.0 (kip-ft/rad)"}));
  EXPECT_EQ(section("**NODAL COUPLED SPRING"),
            (Lines{"  Kx_Kx = 1.0;  Kx_Ky = 2.0;  Kx_Kz = 3.0; (kip/in)",
                   "  Ky_Ky = 7.0;  Ky_Kz = 8.0;  Kz_Kz = 12.0 (kip/in)",
                   "  Kx_Kox = 4.0;  Kx_Koy = 5.0;  Kx_Koz = 6.0 (kip/rad)",
                   "  Ky_Kox = 9.0;  Ky_Koy = 10.0;  Ky_Koz = 11.0 (kip/rad)",
                   "  Kz_Kox = 13.0;  Kz_Koy = 14.0;  Kz_Koz = 15.0 (kip/rad)",
                   "  Kox_Kox = 16.0;  Kox_Koy = 17.0;  Kox_Koz = 18.0; (kip-ft/rad)",
                   "  Koy_Koy = 19.0;  Koy_Koz = 20.0;  Koz_Koz = 21.0 (kip-ft/rad)"}));
  // Cases in the model's order, whatever order the loads come in.
  EXPECT_EQ(section("**NODAL LOADS"), (Lines{"*load case [Dead]", "  Direction = Y;  Magnitude = -10.0 (kip)",
                                            "  Direction = OZ;  Magnitude = 2.0 (kip-ft)", "*load case [Wind X]",
                                            "  Direction = X;  Magnitude = 4.5 (kip)"}));
  EXPECT_EQ(section("**ADDITIONAL NODAL MASS"), (Lines{"  Direction = X;  Magnitude = 0.2 (kip-sec^2/ft)",
                                                      "  Direction = OX;  Magnitude = 1.5 (kip-sec^2-ft)"}));
  // A node with a spring lists every case; a case without its record says so.
  EXPECT_EQ(section("**NODAL SPRING REACTIONS"),
            (Lines{"*Load Combination [Dead]", "  Rx = 1.0;  Ry = 2.0;  Rz = 3.0 (kip)",
                   "  Rox = 4.0;  Roy = 5.0;  Roz = 6.0 (kip-ft)", "*Load Combination [Wind X]", "error finding node 3",
                   "*Load Combination [D+W]", "error finding node 3"}));
  EXPECT_EQ(section("**SUPPORT REACTIONS"), (Lines{"  None"}));
}

TEST(NodeInfo, AnUnknownNodeIsOneErrorLine) {
  Lines lines;
  EXPECT_FALSE(GetNodeInfo(Described(), lines, 42));
  EXPECT_EQ(lines, (Lines{"error finding node 42"}));
  EXPECT_FALSE(GetBeamInfo(Described(), lines, 1));
  EXPECT_EQ(lines, (Lines{"error finding member 1"}));
  EXPECT_FALSE(GetShell4Info(Described(), lines, 1));
  EXPECT_EQ(lines, (Lines{"error finding shell4 1"}));
  EXPECT_FALSE(GetBrickInfo(Described(), lines, 1));
  EXPECT_EQ(lines, (Lines{"error finding brick 1"}));
}

TEST(MemberInfo, PropertiesAxesLoadsAndMissingForces) {
  const CfmStruct s = Described();
  Lines lines;
  ASSERT_TRUE(GetBeamInfo(s, lines, 7));
  const Lines head(lines.begin(), lines.begin() + 25);
  const Lines expected = {
      "**Length = 20.000 (ft)",
      "**NODES",
      "  Start Node = 3;  End Node = 4",
      "**PROPERTIES",
      "  Material: Steel-A992",
      "  Section: W12X26",
      "  Local Angle: 90.00 (deg)",
      // Along X: local y up and local z along Z, then turned 90 degrees about x.
      "  Local x vector (1.0000, 0.0000, 0.0000)",
      "  Local y vector (0.0000, 0.0000, 1.0000)",
      "  Local z vector (0.0000, -1.0000, 0.0000)",
      "  Cracking Factor: 1.000",
      "  Nonlinearity: Tension only",
      "  Self Weight: Exclude",
      "  Activation: Active",
      "  Member Type: Beam",
      "  RC Design Criteria: None",
      "  Concrete Design Exclusion: No",
      "  Steel Design Criteria: AISC 360",
      "  Steel Design Exclusion: Yes",
      "**LINE SPRING",
      "  None",
      "**POINT LOADS",
      "*load case [Wind X]",
      "  Direction = Y;  System = local",
      "  Magnitude = -2.500 (kip);  Distance = 10.000 (ft)",
  };
  EXPECT_EQ(head, expected);
  const Lines tail(lines.begin() + 25, lines.end());
  const Lines expectedTail = {
      "**LINE LOADS",
      "*load case [Dead]",
      "  Direction = Y;  System = global",
      "  Magnitude: Start = -0.500;  End = -0.750 (kip/ft)",
      "  Distances: Start = 0.000;  End = 20.000 (ft)",
      "**Member Thermal Loads",
      "*load case [Dead]",
      "  Magnitude = 30.000 (F)",
      "**INTERNAL FORCES AND MOMENTS",
      "*Load Combination [Dead]",
      "error finding member 7",
      "*Load Combination [Wind X]",
      "error finding member 7",
      "*Load Combination [D+W]",
      "error finding member 7",
      "**LINE SPRING REACTIONS",
      "  None",
  };
  EXPECT_EQ(tail, expectedTail);
}

TEST(MemberInfo, AColumnsAxesAndASpringsReactions) {
  CfmStruct s = Described();
  s.m_Members[0].node = {1, 3};  // vertical
  s.m_Members[0].angle = 0;
  s.m_LineSprings = {{7, "111", {1, 2, 3}}};
  s.m_Solution.results[1].lineSpringReactions = {{7, {0.5, 0, 0, 0, 0, 0}}};
  Lines lines;
  ASSERT_TRUE(GetBeamInfo(s, lines, 7));
  EXPECT_EQ(lines[0], "**Length = 12.000 (ft)");
  EXPECT_EQ(lines[7], "  Local x vector (0.0000, 1.0000, 0.0000)");
  EXPECT_EQ(lines[8], "  Local y vector (-1.0000, 0.0000, 0.0000)");
  EXPECT_EQ(lines[9], "  Local z vector (0.0000, 0.0000, 1.0000)");
  EXPECT_EQ(lines[20], "  Flag: 111");
  EXPECT_EQ(lines[21], "  Kx = 1.000;  Ky = 2.000;  Kz = 3.000 (kip/ft^2)");
  const Lines tail(lines.end() - 6, lines.end());
  EXPECT_EQ(tail, (Lines{"*Load Combination [Dead]", "error finding member 7", "*Load Combination [Wind X]",
                         "  Rx = 0.500;  Ry = 0.000;  Rz = 0.000 (kip)", "*Load Combination [D+W]",
                         "error finding member 7"}));
}

TEST(ShellAndBrickInfo, TheirSections) {
  const CfmStruct s = Described();
  Lines lines;
  ASSERT_TRUE(GetShell4Info(s, lines, 8));
  const Lines shellHead(lines.begin(), lines.begin() + 23);
  EXPECT_EQ(shellHead, (Lines{
                           "**NODES",
                           "  Node-1 = 1;  Node-2 = 2;  Node-3 = 6;  Node-4 = 5",
                           "**PROPERTIES",
                           "  Material: Steel-A992",
                           "  Thickness: 0.666667 (ft)",
                           "  Local Angle: 0.00 (deg)",
                           "  Local x vector (1.0000, 0.0000, 0.0000)",
                           "  Local y vector (0.0000, 0.0000, 1.0000)",
                           "  Local z vector (0.0000, -1.0000, 0.0000)",
                           "  Cracking Factor: 1.000",
                           "  Self Weight: Include",
                           "  Activation: Inactive",
                           "  RC Design Criteria: None",
                           "  Concrete Design Exclusion: No",
                           "**SURFACE SPRING",
                           "  None",
                           "**SURFACE LOADS",
                           "*load case [Dead]",
                           "  Direction = Y;  System = global",
                           "  Magnitude = -0.050 (kip/ft^2)",
                           "**Shell4 Thermal Loads",
                           "  None",
                           "**INTERNAL FORCES AND MOMENTS",
                       }));
  EXPECT_EQ(lines[23], "*Load Combination [Dead]");
  EXPECT_EQ(lines[24], "error finding shell4 8");
  EXPECT_EQ(lines.back(), "  None");

  ASSERT_TRUE(GetBrickInfo(s, lines, 9));
  EXPECT_EQ(Lines(lines.begin(), lines.begin() + 9),
            (Lines{"NODES", "  Node-1 = 1;  Node-2 = 2;  Node-3 = 3;  Node-4 = 4",
                   "  Node-5 = 5;  Node-6 = 6;  Node-7 = 7;  Node-8 = 8", "**PROPERTIES", "  Material: None",
                   "  Self Weight: Include", "  Activation: Active", "**Brick Thermal Loads", "  None"}));
  EXPECT_EQ(lines[9], "**BRICK STRESSES");
  EXPECT_EQ(lines.size(), 16u);
}

TEST(Query, HeadingsPerKindAndAnUnknownObject) {
  const CfmStruct s = Described();
  grid::Sheet sheet;
  const std::pair<int, const char*> kinds[] = {
      {29, "Node 3 Information"}, {30, "Member 3 Information"}, {31, "Shell 3 Information"}, {32, "Brick 3 Information"}};
  for (const auto& [kind, heading] : kinds) {
    ReportContext ctx{sheet, s, kind, 3};
    ResetReportGrid(ctx);
    Query(ctx);
    EXPECT_EQ(sheet.GetData(1, 0), heading);
  }
  // Member 3 does not exist: its sheet is the error line.
  ReportContext ctx{sheet, s, 30, 3};
  Query(ctx);
  EXPECT_EQ(sheet.MaxRows(), 2);
  EXPECT_EQ(sheet.GetData(1, 1), "error finding member 3");
}
