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
  s.m_Members = {{.id = 7, .flags = CfmStruct::kSelfWeightExcluded, .node = {3, 4}, .material = 1, .section = 1,
                  .angle = 90, .nonlinearity = 1, .steelCriteria = "AISC 360", .steelExcluded = true}};
  s.m_Shells = {{.id = 8, .flags = CfmStruct::kInactive, .node = {1, 2, 6, 5}, .material = 1, .thickness = 1}};
  s.m_Bricks = {{.id = 9, .node = {1, 2, 3, 4, 5, 6, 7, 8}, .material = 2}};  // no such material
  // The loads of the two load cases (the combination has none), in the model's units.
  s.m_LoadCases = {s.m_Solution.cases[0], s.m_Solution.cases[1]};
  s.m_CaseLoads.resize(2);
  fmCaseLoad& dead = s.m_CaseLoads[0];
  fmCaseLoad& wind = s.m_CaseLoads[1];
  wind.point = {{7, 0.5, 1, true, -2.5}};
  dead.line = {{7, {0, 0.75}, {-0.5, -0.75}, 1, false}};
  dead.surface = {{8, 1, false, -0.05}};
  wind.nodal = {{3, 0, 4.5}};
  dead.nodal = {{3, 1, -10}, {3, 5, 2}, {4, 1, -99}};
  dead.shellThermal = {{8, 25}};
  dead.brickThermal = {{9, -12.5}};
  // Weights: 64.3481 kip is a mass of 2 kip-sec^2/ft (g = 32.1740 ft/s^2); 3 kip-ft^2 about
  // X is 0.0932 kip-sec^2-ft.
  dead.nodalMasses = {{3, 0, 64.348097113}, {3, 3, 3.0}};
  s.m_NodalSprings = {{3, {100, 200, 300, 4, 5, 6}}};
  return s;
}

// The lines under a heading, up to the next heading.
Lines Section(const Lines& lines, const std::string& heading) {
  Lines out;
  auto it = std::find(lines.begin(), lines.end(), heading);
  if (it == lines.end()) return {"(no " + heading + ")"};
  for (++it; it != lines.end() && it->rfind("**", 0) != 0; ++it) out.push_back(*it);
  return out;
}

// Rows 0 (the heading) to last of the sheet's one column.
Lines Column(const grid::Sheet& sheet, int last) {
  Lines cells;
  for (int row = 0; row <= last; ++row) cells.push_back(sheet.GetData(1, row));
  return cells;
}

}  // namespace

TEST(InfoSheet, RowsLeaveOneEmptyRowBeforeEachLaterSection) {
  grid::Sheet sheet;
  FillInfoSheet(sheet, 0xF0F5FF, {"NODES", "  Node-1 = 1", "**PROPERTIES"}, "Brick 9 Information");
  ASSERT_EQ(sheet.MaxRows(), 5);
  ASSERT_EQ(sheet.MaxCols(), 1);
  EXPECT_EQ(Column(sheet, 4), (Lines{"Brick 9 Information", "NODES", "  Node-1 = 1", "", "**PROPERTIES"}));
  // A first line that is a section heading gets no empty row before it.
  FillInfoSheet(sheet, 0xF0F5FF, {"**COORDINATES", "  x"}, "Node 1 Information");
  EXPECT_EQ(sheet.MaxRows(), 3);
  EXPECT_EQ(sheet.GetData(1, 1), "**COORDINATES");
}

