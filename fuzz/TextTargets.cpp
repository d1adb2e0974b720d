#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

#include "Targets.h"
#include "core/Lines.h"
#include "core/Numbers.h"
#include "core/SessionFile.h"
#include "core/Text.h"

namespace kestrel::fuzz {
namespace {

constexpr double kLargest = std::numeric_limits<float>::max();

/// The leading number by the C library, of what the grammar says belongs to it.
double NumberByTheLibrary(std::string_view text) {
  std::size_t i = 0;
  const auto at = [&](std::size_t k) { return k < text.size() ? text[k] : '\0'; };
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  while (at(i) == ' ') ++i;
  const std::size_t begin = i;
  if (at(i) == '+' || at(i) == '-') ++i;
  bool digits = false;
  while (isDigit(at(i))) ++i, digits = true;
  if (at(i) == '.') ++i;
  while (isDigit(at(i))) ++i, digits = true;
  if (!digits) return 0;
  if (at(i) == 'e' || at(i) == 'E') {
    const std::size_t sign = at(i + 1) == '+' || at(i + 1) == '-' ? i + 2 : i + 1;
    if (isDigit(at(sign)))
      for (i = sign; isDigit(at(i));) ++i;
  }
  const double value = std::strtod(std::string(text.substr(begin, i - begin)).c_str(), nullptr);
  return std::clamp(value, -kLargest, kLargest);
}

void RoundTrip(float value) {
  const std::string text = NumberText(value);
  Hold(static_cast<float>(LeadingNumber(text)) == value, "the plain form reads back to the same single");
  Hold(text.find_first_not_of("-.0123456789") == std::string::npos, "the plain form is ordinary digits");
  Hold(Trim(DisplayNumberText(value)) == text, "the display form is the plain one and blanks");
}

}  // namespace

void Numbers(std::string_view bytes) {
  const double leading = LeadingNumber(bytes);
  Hold(leading == NumberByTheLibrary(bytes), "the leading number is rounded correctly");
  RoundTrip(static_cast<float>(leading));

  const float typed = ParseNumber(bytes);
  Hold(typed >= -1e10F && typed <= 1e10F, "a typed number lies within 1e10");
  RoundTrip(typed);
  Hold(FormatNumber(typed).size() <= 12, "the short form is short");

  std::uint32_t bits = 0;
  std::memcpy(&bits, bytes.data(), std::min(bytes.size(), sizeof bits));
  float any = 0;
  std::memcpy(&any, &bits, sizeof any);
  if (std::isfinite(any)) {
    RoundTrip(any);
    Hold(!FormatNumber(any).empty(), "the short form is not empty");
  }
}

void Lines(std::string_view bytes) {
  LineReader reader(bytes);
  LineReader byteReader(bytes);
  int count = 0;
  while (const auto line = reader.Next()) {
    const auto asItStands = byteReader.NextBytes();
    Hold(asItStands.has_value(), "as many lines of text as of bytes");
    Hold(line->find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos, "no line end in a line");
    Hold(IsUtf8(*line), "text is UTF-8");
    Hold(CharacterCount(*line) <= asItStands->size(), "a character comes from a byte at least");
    Hold(Columns(*line, 1, 8).size() + Columns(*line, 9, line->size()).size() == line->size(),
         "columns cut a line into parts");
    Hold(CharacterCount(UpperCase(*line)) == CharacterCount(*line), "capitals take as many columns");
    Hold(reader.LineNumber() == ++count, "lines are counted");
  }
  Hold(reader.AtEnd() && !byteReader.NextBytes(), "all is read");
}

void SessionFile(std::string_view bytes) {
  SessionState state;
  ReadSession(bytes, state);
  for (const float value : {state.CurrentFrequency, state.HomeLatitude, state.HomeLongitude, state.PatternSize,
                            state.ScaleFactor, state.AspectRatio})
    HoldFinite(value);
  const std::string written = WriteSession(state, "1/2/2026");
  Hold(state.PatternSize >= 0.02F && state.PatternSize <= 1, "the pattern size is saved within its limits");
  Hold(state.ScaleFactor >= 100 && state.ScaleFactor <= 10000, "the scale is saved within its limits");
  Hold(IsUtf8(written), "text is UTF-8");
  Hold(std::count(written.begin(), written.end(), '\n') == 17, "seventeen lines");

  SessionState again;
  ReadSession(written, again);
  Hold(again.AspectRatio >= 0.6F && again.AspectRatio <= 1.5F, "the aspect ratio comes back within its limits");
  const std::string once = WriteSession(again, "1/2/2026");
  SessionState third;
  ReadSession(once, third);
  Hold(WriteSession(third, "1/2/2026") == once, "what is written reads back to the same");
}

}  // namespace kestrel::fuzz
