#pragma once

#include <string>
#include <string_view>

// Places on the earth, and the rules by which typed ones are read.

namespace kestrel {

/// A position in degrees, latitude north and longitude WEST positive.
struct Position {
  float Latitude = 0;
  float Longitude = 0;
  bool operator==(const Position&) const = default;
};

/// The position as home takes it: latitude held within -88 to 88, the longitude's sign dropped and the rest
/// held within 30 to 170 west.
Position HeldAsHome(const Position& position);

/// Reads both texts as typed numbers, held as home takes them.
Position ReadHomePosition(std::string_view latitude, std::string_view longitude);

/// "33.24278N, 96.54139W": a position in words, as the listener's lines name a home without a name.
std::string PositionText(const Position& position);

/// "33.243 N, 96.541 W", to three decimals, south and east by their letters: a place under the mouse.
std::string PlaceText(const Position& position);

}  // namespace kestrel
