#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace kestrel {

/// Bytes handed out front to back: a file, an entry of a zip, a text in memory.
class ByteStream {
 public:
  virtual ~ByteStream() = default;

  /// Copies at most `most` bytes to `to` and returns how many; 0 at the end and after a failure.
  virtual std::size_t Read(char* to, std::size_t most) = 0;

  /// Why the bytes ended before their time; empty while all is well.
  virtual std::string Problem() const { return {}; }
};

class MemoryStream : public ByteStream {
 public:
  /// The bytes must outlive the stream.
  explicit MemoryStream(std::string_view bytes) : bytes_(bytes) {}

  std::size_t Read(char* to, std::size_t most) override {
    const std::size_t count = std::min(most, bytes_.size());
    std::memcpy(to, bytes_.data(), count);
    bytes_.remove_prefix(count);
    return count;
  }

 private:
  std::string_view bytes_;
};

}  // namespace kestrel
