#include <QDate>
#include <QLocale>
#include <memory>

#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Json.h"
#include "cli/Options.h"
#include "cli/Table.h"
#include "core/SessionFile.h"
#include "data/FileIo.h"

namespace kestrel::cli {
namespace {

/// Calls `text`, `number` or `whole` with each value's name and the value, in the order of the state.
template <typename Text, typename Number, typename Whole>
void ForEachValue(const SessionState& state, Text text, Number number, Whole whole) {
  number("CurrentFrequency", state.CurrentFrequency);
  text("HomeName", state.HomeName);
  number("HomeLatitude", state.HomeLatitude);
  number("HomeLongitude", state.HomeLongitude);
  number("PatternSize", state.PatternSize);
  number("ScaleFactor", state.ScaleFactor);
  whole("DistanceUnit", state.DistanceUnit);
  whole("DayColor", state.DayColor);
  whole("NightColor", state.NightColor);
  whole("UnlimitedColor", state.UnlimitedColor);
  whole("CriticalColor", state.CriticalColor);
  whole("AdjacentColor", state.AdjacentColor);
  text("MapLanguage", state.MapLanguage);
  number("AspectRatio", state.AspectRatio);
  text("ProgramVersion", state.ProgramVersion);
  text("SessionFileName", state.SessionFileName);
  number("PreviousFrequency", state.PreviousFrequency);
  number("SelectedFrequency", state.SelectedFrequency);
  whole("AdjacentsShown", state.AdjacentsShown);
  whole("HoursFilter", static_cast<int>(state.HoursFilter));
  whole("CompassShown", state.CompassShown);
  whole("PlotAllStations", state.PlotAllStations);
}

std::string Json(const SessionState& state, const DataFolder& folder, const std::string& stations) {
  JsonWriter json;
  json.BeginObject();
  ForEachValue(
      state, [&](const char* name, const std::string& value) { json.Key(name).Text(value); },
      [&](const char* name, float value) { json.Key(name).Number(value); },
      [&](const char* name, int value) { json.Key(name).Whole(value); });
  json.Key("StopRequested").Truth(state.StopRequested);
  json.Key("FurtherAdjacentColors").BeginArray();
  for (const ColorValue color : state.FurtherAdjacentColors) json.Whole(color);
  json.EndArray();
  json.Key("DataFolder").Text(folder.Path().toStdString());
  json.Key("Stations").Text(stations);
  return json.EndObject().Finish();
}

std::string ForPeople(const SessionState& state, const DataFolder& folder, const std::string& stations) {
  Table table({{""}, {""}});
  ForEachValue(
      state,
      [&](const char* name, const std::string& value) {
        table.AddRow({name, value});
      },
      [&](const char* name, float value) {
        table.AddRow({name, NumberWithZero(value)});
      },
      [&](const char* name, int value) {
        table.AddRow({name, std::to_string(value)});
      });
  table.AddRow({"StopRequested", state.StopRequested ? "yes" : "no"});
  std::string colors;
  for (const ColorValue color : state.FurtherAdjacentColors) colors += std::to_string(color) + ' ';
  table.AddRow({"FurtherAdjacentColors", colors});
  table.AddRow({"DataFolder", folder.Path().toStdString()});
  table.AddRow({"Stations", stations});
  return table.Text();
}

/// A copy is written: the writer limits the values, and the answer shows them as they were read.
void Save(SessionState state, const std::string& path) {
  const QString date = QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat);
  const std::string text = WriteSession(state, date.toStdString());
  const Result<Done> written = WriteFile(QString::fromStdString(path), text);
  if (!written) Fail(path, written.error(), "the last-session file was not written");
}

void ShowSession(Request request, const std::optional<std::string>& file,
                 const std::optional<std::string>& writeTo) {
  const auto qt = StartQt(QtUse::Files);
  if (file) request.SessionFile = file;
  const SessionState state = SessionFor(request, MissingSession::IsFirstStart);
  const DataFolder folder = DataFor(request);
  if (writeTo) Save(state, *writeTo);
  const std::string stations = StationsLineOf(folder);
  Print(request.Json ? Json(state, folder, stations) : ForPeople(state, folder, stations));
}

}  // namespace

void AddSessionCommand(CLI::App& app, Request& request) {
  CLI::App& command = *app.add_subcommand("session", "Show the values of a last-session file");
  const auto file = std::make_shared<std::optional<std::string>>();
  const auto writeTo = std::make_shared<std::optional<std::string>>();
  AddFileName(command, "file", *file, "the last-session file [--session, else a first start]");
  AddFileName(command, "--write", *writeTo, "save the session there, as at the program's exit");
  AddJson(command, request);
  command.callback([&request, file, writeTo] { ShowSession(request, *file, *writeTo); });
}

}  // namespace kestrel::cli
