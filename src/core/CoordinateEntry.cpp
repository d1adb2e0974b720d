#include "core/CoordinateEntry.h"

#include <cmath>

#include "core/Numbers.h"
#include "core/Position.h"

namespace kestrel {
namespace {

constexpr float kPole = 90;

float Held(float degrees, Axis axis, EntryOf place) {
  if (place == EntryOf::Target) return axis == Axis::Latitude ? degrees : std::abs(degrees);
  const Position held = HeldAsHome({degrees, degrees});
  return axis == Axis::Latitude ? held.Latitude : held.Longitude;
}

/// "= 42.35 N", to a hundred-thousandth of a degree, about a metre.
std::string Told(float degrees, Axis axis) {
  const auto rounded = static_cast<float>(std::round(std::abs(degrees) * 1e5) / 1e5);
  const char* letter = axis == Axis::Longitude ? " W" : degrees < 0 ? " S" : " N";
  return "= " + NumberText(rounded) + letter;
}

CoordinateEntry Refusal(std::string why) {
  return {0, std::move(why), true, true};
}

CoordinateEntry FromNotation(const CoordinateReading& reading, Axis axis, EntryOf place) {
  if (!reading.Fault.empty()) return Refusal(reading.Fault);
  if (axis == Axis::Longitude && reading.Hemisphere == 'E') return Refusal("East: longitudes are west here");
  const float given = axis == Axis::Longitude ? std::abs(reading.Degrees) : reading.Degrees;
  if (Held(given, axis, place) != given)
    return Refusal(axis == Axis::Latitude ? "Home lies from 88 S to 88 N" : "Home lies from 30 W to 170 W");
  return {given, Told(given, axis), false, false};
}

CoordinateEntry FromNumber(std::string_view text, Axis axis, EntryOf place) {
  const float given = ParseNumber(text);
  const float degrees = Held(given, axis, place);
  if (text.find_first_of("0123456789") == std::string_view::npos)
    return {degrees, "No number here", true, false};
  if (axis == Axis::Latitude && std::abs(degrees) > kPole)
    return {degrees, "Latitude beyond 90", true, false};
  const bool limited = std::abs(degrees) != std::abs(given);
  return {degrees, Told(degrees, axis) + (limited ? ", the limit" : ""), limited, false};
}

}  // namespace

CoordinateEntry ReadEntry(std::string_view text, Axis axis, EntryOf place) {
  if (text.empty() && place == EntryOf::Target) return {};
  const auto reading = ReadCoordinate(text, axis);
  return reading ? FromNotation(*reading, axis, place) : FromNumber(text, axis, place);
}

}  // namespace kestrel
