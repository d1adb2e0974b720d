#include "core/Lines.h"

#include <algorithm>
#include <cstring>

#include "core/Text.h"

namespace kestrel {
namespace {

std::size_t Find(std::string_view bytes, char wanted, std::size_t from) {
  const void* found =
      from < bytes.size() ? std::memchr(bytes.data() + from, wanted, bytes.size() - from) : nullptr;
  return found ? static_cast<std::size_t>(static_cast<const char*>(found) - bytes.data()) : bytes.size();
}

bool IsPlainAscii(std::string_view bytes) {
  // Bit 7 of c or of c - 1 is set for what is not ASCII and for 0. Without an early end, so that many bytes
  // are looked at together.
  unsigned char bits = 0;
  for (const char c : bytes) bits |= static_cast<unsigned char>(c | (c - 1));
  return bits < 0x80;
}

/// A line as long as it may be, without a piece of a character at its end.
std::string_view Cut(std::string_view line) {
  if (line.size() <= LongestDataLine) return line;
  const auto continues = [&line](std::size_t at) { return (line[at] & 0xC0) == 0x80; };
  std::size_t length = LongestDataLine;
  while (length > LongestDataLine - 3 && continues(length)) --length;
  return line.substr(0, length);
}

/// Whether a CR stands anywhere without an LF after it. Without an early end, too.
bool HasLoneReturn(std::string_view bytes) {
  unsigned char lone = bytes.ends_with('\r');
  for (std::size_t i = Find(bytes, '\r', 0) + 1; i < bytes.size(); ++i)
    lone |= static_cast<unsigned char>(int{bytes[i - 1] == '\r'} & int{bytes[i] != '\n'});
  return lone != 0;
}

}  // namespace

LineReader::LineReader(std::string_view bytes) : bytes_(bytes) {
  if (bytes_.starts_with("\xEF\xBB\xBF")) bytes_.remove_prefix(3);
  plain_ = IsPlainAscii(bytes_);
  hasLoneReturn_ = HasLoneReturn(bytes_);
  nextLineFeed_ = Find(bytes_, '\n', 0);
}

std::optional<std::string_view> LineReader::NextBytes() {
  if (AtEnd()) return std::nullopt;
  if (nextLineFeed_ < position_) nextLineFeed_ = Find(bytes_, '\n', position_);
  std::size_t end = nextLineFeed_;
  std::size_t next = end + 1;
  if (hasLoneReturn_) {
    const std::size_t carriageReturn = Find(bytes_.substr(0, end), '\r', position_);
    if (carriageReturn + 1 < end) next = carriageReturn + 1;
    end = carriageReturn;
  } else if (end > position_ && bytes_[end - 1] == '\r') {
    --end;
  }
  const std::string_view line = Cut(bytes_.substr(position_, end - position_));
  position_ = next;
  ++lineNumber_;
  return line;
}

std::optional<std::string_view> LineReader::Next() {
  if (plain_) return NextBytes();
  const std::optional<std::string_view> line = NextBytes();
  if (!line || IsPlainAscii(*line)) return line;
  mended_ = IsUtf8(*line) ? std::string(*line) : FromLatin1(*line);
  std::replace(mended_.begin(), mended_.end(), '\0', ' ');
  return mended_;
}

}  // namespace kestrel
