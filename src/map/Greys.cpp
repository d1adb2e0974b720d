#include "map/Greys.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace kestrel {
namespace {

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
  if (color == Palette::White || level >= kLightestBackground) return {Grey(level)};
  return {Grey(std::min(level, kLightestInk))};
}

Recoloring FromTable(std::vector<std::pair<ColorValue, Ink>> table) {
  return [table = std::move(table)](ColorValue color) {
    const auto found =
        std::find_if(table.begin(), table.end(), [color](const auto& entry) { return entry.first == color; });
    return found != table.end() ? found->second : Plain(color);
  };
}

}  // namespace

Recoloring GreysOf(const SessionState& state) {
  return FromTable({{state.NightColor, {Grey(0), 1}},
                    {state.UnlimitedColor, {Grey(0x2C), 2.2F}},
                    {state.DayColor, {Grey(0x54), 1}},
                    {state.CriticalColor, {Grey(0x7C), 2.2F}},
                    {state.AdjacentColor, {Grey(0xA4), 1.8F}},
                    {Palette::Twilight, {Grey(0xF0), 1}},
                    {Palette::Night, {Grey(0xDC), 1}},
                    {Palette::RegionOutline, {Grey(0xB0), 1.2F}},
                    {Palette::StatesOutline, {Grey(0xC8), 0.8F}}});
}

Recoloring StationPlotGreys() {
  return FromTable({{Palette::UnlimitedTrace, {Grey(0x28), 1.5F}},
                    {Palette::UnlimitedLegend, {Grey(0x28), 1.5F}},
                    {Palette::DayTrace, {Grey(0x50), 1.5F}},
                    {Palette::CriticalTrace, {Grey(0x78), 1.5F}},
                    {Palette::EnlargedTrace, {Grey(0x98), 0.8F}},
                    {Palette::Spoke, {Grey(0xC8), 0.8F}}});
}

}  // namespace kestrel
