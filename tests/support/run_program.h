#pragma once
// Runs a program with arguments (no shell) and collects its exit, stdout and stderr. A program
// that outlives its time limit is killed with everything it started, and the test goes on.
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

extern char** environ;

namespace testsupport {

struct ProgramResult {
  bool started = false;
  bool exited = false;  // false when a signal ended it
  int status = -1;      // exit status when exited
  int signal = 0;
  bool timedOut = false;  // killed at the time limit
  std::string out, err;
};

inline constexpr std::chrono::seconds kProgramTimeLimit{60};

inline std::string ReadAndRemove(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream s;
  s << in.rdbuf();
  std::remove(path.c_str());
  return s.str();
}

inline ProgramResult RunProgram(const std::string& program, const std::vector<std::string>& args,
                                std::chrono::seconds timeLimit = kProgramTimeLimit) {
  ProgramResult r;
  char outPath[] = "/tmp/norvane-test-out.XXXXXX";
  char errPath[] = "/tmp/norvane-test-err.XXXXXX";
  const int outFd = mkstemp(outPath), errFd = mkstemp(errPath);
  std::vector<char*> argv;
  argv.push_back(const_cast<char*>(program.c_str()));
  for (const auto& a : args) argv.push_back(const_cast<char*>(a.c_str()));
  argv.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, outFd, 1);
  posix_spawn_file_actions_adddup2(&actions, errFd, 2);
  // A process group of its own, so that the limit ends what it started too.
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
  posix_spawnattr_setpgroup(&attributes, 0);
  pid_t pid = 0;
  if (posix_spawn(&pid, program.c_str(), &actions, &attributes, argv.data(), environ) == 0) {
    r.started = true;
    int status = 0;
    const auto deadline = std::chrono::steady_clock::now() + timeLimit;
    while (waitpid(pid, &status, WNOHANG) == 0) {
      if (std::chrono::steady_clock::now() > deadline) {
        r.timedOut = true;
        kill(-pid, SIGKILL);
        waitpid(pid, &status, 0);
        break;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    r.exited = WIFEXITED(status);
    if (r.exited) r.status = WEXITSTATUS(status);
    if (WIFSIGNALED(status)) r.signal = WTERMSIG(status);
  }
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&actions);
  close(outFd);
  close(errFd);
  r.out = ReadAndRemove(outPath);
  r.err = ReadAndRemove(errPath);
  return r;
}

}  // namespace testsupport
