#pragma once
#include <bit>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

// Little-endian writing and bounds-checked reading of the fixed layouts of our data files.
namespace tools {

class BinaryWriter {
 public:
  void Bytes(std::string_view b) { out_.append(b); }
  void U32(uint32_t v) {
    for (int i = 0; i < 4; ++i) out_.push_back(static_cast<char>((v >> (8 * i)) & 0xFF));
  }
  void U64(uint64_t v) {
    for (int i = 0; i < 8; ++i) out_.push_back(static_cast<char>((v >> (8 * i)) & 0xFF));
  }
  void F64(double v) { U64(std::bit_cast<uint64_t>(v)); }
  // A text in a zero-padded field of n bytes; the caller keeps it shorter than n.
  void Text(std::string_view text, size_t n) {
    const size_t k = text.size() < n ? text.size() : n - 1;
    out_.append(text.substr(0, k));
    out_.append(n - k, '\0');
  }
  const std::string& data() const { return out_; }
  std::string Take() { return std::move(out_); }

 private:
  std::string out_;
};

class BinaryReader {
 public:
  explicit BinaryReader(std::string_view data) : data_(data) {}
  size_t remaining() const { return data_.size() - pos_; }
  size_t position() const { return pos_; }
  bool Skip(size_t n) {
    if (remaining() < n) return false;
    pos_ += n;
    return true;
  }
  std::optional<std::string_view> Bytes(size_t n) {
    if (remaining() < n) return std::nullopt;
    const auto v = data_.substr(pos_, n);
    pos_ += n;
    return v;
  }
  std::optional<uint32_t> U32() {
    const auto b = Bytes(4);
    if (!b) return std::nullopt;
    uint32_t v = 0;
    for (int i = 3; i >= 0; --i) v = (v << 8) | static_cast<unsigned char>((*b)[static_cast<size_t>(i)]);
    return v;
  }
  std::optional<uint64_t> U64() {
    const auto b = Bytes(8);
    if (!b) return std::nullopt;
    uint64_t v = 0;
    for (int i = 7; i >= 0; --i) v = (v << 8) | static_cast<unsigned char>((*b)[static_cast<size_t>(i)]);
    return v;
  }
  std::optional<double> F64() {
    const auto v = U64();
    if (!v) return std::nullopt;
    return std::bit_cast<double>(*v);
  }
  // A zero-padded text field; nullopt when it is not terminated inside the field.
  std::optional<std::string> Text(size_t n) {
    const auto b = Bytes(n);
    if (!b) return std::nullopt;
    const size_t end = b->find('\0');
    if (end == std::string_view::npos) return std::nullopt;
    return std::string(b->substr(0, end));
  }

 private:
  std::string_view data_;
  size_t pos_ = 0;
};

// FNV-1a, 64 bits: ties an index file to the table it was written with.
inline uint64_t Fnv1a64(std::string_view data) {
  uint64_t h = 0xcbf29ce484222325ull;
  for (const char c : data) {
    h ^= static_cast<unsigned char>(c);
    h *= 0x100000001b3ull;
  }
  return h;
}

}  // namespace tools
