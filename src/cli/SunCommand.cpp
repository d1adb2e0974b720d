#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Json.h"
#include "cli/Options.h"
#include "cli/RankingOptions.h"
#include "cli/Table.h"
#include "core/Numbers.h"
#include "core/Sun.h"

namespace kestrel::cli {
namespace {

/// What there is of light.
std::string_view StateOf(const SunDay& day, double elevation) {
  if (day.Course == SolarClock::Course::PolarDay) return "polar day";
  if (day.Course == SolarClock::Course::PolarNight) return "polar night";
  if (elevation >= SunriseElevation) return "day";
  return elevation >= TwilightElevation ? "twilight" : "night";
}

std::string Json(const SunDay& day, const Sun& sun, double elevation) {
  JsonWriter json;
  const auto event = [&](std::string_view key, const std::optional<Moment>& moment) {
    json.Key(key);
    if (moment)
      json.Text(MomentText(*moment));
    else
      json.Null();
  };
  json.BeginObject().Key("elevation").Decimals(elevation).Key("declination").Decimals(sun.Declination());
  event("noon", day.Noon);
  event("sunrise", day.Sunrise);
  event("sunset", day.Sunset);
  event("dawn", day.Dawn);
  event("dusk", day.Dusk);
  return json.Key("state").Text(StateOf(day, elevation)).EndObject().Finish();
}

std::string ForPeople(Moment moment, const SunDay& day, const Sun& sun, double elevation) {
  const auto toMinute = [](const std::optional<Moment>& event) {
    return event ? MomentText(std::chrono::round<std::chrono::minutes>(*event)) : "-";
  };
  Table table({{""}, {""}});
  table.AddRow({"Moment", MomentText(moment)});
  table.AddRow({"State", std::string(StateOf(day, elevation))});
  table.AddRow({"Elevation", FixedText(elevation, 1) + " deg"});
  table.AddRow({"Declination", FixedText(sun.Declination(), 1) + " deg"});
  table.AddRow({"Dawn", toMinute(day.Dawn)});
  table.AddRow({"Sunrise", toMinute(day.Sunrise)});
  table.AddRow({"Noon", toMinute(day.Noon)});
  table.AddRow({"Sunset", toMinute(day.Sunset)});
  table.AddRow({"Dusk", toMinute(day.Dusk)});
  return table.Text();
}

void TellSun(const Request& request) {
  const Position home = SessionFor(request).Home();
  const Moment moment = MomentFor(request, home);
  const SunSite site(home.Latitude, home.Longitude);
  const SunDay day = SunDayAt(site, moment);
  const Sun sun(moment);
  const double elevation = sun.Elevation(site);
  Print(request.Json ? Json(day, sun, elevation) : ForPeople(moment, day, sun, elevation));
}

}  // namespace

void AddSunCommand(CLI::App& app, Request& request) {
  CLI::App& command = *app.add_subcommand("sun", "Tell the sun's day at home and where it stands");
  AddHome(command, request);
  AddTime(command, request);
  AddJson(command, request);
  command.callback([&request] { TellSun(request); });
}

}  // namespace kestrel::cli
