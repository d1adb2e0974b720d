#pragma once

#include <span>

#include "map/MapProjection.h"
#include "pattern/Pattern.h"

// The formulas of the pattern and of the projection written down as they stand, one sine and one cosine at a
// time. They are what the vector kernels are measured and checked against.

namespace kestrel::straight {

/// ComputePattern, each azimuth by itself.
bool ComputePattern(StationRecord& record, PatternValues& values);

/// Outline vertices by way of GreatCircle, its steps stored as singles.
void PlaceByGreatCircle(float homeLatitude, float homeLongitude, float scaleFactor,
                        std::span<const float> latitudes, std::span<const float> longitudes,
                        std::span<Point> points);

/// One outline vertex by unit vectors in double precision, with the library's sine, cosine and arc tangent.
Point Place(float homeLatitude, float homeLongitude, float scaleFactor, float latitude, float longitudeEast);

}  // namespace kestrel::straight
