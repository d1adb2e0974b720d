#include "map/RecoloredCanvas.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace kestrel {
namespace {

constexpr ColorValue kWhite = 0xFFFFFF;
constexpr int kLightestBackground = 0xE8;  // colours from here on are grounds, not ink
constexpr int kLightestInk = 0xC0;

constexpr ColorValue Grey(int level) {
  return level | level << 8 | level << 16;
}

/// Brightness as the eye weighs red, green and blue (ITU-R BT.601).
int Brightness(ColorValue color) {
  return ((color & 0xFF) * 299 + (color >> 8 & 0xFF) * 587 + (color >> 16 & 0xFF) * 114) / 1000;
}

Ink Plain(ColorValue color) {
  const int level = Brightness(color);
  if (color == kWhite || level >= kLightestBackground) return {Grey(level)};
  return {Grey(std::min(level, kLightestInk))};
}

RecoloredCanvas::Mapping FromTable(std::vector<std::pair<ColorValue, Ink>> table) {
  return [table = std::move(table)](ColorValue color) {
    const auto found =
        std::find_if(table.begin(), table.end(), [color](const auto& entry) { return entry.first == color; });
    return found != table.end() ? found->second : Plain(color);
  };
}

}  // namespace

void RecoloredCanvas::SetColor(ColorValue color) {
  const Ink ink = mapping_(color);
  canvas_.SetColor(ink.Color);
  if (ink.WidthFactor == widthFactor_) return;
  widthFactor_ = ink.WidthFactor;
  canvas_.SetLineWidth(width_ * widthFactor_);
}

void RecoloredCanvas::SetLineWidth(float width) {
  width_ = width;
  canvas_.SetLineWidth(width_ * widthFactor_);
}

RecoloredCanvas::Mapping GreysOf(const SessionState& state) {
  constexpr ColorValue kRegionColor = 0xCC8888;
  constexpr ColorValue kStatesColor = 0xDD9999;
  return FromTable({{state.NightColor, {Grey(0), 1}},
                    {state.UnlimitedColor, {Grey(0x2C), 2.2F}},
                    {state.DayColor, {Grey(0x54), 1}},
                    {state.CriticalColor, {Grey(0x7C), 2.2F}},
                    {state.AdjacentColor, {Grey(0xA4), 1.8F}},
                    {kRegionColor, {Grey(0xB0), 1.2F}},
                    {kStatesColor, {Grey(0xC8), 0.8F}}});
}

RecoloredCanvas::Mapping StationPlotGreys() {
  return FromTable({{0x0000AA, {Grey(0x28), 1.5F}},
                    {0x000099, {Grey(0x28), 1.5F}},
                    {0x119911, {Grey(0x50), 1.5F}},
                    {0xCCCC11, {Grey(0x78), 1.5F}},
                    {0xFF4444, {Grey(0x98), 0.8F}},
                    {0xDDDDDD, {Grey(0xC8), 0.8F}}});
}

}  // namespace kestrel
