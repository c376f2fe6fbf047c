#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "model/document.h"
#include "support/TempDir.h"
#include "support/files.h"
#include "support/run_program.h"
#include "tools/format.h"
#include "tools/parse.h"

#if defined(__SANITIZE_ADDRESS__)
#define NORVANE_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define NORVANE_SANITIZED 1
#endif
#endif
#ifndef NORVANE_SANITIZED
#define NORVANE_SANITIZED 0
#endif

namespace {

const std::string kModel = std::string(NORVANE_EXAMPLES_DIR) + "/building.json";

struct CliRun {
  int status = -1;
  std::string out, err;
  std::string all() const { return out + err; }
};

// Arguments go through the shell, quoted by the caller; shapes come from the source tree and a private folder.
struct CliTest : ::testing::Test {
  // `limits` runs the program under prlimit ("prlimit --as=N ").
  CliRun Cli(const std::string& args, const std::string& limits = "") const {
    CliRun run;
    run.out = CommandOutput("NORVANE_DATA_DIR='" NORVANE_SOURCE_DATA_DIR "' XDG_DATA_HOME='" + home.path() + "' " +
                                limits + "'" + NORVANE_CLI_PATH + "' " + args + " 2>'" + home / "err" + "'",
                            &run.status);
    run.err = ReadFileText(home / "err");
    return run;
  }
  TempDir home, dir;
};

}  // namespace

TEST_F(CliTest, UnitsConvertPrintsSevenSignificantDigits) {
  const std::pair<const char*, const char*> cases[] = {
      {"1 kip-ft kN-m", "1.355818\n"}, {"1 ft in", "12\n"},           {"10 C F", "18\n"},
      {"1 MT-m Kgf-m", "1000\n"},      {"' 2.5 ' N-m kN-mm", "2.5\n"}, {"-1e3 lb kip", "-1\n"},
  };
  for (const auto& [args, printed] : cases) {
    const CliRun r = Cli(std::string("units convert ") + args);
    EXPECT_EQ(r.status, 0) << args << r.err;
    EXPECT_EQ(r.out, printed) << args;
    EXPECT_EQ(r.err, "") << args;
  }
}

// Every refusal says why, on stderr, with status 1 for a refused request and 2 for bad usage.
TEST_F(CliTest, RefusalsSayWhy) {
  WriteFileText(dir / "unsolved.json", R"({"format": "norvane-model", "schemaVersion": 1,
      "loadCases": [{"number": 1, "label": "Dead", "type": "Dead-D"}]})");
  WriteFileText(dir / "broken.json", "{\"format\": ");
  WriteFileText(dir / "bad.csv", "AISC_Manual_Label,Type,A,Ix,Iy,J\nX1,W,1,2,two,4\n");
  const std::string report = "report " + kModel + " ", grid = "grid export " + kModel + " nodes ";
  const struct { std::string args; int status; std::string message; } cases[] = {
      {"units convert 1 furlong m", 2, "norvane-cli: unknown unit \"furlong\" (see: norvane-cli units list)\n"},
      {"units convert 1 ft kip", 2, "norvane-cli: cannot convert \"ft\" (Length) to \"kip\" (Force)\n"},
      {"units convert 1,5 ft in", 2, "norvane-cli: \"1,5\" is not a number\n"},
      {"units convert 1e308 kip-ft/deg lb-in/rad", 1,
       "norvane-cli: 1e308 kip-ft/deg is too large to express in lb-in/rad\n"},
      {"kfactor abc 1", 2, "norvane-cli: GA must be a number from 0 to 1000, not \"abc\"\n"},
      {"cylinder --angles '0, 360'", 1,
       "norvane-cli: Closed cylindrical frame must have at least two angle increments (excluding 0 start angle)\n"},
      {report + "80", 2, "norvane-cli: there is no report kind 80 (kinds are 0 to 57)"},
      {report + "1 --case 12", 1, "norvane-cli: there is no load case or combination 12 (the model has 11)"},
      {"report " + dir / "unsolved.json" + " 0", 1, "The results of load case 1 [Dead] are not available."},
      {grid + dir / "n.csv" + " --append", 1, "norvane-cli: Invalid file format specified"},
      {"grid export " + dir / "broken.json" + " nodes " + dir / "n.txt", 1, "Cannot open model"},
      {"combos generate " + kModel + " 0 --rows 37", 2, "norvane-cli: bad row \"37\": rows are numbered 1 to 36"},
      {"combos generate " + kModel + " 0 --rows 1,5-3", 2, "norvane-cli: bad row \"5-3\""},
      {"loads add " + kModel + " --case 1 --nodes 3,0-2 --direction Y --magnitude 1", 2,
       "norvane-cli: bad node \"0-2\" in --nodes"},
      {"section tee 5 10 1 6", 1, "Flange width must be greater than or equal to web width\n"},
      {"shapes import " + dir / "bad.csv", 1, "line 2, column 5 (Iy): \"two\" is not a number."},
  };
  for (const auto& c : cases) {
    const CliRun r = Cli(c.args);
    EXPECT_EQ(r.status, c.status) << c.args << "\n" << r.all();
    EXPECT_NE(r.all().find(c.message), std::string::npos) << c.args << "\n" << r.all();
  }
  EXPECT_EQ(FolderEntries(dir.path()), (std::vector<std::string>{"bad.csv", "broken.json", "unsolved.json"}))
      << "a refused export writes no file";
  EXPECT_EQ(Cli("shapes show W14X90").status, 0) << "a refused import changes nothing";
}

