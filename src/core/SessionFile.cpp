#include "core/SessionFile.h"

#include <algorithm>
#include <limits>

#include "core/Lines.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "core/ViewLimits.h"

namespace kestrel {
namespace {

/// Thrown by the readers below: the file ended before the value.
struct EndOfValues {};
/// Thrown by the readers below: the number does not fit its type.
struct Overflow {};

/// Hands out the values of the file in their order; labels and comments are passed over.
class ValueReader {
 public:
  explicit ValueReader(std::string_view bytes) : lines_(bytes) {}

  bool AtEnd() const { return lines_.AtEnd(); }

  std::string_view Text() {
    while (const auto line = lines_.Next()) {
      if (line->empty() || line->front() == '*') continue;
      const std::size_t colon = line->find(':');
      return Trim(colon == std::string_view::npos ? *line : line->substr(colon + 1));
    }
    throw EndOfValues{};
  }

  float Suffixed() { return ParseNumber(Text()); }
  float Plain() { return static_cast<float>(LeadingNumber(Text())); }

  template <typename Whole>
  Whole Rounded(float value) {
    const double rounded = RoundToWhole(value);
    if (rounded < std::numeric_limits<Whole>::min() || rounded > std::numeric_limits<Whole>::max())
      throw Overflow{};
    return static_cast<Whole>(rounded);
  }

  ColorValue Color() { return Rounded<ColorValue>(Plain()); }

 private:
  LineReader lines_;
};

/// Whether the limits are to be applied to what was read.
enum class Outcome { Complete, EndedEarly };

Outcome ReadValues(ValueReader& values, SessionState& state) {
  state.CurrentFrequency = values.Suffixed();
  state.HomeName = values.Text();
  state.HomeLatitude = values.Suffixed();
  state.HomeLongitude = values.Suffixed();
  state.PatternSize = values.Plain();
  state.ScaleFactor = values.Plain();
  state.DistanceUnit = values.Rounded<std::int16_t>(values.Suffixed());
  if (values.AtEnd()) return Outcome::EndedEarly;
  for (ColorValue* color : {&state.DayColor, &state.NightColor, &state.UnlimitedColor, &state.CriticalColor,
                            &state.AdjacentColor})
    *color = values.Color();
  state.MapLanguage = values.Text();
  if (!values.AtEnd()) state.AspectRatio = values.Plain();
  return Outcome::Complete;
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
  try {
    if (ReadValues(values, state) == Outcome::Complete) ApplyLimits(state);
  } catch (const EndOfValues&) {
  } catch (const Overflow&) {
    FallBack(state);
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
