#pragma once
#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

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

// Standard output of a shell command (unzip, the CLI); status receives its exit status.
inline std::string CommandOutput(const std::string& command, int* status = nullptr) {
  std::string out;
  if (FILE* p = ::popen(command.c_str(), "r")) {
    char buffer[4096];
    size_t n;
    while ((n = std::fread(buffer, 1, sizeof buffer, p)) > 0) out.append(buffer, n);
    const int rc = ::pclose(p);
    if (status) *status = WIFEXITED(rc) ? WEXITSTATUS(rc) : -1;
  } else if (status) {
    *status = -1;
  }
  return out;
}