TEST(NodeInfo, ASupportedNodeWithItsResultsInEachCase) {
  CfmStruct s = Described();
  s.m_Solution.results.resize(2);  // the combination has no results: its lines say so
  s.m_DisplayFormat[fmUnit::Displacement] = 7;
  Lines lines;
  ASSERT_TRUE(GetNodeInfo(s, lines, 1));
  EXPECT_EQ(Lines(lines.begin(), lines.begin() + 2), (Lines{"**COORDINATES", "  x = 0.000;  y = 0.000;  z = 0.000 (ft)"}));
  EXPECT_EQ(Section(lines, "**SUPPORT"), (Lines{"  Flag: 111111", "  Dx = 0.00e+00;  Dy = 0.00e+00;  Dz = 0.00e+00 (in)",
                                                "  Dox = 0.000;  Doy = 0.000;  Doz = 0.000 (rad)"}));
  for (const char* none : {"**NODAL SPRING", "**NODAL LOADS", "**NODAL COUPLED SPRING REACTIONS"})
    EXPECT_EQ(Section(lines, none), (Lines{"  None"})) << none;
  const Lines reactions = Section(lines, "**SUPPORT REACTIONS");
  ASSERT_EQ(reactions.size(), 8u);
  EXPECT_EQ(reactions[4], "  Rx = -1.500;  Ry = -0.900;  Rz = 0.000 (kip)");
  EXPECT_EQ(Lines(reactions.begin() + 6, reactions.end()), (Lines{"*Load Combination [D+W]", "error finding node 1"}));
}

TEST(NodeInfo, SpringsLoadsGroupedByCaseAndMasses) {
  CfmStruct s = Described();
  fmCoupledSpring coupled;
  coupled.node = 3;
  for (int i = 0; i < 21; ++i) coupled.k[static_cast<size_t>(i)] = i + 1;
  s.m_CoupledSprings = {coupled};
  s.m_Solution.results[0].nodalSpringReactions = {{3, {1, 2, 3, 4, 5, 6}}};
  s.m_DisplayFormat.fill(0);
  Lines lines;
  ASSERT_TRUE(GetNodeInfo(s, lines, 3));
  EXPECT_EQ(Section(lines, "**NODAL SPRING")[2], "  Kox = 4.0;  Koy = 5.0;  Koz = 6.0 (kip-ft/rad)");
  const Lines coupledK = Section(lines, "**NODAL COUPLED SPRING");  // the 21 terms of the upper triangle
  ASSERT_EQ(coupledK.size(), 7u);
  EXPECT_EQ(coupledK[1], "  Ky_Ky = 7.0;  Ky_Kz = 8.0;  Kz_Kz = 12.0 (kip/in)");
  EXPECT_EQ(coupledK[6], "  Koy_Koy = 19.0;  Koy_Koz = 20.0;  Koz_Koz = 21.0 (kip-ft/rad)");
  // Cases in the model's order, whatever order the loads come in.
  EXPECT_EQ(Section(lines, "**NODAL LOADS"), (Lines{"*load case [Dead]", "  Direction = Y;  Magnitude = -10.0 (kip)",
                                                    "  Direction = OZ;  Magnitude = 2.0 (kip-ft)", "*load case [Wind X]",
                                                    "  Direction = X;  Magnitude = 4.5 (kip)"}));
  EXPECT_EQ(Section(lines, "**ADDITIONAL NODAL MASS"),
            (Lines{"*load case [Dead]", "  Direction = X;  Magnitude = 2.0 (kip-sec^2/ft)",
                   "  Direction = OX;  Magnitude = 0.1 (kip-sec^2-ft)"}));
  // A node with a spring lists every case; a case without its record says so.
  const Lines springReactions = Section(lines, "**NODAL SPRING REACTIONS");
  EXPECT_EQ(springReactions[1], "  Rx = 1.0;  Ry = 2.0;  Rz = 3.0 (kip)");
  EXPECT_EQ(springReactions[4], "error finding node 3");
}

