#pragma once

#include <cstddef>

#include "core/VectorMath.h"

// The projection of many vertices at once. Plain arrays and plain loops, for vector code.

namespace kestrel {

/// What the projection has of home.
struct ProjectionCenter {
  double SinLatitude = 0;
  double CosLatitude = 1;
  double LongitudeEast = 0;   ///< degrees
  double TwipsPerRadian = 0;  ///< of arc
};

/// The largest angle in degrees that PlaceVertices takes.
inline constexpr float LargestVertexAngle = 1e6F;

namespace KESTREL_KERNELS {

/// Places vertices around home, at central angle c and course B from it:
///
///     x = 6000 + R c sin B,   y = 4500 - R c cos B                                (MapProjection)
///
/// The vertex as a unit vector along east, north and up at home holds both: sin c (sin B, cos B) are its
/// first two parts and cos c the third. So sine and cosine of the latitude and of the longitude's difference,
/// an arc tangent and a square root do, all branch-free, and home's own terms are given.
///
/// Degrees, longitudes EAST, brought into range; `places` takes x and y in turn, in twips, NaN for a vertex
/// beyond LargestVertexAngle or not a number, which the caller places the straight way.
void PlaceVertices(const ProjectionCenter& home, const float* latitudes, const float* longitudes,
                   float* places, std::size_t count);

/// Sine and cosine of an angle in degrees as PlaceVertices takes them.
SineCosine SineAndCosine(double degrees);

/// A longitude in -180 to 180: above 180, 360 is taken off, at most twice; then below -180, 360 is added.
/// Exactly 180 stays.
static inline float LongitudeInRange(float longitudeEast) {
  const float once = longitudeEast > 180 ? longitudeEast - 360 : longitudeEast;
  const float twice = once > 180 ? once - 360 : once;
  return twice < -180 ? twice + 360 : twice;
}

}  // namespace KESTREL_KERNELS
using KESTREL_KERNELS::LongitudeInRange;
using KESTREL_KERNELS::PlaceVertices;
using KESTREL_KERNELS::SineAndCosine;

}  // namespace kestrel
