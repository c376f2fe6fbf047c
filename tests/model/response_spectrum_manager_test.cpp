#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "model/response_spectrum_manager.h"
#include "support/TempDir.h"
#include "support/files.h"
#include "tools/fm_exception.h"

namespace {

// The process's one manager, pointed at a private file for each test and given back after.
struct SpectrumManagerTest : ::testing::Test {
  SpectrumManagerTest() { manager.SetFilePath(dir / "spectra/response-spectra.txt"); }
  ~SpectrumManagerTest() override {
    manager.SetFilePath({});
    manager.SetSpectra(model::DefaultSpectra());
  }
  std::string File() const { return manager.FilePath(); }
  TempDir dir;
  CResponseSpectrumManager& manager = CResponseSpectrumManager::Instance();
};

const std::string kTwoSpectra =
    "# comment\n"
    "norvane-response-spectra 1\n"
    "\n"
    "spectrum Site A, 5% damped\n"
    "0\t0.4\n"
    "0.5\t1\n"
    "end\n"
    "spectrum Flat\n"
    "0.1\t0.25\n"
    "end\n";

}  // namespace

TEST_F(SpectrumManagerTest, NewUserStartsWithTheDefaultSpectrumAndSavesItsFolder) {
  manager.SetSpectra({});
  ASSERT_TRUE(manager.LoadFile()) << manager.LastError();
  ASSERT_EQ(manager.GetSpectra().size(), 1u);
  EXPECT_EQ(manager.GetSpectra()[0].name, "ASCE_2010_SDS_1_SD1_0.6_TL_8");
  EXPECT_EQ(manager.GetSpectra()[0].points.size(), 86u);

  ASSERT_TRUE(manager.SaveFile()) << manager.LastError();
  const std::vector<fmResponseSpectrum> saved = manager.GetSpectra();
  manager.SetSpectra({});
  ASSERT_TRUE(manager.LoadFile());
  EXPECT_EQ(manager.GetSpectra(), saved) << "every digit of every point reads back";
}

TEST_F(SpectrumManagerTest, ReadsNamesWithBlanksAndFindsThemWithoutRegardToCase) {
  std::filesystem::create_directories(dir / "spectra");
  WriteFileText(File(), kTwoSpectra);
  ASSERT_TRUE(manager.LoadFile()) << manager.LastError();
  ASSERT_EQ(manager.GetSpectra().size(), 2u);
  EXPECT_EQ(manager.GetSpectra()[0].name, "Site A, 5% damped");
  EXPECT_EQ(manager.GetSpectra()[0].points, (std::vector<fmSpectrumPoint>{{0, 0.4}, {0.5, 1}}));
  ASSERT_NE(manager.Find("FLAT"), nullptr);
  EXPECT_EQ(manager.Find("FLAT")->points.size(), 1u);
  EXPECT_EQ(manager.Find("Flat "), nullptr);
  EXPECT_EQ(model::ParseSpectrumFile(model::SerializeSpectrumFile(manager.GetSpectra())), manager.GetSpectra());
}

// A damaged file is named with its line, the spectra held stay, and nothing is written over it.
TEST_F(SpectrumManagerTest, DamagedFileIsRefusedWithItsLineAndKept) {
  const struct {
    const char* text;
    const char* problem;
  } cases[] = {
      {"", "line 1: the file is empty"},
      {"spectra 1\n", "line 1: not a response spectrum file"},
      {"norvane-response-spectra 2\n", "line 1: written by a newer version of the program"},
      {"norvane-response-spectra 1\nspectrum A\n0\t0.4\n0.5\tx\nend\n", "line 4: the acceleration is not a number"},
      {"norvane-response-spectra 1\nspectrum A\n0\t0.4\n0\t0.5\nend\n", "line 4: the period does not increase"},
      {"norvane-response-spectra 1\nspectrum A\n0 0.4\nend\n", "line 3: expected a period and an acceleration separated by a tab"},
      {"norvane-response-spectra 1\nspectrum A\n0\t0.4\n", "line 2: the spectrum has no \"end\" line"},
      {"norvane-response-spectra 1\nspectrum A\nend\n", "line 3: the spectrum has no points"},
      {"norvane-response-spectra 1\nspectrum A\n0\t1\nend\nspectrum a\n0\t1\nend\n", "line 5: a second spectrum named \"a\""},
      {"norvane-response-spectra 1\nspectrum \n", "line 2: the name is empty"},
      {"norvane-response-spectra 1\nspectrum =HYPERLINK(1)\n0\t1\nend\n", "line 2: the name begins with \"=\" or \"@\""},
      {"norvane-response-spectra 1\nspectrum A\xED\xA0\x80\n0\t1\nend\n", "line 2: the name is not valid UTF-8 text"},
      {"norvane-response-spectra 1\n0\t1\n", "line 2: expected \"spectrum NAME\""},
  };
  std::filesystem::create_directories(dir / "spectra");
  for (const auto& c : cases) {
    manager.SetSpectra(model::DefaultSpectra());
    WriteFileText(File(), c.text);
    EXPECT_FALSE(manager.LoadFile()) << c.text;
    EXPECT_EQ(manager.LastError(), File() + ", " + c.problem);
    EXPECT_EQ(manager.GetSpectra(), model::DefaultSpectra()) << c.text;
    EXPECT_FALSE(manager.SaveFile()) << c.text;
    EXPECT_EQ(ReadFileText(File()), c.text);
  }
  // Once the user has corrected the file it loads and saves again.
  WriteFileText(File(), kTwoSpectra);
  ASSERT_TRUE(manager.LoadFile());
  EXPECT_TRUE(manager.SaveFile()) << manager.LastError();
}

