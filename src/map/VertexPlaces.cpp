#include "map/VertexPlaces.h"

#include <cmath>
#include <limits>

#include "map/Sheet.h"

namespace kestrel::KESTREL_KERNELS {

KESTREL_CLONES void PlaceVertices(const ProjectionCenter& home, const float* latitudes,
                                  const float* longitudes, float* places, std::size_t count) {
  const double sinHome = home.SinLatitude;
  const double cosHome = home.CosLatitude;
  const double longitudeHome = home.LongitudeEast;
  const double twips = home.TwipsPerRadian;
  for (std::size_t i = 0; i < count; ++i) {
    const bool fits =
        std::abs(latitudes[i]) <= LargestVertexAngle && std::abs(longitudes[i]) <= LargestVertexAngle;
    const SineCosine phi = OfDegrees(fits ? latitudes[i] : std::numeric_limits<double>::quiet_NaN());
    const SineCosine lambda = OfDegrees(LongitudeInRange(longitudes[i]) - longitudeHome);
    const double east = phi.Cosine * lambda.Sine;
    const double north = phi.Sine * cosHome - phi.Cosine * sinHome * lambda.Cosine;
    const double up = phi.Sine * sinHome + phi.Cosine * cosHome * lambda.Cosine;
    const double level = std::sqrt(east * east + north * north);
    const double radius = ArcTangent(level, up) * twips;
    // Straight below or above there is no course; the place itself is home's.
    const double share = level > 0 ? radius / level : 0;
    places[2 * i] = static_cast<float>(double{HomeOnSheet.x} + (level > 0 ? east * share : radius));
    places[2 * i + 1] = static_cast<float>(double{HomeOnSheet.y} - north * share);
  }
}

SineCosine SineAndCosine(double degrees) {
  return OfDegrees(degrees);
}

}  // namespace kestrel::KESTREL_KERNELS
