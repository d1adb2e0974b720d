#include <cmath>

#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Json.h"
#include "cli/Options.h"
#include "cli/StationList.h"
#include "cli/Table.h"
#include "core/Numbers.h"

namespace kestrel::cli {
namespace {

std::string Json(const std::vector<ListedStation>& stations) {
  JsonWriter json;
  json.BeginArray();
  for (const ListedStation& station : stations) {
    json.BeginObject();
    WriteStation(json, station);
    json.EndObject();
  }
  return json.EndArray().Finish();
}

std::string Csv(float frequency, const std::vector<ListedStation>& stations) {
  CsvWriter csv = StationCsv();
  AddStations(csv, frequency, stations);
  return csv.Finish();
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
  const auto qt = StartQt(QtUse::Files);
  const SessionState state = SessionFor(request);
  const float frequency = state.CurrentFrequency;
  const QByteArray bytes = ReadChannel(DataFor(request), frequency);
  const std::vector<ListedStation> stations = ListedStations(bytes, frequency, state);
  Print(request.Json ? Json(stations) : request.Csv ? Csv(frequency, stations) : ForPeople(stations));
}

}  // namespace

void AddStationsCommand(CLI::App& app, Request& request) {
  CLI::App& command = *app.add_subcommand("stations", "List a channel's stations, in the file's order");
  AddFrequency(command, request);
  AddHome(command, request);
  AddScale(command, request);
  AddJsonOrCsv(command, request);
  command.callback([&request] { ListStations(request); });
}

}  // namespace kestrel::cli
