#pragma once

#include <bit>
#include <cfloat>
#include <cstdint>

#include "core/VectorLevels.h"

// Sine, cosine and arc tangent without a branch or a call, so that a loop over them becomes vector code. Only
// the files with the loops ("kernels") include this; they are compiled with optimisation for loops and
// without errno and traps, which alone keep the compiler from it. No step depends on the width of the
// vectors, and contraction into fused operations is off, so every vector level gives the same bytes.

namespace kestrel::KESTREL_KERNELS {

struct SineCosine {
  double Sine;
  double Cosine;
};

static_assert(FLT_EVAL_METHOD == 0, "needs arithmetic in plain doubles, as with -msse2 -mfpmath=sse");

/// Adding it to a number below 2^51 leaves the number rounded to whole in the last bits of the sum.
constexpr double RoundingShift = 0x1.8p52;

/// Sine and cosine of r + n pi / 2, n the whole number in the last bits of `shifted`; |r| at most pi / 4.
///
/// The polynomials are Chebyshev fits of sin r and of (cos r - 1 + r^2 / 2) / r^4, exact at 0; the results
/// are within 3.5e-12. A term more in each would make it 2e-14, which no user of them needs.
static inline SineCosine OfQuadrant(double r, double shifted) {
  const double z = r * r;
  const double s =
      r * (0.9999999999956731 +
           z * (-0.16666666631591165 +
                z * (0.00833332878245888 + z * (-0.000198392022122311 + z * 2.7173456841089953e-06))));
  const double c =
      1 +
      z * (-0.5 + z * (0.0416666666643212 + z * (-0.001388888767201679 +
                                                 z * (2.480060037715673e-05 - z * 2.730095920390147e-07))));
  const auto n = std::bit_cast<std::uint64_t>(shifted);
  const std::uint64_t quadrant = n << 62;
  const std::uint64_t minus = quadrant & std::uint64_t{1} << 63;
  // As a double it is 0 in even quadrants and 2 in odd ones, with a sign.
  const bool odd = std::bit_cast<double>(quadrant) != 0;
  const auto sine = std::bit_cast<std::uint64_t>(odd ? c : s);
  const auto cosine = std::bit_cast<std::uint64_t>(odd ? s : c);
  return {std::bit_cast<double>(sine ^ minus), std::bit_cast<double>(cosine ^ minus ^ n << 63)};
}

/// Of an angle in radians, |angle| below 1e6: pi / 2 is taken off in two parts, the first (33 bits) short
/// enough that its multiples are exact.
static inline SineCosine OfRadians(double angle) {
  const double shifted = angle * 0.63661977236758134 + RoundingShift;
  const double n = shifted - RoundingShift;
  return OfQuadrant(angle - n * 1.5707963267341256 - n * 6.077100506506192e-11, shifted);
}

/// Of an angle in degrees that is a difference of singles, |angle| below 1e6: taking off quarter turns is
/// exact, so multiples of 90 are too.
static inline SineCosine OfDegrees(double angle) {
  const double shifted = angle * (1.0 / 90) + RoundingShift;
  return OfQuadrant((angle - (shifted - RoundingShift) * 90) * 0.017453292519943295, shifted);
}

/// Arc tangent of y / x in the upper half plane, 0 to pi. REQUIRES: y >= 0 and not both 0.
///
/// Both reductions, to the first octant and by tan(pi / 8) to half of it, are made before the one division;
/// then a Chebyshev fit of (atan t / t - 1) / t^2 in t^2, good to 8.7e-16.
static inline double ArcTangent(double y, double x) {
  constexpr double kPi = 3.14159265358979324;
  const double along = x < 0 ? -x : x;
  const double low = y < along ? y : along;
  const double high = y < along ? along : y;
  const bool upper = low > 0.41421356237309503 * high;
  const double t = (upper ? low - high : low) / (upper ? low + high : high);
  const double z = t * t;
  const double p =
      -0.3333333333333325 +
      z * (0.19999999999898324 +
           z * (-0.1428571426608229 +
                z * (0.11111109635603796 +
                     z * (-0.09090852527088297 +
                          z * (0.07691054614825647 +
                               z * (-0.06649607953399717 +
                                    z * (0.057362969593526145 +
                                         z * (-0.04483218628995374 + z * 0.022748939747779046))))))));
  const double octant = t + t * z * p + (upper ? kPi / 4 : 0);
  const double quadrant = y < along ? octant : kPi / 2 - octant;
  return x < 0 ? kPi - quadrant : quadrant;
}

}  // namespace kestrel::KESTREL_KERNELS
