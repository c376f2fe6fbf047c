#pragma once
// A comma-decimal C locale for tests that prove numbers do not follow the locale.
#include <fcntl.h>

#include <clocale>
#include <locale.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cstdlib>
#include <string>

extern char** environ;

namespace testsupport {

inline constexpr const char* kCommaLocale = "de_DE.UTF-8";

inline bool LocaleInstalled(const char* name) {
  const locale_t l = newlocale(LC_ALL_MASK, name, static_cast<locale_t>(nullptr));
  if (!l) return false;
  freelocale(l);
  return true;
}

// True when de_DE.UTF-8 can be used. A machine without it gets one compiled once into the
// build folder (localedef needs no privileges when it writes there) and found via LOCPATH.
inline bool EnsureCommaLocale() {
  if (LocaleInstalled(kCommaLocale)) return true;
#ifdef NORVANE_TEST_LOCALE_DIR
  const std::string dir = NORVANE_TEST_LOCALE_DIR;
  const std::string target = dir + "/" + kCommaLocale;
  struct stat st {};
  if (::stat(target.c_str(), &st) != 0) {
    ::mkdir(dir.c_str(), 0755);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    const char* argv[] = {"localedef", "-i", "de_DE", "-f", "UTF-8", target.c_str(), nullptr};
    pid_t pid = 0;
    if (posix_spawnp(&pid, "localedef", &actions, nullptr, const_cast<char**>(argv), environ) == 0) {
      int status = 0;
      waitpid(pid, &status, 0);
    }
    posix_spawn_file_actions_destroy(&actions);
  }
  if (::stat(target.c_str(), &st) != 0) return false;
  setenv("LOCPATH", dir.c_str(), 1);
  return LocaleInstalled(kCommaLocale);
#else
  return false;
#endif
}

// Sets LC_NUMERIC to the comma locale for one scope; ok() says whether it took effect.
class ScopedCommaNumeric {
 public:
  ScopedCommaNumeric() : previous_(std::setlocale(LC_NUMERIC, nullptr)) {
    ok_ = EnsureCommaLocale() && std::setlocale(LC_NUMERIC, kCommaLocale) != nullptr;
  }
  ~ScopedCommaNumeric() { std::setlocale(LC_NUMERIC, previous_.c_str()); }
  ScopedCommaNumeric(const ScopedCommaNumeric&) = delete;
  ScopedCommaNumeric& operator=(const ScopedCommaNumeric&) = delete;
  bool ok() const { return ok_; }

 private:
  std::string previous_;
  bool ok_ = false;
};

}  // namespace testsupport
