#include "cli/RankingOutput.h"

#include <cmath>
#include <utility>

#include "cli/Json.h"
#include "core/Numbers.h"

namespace kestrel::cli {

CsvWriter RankedCsv() {
  return CsvWriter({"frequency",     "call",        "city",           "state",          "country",
                    "hours",         "power_kw",    "towers",         "line",           "distance_km",
                    "bearing_deg",   "azimuth_deg", "pattern_known",  "e_ground_mv",    "theta_deg",
                    "e_theta_mv",    "phi_deg",     "hourly_loss_db", "groundwave_dbu", "skywave50_dbu",
                    "skywave10_dbu", "total50_dbu", "high_dbu",       "word",           "reason"});
}

void AddRanked(CsvWriter& csv, float frequency, const RankedStation& station) {
  csv.BeginObject().Key("frequency").Number(frequency);
  WriteRanked(csv, station);
  csv.EndObject();
}

void AddSilent(CsvWriter& csv, float frequency, const RecordAtHome& record, std::string_view reason) {
  csv.BeginObject().Key("frequency").Number(frequency);
  csv.Key("call").Text(record.CallSign).Key("city").Text(record.City);
  csv.Key("state").Text(record.State).Key("country").Text(record.Country);
  for (const char* key :
       {"hours", "power_kw", "towers", "line", "distance_km", "bearing_deg", "azimuth_deg", "pattern_known",
        "e_ground_mv", "theta_deg", "e_theta_mv", "phi_deg", "hourly_loss_db", "groundwave_dbu",
        "skywave50_dbu", "skywave10_dbu", "total50_dbu", "high_dbu"})
    csv.Key(key).Null();
  csv.Key("word").Text("silent").Key("reason").Text(reason);
  csv.EndObject();
}

Table RankedTable(std::vector<Table::Column> before) {
  for (const Table::Column& column : {Table::Column{"Call"},
                                      {"City"},
                                      {"State"},
                                      {"Hours"},
                                      {"kW", Align::Right},
                                      {"km", Align::Right},
                                      {"Bearing", Align::Right},
                                      {"dBu", Align::Right},
                                      {"Chance"},
                                      {"Reason"}})
    before.push_back(column);
  return Table(std::move(before));
}

void AddRanked(Table& table, std::vector<std::string> before, const RankedStation& station) {
  const auto& [record, row] = station;
  const auto whole = [](double value) { return std::to_string(std::lround(value)); };
  for (std::string& cell : std::vector<std::string>{
           record.CallSign, record.City, record.State, std::string(1, HoursLetter(record.OnAir)),
           NumberWithZero(record.PowerKW), whole(record.Distance),
           std::to_string(std::lround(record.Bearing) % 360), whole(row.Levels.Total),
           std::string(WordOf(row.Chance)), record.Field.ReasonFor(row.Levels)})
    before.push_back(std::move(cell));
  table.AddRow(std::move(before));
}

}  // namespace kestrel::cli
