#include "core/SessionFile.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "core/Lines.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "core/ViewLimits.h"

namespace kestrel {
namespace {

/// How reading the values ended. Whether the limits are to be applied to what was read depends on it.
enum class Ending {
  Complete,
  Early,     ///< of the file, before a value or before the colours
  Overflow,  ///< a number does not fit its type
};

/// Hands out the values of the file in their order; labels and comments are passed over. Each call stores one
/// value and returns whether it could; where not, the place stays as it was and Reason() says why.
class ValueReader {
 public:
  explicit ValueReader(std::string_view bytes) : lines_(bytes) {}

  bool AtEnd() const { return lines_.AtEnd(); }
  Ending Reason() const { return reason_; }

  bool Text(std::string& place) {
    const auto text = Next();
    if (text) place = *text;
    return text.has_value();
  }
  bool Suffixed(float& place) {
    const auto text = Next();
    if (text) place = ParseNumber(*text);
    return text.has_value();
  }
  bool Plain(float& place) {
    const auto text = Next();
    if (text) place = static_cast<float>(LeadingNumber(*text));
    return text.has_value();
  }
  bool Unit(std::int16_t& place) {
    float value = 0;
    return Suffixed(value) && Round(value, place);
  }
  bool Color(ColorValue& place) {
    float value = 0;
    return Plain(value) && Round(value, place);
  }

 private:
  std::optional<std::string_view> Next() {
    while (const auto line = lines_.Next()) {
      if (line->empty() || line->front() == '*') continue;
      const std::size_t colon = line->find(':');
      return Trim(colon == std::string_view::npos ? *line : line->substr(colon + 1));
    }
    reason_ = Ending::Early;
    return std::nullopt;
  }

  template <typename Whole>
  bool Round(float value, Whole& place) {
    const double rounded = RoundToWhole(value);
    if (rounded < std::numeric_limits<Whole>::min() || rounded > std::numeric_limits<Whole>::max()) {
      reason_ = Ending::Overflow;
      return false;
    }
    place = static_cast<Whole>(rounded);
    return true;
  }

  LineReader lines_;
  Ending reason_ = Ending::Complete;
};

Ending ReadValues(ValueReader& values, SessionState& state) {
  const bool homeAndView = values.Suffixed(state.CurrentFrequency) && values.Text(state.HomeName) &&
                           values.Suffixed(state.HomeLatitude) && values.Suffixed(state.HomeLongitude) &&
                           values.Plain(state.PatternSize) && values.Plain(state.ScaleFactor) &&
                           values.Unit(state.DistanceUnit);
  if (homeAndView && values.AtEnd()) return Ending::Early;
  const bool colorsAndLanguage = homeAndView && values.Color(state.DayColor) &&
                                 values.Color(state.NightColor) && values.Color(state.UnlimitedColor) &&
                                 values.Color(state.CriticalColor) && values.Color(state.AdjacentColor) &&
                                 values.Text(state.MapLanguage);
  if (colorsAndLanguage && !values.AtEnd()) values.Plain(state.AspectRatio);
  return values.Reason();
}

void LimitView(SessionState& state) {
  state.PatternSize = SavedPatternSizeLimits.Hold(state.PatternSize);
  state.ScaleFactor = SavedScaleLimits.Hold(state.ScaleFactor);
}

void FillUnsetColors(SessionState& state) {
  const SessionState defaults;
  const auto fill = [](ColorValue& color, ColorValue value) {
    if (color == 0) color = value;
  };
  fill(state.DayColor, defaults.DayColor);
  fill(state.NightColor, defaults.NightColor);
  fill(state.UnlimitedColor, defaults.UnlimitedColor);
  fill(state.CriticalColor, defaults.CriticalColor);
  fill(state.AdjacentColor, defaults.AdjacentColor);
  for (std::size_t i = 0; i < state.FurtherAdjacentColors.size(); ++i)
    fill(state.FurtherAdjacentColors[i], defaults.FurtherAdjacentColors[i]);
}

void ApplyLimits(SessionState& state) {
  LimitView(state);
  FillUnsetColors(state);
  if (state.AspectRatio == 0) state.AspectRatio = 0.75F;
  state.AspectRatio = SavedAspectLimits.Hold(state.AspectRatio);
}

void ResetHome(SessionState& state) {
  const SessionState defaults;
  state.CurrentFrequency = defaults.CurrentFrequency;
  state.HomeName = defaults.HomeName;
  state.HomeLatitude = defaults.HomeLatitude;
  state.HomeLongitude = defaults.HomeLongitude;
}

void FallBack(SessionState& state) {
  const SessionState defaults;
  ResetHome(state);
  state.PatternSize = defaults.PatternSize;
  state.ScaleFactor = defaults.ScaleFactor;
  if (state.AspectRatio <= 0) state.AspectRatio = 0.75F;
  FillUnsetColors(state);
}

/// Text in one line, whatever it holds.
std::string OneLine(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return text;
}

}  // namespace

void ReadSession(std::optional<std::string_view> bytes, SessionState& state) {
  if (!bytes) return FallBack(state);
  ValueReader values(*bytes);
  switch (ReadValues(values, state)) {
    case Ending::Complete:
      return ApplyLimits(state);
    case Ending::Early:
      return;
    case Ending::Overflow:
      return FallBack(state);
  }
}

std::string WriteSession(SessionState& state, std::string_view date) {
  LimitView(state);
  if (state.CurrentFrequency == 0 || state.HomeLatitude == 0 || state.HomeLongitude == 0) {
    ResetHome(state);
    state.HomeName = "Plano  TX";
  }

  std::string text;
  const auto line = [&](std::string_view label, const std::string& value) {
    text.append(label).append(value).append("\r\n");
  };
  line("* Kestrel last-session file", "");
  line("* ", OneLine(std::string(date)));
  line("", "");
  line("Frequency displayed: ", NumberText(state.CurrentFrequency));
  line("Home: ", OneLine(state.HomeName));
  line("Home latitude: ", NumberText(state.HomeLatitude));
  line("Home longitude: ", NumberText(state.HomeLongitude));
  line("Relative size of pattern: ", NumberText(state.PatternSize));
  line("Scale factor: ", NumberText(state.ScaleFactor));
  line("Distance km or miles: ", std::to_string(state.DistanceUnit));
  line("Daytime pattern color: ", std::to_string(state.DayColor));
  line("Nighttime pattern color: ", std::to_string(state.NightColor));
  line("Unlimited-hours pattern color: ", std::to_string(state.UnlimitedColor));
  line("Critical-hours pattern color: ", std::to_string(state.CriticalColor));
  line("Adjacent channel pattern color: ", std::to_string(state.AdjacentColor));
  line("Google Maps Language: ", OneLine(state.MapLanguage));
  line("Aspect ratio: ", DisplayNumberText(state.AspectRatio));
  return text;
}

}  // namespace kestrel