// Help and version go to stdout with status 0, for the program and for every command.
TEST_F(CliTest, HelpAndVersion) {
  const CliRun help = Cli("--help");
  EXPECT_EQ(help.status, 0);
  EXPECT_TRUE(help.out.starts_with("Headless engines of Norvane for scripts.\nUsage: norvane-cli [OPTIONS] SUBCOMMAND"))
      << help.out;
  for (const char* command : {"units", "combos", "grid", "kfactor", "cylinder", "section", "shapes", "report"})
    EXPECT_NE(help.out.find(std::string("\n  ") + command + " "), std::string::npos) << command;
  EXPECT_EQ(Cli("help").out, help.out);

  const std::pair<const char*, const char*> commands[] = {
      {"units convert --help", "Usage: norvane-cli units convert [OPTIONS] VALUE FROM TO\n"},
      {"help units convert", "Usage: norvane-cli units convert [OPTIONS] VALUE FROM TO\n"},
      {"combos generate --help", "  --rows ROWS "},
      {"SECTION Tee --help", "Usage: norvane-cli section tee [OPTIONS] FLANGE_WIDTH DEPTH FLANGE_THICKNESS"},
      {"report --help", "  --case N "},
  };
  for (const auto& [args, text] : commands) {
    const CliRun r = Cli(args);
    EXPECT_EQ(r.status, 0) << args;
    EXPECT_NE(r.out.find(text), std::string::npos) << args << "\n" << r.out;
    EXPECT_EQ(r.err, "") << args;
  }
  for (const char* args : {"--version", "units --version", "kfactor 1 --version"}) {
    const CliRun r = Cli(args);
    EXPECT_EQ(r.status, 0) << args;
    EXPECT_TRUE(r.out.starts_with("norvane-cli 1.0.0 (build ")) << args << "\n" << r.all();
  }
}

// A line that does not parse: status 2, the reason, then the help of the command it named.
TEST_F(CliTest, ParseErrorsShowTheCommandsHelp) {
  const std::pair<std::string, std::string> cases[] = {
      {"units convert 1 ft", "norvane-cli: TO is required\n\n"},
      {"units", "norvane-cli: A subcommand is required\n"},
      {"frobnicate", "norvane-cli: unknown command \"frobnicate\"\n"},
      {"units frobnicate", "norvane-cli: unknown command \"frobnicate\"\n"},
      {"grid export m nodes o.txt --bogus", "norvane-cli: The following argument was not expected: --bogus\n"},
      {"report m 1 --case", "norvane-cli: --case: 1 required N missing\n"},
      {"kfactor 1 2 3", "norvane-cli: The following argument was not expected: 3\n"},
      {"cylinder --axis Q", "norvane-cli: --axis must be X, Y or Z, not \"Q\"\n"},
  };
  for (const auto& [args, message] : cases) {
    const CliRun r = Cli(args);
    EXPECT_EQ(r.status, 2) << args;
    EXPECT_EQ(r.out, "") << args;
    EXPECT_TRUE(r.err.starts_with(message)) << args << "\n" << r.err;
    EXPECT_NE(r.err.find("Usage: norvane-cli"), std::string::npos) << args << "\n" << r.err;
  }
}

TEST(Cli, GarbageNeverCrashes) {
  const std::string huge(100000, '9');
  const std::vector<std::vector<std::string>> cases = {
      {}, {""}, {"units", "convert", huge, "ft", "in"}, {"units", "convert", "\xff\xfe", "\xc3", "\x01"}};
  for (const auto& args : cases) {
    const auto r = testsupport::RunProgram(NORVANE_CLI_PATH, args);
    EXPECT_TRUE(r.started && r.exited) << "ended by signal " << r.signal;
    EXPECT_EQ(r.status, 2) << (args.empty() ? "(no arguments)" : args[0]);
    EXPECT_FALSE(r.err.empty());
  }
}

TEST_F(CliTest, KFactorPrintsBothFactorsOrTheirFailure) {
  const CliRun both = Cli("kfactor 0.47 0.47"), stiff = Cli("kfactor 100 100");
  EXPECT_EQ(both.status, 0);
  EXPECT_EQ(both.all(), "braced K 0.68\nunbraced K 1.15\n");
  EXPECT_EQ(stiff.status, 1);
  EXPECT_EQ(stiff.all(), "braced K Root must be bracketed for bisection in rtbis\nunbraced K 9.11\n");
}

TEST_F(CliTest, CylinderListsTheFrameOrWritesItToAFile) {
  const CliRun r = Cli("cylinder --radial 10 --angles '0, 4@90' --axial 5 --supports fixed --insert 1,2,3");
  EXPECT_EQ(r.status, 0);
  EXPECT_TRUE(r.all().starts_with(
      "# cylindrical frame, closed: 2 levels, 1 ring, 4 angles; 8 nodes, 12 members, 4 supports\n"
      "node 1 11 2 3\nnode 2 1 2 -7\n")) << r.all();
  EXPECT_NE(r.all().find("\nnode 8 1 7 13\n"), std::string::npos);
  EXPECT_NE(r.all().find("\nmember 4 4 1\n"), std::string::npos) << "the ring closes";
  EXPECT_TRUE(r.all().ends_with("\nsupport 4 fixed\n"));

  const std::string path = dir / "cylinder.txt";
  const CliRun file = Cli("cylinder --axial 3@4 --no-members --supports pinned --first-node 101 --output " + path);
  EXPECT_EQ(file.status, 0);
  EXPECT_EQ(file.all(), "Wrote " + path + " (24 nodes, 0 members, 6 supports)\n");
  EXPECT_NE(ReadFileText(path).find("\nnode 124 15 12 -25.9807621135\n"), std::string::npos);
}

