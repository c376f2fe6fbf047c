#include "tools/shape_table.h"

#include <cstdlib>
#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <cmath>
#include <filesystem>

#include "support/TempDir.h"
#include "tools/atomic_file.h"
#include "tools/fm_exception.h"
#include "tools/shape_bundle.h"

namespace {

const std::string kDataDir = NORVANE_SOURCE_DATA_DIR;
// NORVANE_TEST_DATA_DIR in the environment points a worktree away from the project to the shared data.
std::string TestDataDir() {
  const char* dir = std::getenv("NORVANE_TEST_DATA_DIR");
  return dir && *dir ? dir : NORVANE_TEST_DATA_DIR;
}
const std::string kPublished = TestDataDir() + "/aisc-shapes-v15.0-US.csv";
bool Exists(const std::string& path) { return std::filesystem::exists(path); }

std::string Read(const std::string& path) { return Exists(path) ? tools::ReadWholeFile(path) : std::string(); }

// The library reads the bundled tables as installed, and a private user folder.
class ShapeLibraryTest : public ::testing::Test {
 protected:
  void SetUp() override { tools::SetShapeLibraryLocations({kDataDir, user.path() + "/norvane"}); }
  void TearDown() override { tools::SetShapeLibraryLocations({}); }

  std::string UserFile(const char* name) const { return user.path() + "/norvane/" + name; }
  std::string WriteCsv(const std::string& name, const std::string& text) const {
    tools::WriteFileAtomically(files / name, text);
    return files / name;
  }

  TempDir user, files;
};

const std::string kHeader = "EDI_Std_Nomenclature,AISC_Manual_Label,Type,T_F,W,A,d,bf,tw,tf,kdes,Ix,Iy,J,Comment\n";
const std::string kGoodRows =
    "W10X12,W10X12,W,F,12,3.54,9.87,3.96,0.19,0.21,0.51,53.8,2.18,0.0547,light\n"
    "W8X31,W8X31,W,F,31,9.13,8,8,0.285,0.435,0.829,110,37.1,0.536,\n";

std::string Repeated(const std::string& text, int times) {
  std::string out;
  for (int i = 0; i < times; ++i) out += text;
  return out;
}

}  // namespace

TEST(BundledShapes, CommittedFilesAreWhatTheBuilderMakes) {
  const tools::BundledTables fresh = tools::BuildBundledTables(kDataDir);
  for (const auto& [name, built] : {std::pair{"aisc14u.idx", fresh.aiscIndex}, {"aisc14u.tbl", fresh.aiscTable},
                                    {"nds.tbl", fresh.nds}})
    EXPECT_TRUE(Read(kDataDir + "/" + name) == built) << name << ": run norvane-cli shapes bundle data";
}

TEST_F(ShapeLibraryTest, TransformsShapesIntoSections) {
  const struct { const char* label; double A, Ay, Az, Iz, Iy, J, b, d, tf, tw; } cases[] = {
      {"W14X90", 26.5, 0.44 * 14, 2 * 14.5 * 0.71 / 1.2, 999, 362, 4.06, 14.5, 14, 0.71, 0.44},
      {"HSS6X6X1/2", 9.74, 2 * 6 * 0.465, 2 * 6 * 0.465, 48.3, 48.3, 81.1, 6, 6, 0.465, 0.465},
      {"Pipe4STD", 2.96, 1.48, 1.48, 6.82, 6.82, 13.6, 4.5, 4.5, 0.221, 0.221},
      {"L4X4X1/2", 3.75, 2, 2, 5.52, 5.52, 0.322, 4, 4, 0.5, 0.5},
  };
  for (const auto& c : cases) {
    tools::fmSect_AISC shape;
    ASSERT_TRUE(tools::get_aisc_shape(tools::get_shape(c.label), shape)) << c.label;
    fmSect s(-1);
    tools::transform_aisc_to_norvane_section(s, shape);
    EXPECT_EQ(s.label, c.label);
    const double got[] = {s.A, s.Ay, s.Az, s.Iz, s.Iy, s.J, s.b, s.d, s.tf, s.tw};
    const double want[] = {c.A, c.Ay, c.Az, c.Iz, c.Iy, c.J, c.b, c.d, c.tf, c.tw};
    for (size_t k = 0; k < std::size(got); ++k)
      EXPECT_NEAR(got[k], want[k], 1e-9 * (1 + want[k])) << c.label << " " << k;
  }
  fmSect wood;
  tools::transform_nds_to_norvane_section(wood, (*tools::CurrentNdsTable())[size_t(tools::get_nds_shape("2x4"))]);
  EXPECT_DOUBLE_EQ(wood.Ay, 5.25 / 1.2);
  tools::ScaleSectionFromInches(wood, 12);  // to feet
  EXPECT_DOUBLE_EQ(wood.A, 5.25 / 144);
  EXPECT_DOUBLE_EQ(wood.d, 3.5 / 12);
}

