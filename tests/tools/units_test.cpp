#include <gtest/gtest.h>

#include "tools/units.h"

TEST(UnitTables, PlaceholderBuilds) { EXPECT_EQ(tools::UnitLabels().size(), 137u); }
