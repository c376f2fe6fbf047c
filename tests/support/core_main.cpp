#include <gtest/gtest.h>

#include <clocale>

int main(int argc, char** argv) {
  // Run under a comma-decimal locale when one is installed, so a locale leak shows up.
  std::setlocale(LC_ALL, "de_DE.UTF-8");
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
