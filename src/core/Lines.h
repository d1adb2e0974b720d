#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kestrel {

/// No line is longer; the rest of a longer one is passed over.
inline constexpr std::size_t LongestDataLine = 4096;

/// Walks over the lines of a file's bytes.
///
/// A line ends at CR LF, LF or CR; the last one may lack its end, and a UTF-8 byte-order mark at the front
/// is passed over. A file that ends in a line end has no further, empty line after it. A line is cut at
/// LongestDataLine bytes, or before the character that lies across that place.
class LineReader {
 public:
  /// The bytes must outlive the reader.
  explicit LineReader(std::string_view bytes);

  /// The next line as text: NUL bytes are blanks, and a line that is not UTF-8 is taken as Latin-1. The view
  /// holds until the next call. Nothing at the end of the file.
  std::optional<std::string_view> Next();

  /// The next line as it stands, for readers that look at ASCII only.
  std::optional<std::string_view> NextBytes();

  /// What has not been read, for readers that find the line ends themselves.
  std::string_view Rest() const { return bytes_.substr(std::min(position_, bytes_.size())); }

  /// Passes over `count` lines of `length` bytes together at the front of Rest(), their ends included.
  void SkipLines(std::size_t count, std::size_t length) {
    position_ += length;
    lineNumber_ += static_cast<int>(count);
  }

  bool AtEnd() const { return position_ >= bytes_.size(); }

  /// Number of the line read last, counted from 1; 0 before the first.
  int LineNumber() const { return lineNumber_; }

 private:
  std::string_view bytes_;
  bool plain_ = false;          // no byte needs mending
  bool hasLoneReturn_ = false;  // a line somewhere ends in CR alone
  std::size_t position_ = 0;
  std::size_t nextLineFeed_ = 0;  // at or after position_, bytes_.size() when there is no more
  int lineNumber_ = 0;
  std::string mended_;  // the line that Next() had to change
};

}  // namespace kestrel