TEST_F(ShapeLibraryTest, AnglesStandOnTheirLongLegAndDoubleAnglesTakeTwiceTheSingleAngleJ) {
  // L8X4X1 as published: d = 4, b = 8, Ix = 69.7 with y = 3.03 measured along the 8 in leg.
  tools::fmSect_AISC single;
  ASSERT_TRUE(tools::get_aisc_shape(tools::get_shape("L8X4X1"), single));
  fmSect s;
  tools::transform_aisc_to_norvane_section(s, single);
  EXPECT_EQ((std::vector<double>{s.d, s.b, s.Iz, s.Iy, s.Ay, s.Az, s.J}),
            (std::vector<double>{8, 4, 69.7, 11.6, 8, 4, 3.68}));

  tools::fmSect_AISC pair;  // 2L8X4X1X3/8LLBB as published, without J
  pair.label = "2L8X4X1X3/8LLBB", pair.type = "2L";
  for (auto [v, x] : {std::pair{tools::aisc::A, 22.2}, {tools::aisc::d, 8}, {tools::aisc::b, 4}, {tools::aisc::t, 1},
                      {tools::aisc::Ix, 139}, {tools::aisc::Iy, 56.8}})
    pair.values[size_t(v)] = x;
  tools::transform_aisc_to_norvane_section(s, pair);
  EXPECT_EQ((std::vector<double>{s.d, s.b, s.Ay, s.Az, s.J}), (std::vector<double>{8, 4, 16, 8, 7.36}));
  tools::transform_aisc_to_norvane_section(s, pair, nullptr);
  EXPECT_EQ(s.J, 0) << "no library to derive it from";

  for (auto [label, single] : {std::pair{"2L8X4X1X3/8LLBB", "L8X4X1"}, {"2L12X12X1-3/8X1-1/2", "L12X12X1-3/8"},
                               {"2L2-1/2X1-1/2X3/16SLBB", "L2-1/2X1-1/2X3/16"}, {"2L4X4X1/2", "L4X4X1/2"},
                               {"W14X90", ""}, {"2L4X4", ""}})
    EXPECT_EQ(tools::SingleAngleLabel(label), single) << label;
}

TEST_F(ShapeLibraryTest, ImportShadowsTheInstalledLibraryAndKeepsABackup) {
  const std::string installedIdx = Read(kDataDir + "/aisc14u.idx");
  tools::ascii_binary(WriteCsv("small.csv", kHeader + kGoodRows));
  ASSERT_TRUE(Exists(UserFile("aisc14u.idx")));
  EXPECT_EQ(tools::ActiveAiscDirectory(), user.path() + "/norvane");
  ASSERT_NE(tools::CurrentAiscLibrary(), nullptr);
  EXPECT_EQ(tools::CurrentAiscLibrary()->size(), 2u);
  EXPECT_LT(tools::get_shape("W14X90"), 0) << "the installed shapes are shadowed";
  tools::fmSect_AISC s;
  ASSERT_TRUE(tools::get_aisc_shape(tools::get_shape("W8X31"), s));
  EXPECT_EQ(s.Value("Ix"), 110);
  EXPECT_TRUE(std::isnan(s.Value("Zx"))) << "columns the file lacks are not applicable";

  const std::string firstImport = Read(UserFile("aisc14u.tbl"));
  tools::ascii_binary(WriteCsv("one.csv", kHeader + "W8X31,W8X31,W,F,31,9.13,8,8,0.285,0.435,0.829,110,37.1,0.536,\n"));
  EXPECT_EQ(tools::CurrentAiscLibrary()->size(), 1u);
  EXPECT_EQ(Read(UserFile("aisc14u.tbl.bak")), firstImport);
  EXPECT_EQ(Read(kDataDir + "/aisc14u.idx"), installedIdx) << "the installed library is never written";
}

