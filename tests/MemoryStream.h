#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "import/read/ByteStream.h"

namespace kestrel {

/// Bytes of a text.
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
