// Memory running out while a model opens: each allocation of the opening is made to fail in
// turn; the host names the file and keeps the model it had, and nothing escapes.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <new>

#include "apps/host/HostWindow.h"
#include "support/DialogTest.h"
#include "support/TempDir.h"
#include "support/files.h"

namespace {

// Counts the allocations of this thread while armed and fails the one numbered failAt.
thread_local bool armed = false;
thread_local long allocations = 0;
thread_local long failAt = -1;

}  // namespace

// Replaces the program's allocation, so that the library's and Qt's `new` fail on cue too.
void* operator new(std::size_t size) {
  if (armed && allocations++ == failAt) {
    armed = false;  // one failure: what handles it may allocate again
    throw std::bad_alloc();
  }
  if (void* p = std::malloc(size ? size : 1)) return p;
  throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return ::operator new(size); }
void operator delete(void* p) noexcept { std::free(p); }
void operator delete[](void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
void operator delete[](void* p, std::size_t) noexcept { std::free(p); }

namespace {

// The number of allocations `open` makes, failing none when failing is -1.
long Allocations(const std::function<bool()>& open, long failing, bool& opened) {
  allocations = 0;
  failAt = failing;
  armed = true;
  try {
    opened = open();
  } catch (...) {
    armed = false;
    throw;
  }
  armed = false;
  return allocations;
}

class HostOpenMemoryTest : public DialogTest {
 protected:
  TempDir dir;
};

}  // namespace

TEST_F(HostOpenMemoryTest, EveryFailedAllocationIsReportedAndTheOpenModelKept) {
  const std::string first = dir / "first.json", example = dir / "building.json";
  WriteFileText(first, R"({"format": "norvane-model", "schemaVersion": 1, "title": "kept",
                           "nodes": [{"id": 7, "x": 1, "y": 2, "z": 3}]})");
  std::filesystem::copy_file(std::string(NORVANE_EXAMPLES_DIR) + "/building.json", example);
  HostWindow window;
  ASSERT_TRUE(window.OpenModel(first));
  const model::ModelDocument kept = window.model().doc;

  bool opened = false;
  const auto open = [&] { return window.OpenModel(example); };
  const long total = Allocations(open, -1, opened);
  ASSERT_TRUE(opened);
  ASSERT_GT(total, 100);
  ASSERT_TRUE(window.OpenModel(first));
  // Every one of the first and the last few hundred allocations (the file, the parser, the
  // window showing the model), a sample of those between.
  for (long k = 0; k < total; k += k < 300 || k >= total - 300 ? 1 : std::min<long>(211, total - 300 - k)) {
    prompter.Clear();
    try {
      Allocations(open, k, opened);
    } catch (const std::exception& e) {
      FAIL() << "allocation " << k << " of " << total << ": " << e.what() << " escaped";
    }
    if (opened) {
      // Failed where the program may go on without it (a view's cache): the model is open.
      EXPECT_EQ(window.model().path, example) << k;
      ASSERT_TRUE(window.OpenModel(first));
      continue;
    }
    ASSERT_EQ(prompter.prompts().size(), 1u) << k;
    EXPECT_EQ(prompter.prompts()[0].text, "Not enough memory to open model \"" + example + "\"") << k;
    EXPECT_EQ(window.model().path, first) << k;
    EXPECT_TRUE(window.model().doc == kept) << k;
  }
}
