#include "map/Labels.h"

#include <algorithm>

#include "map/Sheet.h"

namespace kestrel {

float LabelWeight(Point station, float powerKW) {
  constexpr float kNear = 100;  // twips squared, as near as home itself
  const float x = station.x - HomeOnSheet.x;
  const float y = station.y - HomeOnSheet.y;
  return powerKW / std::max(kNear, x * x + y * y);
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
