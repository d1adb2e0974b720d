#pragma once

#include <cstdint>

namespace kestrel {

/// A colour as 0x00BBGGRR: 255 is red, 16711680 blue, 16777215 white.
using ColorValue = std::int32_t;

/// The inks of all figures. Some are equal; each has its own name, so that one can change without the others.
struct Palette {
  // The patterns of the main map, until the listener chooses others (SessionState, Options.h).
  static constexpr ColorValue Daytime = 0x00FF00;
  static constexpr ColorValue Nighttime = 0;
  static constexpr ColorValue Unlimited = 0x0000FF;
  static constexpr ColorValue Critical = 0xFFFF00;
  static constexpr ColorValue Adjacent = 0x033023;
  static constexpr ColorValue FurtherAdjacent = 0xFF0000;
  static constexpr ColorValue RecommendedNighttime = 0x0F0F0F;  ///< differs from 0, which is "never chosen"
  static constexpr ColorValue RecommendedAdjacent = 0x0080FF;   ///< differs from the map's blue

  static constexpr ColorValue Black = 0;
  static constexpr ColorValue White = 0xFFFFFF;
  static constexpr ColorValue Text = 0x202020;
  static constexpr ColorValue NoticePaper = 0xFFFFEE;  ///< under the banners of the main map

  // The main map.
  static constexpr ColorValue Twilight = 0xF6EFE8;
  static constexpr ColorValue Night = 0xEBDDD0;
  static constexpr ColorValue OffAir = 0x909090;
  static constexpr ColorValue RegionOutline = 0xCC8888;
  static constexpr ColorValue StatesOutline = 0xDD9999;
  static constexpr ColorValue Home = 0x0000FF;
  static constexpr ColorValue ScanCross = 0x0000FF;
  static constexpr ColorValue CompassSpoke = 0xFF8888;
  static constexpr ColorValue CompassPaper = 0xFFEEDD;
  static constexpr ColorValue CompassText = 0xFF1111;
  static constexpr ColorValue Ring = 0x90B8CC;  ///< of distance around home
  static constexpr ColorValue RingText = 0x28587A;
  static constexpr ColorValue ScaleBar = 0x404040;

  // The opening screen's map, on a dark ground.
  static constexpr ColorValue OpeningRegion = 0xE8B890;
  static constexpr ColorValue OpeningStates = 0xA06848;
  static constexpr ColorValue OpeningStation = 0xFF9911;

  // A station's polar plot and tower layout.
  static constexpr ColorValue Spoke = 0xDDDDDD;
  static constexpr ColorValue Bearing = 0x888888;
  static constexpr ColorValue PlotMark = 0x0000FF;
  static constexpr ColorValue NightTrace = 0;
  static constexpr ColorValue CriticalTrace = 0xCCCC11;
  static constexpr ColorValue DayTrace = 0x119911;
  static constexpr ColorValue UnlimitedTrace = 0x0000AA;
  static constexpr ColorValue UnlimitedLegend = 0x000099;  ///< a shade darker than its trace
  static constexpr ColorValue EnlargedTrace = 0xFF4444;
  static constexpr ColorValue SpacingRing = 0xCCCCCC;
  static constexpr ColorValue Tower = 0xFF0000;

  // The context map.
  static constexpr ColorValue ContextGround = 0xFFFFEE;  ///< around the frame
  static constexpr ColorValue ContextOutline = 0;
  static constexpr ColorValue ContextMark = 0x0000FF;
  static constexpr ColorValue ContextFrame = 0xFF0000;

  // The states map.
  static constexpr ColorValue Grid = 0xDDDDDD;
  static constexpr ColorValue GridText = 0x888888;
  static constexpr ColorValue Strip = 0xEFEFEF;
  static constexpr ColorValue HomeStrip = 0x663322;  ///< dark, for the white text of home
};

}  // namespace kestrel
