#include "tools/zip_writer.h"

#include <unistd.h>
#include <zip.h>
#include <zlib.h>

#include <cerrno>
#include <algorithm>
#include <ctime>
#include <new>

#include "tools/atomic_file.h"

namespace tools {

// The archive library writes through these, so that it writes into our descriptor and a
// failed write keeps its error number for the message.
struct ZipWriter::Io {
  int fd = -1;
  int error = 0;
  uint64_t pos = 0;

  static voidpf Open(voidpf opaque, const void*, int) { return opaque; }
  static uLong Read(voidpf, voidpf, void*, uLong) { return 0; }
  static uLong WriteData(voidpf opaque, voidpf, const void* buf, uLong size) {
    Io& io = *static_cast<Io*>(opaque);
    const char* p = static_cast<const char*>(buf);
    uLong done = 0;
    while (done < size) {
      const ssize_t n = ::pwrite(io.fd, p + done, size - done, static_cast<off_t>(io.pos));
      if (n < 0) {
        if (errno == EINTR) continue;
        io.error = errno;
        break;
      }
      if (n == 0) {
        io.error = EIO;
        break;
      }
      done += static_cast<uLong>(n);
      io.pos += static_cast<uint64_t>(n);
    }
    return done;
  }
  static ZPOS64_T Tell(voidpf opaque, voidpf) { return static_cast<Io*>(opaque)->pos; }
  static long Seek(voidpf opaque, voidpf, ZPOS64_T offset, int origin) {
    Io& io = *static_cast<Io*>(opaque);
    // The library only moves back to finish a member's header, and then to the end again.
    if (origin == ZLIB_FILEFUNC_SEEK_SET) io.pos = offset;
    else if (origin == ZLIB_FILEFUNC_SEEK_CUR) io.pos += offset;
    else {
      const off_t end = ::lseek(io.fd, 0, SEEK_END);
      if (end < 0) {
        io.error = errno;
        return -1;
      }
      io.pos = static_cast<uint64_t>(end) + offset;
    }
    return 0;
  }
  static int Close(voidpf, voidpf) { return 0; }
  static int Error(voidpf opaque, voidpf) { return static_cast<Io*>(opaque)->error; }
};

namespace {

zip_fileinfo Now() {
  zip_fileinfo info{};
  const std::time_t t = std::time(nullptr);
  std::tm local{};
  if (::localtime_r(&t, &local)) {
    info.tmz_date.tm_sec = static_cast<uInt>(local.tm_sec);
    info.tmz_date.tm_min = static_cast<uInt>(local.tm_min);
    info.tmz_date.tm_hour = static_cast<uInt>(local.tm_hour);
    info.tmz_date.tm_mday = static_cast<uInt>(local.tm_mday);
    info.tmz_date.tm_mon = static_cast<uInt>(local.tm_mon);
    info.tmz_date.tm_year = static_cast<uInt>(local.tm_year + 1900);
  }
  return info;
}

// zlib's flag for the level, in the member's header.
constexpr int kVersionMadeBy = 0;
constexpr int kFlags = 0;

}  // namespace

void DeflatePiece(std::string_view text, int level, bool last, DeflatedPiece& piece) {
  piece.size = text.size();
  piece.crc = static_cast<uint32_t>(crc32_z(0, reinterpret_cast<const Bytef*>(text.data()), text.size()));
  z_stream z{};
  if (deflateInit2(&z, level, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY) != Z_OK) throw std::bad_alloc();
  // A flushed piece ends on a byte boundary, so the next piece's stream can simply follow it.
  piece.data.resize(std::max<size_t>(piece.data.capacity(), deflateBound(&z, text.size()) + 64));
  z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data()));
  size_t inLeft = text.size();
  for (;;) {
    // zlib counts in 32 bits: a longer text goes in parts, the flush with the last part.
    const uInt in = static_cast<uInt>(std::min<size_t>(inLeft, size_t(1) << 30));
    const bool final = in == inLeft;
    const int flush = !final ? Z_NO_FLUSH : last ? Z_FINISH : Z_SYNC_FLUSH;
    z.avail_in = in;
    int result = Z_OK;
    do {
      if (piece.data.size() - z.total_out < 64) piece.data.resize(piece.data.size() * 2 + 64);
      z.next_out = reinterpret_cast<Bytef*>(piece.data.data() + z.total_out);
      z.avail_out = static_cast<uInt>(std::min<size_t>(piece.data.size() - z.total_out, size_t(1) << 30));
      result = deflate(&z, flush);
      if (result == Z_STREAM_ERROR) {
        deflateEnd(&z);
        throw std::bad_alloc();
      }
    } while (z.avail_in > 0 || z.avail_out == 0 || (flush == Z_FINISH && result != Z_STREAM_END));
    inLeft -= in;
    if (final) break;
  }
  piece.data.resize(z.total_out);
  deflateEnd(&z);
}

