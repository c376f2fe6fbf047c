#include <gtest/gtest.h>

#include "dialogs/results/report_kinds.h"
#include "dialogs/results/sample_struct.h"

using namespace results;

TEST(ReportTitle, EveryKindWithTheCaseOrModeFilledIn) {
  const std::pair<int, const char*> titles[] = {
      {0, "Nodal Displacements - [Dead]"},
      {1, "Support Reactions - [Dead]"},
      {2, "Spring Reactions - [Dead]"},
      {5, "Spring Reactions - [Dead]"},
      {6, "Member End Results - [Dead]"},
      {7, "Member Segmental Results - [Dead]"},
      {8, ""}, {9, ""}, {10, ""}, {11, ""},
      {12, "Shell4 Forces and Moments - [Dead]"},
      {13, "Shell4 Nodal Resultants - [Dead]"},
      {14, "Shell4 Principal Results - [Dead]"},
      {15, "Shell4 Stresses [Top] - [Dead]"},
      {16, "Shell4 Stresses [Bottom] - [Dead]"},
      {17, "Shell4 Principal Stresses - [Dead]"},
      {18, "Brick Stresses - [Dead]"},
      {19, "Brick Principal Stresses - [Dead]"},
      {20, "Eigenvalues"},
      {21, "Eigenvectors - [Mode-3]"},
      {22, "Member Envelope for Concrete Design"},
      {23, "Wood-Armer Moments for Concrete Design"},
      {24, "Concrete Beam Design Result"},
      {25, "Concrete Column Design Result"},
      {26, "Concrete Shear Design Result"},
      {27, "Concrete Plate Design Result"},
      {28, "Model Statistics"},
      {29, "Nodal Info"}, {30, "Member Info"}, {31, "Shell Info"}, {32, "Brick Info"},
      {33, "Story Drift - [Dead]"},
      {34, "Mode Participation Factors"},
      {35, "SX Modal Displacements - [Mode-3]"},
      {36, "SY Modal Displacements - [Mode-3]"},
      {37, "SZ Modal Displacements - [Mode-3]"},
      {38, "SX Inertial Forces - [Mode-3]"},
      {39, "SY Inertial Forces - [Mode-3]"},
      {40, "SZ Inertial Forces - [Mode-3]"},
      {41, "Nodal Displacements - Response Spectrum Modal Combinations"},
      {42, "Support Reactions - Response Spectrum Modal Combinations"},
      {43, "Spring Reactions - Response Spectrum Modal Combinations"},
      {46, "Spring Reactions - Response Spectrum Modal Combinations"},
      {47, "Member End Results - Response Spectrum Modal Combinations"},
      {48, "Member Segmental Results - Response Spectrum Modal Combinations"},
      {49, "Shell4 Forces and Moments - Response Spectrum Modal Combinations"},
      {50, "Brick Stresses - Response Spectrum Modal Combinations"},
      {51, "Multi-DOF Constraint Forces & Moments - [Dead]"},
      {52, "Multi-DOF Constraint Forces and Moments -  Response Spectrum Modal Combinations"},
      {53, "Coupled Spring Reactions - [Dead]"},
      {54, "Coupled Spring Reactions - Response Spectrum Modal Combinations"},
      {55, "Nodal Displacements - Envelope"},
      {56, "Support Reactions - Envelope"},
      {57, "Beam Segmental Results - Envelope"},
      {58, ""}, {-1, ""}, {1000, ""},
  };
  for (const auto& [kind, title] : titles) EXPECT_EQ(ReportTitle(kind, "Dead", 3), title) << kind;
  // A case name is text, not a format.
  EXPECT_EQ(ReportTitle(0, "50% Live", 1), "Nodal Displacements - [50% Live]");
}

TEST(ReportKinds, ComboEntriesForCasesAndModes) {
  CfmStruct s = SampleStruct();
  EXPECT_EQ(ComboEntries(s, 0), (std::vector<std::string>{"1: Dead", "2: Wind X", "3: D+W"}));
  EXPECT_EQ(ComboEntries(s, 41), ComboEntries(s, 0));
  s.m_Solution.eigenModes.push_back({4.0, {}});
  // 6.283185308 / sqrt(omega2) in "%.4g": 1 s, 0.5 s and pi s.
  EXPECT_EQ(ComboEntries(s, 21), (std::vector<std::string>{"Mode-1: (Period=1 sec)", "Mode-2: (Period=0.5 sec)",
                                                           "Mode-3: (Period=3.142 sec)"}));
  EXPECT_EQ(ComboEntries(s, 37), (std::vector<std::string>{"Mode-1: (Period=1 sec)"}));
  EXPECT_EQ(ComboEntries(s, 40), ComboEntries(s, 35));
  EXPECT_EQ(ModeEntry(12, 1.0), "Mode-12: (Period=6.283 sec)");
  EXPECT_EQ(ComboLabelOf(21), "Mode Shape:");
  EXPECT_EQ(ComboLabelOf(1), "");
  EXPECT_EQ(ModeListTitleOf(21), "Eigenvectors");
  EXPECT_EQ(ModeListTitleOf(36), "Modal Displacements");
  EXPECT_EQ(ModeListTitleOf(39), "Inertial Forces");
}

TEST(BuildReport, DispatchesEachKindToItsBuilderWithTheComboChoice) {
  const CfmStruct s = SampleStruct();
  grid::Sheet sheet;
  struct Case {
    int kind;
    int combo;
    int rows;
    const char* cell;  // row 1, column 1 (or column 2 for the envelope's second row)
    const char* heading2;
  };
  const Case cases[] = {
      {0, 1, 4, "1", "Dx [in]"},    {1, 0, 3, "1", "Rx [kip]"},         {21, 1, 1, "3", "Dx [in]"},
      {33, 1, 1, "3", "Story Height [ft]"}, {35, 0, 1, "3", "Dx [in]"}, {36, 0, 0, "", ""},
      {38, 0, 1, "3", "Fx [kip]"},  {41, 0, 1, "3", "Dx [in]"},         {42, 0, 2, "1", "Rx [kip]"},
      {55, 0, 8, "1", "max/min"},   {29, 0, 0, "**COORDINATES", ""},    {21, 5, 0, "", ""},
      {35, 4, 0, "", ""},           {6, 0, 0, "", ""},                  {57, 0, 0, "", ""},
      {9, 0, 0, "", ""},            {99, 0, 0, "", ""},
  };
  for (const Case& c : cases) {
    ReportContext ctx{sheet, s, c.kind, 3};
    ResetReportGrid(ctx);
    BuildReport(ctx, c.combo);
    if (c.kind == 29) {
      EXPECT_EQ(sheet.GetData(1, 0), "Node 3 Information");
      EXPECT_EQ(sheet.GetData(1, 1), c.cell);
      continue;
    }
    EXPECT_EQ(sheet.MaxRows(), c.rows) << c.kind;
    EXPECT_EQ(sheet.GetData(1, 1), c.cell) << c.kind;
    EXPECT_EQ(sheet.GetData(2, 0), c.heading2) << c.kind;
  }
  EXPECT_TRUE(IsReportBuilt(0));
  EXPECT_TRUE(IsReportBuilt(56));
  EXPECT_FALSE(IsReportBuilt(6));
  EXPECT_FALSE(IsReportBuilt(20));
  EXPECT_FALSE(IsReportBuilt(57));
}
