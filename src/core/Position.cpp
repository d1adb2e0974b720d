#include "core/Position.h"

#include <algorithm>
#include <cmath>

#include "core/Numbers.h"

namespace kestrel {

Position ReadHomePosition(std::string_view latitude, std::string_view longitude) {
  return {std::clamp(ParseNumber(latitude), -88.0F, 88.0F),
          std::clamp(std::abs(ParseNumber(longitude)), 30.0F, 170.0F)};
}

Position TypedTarget(float latitude, float longitude) {
  return {latitude, std::abs(longitude)};
}

std::string PositionText(const Position& position) {
  return NumberText(position.Latitude) + "N, " + NumberText(position.Longitude) + "W";
}

}  // namespace kestrel
