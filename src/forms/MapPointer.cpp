#include "forms/MapPointer.h"

#include <cmath>

#include "map/StationTip.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

constexpr float kLineReach = 3;  // pixels

}  // namespace

std::vector<StationMark> RecordsAt(const MapSurface& map, Point place) {
  const std::vector<StationMark>& marks = map.Drawing().Stations();
  const float pixel = map.TwipsPerPixel();
  std::vector<StationMark> found;
  for (const StationMark& mark : marks)
    if (std::hypot(mark.At.x - place.x, mark.At.y - place.y) <= TipReach * pixel) found.push_back(mark);
  if (!found.empty()) return found;
  for (const std::uint32_t label : map.LabelsAt(place))
    if (const auto station = map.Drawing().Labels()[label].Station) found.push_back(marks[*station]);
  if (!found.empty()) return found;
  for (const std::uint32_t station : map.Drawing().StationsWithLineAt(place, kLineReach * pixel))
    found.push_back(marks[station]);
  return found;
}

const StationMark* RecordToOpenAt(const MapSurface& map, Point place) {
  const std::vector<StationMark>& marks = map.Drawing().Stations();
  if (const StationMark* nearest = NearestStation(marks, place, TipReach * map.TwipsPerPixel()))
    return nearest;
  for (const std::uint32_t label : map.LabelsAt(place))
    if (const auto station = map.Drawing().Labels()[label].Station) return &marks[*station];
  return nullptr;
}

}  // namespace kestrel
