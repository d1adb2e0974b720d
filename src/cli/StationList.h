#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/Csv.h"
#include "core/Geodesy.h"
#include "core/SessionState.h"
#include "data/StationFile.h"
#include "map/MapProjection.h"

// The stations of a channel as they are listed: each with its course from home and its place on the map.

namespace kestrel::cli {

struct ListedStation {
  StationRecord Record;
  GreatCircleResult Course;
  std::optional<Point> Place;  ///< on the map's sheet
};

/// The records of a channel's file, in its order; what its reader leaves out goes to standard error.
std::vector<ListedStation> ListedStations(const QByteArray& bytes, float frequency,
                                          const SessionState& state);

/// The members of one station, for JsonWriter and CsvWriter.
template <typename Writer>
void WriteStation(Writer& writer, const ListedStation& station) {
  const auto& [record, course, place] = station;
  writer.Key("call").Text(record.CallSign).Key("city").Text(record.City);
  writer.Key("state").Text(record.State).Key("country").Text(record.Country);
  writer.Key("hours").Text(record.HoursCode);
  writer.Key("latitude").Number(record.Latitude).Key("longitude").Number(record.Longitude);
  writer.Key("power_kw").Number(record.PowerKW).Key("towers").Whole(record.TowerCount);
  writer.Key("distance_km").Number(course.Distance).Key("bearing_deg").Number(course.Bearing);
  writer.Key("x");
  place ? writer.Number(place->x) : writer.Null();
  writer.Key("y");
  place ? writer.Number(place->y) : writer.Null();
}

/// CSV of stations; the first column is the channel.
CsvWriter StationCsv();
void AddStations(CsvWriter& csv, float frequency, const std::vector<ListedStation>& stations);

}  // namespace kestrel::cli
