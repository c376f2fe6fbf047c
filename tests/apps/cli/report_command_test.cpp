#include <gtest/gtest.h>

#include "support/TempDir.h"
#include "support/files.h"

namespace {

struct CliRun {
  int status;
  std::string output;  // standard output and error together
};

CliRun Cli(const std::string& args) {
  int status = -1;
  std::string out = CommandOutput(std::string(NORVANE_CLI_PATH) + " " + args + " 2>&1", &status);
  return {status, out};
}

const std::string kModel = std::string(NORVANE_EXAMPLES_DIR) + "/building.json";

}  // namespace

TEST(CliReport, SupportReactionsOfTheExampleWithTheirSum) {
  const CliRun run = Cli("report " + kModel + " 1 --case 1");
  EXPECT_EQ(run.status, 0) << run.output;
  EXPECT_EQ(run.output,
            "Support Reactions - [Dead]\n"
            "\n"
            "Node Id  Rx [kip]  Ry [kip]  Rz [kip]  Rox [kip-ft]  Roy [kip-ft]  Roz [kip-ft]\n"
            "1           0.000    17.500     0.000         0.000         0.000         0.000\n"
            "2           0.000    35.000     0.000         0.000         0.000         0.000\n"
            "3           0.000    17.500     0.000         0.000         0.000         0.000\n"
            "4           0.000    17.500     0.000         0.000         0.000         0.000\n"
            "5           0.000    35.000     0.000         0.000         0.000         0.000\n"
            "6           0.000    17.500     0.000         0.000         0.000         0.000\n"
            "Sum         0.000   140.000     0.000         0.000         0.000         0.000\n");
  // The first case when none is named; the lateral case's reactions balance its 9 kip.
  EXPECT_EQ(Cli("report " + kModel + " 1").output, run.output);
  const CliRun wind = Cli("report " + kModel + " 1 --case 5");
  EXPECT_NE(wind.output.find("Sum        -9.000     0.000     0.000         0.000         0.000        54.000\n"),
            std::string::npos)
      << wind.output;
}

TEST(CliReport, ModesDriftEnvelopesAndSheets) {
  const CliRun mode = Cli("report " + kModel + " 21 --mode 3");
  EXPECT_EQ(mode.status, 0) << mode.output;
  EXPECT_TRUE(mode.output.starts_with("Eigenvectors - [Mode-3]\n")) << mode.output;
  const CliRun drift = Cli("report " + kModel + " 33 --case 6");
  EXPECT_NE(drift.output.find("13                  12.000   0.0471        0.0177        0.012 %"), std::string::npos)
      << drift.output;
  const CliRun envelope = Cli("report " + kModel + " 56");
  EXPECT_NE(envelope.output.find("Node Id  max/min  Rx [kip]  Comb#"), std::string::npos) << envelope.output;
  const CliRun sheet = Cli("report " + kModel + " 29 --query 13");
  EXPECT_NE(sheet.output.find("Node 13 Information\n**COORDINATES\n  x = 0.000;  y = 24.000;  z = 0.000 (ft)\n\n"),
            std::string::npos)
      << sheet.output;
}

