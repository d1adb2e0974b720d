#pragma once

#include <optional>
#include <span>

#include "map/Sheet.h"
#include "map/VertexPlaces.h"

namespace kestrel {

/// The azimuthal equidistant projection of the main map: a place D km from home on course B lies
///
///     x = 6000 + r sin B,   y = 4500 - r cos B,   r = D * scale / 75     (twips)
///
/// with D 111.44 km per degree of arc. Unlike GreatCircle, nothing is rounded between the steps, so places
/// next to home and points due north or south are exact at every scale; only the result is stored as singles.
/// (J. P. Snyder, Map Projections: A Working Manual, USGS 1987, section 25, in vector form.)
class MapProjection {
 public:
  /// Home in degrees, north and WEST positive; scale in twips per 75 km.
  MapProjection(float homeLatitude, float homeLongitude, float scaleFactor);

  /// A place given as the station files do, longitude WEST positive, limited to the coordinate range. Nothing
  /// when the position is no finite number.
  std::optional<Point> Station(float latitude, float longitude) const;

  /// Vertices given as the outline files do, longitude EAST, not limited. A vertex whose position is no
  /// finite number comes out as NaN. REQUIRES: the spans are of one length.
  void Vertices(std::span<const float> latitudes, std::span<const float> longitudes,
                std::span<Point> points) const;

 private:
  Point StraightPlace(double latitude, double longitudeEast) const;

  ProjectionCenter center_;
  bool onEarth_ = false;  // whether home is a place that PlaceVertices knows
};

/// An outline file's longitude in -180 to 180: above 180, 360 is taken off, at most twice; then below -180,
/// 360 is added. Exactly 180 stays.
float BringIntoRange(float longitudeEast);

}  // namespace kestrel