TEST_F(ShapeLibraryTest, BadFilesAreRefusedAndTheLibraryStaysAsItWas) {
  tools::ascii_binary(WriteCsv("base.csv", kHeader + kGoodRows));
  const std::string idx = Read(UserFile("aisc14u.idx")), tbl = Read(UserFile("aisc14u.tbl"));

  const std::string noIx = "EDI_Std_Nomenclature,AISC_Manual_Label,Type,A,Iy,J\nX,X,W,1,2,3\n";
  const struct {
    const char* name; std::string text; const char* message;
    size_t size = 0;  // the file grown to this size, unread
    const char* verb = "import";
  } cases[] = {
      {"missing column", noIx, "line 1: the header lacks the column(s) Ix."},
      {"text for a number", kHeader + "W10X12,W10X12,W,F,12,3.54,9.87,3.96,0.19,0.21,0.51,5x3.8,2.18,0.0547,\n",
       "line 2, column 12 (Ix): \"5x3.8\" is not a number."},
      {"duplicate label", kHeader + kGoodRows + "W8x31,W8x31,W,F,31,9.13,8,8,0.285,0.435,0.829,110,37.1,0.536,\n",
       "line 4, column 2 (AISC_Manual_Label): the label W8x31 is already used on line 3."},
      {"J not positive", kHeader + "W10X12,W10X12,W,F,12,3.54,9.87,3.96,0.19,0.21,0.51,53.8,2.18,-1,\n",
       "line 2, column 14 (J): the shape W10X12 needs a positive value."},
      {"label the section table refuses", kHeader + "W10X12*,W10X12*,W,F,12,3.54,9.87,3.96,0.19,0.21,0.51,53.8,2.18,1,\n",
       "line 2, column 2 (AISC_Manual_Label): Section label can only contain letters, digits, blanks between words and "
       "the characters _ - . ( ) + /; the character \"*\" at position 7 is not allowed."},
      {"unknown type", kHeader + "X1,X1,BOGUS,F,12,3.54,9.87,3.96,0.19,0.21,0.51,53.8,2.18,1,\n",
       "line 2, column 3 (Type): \"BOGUS\" is not a shape type (W, M, S, HP, C, MC, L, WT, MT, ST, 2L, HSS or PIPE)."},
      {"negative depth", kHeader + "W10X12,W10X12,W,F,12,3.54,-9.87,3.96,0.19,0.21,0.51,53.8,2.18,1,\n",
       "line 2, column 7 (d): the shape W10X12 may not have a negative value."},
      {"binary file", std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16),
       "this is not a text file (it holds binary data)."},
      {"not UTF-8", kHeader + "W10X12,W10X12,W,F,12,3.54,9.87,3.96,0.19,0.21,0.51,53.8,2.18,0.0547,caf\xE9\n",
       "line 2: the text is not UTF-8"},
      {"overlong form", kHeader + kGoodRows + "X\xC0\x80,X1,W,F,12,3.54,9.87,3.96,0.19,0.21,0.51,53.8,2.18,1,\n",
       "line 4: the text is not UTF-8"},
      {"surrogate", kHeader + "W10X12,W\xED\xA0\x80,W,F,12,3.54,9.87,3.96,0.19,0.21,0.51,53.8,2.18,1,\n",
       "line 2: the text is not UTF-8"},
      {"byte above F4", kHeader + "W10X12,W10X12,W,F,12,3.54,9.87,3.96,0.19,0.21,0.51,53.8,2.18,1,\xF5\x80\x80\x80\n",
       "line 2: the text is not UTF-8"},
      // Spreadsheet programs run a field beginning with = or @ as a formula; no name or flag may.
      {"formula as the other name", kHeader + "=HYPERLINK(1),W10X12,W,F,12,3.54,9.87,3.96,0.19,0.21,0.51,53.8,2.18,1,\n",
       "line 2, column 1 (EDI_Std_Nomenclature): Section label can only"},
      {"formula as the flag", kHeader + "W10X12,W10X12,W,@1,12,3.54,9.87,3.96,0.19,0.21,0.51,53.8,2.18,1,\n",
       "line 2, column 4 (T_F): \"@1\" is not T or F."},
      {"64-byte label", kHeader + "W10X12," + std::string(32, 'A') + Repeated("\xC3\xA9", 16) + "," +
                             "W,F,12,3.54,9.87,3.96,0.19,0.21,0.51,53.8,2.18,1,\n",
       "line 2, column 2 (AISC_Manual_Label): the text is longer than 63 bytes."},
      {"100 MB", kHeader, "the file is too large (104857600 bytes)", size_t(100) << 20, "read"},
  };
  for (const auto& c : cases) {
    const std::string path = WriteCsv("bad.csv", c.text);
    if (c.size) std::filesystem::resize_file(path, c.size);
    try {
      tools::ascii_binary(path);
      ADD_FAILURE() << c.name << " was accepted";
    } catch (const fmException& e) {
      const std::string what = e.what();
      EXPECT_EQ(what.rfind("Cannot " + std::string(c.verb) + " \"" + path + "\": ", 0), 0u) << c.name << ": " << what;
      EXPECT_NE(what.find(c.message), std::string::npos) << c.name << ": " << what;
    }
    EXPECT_TRUE(Read(UserFile("aisc14u.idx")) == idx) << c.name;
    EXPECT_TRUE(Read(UserFile("aisc14u.tbl")) == tbl) << c.name;
    EXPECT_FALSE(Exists(UserFile("aisc14u.tbl.new"))) << c.name;
  }
}

