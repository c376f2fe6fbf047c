#pragma once
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tools {

// A file operation that failed; the text names the file and the reason.
class FileError : public std::runtime_error {
 public:
  explicit FileError(const std::string& message, std::string reason = {})
      : std::runtime_error(message), reason_(std::move(reason)) {}
  // What went wrong without the file's name ("No such file or directory").
  const std::string& reason() const { return reason_; }

 private:
  std::string reason_;
};

// Writes beside the target and renames into place, so a failure never leaves a partial
// or truncated file where the old one stood.
void WriteFileAtomically(const std::string& path, std::string_view contents);
// The same for a text made in parts: each part is written beside the target as it comes, and
// Commit() renames the whole into place. Until then, and whenever a write fails, the old file
// stays; the partial one is removed when the object goes.
class FileReplacement {
 public:
  explicit FileReplacement(const std::string& path);
  ~FileReplacement();
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;
  void Write(std::string_view part);
  // Puts what was written on the disk and closes the file, without replacing the old one yet;
  // Commit() does this too when it was not done.
  void Flush();
  void Commit();

 private:
  std::string path_, target_, temp_;
  int fd_ = -1;
  bool done_ = false, flushed_ = false;
};
// Replaces several files as a set: each is written and flushed beside its target before any
// is renamed into place, so a failure while writing (a full disk, a missing folder) keeps
// every old file.
void WriteFilesTogether(const std::vector<std::pair<std::string, std::string_view>>& files);
// Appends, creating the file when missing; never truncates what is there.
void AppendToFile(const std::string& path, std::string_view contents);
// For writers that open the file themselves (by name): `write` fills an empty file
// made beside `path`, which is then renamed into place; if `write` throws, the file is
// removed and the old one stays.
void ReplaceFileWith(const std::string& path, const std::function<void(const std::string& tempPath)>& write);
// The C library's text for an error number, always in English.
std::string SystemErrorText(int err);
// Reads a whole file; refuses files larger than maxBytes. `spare` bytes of capacity beyond the
// text are reserved (and zeroed) for readers that read past the end in blocks.
std::string ReadWholeFile(const std::string& path, size_t maxBytes = size_t(1) << 30, size_t spare = 0);

}  // namespace tools
