#include <gtest/gtest.h>

#include "dialogs/results/report_kinds.h"
#include "dialogs/results/sample_struct.h"

using namespace results;

TEST(ReportTitle, EveryKindWithTheCaseOrModeFilledIn) {
  auto D = [](std::string t) { return t + " - [Dead]"; };
  auto M = [](std::string t) { return t + " - [Mode-3]"; };
  auto R = [](std::string t) { return t + " - Response Spectrum Modal Combinations"; };
  const std::vector<std::pair<int, std::string>> titles = {
      {0, D("Nodal Displacements")}, {1, D("Support Reactions")}, {2, D("Spring Reactions")},
      {5, D("Spring Reactions")}, {6, D("Member End Results")}, {7, D("Member Segmental Results")}, {8, ""}, {9, ""},
      {10, ""}, {11, ""}, {12, D("Shell4 Forces and Moments")}, {13, D("Shell4 Nodal Resultants")},
      {14, D("Shell4 Principal Results")}, {15, D("Shell4 Stresses [Top]")}, {16, D("Shell4 Stresses [Bottom]")},
      {17, D("Shell4 Principal Stresses")}, {18, D("Brick Stresses")}, {19, D("Brick Principal Stresses")},
      {20, "Eigenvalues"}, {21, M("Eigenvectors")}, {22, "Member Envelope for Concrete Design"},
      {23, "Wood-Armer Moments for Concrete Design"}, {24, "Concrete Beam Design Result"},
      {25, "Concrete Column Design Result"}, {26, "Concrete Shear Design Result"}, {27, "Concrete Plate Design Result"},
      {28, "Model Statistics"}, {29, "Nodal Info"}, {30, "Member Info"}, {31, "Shell Info"}, {32, "Brick Info"},
      {33, D("Story Drift")}, {34, "Mode Participation Factors"}, {35, M("SX Modal Displacements")},
      {36, M("SY Modal Displacements")}, {37, M("SZ Modal Displacements")}, {38, M("SX Inertial Forces")},
      {39, M("SY Inertial Forces")}, {40, M("SZ Inertial Forces")}, {41, R("Nodal Displacements")},
      {42, R("Support Reactions")}, {43, R("Spring Reactions")}, {46, R("Spring Reactions")},
      {47, R("Member End Results")}, {48, R("Member Segmental Results")}, {49, R("Shell4 Forces and Moments")},
      {50, R("Brick Stresses")}, {51, D("Multi-DOF Constraint Forces & Moments")},
      {52, "Multi-DOF Constraint Forces and Moments -  Response Spectrum Modal Combinations"},  // two spaces
      {53, D("Coupled Spring Reactions")}, {54, R("Coupled Spring Reactions")}, {55, "Nodal Displacements - Envelope"},
      {56, "Support Reactions - Envelope"}, {57, "Beam Segmental Results - Envelope"}, {58, ""}, {-1, ""}, {1000, ""},
  };
  for (const auto& [kind, title] : titles) EXPECT_EQ(ReportTitle(kind, "Dead", 3), title) << kind;
  EXPECT_EQ(ReportTitle(0, "50% Live", 1), "Nodal Displacements - [50% Live]");  // a case name is not a format
}

TEST(ReportKinds, ComboEntriesForCasesAndModes) {
  CfmStruct s = SampleStruct();
  EXPECT_EQ(ComboEntries(s, 41), (std::vector<std::string>{"1: Dead", "2: Wind X", "3: D+W"}));
  s.m_Solution.eigenModes.push_back({4.0, {}});
  // 6.283185308 / sqrt(omega2) in "%.4g": 1 s, 0.5 s and pi s.
  EXPECT_EQ(ComboEntries(s, 21), (std::vector<std::string>{"Mode-1: (Period=1 sec)", "Mode-2: (Period=0.5 sec)",
                                                           "Mode-3: (Period=3.142 sec)"}));
  EXPECT_EQ(ComboEntries(s, 37), (std::vector<std::string>{"Mode-1: (Period=1 sec)"}));  // the spectrum's modes

  // A zero eigenvalue, or one below zero by round-off of the largest, is a rigid-body mode.
  s.m_Solution.eigenModes = {{0.0, {}}, {-2e-7, {}}, {0.4, {}}};
  EXPECT_EQ(ComboEntries(s, 21), (std::vector<std::string>{"Mode-1: (rigid-body mode, no period)",
                                                           "Mode-2: (rigid-body mode, no period)",
                                                           "Mode-3: (Period=9.935 sec)"}));
}

TEST(BuildReport, DispatchesEachKindToItsBuilderWithTheComboChoice) {
  const CfmStruct s = SampleStruct();
  grid::Sheet sheet;
  struct Case {
    int kind, combo, rows;
    const char* cell;  // row 1, column 1
    const char* heading2;
  };
  const Case cases[] = {{33, 1, 1, "3", "Story Height [ft]"}, {38, 0, 1, "3", "Fx [kip]"}, {42, 0, 2, "1", "Rx [kip]"},
                        {21, 5, 0, "", ""}, {99, 0, 0, "", ""}};
  for (const Case& c : cases) {
    ReportContext ctx{sheet, s, c.kind, 3};
    ResetReportGrid(ctx);
    BuildReport(ctx, c.combo);
    EXPECT_EQ(sheet.MaxRows(), c.rows) << c.kind;
    EXPECT_EQ(sheet.GetData(1, 1), c.cell) << c.kind;
    EXPECT_EQ(sheet.GetData(2, 0), c.heading2) << c.kind;
  }
  EXPECT_TRUE(IsReportBuilt(56));
  EXPECT_TRUE(IsReportBuilt(57));
  EXPECT_FALSE(IsReportBuilt(9));
  EXPECT_FALSE(IsReportBuilt(58));
}
