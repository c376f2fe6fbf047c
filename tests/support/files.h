#pragma once
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "support/run_program.h"

// Reading and writing whole files, listing a folder and taking a command's output, for
// tests of the programs and exports that write files.

inline std::string ReadFileText(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

inline void WriteFileText(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

// Names of the entries in a folder, sorted.
inline std::vector<std::string> FolderEntries(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& e : std::filesystem::directory_iterator(folder)) names.push_back(e.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

// Standard output of a shell command (unzip, the CLI) run under the programs' time limit;
// status receives its exit status (-1 when it did not end by itself). Its stderr is passed on.
inline std::string CommandOutput(const std::string& command, int* status = nullptr) {
  const testsupport::ProgramResult r = testsupport::RunProgram("/bin/sh", {"-c", command});
  std::fputs(r.err.c_str(), stderr);
  if (r.timedOut) std::fprintf(stderr, "killed after %lld s: %s\n", static_cast<long long>(testsupport::kProgramTimeLimit.count()), command.c_str());
  if (status) *status = r.started && r.exited ? r.status : -1;
  return r.out;
}
