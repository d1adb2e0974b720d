#include "import/read/LineStream.h"

#include <algorithm>
#include <cstring>

#include "core/Text.h"

namespace kestrel {
namespace {

constexpr std::size_t kBufferSize = 96 << 10;

}  // namespace

LineStream::LineStream(ByteStream& stream) : stream_(stream), buffer_(kBufferSize) {
  while (end_ < LongestRow && Fill()) {
  }
  if (Available().starts_with("\xEF\xBB\xBF")) begin_ += 3;
}

std::string_view LineStream::Head() const {
  return Available().substr(0, LongestRow);
}

/// Reads on after the bytes that are there; false at the end of the stream.
bool LineStream::Fill() {
  if (atEnd_) return false;
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
  }
  const std::size_t count = stream_.Read(buffer_.data() + end_, buffer_.size() - end_);
  end_ += count;
  atEnd_ = count == 0;
  return !atEnd_;
}

std::optional<std::string_view> LineStream::Next() {
  cut_ = false;
  std::size_t searched = 0;
  std::size_t length = std::string_view::npos;
  while ((length = Available().find('\n', searched)) == std::string_view::npos) {
    searched = Available().size();
    if (searched > LongestRow || !Fill()) break;
  }
  if (length == std::string_view::npos && Available().empty()) return std::nullopt;
  ++lineNumber_;

  std::string_view line = Available().substr(0, length);
  begin_ += std::min(line.size() + 1, Available().size());
  if (line.size() > LongestRow) {
    cut_ = true;
    line = AsText(mended_ = std::string(line.substr(0, LongestRow)));
    while (length == std::string_view::npos) {
      begin_ = end_;
      if (!Fill()) break;
      length = Available().find('\n');
      if (length != std::string_view::npos) begin_ += length + 1;
    }
    return line;
  }
  if (line.ends_with('\r')) line.remove_suffix(1);
  return AsText(line);
}

std::string_view LineStream::AsText(std::string_view line) {
  if (std::all_of(line.begin(), line.end(), [](char c) { return static_cast<signed char>(c) > 0; }))
    return line;
  mended_ = IsUtf8(line) ? std::string(line) : FromLatin1(line);
  std::replace(mended_.begin(), mended_.end(), '\0', ' ');
  return mended_;
}

}  // namespace kestrel
