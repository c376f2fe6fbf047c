#include "tools/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <locale.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
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

void WriteAll(int fd, std::string_view contents, const std::string& path) {
  const char* p = contents.data();
  size_t left = contents.size();
  while (left > 0) {
    const ssize_t n = ::write(fd, p, left);
    if (n < 0) {
      if (errno == EINTR) continue;
      const int err = errno;
      ::close(fd);
      Fail("write", path, err);
    }
    p += n;
    left -= static_cast<size_t>(n);
  }
}

// An empty file beside `path`, with the usual permissions of a new document; its descriptor.
int CreateBeside(const std::string& path, std::string& temp) {
  temp = path + ".XXXXXX";
  const int fd = ::mkstemp(temp.data());
  if (fd < 0) FailToCreate(path, errno);
  const mode_t mask = ::umask(0);
  ::umask(mask);
  ::fchmod(fd, 0666 & ~mask);
  return fd;
}

void RenameInto(const std::string& temp, const std::string& path) {
  if (::rename(temp.c_str(), path.c_str()) != 0) {
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
  std::string temp;
  ::close(CreateBeside(path, temp));
  try {
    write(temp);
  } catch (...) {
    ::unlink(temp.c_str());
    throw;
  }
  RenameInto(temp, path);
}

void WriteFileAtomically(const std::string& path, std::string_view contents) {
  std::string temp;
  const int fd = CreateBeside(path, temp);
  try {
    WriteAll(fd, contents, path);
  } catch (...) {
    ::unlink(temp.c_str());
    throw;
  }
  if (::fsync(fd) != 0 || ::close(fd) != 0) {
    const int err = errno;
    ::unlink(temp.c_str());
    Fail("write", path, err);
  }
  RenameInto(temp, path);
}

void AppendToFile(const std::string& path, std::string_view contents) {
  const int fd = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
  if (fd < 0) {
    if (errno == ENOENT || errno == ENOTDIR) FailToCreate(path, errno);
    Fail("open", path, errno);
  }
  WriteAll(fd, contents, path);
  if (::close(fd) != 0) Fail("write", path, errno);
}

std::string ReadWholeFile(const std::string& path, size_t maxBytes) {
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
  std::string data(static_cast<size_t>(size), '\0');
  in.read(data.data(), size);
  if (!in) Fail("read", path, EIO);
  return data;
}

}  // namespace tools
