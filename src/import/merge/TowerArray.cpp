#include "import/merge/TowerArray.h"

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
  return {origin.east + row.Spacing * std::sin(row.Bearing * kRadian),
          origin.north + row.Spacing * std::cos(row.Bearing * kRadian)};
}

/// Bearings of 0 to below 360; what rounding leaves of a sum of nothing is nothing.
void SetPlace(Tower& tower, const Place& place) {
  constexpr double kNothing = 1e-9;
  const double spacing = std::hypot(place.east, place.north);
  if (spacing < kNothing) {
    tower.Spacing = tower.Bearing = 0;
    return;
  }
  const double bearing = std::atan2(place.east, place.north) / kRadian;
  tower.Spacing = static_cast<float>(spacing);
  tower.Bearing = static_cast<float>(bearing < 0 ? bearing + 360 : bearing);
}

}  // namespace

TowerArray ResolveTowers(std::vector<TowerRow> rows, int announced) {
  TowerArray array;
  std::sort(rows.begin(), rows.end(),
            [](const TowerRow& a, const TowerRow& b) { return a.Number < b.Number; });
  const auto count = static_cast<int>(rows.size());
  if (announced > 0 && count != announced) {
    array.Fault = std::to_string(count) + " of " + std::to_string(announced) + " towers";
    return array;
  }
  if (count == 1) {
    array.Towers.push_back({1, rows.front().Height, 0, 0, 0});
    return array;
  }
  Place place;
  for (const TowerRow& row : rows) {
    const bool chained = row.FromPrevious && &row != &rows.front();
    place = From(chained ? place : Place{}, row);
    if (!row.Field) {
      array.Fault = "tower " + std::to_string(row.Number) + " without a field ratio";
      return array;
    }
    if (*row.Field == 0) {
      array.Fieldless.push_back(row.Row);
      continue;
    }
    Tower tower{*row.Field, row.Height, row.Phase, row.Spacing, row.Bearing};
    if (chained) SetPlace(tower, place);
    array.Towers.push_back(tower);
  }
  if (array.Towers.empty()) array.Fault = "no tower with a field";
  array.TooMany = array.Towers.size() > static_cast<std::size_t>(MaxTowers);
  return array;
}

}  // namespace kestrel
