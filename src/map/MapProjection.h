#pragma once

#include <optional>
#include <span>

#include "core/Position.h"
#include "map/Sheet.h"
#include "map/VertexPlaces.h"

namespace kestrel {

/// What a scale of 1 draws as a twip.
inline constexpr double KilometresPerScale = 75;

/// The azimuthal equidistant projection of the main map: a place D km from home on course B lies
///
///     x = 6000 + r sin B,   y = 4500 - r cos B,   r = D * scale / 75     (twips)
///
/// with D 111.44 km per degree of arc. Unlike GreatCircle, nothing is rounded between the steps, so places
/// next to home and points due north or south are exact at every scale; only the result is stored as singles.
/// (J. P. Snyder, Map Projections: A Working Manual, USGS 1987, section 25, in vector form.)
class MapProjection {
 public:
  /// Scale in twips per 75 km.
  MapProjection(const Position& home, float scaleFactor);

  /// The place of a station, limited to the coordinate range. Nothing when the position is no finite number.
  std::optional<Point> Station(const Position& position) const;

  /// The place that lies at a point of the sheet, longitude -180 to 180 WEST positive; nothing beyond the
  /// antipodes.
  std::optional<Position> PlaceAt(Point at) const;

  /// Vertices given as the outline files do, longitude EAST, not limited. A vertex whose position is no
  /// finite number comes out as NaN. REQUIRES: the spans are of one length.
  void Vertices(std::span<const float> latitudes, std::span<const float> longitudes,
                std::span<Point> points) const;

 private:
  Point StraightPlace(double latitude, double longitudeEast) const;

  ProjectionCenter center_;
  bool onEarth_ = false;  // whether home is a place that PlaceVertices knows
};

}  // namespace kestrel