DeflatedPiece DeflatePiece(std::string_view text, int level, bool last) {
  DeflatedPiece piece;
  DeflatePiece(text, level, last, piece);
  return piece;
}

ZipWriter::ZipWriter(int fd, std::string path) : io_(new Io{fd}), path_(std::move(path)) {
  zlib_filefunc64_def funcs{};
  funcs.zopen64_file = &Io::Open;
  funcs.zread_file = &Io::Read;
  funcs.zwrite_file = &Io::WriteData;
  funcs.ztell64_file = &Io::Tell;
  funcs.zseek64_file = &Io::Seek;
  funcs.zclose_file = &Io::Close;
  funcs.zerror_file = &Io::Error;
  funcs.opaque = io_;
  zip_ = zipOpen2_64(path_.c_str(), APPEND_STATUS_CREATE, nullptr, &funcs);
  if (!zip_) {
    delete io_;
    throw std::bad_alloc();
  }
}

ZipWriter::~ZipWriter() {
  // An archive left open failed somewhere: freeing it writes nothing of use, the file goes.
  if (zip_) zipClose(zip_, nullptr);
  delete io_;
}

void ZipWriter::Fail(int zipError) {
  const int err = io_->error ? io_->error : zipError == ZIP_INTERNALERROR ? ENOMEM : EIO;
  throw FileError("Cannot write \"" + path_ + "\": " + SystemErrorText(err), SystemErrorText(err));
}

void ZipWriter::Add(const std::string& name, std::string_view data, int level) {
  Begin(name, false);
  Write(DeflatePiece(data, level, true));
  End();
}

void ZipWriter::Begin(const std::string& name, bool large) {
  const zip_fileinfo info = Now();
  Check(zipOpenNewFileInZip4_64(zip_, name.c_str(), &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED,
                                Z_DEFAULT_COMPRESSION, 1, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY, nullptr, 0,
                                kVersionMadeBy, kFlags, large ? 1 : 0));
  crc_ = 0;
  size_ = 0;
  first_ = true;
}

void ZipWriter::Write(const DeflatedPiece& piece) {
  crc_ = first_ ? piece.crc : static_cast<uint32_t>(crc32_combine(crc_, piece.crc, static_cast<z_off_t>(piece.size)));
  first_ = false;
  size_ += piece.size;
  for (size_t at = 0; at < piece.data.size();) {
    const unsigned n = static_cast<unsigned>(std::min<size_t>(piece.data.size() - at, 1u << 30));
    Check(zipWriteInFileInZip(zip_, piece.data.data() + at, n));
    at += n;
  }
}

void ZipWriter::End() { Check(zipCloseFileInZipRaw64(zip_, size_, crc_)); }

void ZipWriter::Close() {
  void* zip = zip_;
  zip_ = nullptr;
  Check(zipClose(zip, nullptr));
}

}  // namespace tools