TEST_F(CliTest, ReportPrintsReactionsWithTheirSum) {
  const CliRun run = Cli("report " + kModel + " 1 --case 1");
  EXPECT_EQ(run.status, 0) << run.all();
  EXPECT_TRUE(run.all().starts_with("Support Reactions - [Dead]\n\nNode Id  Rx [kip]  Ry [kip]  Rz [kip]  "
                                    "Rox [kip-ft]  Roy [kip-ft]  Roz [kip-ft]\n1           0.748    33.398  "))
      << run.all();
  EXPECT_NE(run.all().find("\n2          -0.000    77.102     3.549        14.749        -0.000        -0.001\n"
                           "3  "), std::string::npos) << run.all();
  // The supports carry the dead load but the 0.106 kip the footing's soil springs take.
  EXPECT_TRUE(run.all().ends_with("\n6          -0.496    32.393    -1.595        -3.447        -0.000         1.950\n"
                                  "Sum         0.000   275.990     0.000        11.843        -0.000        -0.005\n"));
  EXPECT_EQ(Cli("report " + kModel + " 1").all(), run.all()) << "the first case when none is named";

  // A file is written in the format of its extension.
  ASSERT_EQ(Cli("report " + kModel + " 0 --case 5 -o " + dir / "d.txt").status, 0);
  const std::string table = ReadFileText(dir / "d.txt");
  EXPECT_TRUE(table.starts_with("Node Id\tDx [in]\tDy [in]\tDz [in]\tDox [rad]\tDoy [rad]\tDoz [rad]\r\n1\t0.0000"));
  // Reports gather in one file only when asked, by the grid's rules.
  const std::string reactions = dir / "reactions.htm";
  ASSERT_EQ(Cli("report " + kModel + " 1 --case 1 -o " + reactions).status, 0);
  ASSERT_EQ(Cli("report " + kModel + " 1 --case 2 -o " + reactions + " --append").status, 0);
  const std::string html = ReadFileText(reactions);
  EXPECT_LT(html.find("Support Reactions - [Dead]"), html.find("Support Reactions - [Live]")) << html;
  EXPECT_EQ(html.find("</html>"), html.rfind("</html>")) << "one document";
  ASSERT_EQ(Cli("report " + kModel + " 0 --case 5 -o " + dir / "d.txt" + " --append").status, 0);
  EXPECT_EQ(ReadFileText(dir / "d.txt"), table + table);
  EXPECT_EQ(Cli("report " + kModel + " 0 --append").status, 2) << "--append needs -o";
}

// Each kind reads what it uses: a case, a mode, an object or nothing; the rest is ignored with a note.
TEST_F(CliTest, ReportKindsReadOnlyTheChoiceTheyUse) {
  const std::string nodes = R"("nodes": [{"id": 2, "x": 0, "y": 0, "z": 0}, {"id": 1, "x": 9, "y": 0, "z": 0}])";
  WriteFileText(dir / "spectrum.json", R"({"format": "norvane-model", "schemaVersion": 1, )" + nodes + R"(,
      "results": {"spectrum": {"displacements": [[2, 0.5, 0, 0, 0, 0, 0]]}}})");
  WriteFileText(dir / "cases.json", R"({"format": "norvane-model", "schemaVersion": 1, )" + nodes + R"(,
      "results": {"cases": [{"label": "Dead", "reactions": [[1, 0, 5, 0, 0, 0, 0], [2, 0, 6, 0, 0, 0, 0]]},
                            {"label": "Live"}], "envelopeCombinations": ["Dead"]}})");
  const std::string spectrum = "report " + dir / "spectrum.json", cases = "report " + dir / "cases.json";
  const struct { std::string args; int status; std::string out, err; } runs[] = {
      // No static case is needed where none is read.
      {spectrum + " 41", 0, "Nodal Displacements - Response Spectrum Modal Combinations\n", ""},
      {spectrum + " 41 --case 3", 0, "Nodal Displacements - Response Spectrum Modal Combinations\n",
       "norvane-cli: note: report kind 41 reads no load case or mode; --case is ignored\n"},
      {cases + " 1 --mode 2", 0, "Support Reactions - [Dead]\n",
       "norvane-cli: note: report kind 1 reads a load case, not a mode; --mode is ignored\n"},
      {cases + " 0 --query 2", 0, "", "norvane-cli: note: only the information sheets (kinds 29 to 32) read "
                                       "--query; it is ignored\n"},
      // A case that is listed without any results.
      {cases + " 1 --case 2", 1, "", "norvane-cli: The results of load case 2 [Live] are not available.\n"},
      {cases + " 2 --case 2", 1, "", "norvane-cli: The results of load case 2 [Live] are not available.\n"},
      // The envelope lists the nodes in the model's order, not the results'.
      {cases + " 56", 0, "Support Reactions - Envelope\n\nNode Id  max/min", ""},
  };
  for (const auto& r : runs) {
    const CliRun run = Cli(r.args);
    EXPECT_EQ(run.status, r.status) << r.args << "\n" << run.all();
    EXPECT_TRUE(run.out.starts_with(r.out)) << r.args << "\n" << run.all();
    EXPECT_EQ(run.err, r.err) << r.args;
  }
  const std::string envelope = Cli(cases + " 56").out;
  EXPECT_LT(envelope.find("\n2  "), envelope.find("\n1  ")) << envelope;
}

