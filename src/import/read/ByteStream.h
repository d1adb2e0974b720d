#pragma once

#include <cstddef>
#include <string>

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

}  // namespace kestrel
