#include "pattern/PatternSweep.h"

#include <cmath>

#include "core/Geodesy.h"

namespace kestrel::KESTREL_KERNELS {
namespace {

/// A round number of vectors of any width.
constexpr int kLanes = 368;

struct Azimuths {
  double Sine[kLanes];
  double Cosine[kLanes];
  Azimuths() {
    for (int a = 0; a < kLanes; ++a) {
      Sine[a] = std::sin(a / double{DegreesPerRadian});
      Cosine[a] = std::cos(a / double{DegreesPerRadian});
    }
  }
};

/// The sums over the towers, and 0 where psi rounds alike within its bound for every tower.
struct Sums {
  double Sine[kLanes];
  double Cosine[kLanes];
  float Doubt[kLanes];
};

KESTREL_CLONES void AddTower(const SweepTower& tower, double sine, double cosine, const Azimuths& azimuths,
                             Sums& sums) {
  const double north = tower.Spacing * cosine;
  const double east = tower.Spacing * sine;
  // Either way rounds the turn (to one part in 2^53 of its terms), the product and the sum.
  const double bound =
      1e-15 * (std::abs(tower.Spacing) * (2 + std::abs(tower.Bearing)) + std::abs(tower.Phase));
  const double phase = tower.Phase;
  const double field = tower.Field;
  for (int a = 0; a < kLanes; ++a) {
    const double psi = north * azimuths.Cosine[a] + east * azimuths.Sine[a] + phase;
    const auto low = static_cast<float>(psi - bound);
    const auto high = static_cast<float>(psi + bound);
    const SineCosine of = OfRadians(low);
    sums.Sine[a] += field * of.Sine;
    sums.Cosine[a] += field * of.Cosine;
    sums.Doubt[a] += high - low;
  }
}

KESTREL_CLONES bool StoreMagnitudes(const Sums& sums, double bound, float* magnitudes) {
  int doubtful = 0;
  for (int a = 0; a < PatternAzimuths; ++a) {
    const double magnitude = std::sqrt(sums.Cosine[a] * sums.Cosine[a] + sums.Sine[a] * sums.Sine[a]);
    const auto low = static_cast<float>(magnitude - bound);
    const auto high = static_cast<float>(magnitude + bound);
    const bool certain = high - low + sums.Doubt[a] == 0;
    magnitudes[a] = certain ? low : -1;
    doubtful += certain ? 0 : 1;
  }
  return doubtful == 0;
}

}  // namespace

bool CanSweep(const SweepTower* towers, int count) {
  constexpr double kLargestAngle = 1e6;
  bool can = true;
  for (int i = 0; i < count; ++i)
    can = can && std::abs(towers[i].Spacing) + std::abs(towers[i].Phase) < kLargestAngle;
  return can;
}

bool SweepPattern(const SweepTower* towers, int count, float* magnitudes) {
  static const Azimuths azimuths;
  Sums sums = {};
  double fields = 0;
  for (int i = 0; i < count; ++i) {
    AddTower(towers[i], std::sin(towers[i].Bearing), std::cos(towers[i].Bearing), azimuths, sums);
    fields += std::abs(towers[i].Field);
  }
  // Each tower's sine and cosine together are within 3.6e-12; the straight way's own last bits and the sum's
  // add far less.
  return StoreMagnitudes(sums, 4e-12 * fields, magnitudes);
}

}  // namespace kestrel::KESTREL_KERNELS