TEST_F(CliTest, GridExportWritesTheTableAsItsDialogFillsIt) {
  const std::string export_ = "grid export " + kModel + " members ", txt = dir / "members.txt";
  const CliRun run = Cli(export_ + txt);
  EXPECT_EQ(run.status, 0) << run.all();
  const std::string text = ReadFileText(txt);
  EXPECT_TRUE(text.starts_with("Member Id\tNode-1\tNode-2\tMaterial\tSection\tLocal Angle (deg)\tNonlinear\t"
                               "Activation\tSelf Weight\tStatus\r\n"
                               "1\t1\t7\t1: Steel-A992--Fy50\t1: W14X90\t0\tLinear\tActive\tInclude\tNormal\r\n"))
      << text;
  EXPECT_TRUE(text.ends_with("28\t2\t7\t1: Steel-A992--Fy50\t3: W12X26\t0\tTension only\tActive\tInclude\tNormal\r\n"));
  EXPECT_EQ(Cli(export_ + txt).status, 0);  // appends only when asked
  EXPECT_EQ(ReadFileText(txt), text);
  EXPECT_EQ(Cli(export_ + txt + " --append").status, 0);
  EXPECT_EQ(ReadFileText(txt), text + text);
}

// The boundary tables of the example, as their grids fill them, under the names the command
// takes; an unknown name lists them all.
TEST_F(CliTest, GridExportWritesTheBoundaryTables) {
  const auto exported = [&](const std::string& table) {
    const std::string out = dir / (table + ".txt");
    const CliRun run = Cli("grid export " + kModel + " " + table + " " + out);
    EXPECT_EQ(run.status, 0) << run.all();
    return ReadFileText(out);
  };
  EXPECT_TRUE(exported("supports").starts_with("Node Id\tX\tY\tZ\tOX\tOY\tOZ\tDx [in]\tDy [in]\tDz [in]\tDox [rad]\t"
                                               "Doy [rad]\tDoz [rad]\r\n1\tFixed\tFixed\tFixed\tFixed\tFixed\tFixed\t0\t0\t0\t0\t0\t0\r\n"));
  EXPECT_TRUE(exported("springs").starts_with("Node Id\tKx [kip/in]\tKy [kip/in]\tKz [kip/in]\tKox [kip-ft/rad]\t"
                                              "Koy [kip-ft/rad]\tKoz [kip-ft/rad]\r\n36\t50\t50\t50\t0\t0\t0\r\n"));
  EXPECT_EQ(exported("releases"),
            "Member Id\tStart Fx\tStart Fy\tStart Fz\tStart Mx\tStart My\tStart Mz\tEnd Fx\tEnd Fy\tEnd Fz\tEnd Mx\tEnd My\t"
            "End Mz\r\n27\tFixed\tFixed\tFixed\tFixed\tReleased\tReleased\tFixed\tFixed\tFixed\tFixed\tReleased\tReleased\r\n"
            "28\tFixed\tFixed\tFixed\tFixed\tReleased\tReleased\tFixed\tFixed\tFixed\tFixed\tReleased\tReleased\r\n");
  EXPECT_EQ(exported("diaphragms"), "Diaphragm Id\tMaster Node\tLevel [ft]\tNodes\r\n1\t8\t12\t\r\n2\t14\t24\t\r\n");
  EXPECT_EQ(exported("drift"), "Node Id\r\n7\r\n13\r\n");
  EXPECT_EQ(exported("constraints"), "Constraint Id\tNode-1\tDOF-1\tNode-2\tDOF-2\r\n");
  EXPECT_TRUE(exported("coupled").starts_with("Node Id\tKx_Kx [kip/in]\tKx_Ky [kip/in]"));
  const CliRun unknown = Cli("grid export " + kModel + " boundary " + dir / "b.txt");
  EXPECT_EQ(unknown.status, 2);
  EXPECT_NE(unknown.err.find("supports, springs, line-springs, surface-springs, coupled, releases, constraints, "
                             "diaphragms, drift)"),
            std::string::npos)
      << unknown.err;
}

// A document of many nodes, written as text: quicker than building the model.
std::string ManyNodes(int count) {
  std::string text = R"({"format": "norvane-model", "schemaVersion": 1, "nodes": [)";
  for (int i = 1; i <= count; ++i)
    text += (i > 1 ? ",\n" : "") + std::string(R"({"id": )") + std::to_string(i) + R"(, "x": 1.5, "y": 0.25, "z": -3})";
  return text + "]}\n";
}

// Out of memory, or past a file-size limit: reported, nothing half-written, nothing left beside.
TEST_F(CliTest, ResourceLimitsAreReportedAndLoseNothing) {
  const std::string model = dir / "big.json", out = dir / "nodes.txt";
  WriteFileText(model, ManyNodes(300000));
#if !NORVANE_SANITIZED  // the sanitizers reserve far more address space than the limit
  const CliRun oom = Cli("grid export '" + model + "' nodes '" + out + "'", "prlimit --as=104857600 ");
  EXPECT_EQ(oom.status, 1);
  EXPECT_EQ(oom.err, "norvane-cli: Not enough memory to open model \"" + model + "\"\n");
#endif
  // The workbook, too, says it in the system's words and nothing else.
  const std::string before = "earlier table\r\n", workbook = dir / "nodes.xlsx";
  for (const auto& [file, append] : {std::pair{out, ""}, std::pair{out, " --append"}, std::pair{workbook, ""}}) {
    WriteFileText(file, before);
    const CliRun full = Cli("grid export '" + model + "' nodes '" + file + "'" + append, "prlimit --fsize=65536 ");
    EXPECT_EQ(full.status, 1) << file << append;
    EXPECT_EQ(full.err, "norvane-cli: Cannot write \"" + file + "\": File too large\n") << file << append;
    EXPECT_TRUE(ReadFileText(file) == before) << file << append << ": the old file is kept";
    std::filesystem::remove(file);
    EXPECT_EQ(FolderEntries(dir.path()), (std::vector<std::string>{"big.json"})) << file << append;
  }

}

