#include "core/EntryHints.h"

#include <cmath>

#include "core/Numbers.h"

namespace kestrel {

std::string_view LongitudeHint(std::string_view text) {
  const bool hasDigit = text.find_first_of("0123456789") != std::string_view::npos;
  return text.empty() || hasDigit ? "" : "No number here";
}

std::string_view LatitudeHint(std::string_view text) {
  constexpr float kPole = 90;
  return std::abs(ParseNumber(text)) > kPole ? "Latitude beyond 90" : LongitudeHint(text);
}

}  // namespace kestrel
