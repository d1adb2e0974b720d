#include "core/Options.h"

namespace kestrel {
namespace {

constexpr ColorValue kGreen = 65280;
constexpr ColorValue kRed = 255;
constexpr ColorValue kCyan = 16776960;
constexpr ColorValue kBlue = 16711680;
constexpr ColorValue kOrange = 33023;
constexpr ColorValue kNearBlack = 986895;

void FillUnset(ColorValue& color, ColorValue value) {
  if (color == 0) color = value;
}

}  // namespace

void FillUnsetOptions(SessionState& state) {
  FillUnset(state.DayColor, kGreen);
  FillUnset(state.UnlimitedColor, kRed);
  FillUnset(state.CriticalColor, kCyan);
  FillUnset(state.AdjacentColor, kBlue);
  for (ColorValue& color : state.FurtherAdjacentColors) FillUnset(color, kBlue);
  if (state.MapLanguage != "fr" && state.MapLanguage != "es") state.MapLanguage = "en";
}

void SetDefaultColors(SessionState& state) {
  state.DayColor = kGreen;
  state.NightColor = kNearBlack;
  state.UnlimitedColor = kRed;
  state.CriticalColor = kCyan;
  state.AdjacentColor = kOrange;
}

}  // namespace kestrel
