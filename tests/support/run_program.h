#pragma once
// Runs a program with arguments (no shell) and collects its exit, stdout and stderr.
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

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
  std::string out, err;
};

inline std::string ReadAndRemove(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream s;
  s << in.rdbuf();
  std::remove(path.c_str());
  return s.str();
}

inline ProgramResult RunProgram(const std::string& program, const std::vector<std::string>& args) {
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
  pid_t pid = 0;
  if (posix_spawn(&pid, program.c_str(), &actions, nullptr, argv.data(), environ) == 0) {
    r.started = true;
    int status = 0;
    waitpid(pid, &status, 0);
    r.exited = WIFEXITED(status);
    if (r.exited) r.status = WEXITSTATUS(status);
    if (WIFSIGNALED(status)) r.signal = WTERMSIG(status);
  }
  posix_spawn_file_actions_destroy(&actions);
  close(outFd);
  close(errFd);
  r.out = ReadAndRemove(outPath);
  r.err = ReadAndRemove(errPath);
  return r;
}

}  // namespace testsupport
