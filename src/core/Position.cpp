#include "core/Position.h"

#include <algorithm>
#include <cmath>

#include "core/Numbers.h"

namespace kestrel {

Position HeldAsHome(const Position& position) {
  return {std::clamp(position.Latitude, -88.0F, 88.0F),
          std::clamp(std::abs(position.Longitude), 30.0F, 170.0F)};
}

Position ReadHomePosition(std::string_view latitude, std::string_view longitude) {
  return HeldAsHome({ParseNumber(latitude), ParseNumber(longitude)});
}

std::string PositionText(const Position& position) {
  return NumberText(position.Latitude) + "N, " + NumberText(position.Longitude) + "W";
}

std::string PlaceText(const Position& position) {
  const auto part = [](float degrees, const char* positive, const char* negative) {
    return FixedText(std::abs(degrees), 3) + (degrees < 0 ? negative : positive);
  };
  return part(position.Latitude, " N, ", " S, ") + part(position.Longitude, " W", " E");
}

}  // namespace kestrel