TEST(CliReport, SelectedOnlyAndFilesByExtension) {
  TempDir dir;
  std::string doc = ReadFileText(kModel);
  const std::string node2 = "{\"id\": 2, \"x\": 20, \"y\": 0, \"z\": 0}";
  ASSERT_NE(doc.find(node2), std::string::npos);
  doc.replace(doc.find(node2), node2.size(), "{\"id\": 2, \"x\": 20, \"y\": 0, \"z\": 0, \"flags\": 1}");
  WriteFileText((dir / "m.json"), doc);
  const CliRun selected = Cli("report " + (dir / "m.json") + " 1 --selected");
  EXPECT_EQ(selected.output,
            "Support Reactions - [Dead]\n\n"
            "Node Id  Rx [kip]  Ry [kip]  Rz [kip]  Rox [kip-ft]  Roy [kip-ft]  Roz [kip-ft]\n"
            "2           0.000    35.000     0.000         0.000         0.000         0.000\n"
            "Sum         0.000    35.000     0.000         0.000         0.000         0.000\n");

  ASSERT_EQ(Cli("report " + kModel + " 0 --case 5 -o " + (dir / "d.txt")).status, 0);
  const std::string text = ReadFileText((dir / "d.txt"));
  EXPECT_TRUE(text.starts_with("Node Id\tDx [in]\tDy [in]\tDz [in]\tDox [rad]\tDoy [rad]\tDoz [rad]\r\n1\t0.0000")) << text;
  ASSERT_EQ(Cli("report " + kModel + " 1 -o " + (dir / "r.htm")).status, 0);
  EXPECT_NE(ReadFileText((dir / "r.htm")).find("<caption>Support Reactions - [Dead]</caption>"), std::string::npos);
  ASSERT_EQ(Cli("report " + kModel + " 55 -o " + (dir / "e.xlsx")).status, 0);
  EXPECT_TRUE(ReadFileText((dir / "e.xlsx")).starts_with("PK"));
}

TEST(CliReport, RefusalsSayWhy) {
  TempDir dir;
  WriteFileText((dir / "short.json"),
                R"({"format": "norvane-model", "schemaVersion": 1, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}],
                    "results": {"cases": [{"label": "D", "displacements": [[1, 0, 0]]}]}})");
  WriteFileText((dir / "odd.json"),
                R"({"format": "norvane-model", "schemaVersion": 1, "nodes": [{"id": 1, "x": 0, "y": 0, "z": 0}],
                    "results": {"cases": [{"label": "D", "reactions": [[9, 0, 1, 0, 0, 0, 0]]}]}})");
  WriteFileText((dir / "unsolved.json"), R"({"format": "norvane-model", "schemaVersion": 1,
                    "loadCases": [{"number": 1, "label": "Dead", "type": "Dead-D"}]})");
  struct Case {
    std::string args;
    int status;
    std::string message;
  };
  const std::vector<Case> cases = {
      {"report " + kModel + " 80", 2, "there is no report kind 80 (kinds are 0 to 57)"},
      {"report " + kModel + " 6", 1, "report kind 6 (Member End Results) is not made by this version"},
      {"report " + kModel + " 1 --case 12", 1, "there is no load case or combination 12 (the model has 11)"},
      {"report " + kModel + " 21 --mode 5", 1, "there is no mode 5 (the model has 4)"},
      {"report " + kModel + " 1 --case 1 --mode 1", 2, "give one of --case and --mode"},
      {"report " + kModel + " 1 --case x", 2, "--case needs a whole number, not \"x\""},
      {"report " + kModel + " 1 -o " + (dir / "r.csv"), 1, "Invalid file format specified"},
      {"report " + kModel, 2, "usage: norvane-cli report MODEL KIND"},
      {"report " + kModel + " 1 --all", 2, "unknown option --all"},
      {"report " + (dir / "short.json") + " 0", 1,
       "/results/cases/0/displacements/0: expected 7 numbers: the node or element number and six values"},
      {"report " + (dir / "unsolved.json") + " 0", 1, "The results of load case 1 [Dead] are not available."},
  };
  for (const Case& c : cases) {
    const CliRun run = Cli(c.args);
    EXPECT_EQ(run.status, c.status) << c.args << "\n" << run.output;
    EXPECT_NE(run.output.find(c.message), std::string::npos) << c.args << "\n" << run.output;
  }
  // Results that do not fit the model are reported, and the report still shows them.
  const CliRun odd = Cli("report " + (dir / "odd.json") + " 1");
  EXPECT_EQ(odd.status, 0) << odd.output;
  EXPECT_NE(odd.output.find("warning: the results do not fit the model: results of \"D\": support reactions name "
                            "node 9, which the model does not have"),
            std::string::npos)
      << odd.output;
  EXPECT_NE(odd.output.find("Sum"), std::string::npos);
}