TEST_F(CliTest, CombosGenerateAndRefuseASecondRun) {
  // Without -o nothing is written; a second run is refused.
  const std::string original = ReadFileText(kModel), copy = dir / "copy.json";
  WriteFileText(copy, original);
  const CliRun all = Cli("combos generate " + copy + " 0 --rows all");
  EXPECT_EQ(all.status, 0);
  EXPECT_NE(all.out.find("IBC-2015_Eq16-3g\n       1.2  Dead\n       1.6  Roof live\n      -0.5  Wind X\n"),
            std::string::npos);
  EXPECT_NE(all.out.find("load combinations generated from IBC-2015 LRFD."), std::string::npos);
  EXPECT_EQ(all.err, "norvane-cli: model not written (give -o OUT to save it)\n");
  EXPECT_EQ(ReadFileText(copy), original);

  const std::string out = dir / "out.json";
  const CliRun run = Cli("combos generate " + kModel + " 2 --rows 1,22-23 --pdelta -o " + out);
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_TRUE(run.out.starts_with("ACI-2014_Eq5_3_1_a  [P-Delta, concrete design, sustained factor 1.4]\n")) << run.out;
  EXPECT_TRUE(run.out.ends_with("\n3 load combinations generated from ACI 318-11/14.\nWritten to " + out + "\n"));
  const model::ModelDocument before = model::LoadModelDocument(kModel), after = model::LoadModelDocument(out);
  ASSERT_EQ(after.loadCombs.size(), before.loadCombs.size() + 3);
  EXPECT_EQ(after.loadCombs.back().name, "ACI-2014_Eq5_3_1_f_b");
  EXPECT_EQ(after.loadCombs.back().pdelta, 1);
  EXPECT_EQ(after.nodes, before.nodes);

  const std::string written = ReadFileText(out);
  const CliRun again = Cli("combos generate " + out + " 2 -o " + out);
  EXPECT_EQ(again.status, 1);
  EXPECT_EQ(again.all(),
            "Please rename or delete the existing standard load combinations before running this command.\n");
  EXPECT_EQ(ReadFileText(out), written);
}

TEST_F(CliTest, SectionsAndShapes) {
  EXPECT_EQ(Cli("section wideflange 10 20 0.5 0.3").all(),
            "label WideF10x20x0.5x0.3\nA 15.7\nAy 6\nAz 8.33333\nIz 1122.31\nIy 83.3761\nJ 0.976371\n"
            "b 10\nd 20\ntf 0.5\ntw 0.3\n");
  // The calculator's names as well as the short ones.
  const CliRun rectangle = Cli("section rectangle 2 4");
  EXPECT_EQ(rectangle.status, 0) << rectangle.all();
  EXPECT_EQ(rectangle.all(), Cli("section rect 2 4").all());
  EXPECT_EQ(Cli("section Rectangle 2 4").all(), rectangle.all());
  const CliRun show = Cli("shapes show w14x90");
  EXPECT_EQ(show.status, 0);
  for (const char* line : {"AISC_Manual_Label W14X90\n", "\nIx 999\n"})
    EXPECT_NE(show.out.find(line), std::string::npos) << line;
}

// The dialog's check from a script: the grid's eight result columns per load set, the dialog's
// refusals with status 1, the report where --report says.
TEST_F(CliTest, SteelCheckPrintsTheResultColumnsAndWritesTheReport) {
  const CliRun r = Cli("steel check W14X90 --magnify --load 300,200,60,10,35,0.85,1.0 --load=-150,120,0,0,20 --report '" +
                       dir / "w14x90.htm" + "'");
  ASSERT_EQ(r.status, 0) << r.all();
  std::vector<std::vector<std::string>> lines;
  for (size_t at = 0, end; (end = r.out.find('\n', at)) != std::string::npos; at = end + 1) {
    lines.emplace_back();
    const std::string line = r.out.substr(at, end - at);
    for (size_t f = 0, t;; f = t + 1) {
      t = line.find('\t', f);
      lines.back().push_back(line.substr(f, t == std::string::npos ? t : t - f));
      if (t == std::string::npos) break;
    }
  }
  ASSERT_EQ(lines.size(), 2u);
  ASSERT_EQ(lines[0].size(), 8u);
  // By hand, W14X90 over 14 ft: phi-Pn = 0.90(43.0)(26.5) = 1,026 kips; in tension 0.90(50)(26.5).
  EXPECT_NEAR(tools::ParseDouble(lines[0][0]).value_or(-1), 1025.6, 0.5);
  EXPECT_EQ(lines[1][0], "1192.5");
  // B1y = 1/(1 - 300/Pe1y), Pe1y = pi^2 (29,000)(362)/168^2; B1x = 0.85/(...) < 1 gives 1.0.
  const double B1y = 1 / (1 - 300 / (9.869604401089358 * 29000 * 362 / (168.0 * 168.0)));
  EXPECT_EQ(lines[0][5], "1.0000");
  EXPECT_EQ(lines[0][6], tools::Format("%.4f", B1y));
  const auto number = [&](int col) { return tools::ParseDouble(lines[0][static_cast<size_t>(col)]).value_or(-1); };
  const double h1a = 300 / number(0) + 8.0 / 9.0 * (200 / number(1) + 60 * B1y / number(2));
  EXPECT_NEAR(number(7), h1a, 1e-4);
  const std::string html = ReadFileText(dir / "w14x90.htm");
  EXPECT_NE(html.find("<title>steel design report</title>"), std::string::npos);
  EXPECT_NE(html.find("<h2>Load set 2</h2>"), std::string::npos);
  EXPECT_NE(html.find("(H1-1b)"), std::string::npos);

  // Cb 1.0 and Lb 0 pass; no --load is one zero load set. With Lb = 0 flange local buckling (F3-1)
  // still governs the noncompact flange: 0.90(7,650)/12 = 573.8 kip-ft.
  EXPECT_EQ(Cli("steel check W14X90 --cb 1.0 --lb 0").out, "1025.63\t573.768\t272.792\t555.93\t184.8\t1.0000\t1.0000\t0.0000\n");
  const struct { std::string args; int status; std::string message; } refusals[] = {
      {"--cb 0.99", 1, "Cb must be greater than 1.0\n"},
      {"--lux 0", 1, "Lux must be greater than 0.0\n"},
      {"--load 0,0,0,0,0,0.1", 1, "Cmx must be between [0.2, 1.0] for load 1.\n"},
      {"--load 0,0,0,0,0 --load 0,0,0,0,0,,1.5", 1, "Cmy must be between [0.2, 1.0]  for load 2.\n"},
      {"--load 1,x,0,0,0", 1, "Invalid Mux for load 1.\n"},
      {"--fy 5O", 2, "norvane-cli: --fy must be a number, not \"5O\"\n"},
      {"--load 1,2", 2, "norvane-cli: --load takes \"Pu,Mux,Muy,Vux,Vuy[,Cmx,Cmy]\", not \"1,2\"\n"},
      {"--report '" + dir / "no/such/folder.htm" + "'", 1, "Error opening file " + dir / "no/such/folder.htm"},
  };
  for (const auto& c : refusals) {
    const CliRun run = Cli("steel check W14X90 " + c.args);
    EXPECT_EQ(run.status, c.status) << c.args << "\n" << run.all();
    EXPECT_TRUE(run.err.starts_with(c.message)) << c.args << "\n" << run.all();
    EXPECT_EQ(run.out, "") << c.args;
  }
  const CliRun unknown = Cli("steel check W14X91");
  EXPECT_EQ(unknown.status, 1);
  EXPECT_EQ(unknown.err, "Invalid AISC section\n");
}

