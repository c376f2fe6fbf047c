#include "dialogs/design/shape_browser.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "dialogs/design/shape_outline.h"
#include "tools/atomic_file.h"

namespace {

std::string PublishedTable() {
  const char* dir = std::getenv("NORVANE_TEST_DATA_DIR");
  return (std::filesystem::path(dir && *dir ? dir : NORVANE_TEST_DATA_DIR) / "aisc-shapes-v15.0-US.csv").string();
}

}  // namespace

TEST(SteelShapes, EveryPublishedShapeMakesASectionTheSectionTableAccepts) {
  const std::string path = PublishedTable();
  if (!std::filesystem::exists(path)) GTEST_SKIP() << "the published shapes database is not present at " << path;
  const tools::AiscLibrary library(tools::ParseAiscCsv(tools::ReadWholeFile(path), path));
  int refused = 0;
  for (const auto& shape : library.shapes())
    if (const std::string fault = design::SteelShapeSectionFault(shape, &library); !fault.empty())
      if (++refused <= 3) ADD_FAILURE() << fault;
  EXPECT_EQ(refused, 0);
}

TEST(SteelShapes, AnUnequalAngleIsDrawnStandingOnItsLongLeg) {
  tools::fmSect_AISC angle;  // L8X4X1: Ix = 69.7 bends about the axis across the 8 in leg
  angle.label = std::string("L8X4X1");
  angle.type = std::string("L");
  for (auto [v, x] : {std::pair{tools::aisc::d, 4.0}, {tools::aisc::b, 8.0}, {tools::aisc::t, 1.0}})
    angle.values[size_t(v)] = x;
  const design::Outline o = design::SteelShapeOutline(angle);
  EXPECT_EQ(o.width, 4);
  EXPECT_EQ(o.height, 8);
  ASSERT_GE(o.marks.size(), 2u);
  EXPECT_EQ(o.marks[0].text, "d = 4 in") << "the columns' names, as the property list beside it shows them";
  EXPECT_EQ(o.marks[0].to.x - o.marks[0].from.x, 4);
  EXPECT_EQ(o.marks[1].text, "b = 8 in");
  EXPECT_EQ(o.marks[1].from.y - o.marks[1].to.y, 8);
}
