#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>

#include "ByTheRules.h"
#include "Targets.h"
#include "core/Lines.h"
#include "core/Numbers.h"
#include "core/SessionFile.h"
#include "core/Text.h"
#include "core/ViewLimits.h"

namespace kestrel::fuzz {
namespace {

void RoundTrip(float value) {
  const std::string text = NumberText(value);
  Hold(static_cast<float>(LeadingNumber(text)) == value, "the plain form reads back to the same single");
  Hold(text.find_first_not_of("-.0123456789") == std::string::npos, "the plain form is ordinary digits");
  Hold(Trim(DisplayNumberText(value)) == text, "the display form is the plain one and blanks");
}

}  // namespace

bool Numbers(std::string_view bytes) {
  const double leading = LeadingNumber(bytes);
  Hold(leading == NumberByTheRules(std::string(bytes)), "the leading number is read by the rules");
  RoundTrip(static_cast<float>(leading));

  const float typed = ParseNumber(bytes);
  Hold(typed >= -1e10F && typed <= 1e10F, "a typed number lies within 1e10");
  RoundTrip(typed);
  const std::string shortForm = FormatNumber(typed);
  Hold(shortForm.size() <= 12, "the short form is short");
  const double lost = std::abs(static_cast<double>(ParseNumber(shortForm)) - static_cast<double>(typed));
  Hold(lost <= std::max(1.01e-5, 5.1e-4 * std::abs(static_cast<double>(typed))), "the short form is near");

  std::uint32_t bits = 0;
  std::memcpy(&bits, bytes.data(), std::min(bytes.size(), sizeof bits));
  float any = 0;
  std::memcpy(&any, &bits, sizeof any);
  if (std::isfinite(any)) {
    RoundTrip(any);
    Hold(!FormatNumber(any).empty(), "the short form is not empty");
  }
  return true;
}

bool Lines(std::string_view bytes) {
  LineReader reader(bytes);
  LineReader byteReader(bytes);
  int count = 0;
  for (const TextLine& wanted : LinesByTheRules(bytes)) {
    const auto line = reader.Next();
    const auto asItStands = byteReader.NextBytes();
    Hold(line && asItStands, "as many lines as by the rules");
    Hold(*line == wanted.Text && *asItStands == wanted.Bytes, "a line is read by the rules");
    Hold(asItStands->size() <= LongestDataLine, "no line is longer than the longest");
    Hold(IsUtf8(*line), "text is UTF-8");
    Hold(Columns(*line, 1, 8) == ColumnsByTheRules(wanted.Text, 1, 8), "columns count characters");
    Hold(Columns(*line, 1, 8).size() + Columns(*line, 9, line->size()).size() == line->size(),
         "columns cut a line into parts");
    Hold(CharacterCount(UpperCase(*line)) == CharacterCount(*line), "capitals take as many columns");
    Hold(reader.LineNumber() == ++count, "lines are counted");
  }
  Hold(!reader.Next() && !byteReader.NextBytes() && reader.AtEnd(), "all is read");
  return true;
}

bool SessionFile(std::string_view bytes) {
  SessionState state;
  ReadSession(bytes, state);
  for (const float value : {state.CurrentFrequency, state.HomeLatitude, state.HomeLongitude,
                            state.PatternSize, state.ScaleFactor, state.AspectRatio})
    HoldFinite(value);
  const std::string written = WriteSession(state, "1/2/2026");
  Hold(state.PatternSize == SavedPatternSizeLimits.Hold(state.PatternSize),
       "the pattern size is saved within its limits");
  Hold(state.ScaleFactor == SavedScaleLimits.Hold(state.ScaleFactor), "the scale is saved within its limits");
  Hold(IsUtf8(written), "text is UTF-8");
  Hold(std::count(written.begin(), written.end(), '\n') == 17, "seventeen lines");

  SessionState again;
  ReadSession(written, again);
  Hold(again.AspectRatio >= 0.6F && again.AspectRatio <= 1.5F,
       "the aspect ratio comes back within its limits");
  const std::string once = WriteSession(again, "1/2/2026");
  SessionState third;
  ReadSession(once, third);
  Hold(WriteSession(third, "1/2/2026") == once, "what is written reads back to the same");
  return true;
}

}  // namespace kestrel::fuzz
