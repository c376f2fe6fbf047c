#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>

#include "support/comma_locale.h"

// glibc keeps the name of a composite locale (LC_MESSAGES "C" beside the comma locale) for the
// life of the process; the sanitized build would report it as a leak of ours.
extern "C" const char* __lsan_default_suppressions() { return "leak:argz_add_sep\n"; }

int main(int argc, char** argv) {
  // Run under a comma-decimal locale, so a number written or read through the locale shows up.
  if (testsupport::EnsureCommaLocale()) {
    std::setlocale(LC_ALL, testsupport::kCommaLocale);
    // System error texts (strerror) stay in English, so expected messages read the same everywhere.
    std::setlocale(LC_MESSAGES, "C");
  } else
    std::fprintf(stderr, "note: no %s locale and no localedef; the locale tests will be skipped\n",
                 testsupport::kCommaLocale);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