// The user's spectrum file is the private home's; generate prints, -o also stores.
TEST_F(CliTest, SpectrumGenerateListImportExport) {
  const CliRun asce = Cli("spectrum generate 3 1 0.6 8");
  EXPECT_EQ(asce.status, 0) << asce.err;
  EXPECT_EQ(asce.out.substr(0, 46), "ASCE_2010_SDS_1_SD1_0.6_TL_8\n0\t0.4\n0.006\t0.43\n");
  EXPECT_EQ(std::count(asce.out.begin(), asce.out.end(), '\n'), 87);
  const CliRun ec8 = Cli("spectrum generate 5 --type 1 --ground c --ag 0.25 --importance 1.0 --damping 5");
  EXPECT_EQ(ec8.out.substr(0, 35), "EC8_T1_C_AG_0.25_GI_1_XI_5\n0\t0.2875");
  EXPECT_NE(ec8.out.find("\n4\t0.0539062\n"), std::string::npos);

  const std::string file = home / "norvane/response-spectra.txt";
  EXPECT_EQ(Cli("spectrum generate 0 0.4 0.56 -o '" + file + "'").status, 0);
  WriteFileText(dir / "site.csv", "Period,Sa\n0,0.3\n1,0.5\n");
  EXPECT_EQ(Cli("spectrum import '" + dir / "site.csv" + "'").out, "Added site (2 points) to \"" + file + "\"\n");
  EXPECT_EQ(Cli("spectrum list").out, "ASCE_2010_SDS_1_SD1_0.6_TL_8\t86\nUBC_97_CA_0.4_CV_0.56\t127\nsite\t2\n");
  EXPECT_EQ(Cli("spectrum export SITE '" + dir / "back.csv" + "'").status, 0);
  EXPECT_EQ(ReadFileText(dir / "back.csv"), "0,0.3\n1,0.5\n");

  WriteFileText(dir / "bad.txt", "0 0.3\n0 0.5\n");
  const struct {
    std::string args;
    int status;
    std::string message;
  } refused[] = {
      {"spectrum generate 3 1 0.6 0.5", 1, "norvane-cli: TL value must be greater than SD1 / SDS\n"},
      {"spectrum generate 0 0.4 0.56 -o '" + file + "'", 1,
       "norvane-cli: a response spectrum named \"UBC_97_CA_0.4_CV_0.56\" already exists in \"" + file + "\"\n"},
      {"spectrum import '" + dir / "bad.txt" + "' --name Other", 1,
       "norvane-cli: " + dir / "bad.txt" + ", line 2: the period 0 does not increase (the line before has 0)\n"},
      {"spectrum export Gone x.csv", 1, "norvane-cli: no response spectrum named \"Gone\" (see: norvane-cli spectrum list)\n"},
      {"spectrum generate 3 1 0.6", 2, "norvane-cli: the ASCE codes need TL, the long-period transition in seconds\n"},
      {"spectrum generate 6 1 1", 2, "norvane-cli: CODE must be 0 to 5"},
      {"spectrum generate 1 1,5 1", 2, "norvane-cli: SDS must be a number, not \"1,5\"\n"},
      {"spectrum generate 5 --ag 0.3 --ground F", 2, "norvane-cli: --ground must be A, B, C, D or E, not \"F\"\n"},
  };
  for (const auto& r : refused) {
    const CliRun run = Cli(r.args);
    EXPECT_EQ(run.status, r.status) << r.args;
    EXPECT_EQ(run.err.substr(0, r.message.size()), r.message) << r.args;
    EXPECT_EQ(run.out, "") << r.args;
  }
  EXPECT_EQ(Cli("spectrum list").out, "ASCE_2010_SDS_1_SD1_0.6_TL_8\t86\nUBC_97_CA_0.4_CV_0.56\t127\nsite\t2\n");
}

