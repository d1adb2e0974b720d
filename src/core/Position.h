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

/// Reads both texts as typed numbers, as home takes them: latitude held within -88 to 88, the longitude's
/// sign dropped and the rest held within 30 to 170 west.
Position ReadHomePosition(std::string_view latitude, std::string_view longitude);

/// A target whose longitude was typed or picked from a list: west of Greenwich, whatever its sign.
Position TypedTarget(float latitude, float longitude);

/// "33.24278N, 96.54139W": a position in words, as the listener's lines name a home without a name.
std::string PositionText(const Position& position);

}  // namespace kestrel
