#include "map/Labels.h"

#include <algorithm>
#include <cmath>

#include "map/Sheet.h"

namespace kestrel {

float LabelWeight(Point station, float powerKW) {
  constexpr float kNear = 100;  // twips squared, as near as home itself
  const float x = station.x - HomeOnSheet.x;
  const float y = station.y - HomeOnSheet.y;
  return powerKW / std::max(kNear, x * x + y * y);
}

ColorValue Darkened(ColorValue color) {
  const auto half = [](int part) { return part * 11 / 20; };
  return half(color & 0xFF) | half(color >> 8 & 0xFF) << 8 | half(color >> 16 & 0xFF) << 16;
}

ColorValue ReadableOnWhite(ColorValue color) {
  // Relative luminance and contrast as the W3C's WCAG 2 have them; 3 to 1 is asked of large text.
  const auto linear = [](int part) { return std::pow(part / 255.0, 2.2); };
  const double luminance = 0.2126 * linear(color & 0xFF) + 0.7152 * linear(color >> 8 & 0xFF) +
                           0.0722 * linear(color >> 16 & 0xFF);
  return 1.05 / (luminance + 0.05) < 3 ? Darkened(color) : color;
}

std::string_view LabelChoiceWord(LabelChoice choice) {
  if (choice == LabelChoice::All) return "all";
  return choice == LabelChoice::None ? "none" : "fitting";
}

LabelChoice LabelChoiceOf(std::string_view word) {
  if (word == "all") return LabelChoice::All;
  return word == "none" ? LabelChoice::None : LabelChoice::Fitting;
}

}  // namespace kestrel
