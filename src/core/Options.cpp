#include "core/Options.h"

namespace kestrel {
namespace {

void FillUnset(ColorValue& color, ColorValue value) {
  if (color == 0) color = value;
}

}  // namespace

void FillUnsetOptions(SessionState& state) {
  FillUnset(state.DayColor, Palette::Daytime);
  FillUnset(state.UnlimitedColor, Palette::Unlimited);
  FillUnset(state.CriticalColor, Palette::Critical);
  FillUnset(state.AdjacentColor, Palette::FurtherAdjacent);
  for (ColorValue& color : state.FurtherAdjacentColors) FillUnset(color, Palette::FurtherAdjacent);
  if (state.MapLanguage != "fr" && state.MapLanguage != "es") state.MapLanguage = "en";
}

void SetDefaultColors(SessionState& state) {
  state.DayColor = Palette::Daytime;
  state.NightColor = Palette::RecommendedNighttime;
  state.UnlimitedColor = Palette::Unlimited;
  state.CriticalColor = Palette::Critical;
  state.AdjacentColor = Palette::RecommendedAdjacent;
}

}  // namespace kestrel
