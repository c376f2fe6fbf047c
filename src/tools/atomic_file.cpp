#include "tools/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <locale.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>
#include <sstream>

namespace tools {
namespace {

[[noreturn]] void Fail(const std::string& action, const std::string& path, const std::string& reason) {
  throw FileError("Cannot " + action + " \"" + path + "\": " + reason, reason);
}

[[noreturn]] void Fail(const std::string& action, const std::string& path, int err) {
  Fail(action, path, SystemErrorText(err));
}

std::string FolderOf(const std::string& path) {
  const auto slash = path.find_last_of('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

// Why a new file cannot be made beside `path`: a missing folder is named as such.
[[noreturn]] void FailToCreate(const std::string& path, int err) {
  struct stat st {};
  const std::string folder = FolderOf(path);
  if (err == ENOENT && ::stat(folder.c_str(), &st) != 0)
    Fail("write", path, "the folder \"" + folder + "\" does not exist");
  if (err == ENOTDIR) Fail("write", path, "\"" + folder + "\" is not a folder");
  Fail("write", path, err);
}

// Writes everything or throws; closes fd on failure unless told to leave it open.
void WriteAll(int fd, std::string_view contents, const std::string& path, bool closeOnFailure = true) {
  const char* p = contents.data();
  size_t left = contents.size();
  while (left > 0) {
    const ssize_t n = ::write(fd, p, left);
    if (n < 0) {
      if (errno == EINTR) continue;
      const int err = errno;
      if (closeOnFailure) ::close(fd);
      Fail("write", path, err);
    }
    p += n;
    left -= static_cast<size_t>(n);
  }
}

// The file a path names: symbolic links are followed to the file they point to (which
// may not exist yet), so that replacing it keeps the link. Loops end with ELOOP.
std::string FollowLinks(const std::string& path) {
  std::string target = path;
  for (int depth = 0; depth < 40; ++depth) {
    struct stat st {};
    if (::lstat(target.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) return target;
    std::string link(static_cast<size_t>(st.st_size > 0 ? st.st_size : 4096) + 1, '\0');
    const ssize_t n = ::readlink(target.c_str(), link.data(), link.size());
    if (n < 0 || static_cast<size_t>(n) >= link.size()) return target;
    link.resize(static_cast<size_t>(n));
    target = link.starts_with('/') || target.find('/') == std::string::npos ? link : FolderOf(target) + "/" + link;
  }
  Fail("write", path, ELOOP);
}

// An empty file beside `target`, with the permissions (and, where allowed, the owner) of
// the file it replaces, or those of a new document; its descriptor.
int CreateBeside(const std::string& path, const std::string& target, std::string& temp) {
  temp = target + ".XXXXXX";
  const int fd = ::mkstemp(temp.data());
  if (fd < 0) FailToCreate(path, errno);
  struct stat st {};
  if (::stat(target.c_str(), &st) == 0 && S_ISREG(st.st_mode)) {
    // Another owner is kept only when we may give the file away (root); the group when we belong to it.
    if (::fchown(fd, st.st_uid, st.st_gid) != 0) (void)!::fchown(fd, static_cast<uid_t>(-1), st.st_gid);
    ::fchmod(fd, st.st_mode & 07777);
  } else {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    ::fchmod(fd, 0666 & ~mask);
  }
  return fd;
}

void RenameInto(const std::string& temp, const std::string& target, const std::string& path) {
  if (::rename(temp.c_str(), target.c_str()) != 0) {
    const int err = errno;
    ::unlink(temp.c_str());
    Fail("replace", path, err);
  }
}

}  // namespace

std::string SystemErrorText(int err) {
  // Messages are in the program's language, whatever the user's locale.
  static const locale_t c = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
  return c ? strerror_l(err, c) : std::strerror(err);
}

void ReplaceFileWith(const std::string& path, const std::function<void(const std::string& tempPath)>& write) {
  const std::string target = FollowLinks(path);
  std::string temp;
  ::close(CreateBeside(path, target, temp));
  try {
    write(temp);
  } catch (...) {
    ::unlink(temp.c_str());
    throw;
  }
  RenameInto(temp, target, path);
}

void WriteFileAtomically(const std::string& path, std::string_view contents) {
  const std::string target = FollowLinks(path);
  std::string temp;
  const int fd = CreateBeside(path, target, temp);
  try {
    WriteAll(fd, contents, path);
  } catch (...) {
    ::unlink(temp.c_str());
    throw;
  }
  // A full disk may only show when the data reaches it; the descriptor is closed either way.
  const int synced = ::fsync(fd) == 0 ? 0 : errno;
  const int closed = ::close(fd) == 0 ? 0 : errno;
  if (synced != 0 || closed != 0) {
    ::unlink(temp.c_str());
    Fail("write", path, synced != 0 ? synced : closed);
  }
  RenameInto(temp, target, path);
}

FileReplacement::FileReplacement(const std::string& path) : path_(path), target_(FollowLinks(path)) {
  fd_ = CreateBeside(path_, target_, temp_);
}

FileReplacement::~FileReplacement() {
  if (done_) return;
  if (fd_ >= 0) ::close(fd_);
  ::unlink(temp_.c_str());
}

void FileReplacement::Write(std::string_view part) {
  if (done_ || fd_ < 0) Fail("write", path_, EBADF);
  WriteAll(fd_, part, path_, false);
}

void FileReplacement::Flush() {
  if (done_ || flushed_) Fail("write", path_, EBADF);
  const int fd = fd_;
  fd_ = -1;
  flushed_ = true;
  int err = ::fsync(fd) != 0 ? errno : 0;
  if (::close(fd) != 0 && err == 0) err = errno;
  if (err != 0) Fail("write", path_, err);
}

void FileReplacement::Commit() {
  if (done_) Fail("write", path_, EBADF);
  if (!flushed_) Flush();
  done_ = true;
  RenameInto(temp_, target_, path_);
}

void WriteFilesTogether(const std::vector<std::pair<std::string, std::string_view>>& files) {
  std::vector<std::unique_ptr<FileReplacement>> replacements;
  for (const auto& [path, contents] : files) {
    replacements.push_back(std::make_unique<FileReplacement>(path));
    replacements.back()->Write(contents);
  }
  for (auto& r : replacements) r->Flush();
  for (auto& r : replacements) r->Commit();
}

void AppendToFile(const std::string& path, std::string_view contents) {
  const int fd = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
  if (fd < 0) {
    if (errno == ENOENT || errno == ENOTDIR) FailToCreate(path, errno);
    Fail("open", path, errno);
  }
  struct stat st {};
  if (::fstat(fd, &st) != 0) {
    const int err = errno;
    ::close(fd);
    Fail("open", path, err);
  }
  try {
    WriteAll(fd, contents, path, false);
    if (::fsync(fd) != 0 && errno != EINVAL) Fail("write", path, errno);
  } catch (...) {
    // A partial table at the end is worse than none: cut back to what was there.
    if (S_ISREG(st.st_mode)) (void)!::ftruncate(fd, st.st_size);
    ::close(fd);
    throw;
  }
  if (::close(fd) != 0) Fail("write", path, errno);
}

std::string ReadWholeFile(const std::string& path, size_t maxBytes, size_t spare) {
  struct stat st {};
  if (::stat(path.c_str(), &st) != 0) Fail("open", path, errno);
  if (S_ISDIR(st.st_mode)) Fail("open", path, std::string("it is a folder, not a file"));
  if (!S_ISREG(st.st_mode)) Fail("open", path, std::string("it is not a regular file"));
  std::ifstream in(path, std::ios::binary);
  if (!in) Fail("open", path, errno ? errno : EACCES);
  in.seekg(0, std::ios::end);
  const std::streamoff size = in.tellg();
  if (size < 0) Fail("read", path, EIO);
  if (static_cast<size_t>(size) > maxBytes)
    Fail("read", path, "the file is too large (" + std::to_string(size) + " bytes)");
  in.seekg(0);
  std::string data(static_cast<size_t>(size) + spare, '\0');
  data.resize(static_cast<size_t>(size));
  in.read(data.data(), size);
  if (!in) Fail("read", path, EIO);
  return data;
}

}  // namespace tools
