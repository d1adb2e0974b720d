#include "pattern/PatternWords.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace kestrel {
namespace {

constexpr std::size_t kAzimuths = 360;
constexpr float kNotable = 0.05F;  // of the largest field

std::string Listed(const PatternValues& values, float largest, std::vector<std::size_t> azimuths) {
  std::sort(azimuths.begin(), azimuths.end());
  std::string text;
  for (std::size_t i = 0; i < azimuths.size(); ++i) {
    const bool last = i + 1 == azimuths.size();
    if (i > 0) text += last ? " and " : ", ";
    text += std::to_string(azimuths[i]) + (last ? " degrees (" : " (");
    text += std::to_string(std::lround(100 * values[azimuths[i]] / largest)) + " %)";
  }
  return text;
}

}  // namespace

std::string PatternWords(const PatternValues& values) {
  const auto end = values.begin() + kAzimuths;
  const auto start = static_cast<std::size_t>(std::max_element(values.begin(), end) - values.begin());
  const float largest = values[start];
  if (!(largest > 0)) return "not known";
  // Once around from the largest lobe, and each turn is told when the field has left it by enough.
  std::vector<std::size_t> lobes = {start};
  std::vector<std::size_t> nulls;
  std::size_t farthest = start;  // since the last turn
  bool falls = true;
  for (std::size_t step = 1; step <= kAzimuths; ++step) {
    const std::size_t at = (start + step) % kAzimuths;
    if (falls ? values[at] < values[farthest] : values[at] > values[farthest]) {
      farthest = at;
    } else if (std::abs(values[at] - values[farthest]) > kNotable * largest) {
      (falls ? nulls : lobes).push_back(farthest);
      falls = !falls;
      farthest = at;
    }
  }
  if (nulls.empty()) return "the same in all directions";
  return (lobes.size() == 1 ? "lobe at " : "lobes at ") + Listed(values, largest, lobes) +
         (nulls.size() == 1 ? ", null at " : ", nulls at ") + Listed(values, largest, nulls);
}

}  // namespace kestrel
