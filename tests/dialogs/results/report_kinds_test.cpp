#include <gtest/gtest.h>

#include "dialogs/results/report_kinds.h"
#include "dialogs/results/sample_struct.h"

using namespace results;

TEST(ReportTitle, EveryKindWithTheCaseOrModeFilledIn) {
  const char* const rs = "Response Spectrum Modal Combinations";
  const std::vector<std::pair<int, std::string>> titles = {
      {0, "Nodal Displacements - [Dead]"}, {1, "Support Reactions - [Dead]"}, {2, "Spring Reactions - [Dead]"},
      {5, "Spring Reactions - [Dead]"}, {6, "Member End Results - [Dead]"}, {7, "Member Segmental Results - [Dead]"},
      {8, ""}, {9, ""}, {10, ""}, {11, ""},
      {12, "Shell4 Forces and Moments - [Dead]"}, {13, "Shell4 Nodal Resultants - [Dead]"},
      {14, "Shell4 Principal Results - [Dead]"}, {15, "Shell4 Stresses [Top] - [Dead]"},
      {16, "Shell4 Stresses [Bottom] - [Dead]"}, {17, "Shell4 Principal Stresses - [Dead]"},
      {18, "Brick Stresses - [Dead]"}, {19, "Brick Principal Stresses - [Dead]"},
      {20, "Eigenvalues"}, {21, "Eigenvectors - [Mode-3]"}, {22, "Member Envelope for Concrete Design"},
      {23, "Wood-Armer Moments for Concrete Design"}, {24, "Concrete Beam Design Result"},
      {25, "Concrete Column Design Result"}, {26, "Concrete Shear Design Result"},
      {27, "Concrete Plate Design Result"}, {28, "Model Statistics"},
      {29, "Nodal Info"}, {30, "Member Info"}, {31, "Shell Info"}, {32, "Brick Info"},
      {33, "Story Drift - [Dead]"}, {34, "Mode Participation Factors"},
      {35, "SX Modal Displacements - [Mode-3]"}, {36, "SY Modal Displacements - [Mode-3]"},
      {37, "SZ Modal Displacements - [Mode-3]"}, {38, "SX Inertial Forces - [Mode-3]"},
      {39, "SY Inertial Forces - [Mode-3]"}, {40, "SZ Inertial Forces - [Mode-3]"},
      {41, std::string("Nodal Displacements - ") + rs}, {42, std::string("Support Reactions - ") + rs},
      {43, std::string("Spring Reactions - ") + rs}, {46, std::string("Spring Reactions - ") + rs},
      {47, std::string("Member End Results - ") + rs}, {48, std::string("Member Segmental Results - ") + rs},
      {49, std::string("Shell4 Forces and Moments - ") + rs}, {50, std::string("Brick Stresses - ") + rs},
      {51, "Multi-DOF Constraint Forces & Moments - [Dead]"},
      {52, std::string("Multi-DOF Constraint Forces and Moments -  ") + rs},  // two spaces, as always shown
      {53, "Coupled Spring Reactions - [Dead]"}, {54, std::string("Coupled Spring Reactions - ") + rs},
      {55, "Nodal Displacements - Envelope"}, {56, "Support Reactions - Envelope"},
      {57, "Beam Segmental Results - Envelope"}, {58, ""}, {-1, ""}, {1000, ""},
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
  EXPECT_EQ(ModeEntry(12, 1.0), "Mode-12: (Period=6.283 sec)");
}

TEST(BuildReport, DispatchesEachKindToItsBuilderWithTheComboChoice) {
  const CfmStruct s = SampleStruct();
  grid::Sheet sheet;
  struct Case {
    int kind, combo, rows;
    const char* cell;  // row 1, column 1
    const char* heading2;
  };
  const Case cases[] = {
      {33, 1, 1, "3", "Story Height [ft]"}, {36, 0, 0, "", ""}, {38, 0, 1, "3", "Fx [kip]"},
      {42, 0, 2, "1", "Rx [kip]"},          {21, 5, 0, "", ""}, {35, 4, 0, "", ""},
      {6, 0, 0, "", ""},                    {99, 0, 0, "", ""},
  };
  for (const Case& c : cases) {
    ReportContext ctx{sheet, s, c.kind, 3};
    ResetReportGrid(ctx);
    BuildReport(ctx, c.combo);
    EXPECT_EQ(sheet.MaxRows(), c.rows) << c.kind;
    EXPECT_EQ(sheet.GetData(1, 1), c.cell) << c.kind;
    EXPECT_EQ(sheet.GetData(2, 0), c.heading2) << c.kind;
  }
  EXPECT_TRUE(IsReportBuilt(56));
  EXPECT_FALSE(IsReportBuilt(57));
}
