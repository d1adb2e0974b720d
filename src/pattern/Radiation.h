#pragma once

#include <array>

#include "data/StationFile.h"

namespace kestrel {

/// The absolute field of a record's antenna over perfect ground, in mV/m at 1 km, in any direction of the
/// upper hemisphere (47 CFR 73.150 and 73.160). ComputePattern draws the shape; this gives its size.
///
///     f(theta) = (cos(G sin theta) - cos G) / ((1 - cos G) cos theta)       a tower of G electrical degrees
///     e(phi, theta) = | sum over towers of F f(theta) exp j(S cos theta cos(B - phi) + P) |
///     I = integral of e^2 cos theta over the hemisphere
///     K0 = sqrt(376.73 x 1000 P_kW / I)                                     without loss
///     K = K0 sqrt(P / (P + sum of 1 ohm x current^2))                       with loss
///     E_th = K e
///     E_std = 1.05 sqrt(E_th^2 + Q^2)
///     Q = greater of 0.025 g E_rss and 10 g sqrt(P_kW),   E_rss = K sqrt(sum of F^2)
///     g = f of the shortest tower, above 180 degrees sqrt(f^2 + 0.0625) / 1.030776
///
/// The loss is one ohm a tower, at its current loop, or at its base below 90 degrees.
///
/// A single tower sends E_th; several send the standard pattern E_std, by which stations are allocated and
/// whose nulls are never complete. A height that is no tower's (0, negative, a multiple of 360) counts as 90.
/// Towers are placed as ComputePattern places them.
///
/// A record without towers, or whose field ratios are all 0, gets one of 90 degrees in their place.
/// Without power there is no field. The record's numbers may be of any size; the field is always finite and
/// not negative.
class Radiation {
 public:
  explicit Radiation(const StationRecord& record);

  /// mV/m at 1 km. Azimuth in degrees clockwise from true north; elevation in degrees, 0 to 90.
  double FieldAt(double azimuth, double elevation) const;

  /// K, mV/m at 1 km.
  double Constant() const { return constant_; }

  /// Whether the record's own towers were used.
  bool PatternIsKnown() const { return patternIsKnown_; }

 private:
  struct Tower {
    double Field;        // ratio
    double Height;       // radians, above 0
    double North, East;  // from the reference point, radians of phase
    double Phase;        // radians
  };

  void AddTower(double field, double height, double north, double east, double phase);
  double PowerIntegral() const;
  double LossResistance() const;

  std::array<Tower, MaxTowers> towers_;
  std::size_t count_ = 0;
  bool patternIsKnown_ = false;
  double powerKW_ = 0;
  double constant_ = 0;
  double rootSumSquare_ = 0;  // of the ratios
  double shortest_ = 0;       // radians
};

}  // namespace kestrel
