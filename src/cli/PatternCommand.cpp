#include <memory>

#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Json.h"
#include "cli/Options.h"
#include "cli/Table.h"
#include "core/Hours.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "pattern/Pattern.h"

namespace kestrel::cli {
namespace {

struct Sought {
  std::optional<std::string> CallSign;
  std::optional<std::string> HoursCode;
};

struct Found {
  StationRecord Record;                 // as the file holds it
  std::optional<PatternValues> Values;  // nothing where the pattern cannot be computed
};

std::string SearchKey(std::string_view callSign) {
  return UpperCase(Trim(callSign));
}

std::vector<Found> Search(StationFileReader& reader, const Sought& sought) {
  std::vector<Found> matches;
  const std::string key = SearchKey(sought.CallSign.value_or(""));
  while (StationRecord* record = reader.Next()) {
    if (SearchKey(record->CallSign) != key) continue;
    if (sought.HoursCode && record->HoursCode != *sought.HoursCode) continue;
    Found found{*record, std::nullopt};
    PatternValues values{};
    if (ComputePattern(*record, values)) found.Values = values;
    matches.push_back(std::move(found));
  }
  return matches;
}

void WriteTowers(JsonWriter& json, const StationRecord& record) {
  json.BeginArray();
  for (std::size_t i = 1; i <= static_cast<std::size_t>(record.TowerCount); ++i) {
    json.BeginObject();
    json.Key("switch").Text(record.Switch[i]).Key("field").Number(record.Fields[i]);
    json.Key("height").Number(record.Heights[i]).Key("phase").Number(record.Phases[i]);
    json.Key("spacing").Number(record.Spacings[i]).Key("bearing").Number(record.Bearings[i]);
    json.EndObject();
  }
  json.EndArray();
}

std::string Json(const std::vector<Found>& matches) {
  JsonWriter json;
  json.BeginArray();
  for (const auto& [record, values] : matches) {
    json.BeginObject();
    json.Key("call").Text(record.CallSign).Key("hours").Text(record.HoursCode);
    json.Key("power_kw").Number(record.PowerKW).Key("towers");
    WriteTowers(json, record);
    json.Key("values");
    if (values) {
      json.BeginArray();
      for (const float value : *values) json.Number(value);
      json.EndArray();
    } else {
      json.Null();
    }
    json.EndObject();
  }
  return json.EndArray().Finish();
}

std::string TowersForPeople(const StationRecord& record) {
  Table table({{"Tower", Align::Right},
               {"Switch", Align::Right},
               {"Field", Align::Right},
               {"Height", Align::Right},
               {"Phase", Align::Right},
               {"Spacing", Align::Right},
               {"Bearing", Align::Right}});
  for (std::size_t i = 1; i <= static_cast<std::size_t>(record.TowerCount); ++i)
    table.AddRow({std::to_string(i), record.Switch[i], NumberWithZero(record.Fields[i]),
                  NumberWithZero(record.Heights[i]), NumberWithZero(record.Phases[i]),
                  NumberWithZero(record.Spacings[i]), NumberWithZero(record.Bearings[i])});
  return table.Text();
}

/// Ten azimuths a line; the last one, 360, repeats the first and is left out.
std::string ValuesForPeople(const PatternValues& values) {
  std::vector<Table::Column> columns = {{"Azimuth", Align::Right}};
  for (int unit = 0; unit < 10; ++unit) columns.push_back({'+' + std::to_string(unit), Align::Right});
  Table table(columns);
  for (std::size_t azimuth = 0; azimuth < 360; azimuth += 10) {
    std::vector<std::string> cells = {std::to_string(azimuth)};
    for (std::size_t unit = 0; unit < 10; ++unit) {
      const double thousandths = RoundToWhole(values[azimuth + unit] * 1000.0);
      cells.push_back(NumberWithZero(static_cast<float>(thousandths / 1000)));
    }
    table.AddRow(cells);
  }
  return table.Text();
}

std::string ForPeople(const std::vector<Found>& matches) {
  std::string text;
  for (const auto& [record, values] : matches) {
    if (!text.empty()) text += '\n';
    text += record.CallSign + "  " + record.HoursCode + "  " + NumberWithZero(record.PowerKW) + " kW\n";
    if (record.TowerCount > 0) text += '\n' + TowersForPeople(record);
    text += '\n' + (values ? ValuesForPeople(*values) : "The pattern cannot be computed.\n");
  }
  return text;
}

void ShowPattern(const Request& request, const Sought& sought) {
  const auto qt = StartQt(QtUse::Files);
  const SessionState state = SessionFor(request);
  const QByteArray bytes = ReadChannel(DataFor(request), state.CurrentFrequency);
  StationFileReader reader(StationFileName(state.CurrentFrequency).toStdString(),
                           {bytes.constData(), static_cast<std::size_t>(bytes.size())});
  const std::vector<Found> matches = Search(reader, sought);
  Say(reader.Notes());
  Print(request.Json ? Json(matches) : ForPeople(matches));
}

}  // namespace

void AddPatternCommand(CLI::App& app, Request& request) {
  CLI::App& command = *app.add_subcommand("pattern", "Compute the antenna patterns of a station");
  const auto sought = std::make_shared<Sought>();
  AddFrequency(command, request);
  AddText(command, "--call", sought->CallSign, "the station's call sign")->type_name("CALL")->required();
  const auto storeHours = [sought](const std::string& given) {
    if (HoursOf(given) == Hours::Other) throw WrongUse("--hours " + given + ": give D, N, C or U");
    sought->HoursCode = given;
  };
  command
      .add_option_function<std::string>("--hours", storeHours,
                                        "one hours code only: day, night, critical hours or unlimited")
      ->type_name("D|N|C|U");
  AddJson(command, request);
  command.callback([&request, sought] { ShowPattern(request, *sought); });
}

}  // namespace kestrel::cli
