#pragma once
#include <sys/resource.h>

#include <csignal>
#include <utility>

// Runs `write` under a file-size limit of `bytes`, with SIGXFSZ ignored as the programs
// ignore it: a write past the limit then fails with EFBIG, as one on a full disk fails with
// ENOSPC, at the same place every run. Returns what `write` returns.
template <class Write>
auto WithFileSizeLimit(rlim_t bytes, Write&& write) {
  struct Restore {
    struct rlimit old {};
    void (*handler)(int) = SIG_DFL;
    ~Restore() {
      setrlimit(RLIMIT_FSIZE, &old);
      std::signal(SIGXFSZ, handler);
    }
  } restore;
  getrlimit(RLIMIT_FSIZE, &restore.old);
  restore.handler = std::signal(SIGXFSZ, SIG_IGN);
  const struct rlimit small {bytes, restore.old.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  return std::forward<Write>(write)();
}
