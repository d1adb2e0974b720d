#include <memory>

#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Json.h"
#include "cli/Options.h"
#include "cli/Table.h"

namespace kestrel::cli {
namespace {

struct Leg {
  std::optional<Position> From;
  std::optional<Position> To;
  bool Miles = false;
};

std::string Json(const DistanceReadout& readout) {
  JsonWriter json;
  json.BeginObject();
  json.Key("bearing_deg").Number(readout.Bearing).Key("distance").Number(readout.Distance);
  json.Key("unit").Text(readout.Unit == 1 ? "mi" : "km");
  json.Key("bearing_text").Text(readout.BearingText).Key("distance_text").Text(readout.DistanceText);
  return json.EndObject().Finish();
}

void ShowDistance(const Request& request, const Leg& leg) {
  const SessionState state = SessionFor(request);
  const Position home = state.Home();
  const DistanceReadout readout =
      MeasureDistance(leg.From.value_or(home), leg.To.value_or(home), leg.Miles ? 1 : state.DistanceUnit);
  if (request.Json) return Print(Json(readout));
  Table table({{""}, {""}});
  table.AddRow({"Target bearing:", readout.BearingText});
  table.AddRow({"Target distance:", readout.DistanceText});
  Print(table.Text());
}

}  // namespace

void AddDistanceCommand(CLI::App& app, Request& request) {
  CLI::App& command = *app.add_subcommand("distance", "Tell distance and bearing from home to a place");
  const auto leg = std::make_shared<Leg>();
  AddPosition(command, "--from", leg->From, "the place to measure from [home]");
  AddPosition(command, "--to", leg->To, "the target")->required();
  command.add_flag("--miles", leg->Miles, "statute miles in place of the session's unit");
  AddJson(command, request);
  command.callback([&request, leg] { ShowDistance(request, *leg); });
}

}  // namespace kestrel::cli
