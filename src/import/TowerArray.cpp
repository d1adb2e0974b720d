#include "import/TowerArray.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "data/StationFile.h"

namespace kestrel {
namespace {

constexpr double kRadian = std::numbers::pi / 180;

/// A place in the plane, electrical degrees from the reference point.
struct Place {
  double east = 0;
  double north = 0;
};

Place From(const Place& origin, const TowerRow& row) {
  return {origin.east + row.spacing * std::sin(row.bearing * kRadian),
          origin.north + row.spacing * std::cos(row.bearing * kRadian)};
}

/// Bearings of 0 to below 360; what rounding leaves of a sum of nothing is nothing.
void SetPlace(Tower& tower, const Place& place) {
  constexpr double kNothing = 1e-9;
  const double spacing = std::hypot(place.east, place.north);
  if (spacing < kNothing) {
    tower.spacing = tower.bearing = 0;
    return;
  }
  const double bearing = std::atan2(place.east, place.north) / kRadian;
  tower.spacing = static_cast<float>(spacing);
  tower.bearing = static_cast<float>(bearing < 0 ? bearing + 360 : bearing);
}

}  // namespace

TowerArray ResolveTowers(std::vector<TowerRow> rows, int announced) {
  TowerArray array;
  std::sort(rows.begin(), rows.end(),
            [](const TowerRow& a, const TowerRow& b) { return a.number < b.number; });
  const auto count = static_cast<int>(rows.size());
  if (announced > 0 && count != announced) {
    array.fault = std::to_string(count) + " of " + std::to_string(announced) + " towers";
    return array;
  }
  if (count == 1) {
    array.towers.push_back({1, rows.front().height, 0, 0, 0});
    return array;
  }
  Place place;
  for (const TowerRow& row : rows) {
    const bool chained = row.fromPrevious && &row != &rows.front();
    place = From(chained ? place : Place{}, row);
    if (!row.field) {
      array.fault = "tower " + std::to_string(row.number) + " without a field ratio";
      return array;
    }
    if (*row.field == 0) {
      array.fieldless.push_back(row.row);
      continue;
    }
    Tower tower{*row.field, row.height, row.phase, row.spacing, row.bearing};
    if (chained) SetPlace(tower, place);
    array.towers.push_back(tower);
  }
  if (array.towers.empty()) array.fault = "no tower with a field";
  array.tooMany = array.towers.size() > static_cast<std::size_t>(MaxTowers);
  return array;
}

}  // namespace kestrel