// The road's last steps: analyze writes the results, report shows reactions that with the
// springs' give back the dead load: 140 kip lumped at the columns and 136.096 kip of self
// weight (59.280 ft^3 of steel at 0.489 kcf, the 1000 ft^2 slab 8 in thick and the 72 ft^3
// footing at 0.145 kcf: 28.989 + 96.667 + 10.440); a mechanism is refused by name.
TEST_F(CliTest, AnalyzeWritesResultsTheReportsRead) {
  const std::string solved = dir / "solved.json";
  const CliRun run = Cli("analyze " + kModel + " -o " + solved + " --modes 4");
  ASSERT_EQ(run.status, 0) << run.all();
  EXPECT_NE(run.err.find("analyze: 100% Done"), std::string::npos) << run.err;
  EXPECT_NE(run.out.find("Dead: loads X 0 Y -276.096 Z 0; reactions X "), std::string::npos) << run.out;
  EXPECT_NE(run.out.find("Live: loads X 0 Y -82 Z 0; "), std::string::npos) << "50 on the slab, 20 on girders, 12";
  EXPECT_NE(run.out.find("Mode 4: period "), std::string::npos) << run.out;
  EXPECT_NE(run.out.find("\nModal: 4 modes, lumped masses\n"), std::string::npos) << run.out;
  const CliRun reactions = Cli("report " + solved + " 1 --case 1");
  // The sum's X prints as 0.000 or -0.000 by the last bit of round-off.
  const size_t sum = reactions.out.find("\nSum    ");
  ASSERT_NE(sum, std::string::npos) << reactions.all();
  EXPECT_EQ(reactions.out.substr(sum + 21, 8), "275.990 ") << reactions.all();
  const CliRun springs = Cli("report " + solved + " 2 --case 1");
  EXPECT_TRUE(springs.out.starts_with("Spring Reactions - [Dead]")) << springs.all();

  const CliRun dry = Cli("analyze " + kModel);
  EXPECT_EQ(dry.status, 0);
  EXPECT_TRUE(dry.err.ends_with("norvane-cli: results not written (give -o OUT to save them)\n")) << dry.err;
  const CliRun bad = Cli("analyze " + kModel + " --modes x");
  EXPECT_EQ(bad.status, 2);
  EXPECT_EQ(bad.err, "norvane-cli: --modes must be a whole number from 0 to 1000, not \"x\"\n");
}

// --mass picks the masses of the modes and the summary says which; anything but the two
// names is refused before any work, and nothing is written.
TEST_F(CliTest, AnalyzeTakesLumpedOrConsistentMasses) {
  const std::string solved = dir / "solved.json";
  const CliRun consistent = Cli("analyze " + kModel + " -o " + solved + " --modes 3 --mass consistent");
  ASSERT_EQ(consistent.status, 0) << consistent.all();
  EXPECT_NE(consistent.out.find("\nModal: 3 modes, consistent masses\nMode 1: period "), std::string::npos)
      << consistent.out;
  EXPECT_TRUE(std::filesystem::exists(solved));

  const std::string refused = dir / "refused.json";
  const CliRun heavy = Cli("analyze " + kModel + " -o " + refused + " --modes 3 --mass heavy");
  EXPECT_EQ(heavy.status, 2);
  EXPECT_EQ(heavy.err, "norvane-cli: --mass must be lumped or consistent, not \"heavy\"\n");
  EXPECT_EQ(heavy.out, "");
  EXPECT_FALSE(std::filesystem::exists(refused));
}

namespace {

}  // namespace

// The example's Live case has 12 kip at the middle of girder 13 (the chain 13, 14 runs from
// x = 0 to 40 ft at the first floor) and line loads on girders 15 and 16, off that chain.
TEST_F(CliTest, LoadsMovePrintsTheGeneratedCasesAndWritesOnlyWithOut) {
  const std::string in = kModel;
  const CliRun run = Cli("loads move " + in + " --case 2 --step 10 --path 13,14");
  ASSERT_EQ(run.status, 0) << run.err;
  // From x = 10: 20 (the end of girder 13, where the load stays) and 30 are on the path, 40 is
  // its end (kept), 50 is off it.
  EXPECT_NE(run.out.find("8: Moving_Dir1_Live_Step1 (Live-L)\n"), std::string::npos) << run.out;
  EXPECT_NE(run.out.find("  Point load: member 13  ratio 1 (20 ft)  Y global  -12 kip\n"), std::string::npos) << run.out;
  EXPECT_NE(run.out.find("  Point load: member 14  ratio 0.5 (10 ft)  Y global  -12 kip\n"), std::string::npos);
  EXPECT_NE(run.out.find("  Point load: member 14  ratio 1 (20 ft)  Y global  -12 kip\n"), std::string::npos);
  EXPECT_NE(run.out.find("  Line load: member 15  ratio 0 to 1 (0 to 20 ft)  Y global  -0.5 to -0.5 kip/ft\n"),
            std::string::npos) << "loads off the path stand";
  EXPECT_EQ(run.out.find("Step4"), std::string::npos);
  EXPECT_NE(run.out.find("3 load cases and "), std::string::npos);
  EXPECT_NE(run.err.find("model not written"), std::string::npos);

  const std::string out = dir / "moved.json";
  ASSERT_EQ(Cli("loads move " + in + " --case 2 --step 10 --path 13,14 -o " + out).status, 0);
  const model::ModelDocument moved = model::LoadModelDocument(out);
  ASSERT_EQ(moved.loadCases.size(), moved.caseLoads.size());
  EXPECT_EQ(moved.loadCases.back().name, "Moving_Dir1_Live_Step3");
  const CliRun again = Cli("loads move " + out + " --case 2 --step 10 --path 13,14");
  EXPECT_EQ(again.status, 1);
  EXPECT_EQ(again.err, "Moving load case prefix (Moving_Dir1_Live_) already exists\n");
}