TEST_F(ShapeLibraryTest, ADamagedUserCopyFallsBackToTheInstalledLibrary) {
  tools::ascii_binary(WriteCsv("base.csv", kHeader + kGoodRows));
  std::string tbl = Read(UserFile("aisc14u.tbl"));
  tbl[tbl.size() - 3] ^= 0x55;  // one flipped byte: the index's checksum no longer matches
  tools::WriteFileAtomically(UserFile("aisc14u.tbl"), tbl);
  tools::ReloadShapeLibrary();
  EXPECT_THROW(tools::AiscLibrary::LoadFrom(user.path() + "/norvane"), fmException);
  ASSERT_NE(tools::CurrentAiscLibrary(), nullptr);
  EXPECT_GE(tools::get_shape("W14X90"), 0);
}

TEST_F(ShapeLibraryTest, BundledLibraryExportsAndReimportsUnchanged) {
  const tools::AiscLibrary installed = tools::AiscLibrary::LoadFrom(kDataDir);
  const std::string csv = files / "bundled.csv";
  tools::binary_ascii(csv);
  EXPECT_EQ(Read(csv).substr(0, 39), "EDI_Std_Nomenclature,AISC_Manual_Label,");
  tools::ascii_binary(csv);
  EXPECT_TRUE(tools::CurrentAiscLibrary()->shapes() == installed.shapes());
}

TEST_F(ShapeLibraryTest, PublishedDatabaseImportsAndExportsUnchanged) {
  if (!Exists(kPublished)) GTEST_SKIP() << "the published shapes database is not present at " << kPublished;
  tools::ascii_binary(kPublished);
  const tools::AiscLibrary* lib = tools::CurrentAiscLibrary();
  ASSERT_NE(lib, nullptr);
  EXPECT_EQ(lib->size(), 2091u);
  const auto published = tools::ParseAiscCsv(Read(kPublished), kPublished);
  const std::string exported = files / "exported.csv";
  tools::binary_ascii(exported);
  const auto back = tools::ParseAiscCsv(Read(exported), exported);
  ASSERT_EQ(back.size(), published.size());
  for (size_t i = 0; i < back.size(); ++i) EXPECT_TRUE(back[i] == published[i]) << published[i].label;
  EXPECT_TRUE(Read(exported) == Read(kPublished)) << "the export writes the published layout";
}

TEST(LumberTable, ReadsBackWhatItWroteAndRefusesAPropertyThatIsNotFinite) {
  const std::vector<tools::fmSect_NDS> sizes = tools::BuildNdsTable();
  const std::string bytes = tools::SerializeNdsTable(sizes);
  EXPECT_EQ(tools::ParseNdsTable(bytes, "t"), sizes);
  for (const double bad : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    std::string damaged = bytes;
    // The dressed width d of the first size: the header, its label field, then b before it.
    const size_t at = bytes.size() - sizes.size() * 96 + 16 + 3 * 8;
    std::memcpy(damaged.data() + at, &bad, sizeof bad);
    try {
      tools::ParseNdsTable(damaged, "t");
      ADD_FAILURE() << "a lumber table with " << bad << " was read";
    } catch (const fmException& e) {
      EXPECT_EQ(std::string(e.what()),
                "The lumber table \"t\" is damaged: the properties of " + sizes[0].label +
                    " are not all finite numbers.");
    }
  }
}
