#include <cmath>

#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Json.h"
#include "cli/Options.h"
#include "cli/Table.h"
#include "core/Geodesy.h"
#include "core/Numbers.h"
#include "data/StationFile.h"
#include "map/MapProjection.h"

namespace kestrel::cli {
namespace {

struct ListedStation {
  StationRecord Record;
  GreatCircleResult Course;    // clockwise from home
  std::optional<Point> Place;  // on the map's sheet
};

std::string Json(const std::vector<ListedStation>& stations) {
  JsonWriter json;
  json.BeginArray();
  for (const auto& [record, course, place] : stations) {
    json.BeginObject();
    json.Key("call").Text(record.CallSign).Key("city").Text(record.City);
    json.Key("state").Text(record.State).Key("country").Text(record.Country);
    json.Key("hours").Text(record.HoursCode);
    json.Key("latitude").Number(record.Latitude).Key("longitude").Number(record.Longitude);
    json.Key("power_kw").Number(record.PowerKW).Key("towers").Whole(record.TowerCount);
    json.Key("distance_km").Number(course.Distance).Key("bearing_deg").Number(course.Bearing);
    json.Key("x").Number(place ? place->x : NAN).Key("y").Number(place ? place->y : NAN);
    json.EndObject();
  }
  return json.EndArray().Finish();
}

std::string Tenths(double value) {
  return std::isfinite(value) ? NumberWithZero(TruncateToTenth(value)) : "-";
}

std::string ForPeople(const std::vector<ListedStation>& stations) {
  Table table({{"Call"},
               {"City"},
               {"State"},
               {"Country"},
               {"Hours"},
               {"Latitude", Align::Right},
               {"Longitude", Align::Right},
               {"kW", Align::Right},
               {"Towers", Align::Right},
               {"km", Align::Right},
               {"Bearing", Align::Right},
               {"x", Align::Right},
               {"y", Align::Right}});
  for (const auto& [record, course, place] : stations)
    table.AddRow({record.CallSign, record.City, record.State, record.Country, record.HoursCode,
                  NumberWithZero(record.Latitude), NumberWithZero(record.Longitude),
                  NumberWithZero(record.PowerKW), std::to_string(record.TowerCount), Tenths(course.Distance),
                  Tenths(course.Bearing), place ? Tenths(place->x) : "-", place ? Tenths(place->y) : "-"});
  return table.Text();
}

void ListStations(const Request& request) {
  const auto platform = StartPlatform(Platform::Files);
  const SessionState state = SessionFor(request);
  const QByteArray bytes = ReadChannel(DataFor(request), state.CurrentFrequency);
  const MapProjection projection(state.Home(), state.ScaleFactor);
  StationFileReader reader(StationFileName(state.CurrentFrequency).toStdString(),
                           {bytes.constData(), static_cast<std::size_t>(bytes.size())});
  std::vector<ListedStation> stations;
  while (const StationRecord* record = reader.Next())
    stations.push_back({*record, GreatCircle(state.Home(), record->At()), projection.Station(record->At())});
  Say(reader.Notes());
  Print(request.Json ? Json(stations) : ForPeople(stations));
}

}  // namespace

void AddStationsCommand(CLI::App& app, Request& request) {
  CLI::App& command = *app.add_subcommand("stations", "List a channel's stations, in the file's order");
  AddFrequency(command, request);
  AddHome(command, request);
  AddScale(command, request);
  AddJson(command, request);
  command.callback([&request] { ListStations(request); });
}

}  // namespace kestrel::cli
