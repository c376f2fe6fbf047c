#pragma once
#include <cstdint>
#include <string>
#include <string_view>

// Writing a zip archive (a workbook is one) into an open file, member after member.
// A large member can be compressed in independent pieces on several threads
// (DeflatePiece) and written here in order.
namespace tools {

// One piece of a member's raw deflate stream: the pieces of a member, concatenated in order,
// form one stream; only the last piece ends it.
struct DeflatedPiece {
  std::string data;
  uint32_t crc = 0;   // of the piece's uncompressed bytes
  uint64_t size = 0;  // uncompressed bytes
};
// Compresses text as one piece at the given zlib level (1 to 9); `last` ends the stream.
// Throws std::bad_alloc when zlib has no memory.
DeflatedPiece DeflatePiece(std::string_view text, int level, bool last);
// The same into `piece`, whose buffer is reused.
void DeflatePiece(std::string_view text, int level, bool last, DeflatedPiece& piece);

class ZipWriter {
 public:
  // Writes into fd, an empty file open for writing; the descriptor stays the caller's.
  // Failures throw FileError naming `path` ("Cannot write "...": No space left on device").
  ZipWriter(int fd, std::string path);
  ~ZipWriter();
  ZipWriter(const ZipWriter&) = delete;
  ZipWriter& operator=(const ZipWriter&) = delete;

  // A member compressed here, whole.
  void Add(const std::string& name, std::string_view data, int level);
  // A member written piece by piece. `large` when its uncompressed size may reach 4 GiB:
  // the member then carries the ZIP64 sizes, which some programs warn about.
  void Begin(const std::string& name, bool large);
  void Write(const DeflatedPiece& piece);
  void End();
  // Writes the central directory; nothing may be added afterwards.
  void Close();

 private:
  [[noreturn]] void Fail(int zipError);
  void Check(int zipError) {
    if (zipError != 0) Fail(zipError);
  }

  struct Io;
  void* zip_ = nullptr;
  Io* io_;
  std::string path_;
  uint32_t crc_ = 0;
  uint64_t size_ = 0;
  bool first_ = true;
};

}  // namespace tools
