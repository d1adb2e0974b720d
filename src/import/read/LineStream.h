#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "import/read/ByteStream.h"

namespace kestrel {

/// Walks over the lines of a stream of any length in a fixed amount of memory.
///
/// A line ends at LF or CR LF; the last one may lack its end. A UTF-8 byte-order mark at the front is passed
/// over, NUL bytes become blanks, and a line that is not UTF-8 is taken as Latin-1.
class LineStream {
 public:
  static constexpr std::size_t LongestRow = 64 << 10;  ///< bytes; the rest of a longer line is passed over

  /// The stream must outlive the reader.
  explicit LineStream(ByteStream& stream);

  /// The first bytes of the stream, at most 64 KB, without taking them.
  /// REQUIRES: no line has been taken.
  std::string_view Head() const;

  /// The next line as text; the view holds until the next call. Nothing at the end.
  std::optional<std::string_view> Next();

  /// Whether the line handed out last was longer than LongestRow and was cut.
  bool WasCut() const { return cut_; }

  /// Number of the line handed out last, counted from 1; 0 before the first.
  int LineNumber() const { return lineNumber_; }

 private:
  bool Fill();
  std::string_view Available() const { return {buffer_.data() + begin_, end_ - begin_}; }
  std::string_view AsText(std::string_view line);

  ByteStream& stream_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;  // of the bytes not yet handed out
  std::size_t end_ = 0;
  bool atEnd_ = false;
  bool cut_ = false;
  int lineNumber_ = 0;
  std::string mended_;  // the line that had to be changed
};

}  // namespace kestrel