TEST(MemberInfo, PropertiesAxesAndLoadsOfABeam) {
  Lines lines;
  ASSERT_TRUE(GetBeamInfo(Described(), lines, 7));
  EXPECT_EQ(Lines(lines.begin(), lines.begin() + 3),
            (Lines{"**Length = 20.000 (ft)", "**NODES", "  Start Node = 3;  End Node = 4"}));
  const Lines properties = Section(lines, "**PROPERTIES");
  // Along X: local y up and local z along Z, then turned 90 degrees about x.
  EXPECT_EQ(Lines(properties.begin(), properties.begin() + 7),
            (Lines{"  Material: Steel-A992", "  Section: W12X26", "  Local Angle: 90.00 (deg)",
                   "  Local x vector (1.0000, 0.0000, 0.0000)", "  Local y vector (0.0000, 0.0000, 1.0000)",
                   "  Local z vector (0.0000, -1.0000, 0.0000)", "  Cracking Factor: 1.000"}));
  for (const char* line : {"  Nonlinearity: Tension only", "  Self Weight: Exclude", "  Steel Design Exclusion: Yes"})
    EXPECT_NE(std::find(properties.begin(), properties.end(), line), properties.end()) << line;
  EXPECT_EQ(Section(lines, "**POINT LOADS")[2], "  Magnitude = -2.500 (kip);  Distance = 10.000 (ft)");
  EXPECT_EQ(Section(lines, "**LINE LOADS"),
            (Lines{"*load case [Dead]", "  Direction = Y;  System = global",
                   "  Magnitude: Start = -0.500;  End = -0.750 (kip/ft)", "  Distances: Start = 0.000;  End = 15.000 (ft)"}))
      << "ratios 0 and 0.75 of the 20 ft member";
  EXPECT_EQ(Section(lines, "**Member Thermal Loads"), (Lines{"  None"}));
  EXPECT_EQ(Section(lines, "**INTERNAL FORCES AND MOMENTS")[1], "error finding member 7");
}

TEST(MemberInfo, AColumnsAxes) {
  CfmStruct s = Described();
  s.m_Members[0].node = {1, 3};  // vertical
  s.m_Members[0].angle = 0;
  Lines lines;
  ASSERT_TRUE(GetBeamInfo(s, lines, 7));
  EXPECT_EQ(Lines(lines.begin() + 7, lines.begin() + 10),
            (Lines{"  Local x vector (0.0000, 1.0000, 0.0000)", "  Local y vector (-1.0000, 0.0000, 0.0000)",
                   "  Local z vector (0.0000, 0.0000, 1.0000)"}));
}

TEST(ShellAndBrickInfo, TheirNodesPropertiesAndLoads) {
  const CfmStruct s = Described();
  Lines lines;
  ASSERT_TRUE(GetShell4Info(s, lines, 8));
  EXPECT_EQ(Section(lines, "**NODES"), (Lines{"  Node-1 = 1;  Node-2 = 2;  Node-3 = 6;  Node-4 = 5"}));
  const Lines properties = Section(lines, "**PROPERTIES");
  for (const char* line :
       {"  Thickness: 0.666667 (ft)", "  Local z vector (0.0000, -1.0000, 0.0000)", "  Activation: Inactive"})
    EXPECT_NE(std::find(properties.begin(), properties.end(), line), properties.end()) << line;
  EXPECT_EQ(Section(lines, "**SURFACE LOADS")[2], "  Magnitude = -0.050 (kip/ft^2)");
  EXPECT_EQ(Section(lines, "**Shell4 Thermal Loads"), (Lines{"*load case [Dead]", "  Magnitude = 25.000 (F)"}));

  ASSERT_TRUE(GetBrickInfo(s, lines, 9));
  EXPECT_EQ(Lines(lines.begin(), lines.begin() + 5),
            (Lines{"NODES", "  Node-1 = 1;  Node-2 = 2;  Node-3 = 3;  Node-4 = 4",
                   "  Node-5 = 5;  Node-6 = 6;  Node-7 = 7;  Node-8 = 8", "**PROPERTIES", "  Material: None"}));
  EXPECT_EQ(Section(lines, "**Brick Thermal Loads"), (Lines{"*load case [Dead]", "  Magnitude = -12.500 (F)"}));
}

TEST(Query, HeadingsPerKindAndUnknownObjects) {
  const CfmStruct s = Described();
  grid::Sheet sheet;
  const std::tuple<int, const char*, const char*> kinds[] = {
      {29, "Node 42 Information", "error finding node 42"},   {30, "Member 42 Information", "error finding member 42"},
      {31, "Shell 42 Information", "error finding shell4 42"}, {32, "Brick 42 Information", "error finding brick 42"},
  };
  for (const auto& [kind, heading, error] : kinds) {
    ReportContext ctx{sheet, s, kind, 42};
    ResetReportGrid(ctx);
    Query(ctx);
    EXPECT_EQ(sheet.MaxRows(), 2);
    EXPECT_EQ(Column(sheet, 1), (Lines{heading, error}));
  }
}