TEST_F(SpectrumManagerTest, LocationComesFromTheEnvironmentUnlessSet) {
  manager.SetFilePath({});
  ::setenv("NORVANE_SPECTRA_FILE", (dir / "mine.txt").c_str(), 1);
  EXPECT_EQ(manager.FilePath(), dir / "mine.txt");
  ::unsetenv("NORVANE_SPECTRA_FILE");
  const char* oldXdg = std::getenv("XDG_DATA_HOME");
  const std::string keep = oldXdg ? oldXdg : "";
  ::setenv("XDG_DATA_HOME", dir.path().c_str(), 1);
  EXPECT_EQ(manager.FilePath(), dir / "norvane/response-spectra.txt");
  if (oldXdg)
    ::setenv("XDG_DATA_HOME", keep.c_str(), 1);
  else
    ::unsetenv("XDG_DATA_HOME");
}

TEST(SpectrumPoints, ImportReadsTextAndCsvAndRefusesWithTheLine) {
  EXPECT_EQ(model::ParseSpectrumPoints("Period,Sa\r\n0,0.4\r\n0.5 , 1\r\n\r\n# note\r\n2;0.3\r\n"),
            (std::vector<fmSpectrumPoint>{{0, 0.4}, {0.5, 1}, {2, 0.3}}));
  EXPECT_EQ(model::ParseSpectrumPoints("\xEF\xBB\xBF" "0.1\t0.2\n0.2   0.3"),
            (std::vector<fmSpectrumPoint>{{0.1, 0.2}, {0.2, 0.3}}));
  const struct {
    const char* text;
    const char* message;
  } refused[] = {
      {"0,0.4\n0.5,1\n0.5,0.9\n", "line 3: the period 0.5 does not increase (the line before has 0.5)"},
      {"0,0.4\n0.5,one\n", "line 2: the acceleration \"one\" is not a number"},
      {"0,0.4\nhalf,1\n", "line 2: the period \"half\" is not a number"},
      {"0,0.4\n1,2,3\n", "line 2: expected two values, period and acceleration, found 3"},
      {"0,0.4\n1,\n", "line 2: the acceleration \"\" is not a number"},
      {"-1,0.4\n", "line 1: the period must not be negative"},
      {"0,-0.4\n", "line 1: the acceleration must not be negative"},
      {"Period,Sa\n", "the file holds no points"},
      {"0,1e999\n", "line 1: the acceleration \"1e999\" is not a number"},
  };
  for (const auto& r : refused) {
    try {
      model::ParseSpectrumPoints(r.text);
      ADD_FAILURE() << "accepted: " << r.text;
    } catch (const fmException& e) {
      EXPECT_STREQ(e.what(), r.message);
    }
  }
}

TEST(SpectrumPoints, ExportAndImportRoundTripUnderTheFileStem) {
  TempDir dir;
  const fmResponseSpectrum s{"any", {{0, 0.4}, {0.1 + 0.2, 1.0 / 3}, {7.630000000000002, 1e-7}}};
  model::ExportSpectrumFile(s, dir / "site.csv");
  model::ExportSpectrumFile(s, dir / "site.txt");
  EXPECT_EQ(ReadFileText(dir / "site.csv").substr(0, 6), "0,0.4\n");
  EXPECT_EQ(ReadFileText(dir / "site.txt").substr(0, 6), "0\t0.4\n");
  const fmResponseSpectrum back = model::ImportSpectrumFile(dir / "site.csv");
  EXPECT_EQ(back.name, "site");
  EXPECT_EQ(back.points, s.points);
  EXPECT_EQ(model::ImportSpectrumFile(dir / "site.txt", " Named ").name, "Named");
  try {
    model::ImportSpectrumFile(dir / "missing.csv");
    ADD_FAILURE();
  } catch (const fmException& e) {
    EXPECT_NE(std::string(e.what()).find("missing.csv"), std::string::npos) << e.what();
  }
}
