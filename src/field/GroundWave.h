#pragma once

#include <vector>

namespace kestrel {

/// Grounds in mS/m that there may be: above 0, at most HighestConductivity. From 1000 on it is salt water.
inline constexpr double HighestConductivity = 10000;
inline constexpr double AverageConductivity = 5;

/// The ground wave of a vertical antenna over a smooth, homogeneous earth, as in 47 CFR 73.183 and 73.184:
///
///     field = E_1km |F| / d
///     eta = 15 - j sigma / (w eps0)                 relative permittivity; 80 for salt water
///     Delta = sqrt(eta - 1) / eta                   surface impedance
///     a = 4/3 x 6370 km,  k = w / c,  nu = (k a / 2)^(1/3),  q = -j nu Delta,  x = nu d / a
///
/// Near by, x up to 0.4, F is Sommerfeld's of the flat earth with two terms of curvature; beyond, the sum
/// over residues
///
///     F = exp(-j pi/4) sqrt(pi x) sum exp(-j x t) / (t - q^2),   t the roots of w'(t) = q w(t)
///
/// (K. A. Norton 1941; J. R. Wait 1962; time factor exp(+jwt)). Within 0.03 dB of the exact solution for 530
/// to 1700 kHz; what the ground is like over a whole path is never known as well: a factor of 2 is worth 1 to
/// 9 dB.
///
/// One object serves a home on a channel: it is a table over distance, 1 to 5,000 km, made once.
class GroundWave {
 public:
  /// REQUIRES: 100 <= frequencyKHz <= 3000 and 0 < conductivity <= HighestConductivity, in mS/m.
  GroundWave(double frequencyKHz, double conductivity);

  /// dB above 1 uV/m for 100 mV/m at 1 km. What is nearer than 1 km counts as 1 km; beyond 5,000 km the level
  /// lies too low to matter and is drawn out along the table's end.
  double LevelAt(double kilometres) const;

 private:
  std::vector<double> levels_;  // at equal steps of the distance's logarithm
};

}  // namespace kestrel
