#include "draw/DashedLine.h"

#include <array>

namespace kestrel {

std::span<const float> DashLengths(Dash dash) {
  static constexpr std::array<float, 2> kSpoke = {2, 4};
  static constexpr std::array<float, 2> kNight = {6, 4};
  static constexpr std::array<float, 2> kCritical = {1.5F, 3.5F};
  static constexpr std::array<float, 4> kUnlimited = {9, 3, 2, 3};
  switch (dash) {
    case Dash::None:
      return {};
    case Dash::Spoke:
      return kSpoke;
    case Dash::Night:
      return kNight;
    case Dash::Critical:
      return kCritical;
    case Dash::Unlimited:
      return kUnlimited;
  }
  return {};
}

}  // namespace kestrel