TEST_F(CliTest, LoadsPatternAndItsRefusals) {
  const std::string in = kModel;
  const CliRun run = Cli("loads pattern " + in + " --case 2 --path 13,14 --ratio 0.5");
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_NE(run.out.find("Pattern_Live_Odd (Live-L)\n  Point load: member 13  ratio 0.5 (10 ft)  Y global  -6 kip\n"),
            std::string::npos) << run.out;
  EXPECT_NE(run.out.find("Pattern_Live_Even (Live-L)\n  Line load: member 15"), std::string::npos)
      << "span 2 carries nothing: the girder point load is left out";
  EXPECT_NE(run.out.find("Pattern_Live_S1"), std::string::npos);
  const std::pair<std::string, std::string> refusals[] = {
      {"loads pattern " + in + " --case 2 --path 13,15",
       "The members you have selected are not connected in sequence, load patterns may not be appropriate.\n"},
      {"loads pattern " + in + " --case 2 --path 13,99", "Member id 99 not found\n"},
      {"loads move " + in + " --case 2 --step 0 --path 13,14",
       "Moving step may be positive or negative, but not zero\n"},
  };
  for (const auto& [args, message] : refusals) {
    const CliRun r = Cli(args);
    EXPECT_EQ(r.status, 1) << args;
    EXPECT_EQ(r.err.substr(0, message.size()), message) << args;
  }
  EXPECT_EQ(Cli("loads pattern " + in + " --case 2 --path 13,15 --yes").status, 0);
}

// Every report kind is built from the example's analysed results; the element and modal
// kinds show computed rows, and the kinds with no report in the results dialog say so.
TEST_F(CliTest, ReportBuildsEveryKindOfTheAnalysedExample) {
  for (int kind = 0; kind <= 57; ++kind) {
    const CliRun run = Cli("report " + kModel + " " + std::to_string(kind));
    if (kind >= 8 && kind <= 11) {
      EXPECT_EQ(run.status, 1) << kind << run.all();
      continue;
    }
    EXPECT_EQ(run.status, 0) << kind << run.all();
    const bool computed = kind == 6 || kind == 7 || (kind >= 12 && kind <= 20) || kind == 28 || kind == 34 ||
                          (kind >= 47 && kind <= 50) || kind == 57;
    if (computed) {
      EXPECT_EQ(run.out.find("(no rows)"), std::string::npos) << kind << run.out.substr(0, 200);
    }
  }
  const CliRun end = Cli("report " + kModel + " 6 --case 1");
  EXPECT_NE(end.out.find("\n1                  0.000  "), std::string::npos) << end.out.substr(0, 400);
  EXPECT_NE(end.out.find("\n                 100.000  "), std::string::npos) << end.out.substr(0, 400);
}

// The README's road on a copy of the example: a cylindrical frame added beside the building,
// nodal loads on its top, standard combinations, the analysis and a report. The live case
// carries the example's 82 kip and the 4 × 5 kip added here; its support and spring reactions
// give back those 102 kip.
TEST_F(CliTest, TheReadmeRoadRunsOnTheExample) {
  const std::string model = dir / "model.json", solved = dir / "solved.json";
  std::filesystem::copy_file(kModel, model);
  const CliRun frame = Cli("cylinder --radial 20 --angles 0,3@90 --axial 12,12 --insert 0,0,-100 --supports fixed "
                           "--into '" + model + "' -o '" + model + "'");
  ASSERT_EQ(frame.status, 0) << frame.all();
  EXPECT_EQ(frame.out, "Added 12 nodes (45 to 56), 17 members (29 to 45) and 4 supports to " + model + "\n");
  const CliRun loads = Cli("loads add '" + model + "' --case 2 --nodes 53-56 --direction Y --magnitude -5 -o '" + model + "'");
  ASSERT_EQ(loads.status, 0) << loads.all();
  EXPECT_NE(loads.out.find("  Nodal load: node 56  Y  -5 kip\n"), std::string::npos) << loads.out;
  ASSERT_EQ(Cli("combos generate '" + model + "' 0 --rows 1-3 -o '" + model + "'").status, 0);
  const CliRun analysed = Cli("analyze '" + model + "' --modes 6 -o '" + solved + "'");
  ASSERT_EQ(analysed.status, 0) << analysed.all();
  EXPECT_NE(analysed.out.find("Static: 7 load cases, 7 combinations"), std::string::npos) << analysed.out;
  const CliRun report = Cli("report '" + solved + "' 1 --case 2");
  ASSERT_EQ(report.status, 0) << report.all();
  EXPECT_NE(report.out.find("\nSum "), std::string::npos) << report.out;

  const model::ModelDocument doc = model::LoadModelDocument(solved);
  double up = 0;
  for (const auto* records : {&doc.results.results[1].reactions, &doc.results.results[1].nodalSpringReactions})
    for (const fmResult6Val& r : *records) up += r.v[1];
  EXPECT_NEAR(up, 82 + 4 * 5, 1e-9 * 102);

  // What the new options refuse.
  EXPECT_EQ(Cli("cylinder --axial 12 -o '" + model + "'").status, 2);
  EXPECT_EQ(Cli("cylinder --axial 12 --into '" + model + "'").status, 2);
  const CliRun missing = Cli("loads add '" + model + "' --case 2 --nodes 999 --direction Y --magnitude -5");
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(missing.err, "norvane-cli: node 999 is not in the model\n");
  EXPECT_EQ(Cli("loads add '" + model + "' --case 2 --nodes 53 --direction W --magnitude -5").status, 2);
}
