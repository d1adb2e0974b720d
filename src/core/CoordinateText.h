#pragma once

#include <optional>
#include <string>
#include <string_view>

// Coordinates as people write them, with degrees, minutes, seconds and the letter of a hemisphere.

namespace kestrel {

enum class Axis { Latitude, Longitude };

/// What a text in such a notation says.
struct CoordinateReading {
  float Degrees = 0;    ///< north and west positive; 0 when there is a fault
  char Hemisphere = 0;  ///< N, S, W or E where it is written; else 0
  std::string Fault;    ///< why it is no coordinate, in words; empty when it is one
};

/// Reads a text that has degree, minute or second marks, blanks between whole parts, or the letter of a
/// hemisphere, in front or at the end, small or capital. Point and comma are decimal points; the last part
/// alone may have decimals. Marks are the degree sign or d, a prime, an apostrophe or m, and a double prime,
/// a quotation mark or s; m and s are marks only after degrees and minutes. Without a letter a sign counts:
/// positive is north and west. Nothing for a text in no such notation, which is a plain number or none.
///
///     "42.35N"  "42 21 00 N"  "42°21'N"  "42d21m"  "n 42,35" -> 42.35      "71 5 E" -> -71.083336
///     "42 61 N" -> "Minutes run from 0 to 59"      "1.1k"  "5m"  "1e2"  "abc" -> nothing
std::optional<CoordinateReading> ReadCoordinate(std::string_view text, Axis axis);

}  // namespace kestrel
