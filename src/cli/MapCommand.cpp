#include <memory>

#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Options.h"
#include "draw/Fonts.h"
#include "draw/Picture.h"
#include "map/MainMap.h"

namespace kestrel::cli {
namespace {

struct View {
  bool Adjacents = false;
  bool Compass = false;
  kestrel::HoursFilter HoursFilter = kestrel::HoursFilter::All;
};

void DrawMap(const Request& request, const View& view) {
  const auto platform = StartPlatform(Platform::Pictures);
  SessionState state = SessionFor(request);
  state.SelectedFrequency = state.CurrentFrequency;
  state.AdjacentsShown = view.Adjacents ? 1 : 0;
  state.CompassShown = view.Compass ? 1 : 0;
  state.HoursFilter = view.HoursFilter;

  const PlatformTextMeasure measure;
  DisplayList drawing(measure);
  Say(DrawMainMap(drawing, DataFor(request), state));
  const Result<Done> written =
      WritePicture(drawing, request.Size, QString::fromStdString(request.Output), request.Labels);
  if (!written) Fail(request.Output, written.error(), "the picture was not written");
}

}  // namespace

void AddMapCommand(CLI::App& app, Request& request) {
  CLI::App& command = *app.add_subcommand("map", "Draw the map of a channel as PNG, SVG or PDF");
  const auto view = std::make_shared<View>();
  AddFrequency(command, request);
  command.add_flag("--adjacents", view->Adjacents, "the channels 10 kHz below and above too");
  AddHome(command, request);
  AddText(command, "--home-name", request.HomeName, "home's name in the legend");
  AddScale(command, request);
  AddNumber(command, "--pattern-size", PatternSizeLimits, request.PatternSize,
            "the relative size of the patterns");
  AddAspect(command, request);
  const auto storeHours = [view](const std::string& given) {
    if (given != "all" && given != "day" && given != "night")
      throw WrongUse("--hours " + given + ": give all, day or night");
    view->HoursFilter = given == "day"     ? HoursFilter::Day
                        : given == "night" ? HoursFilter::Night
                                           : HoursFilter::All;
  };
  command.add_option_function<std::string>("--hours", storeHours, "the hours shown [all]")
      ->type_name("all|day|night");
  command.add_flag("--compass", view->Compass, "the bearing rose over the map");
  AddPicture(command, request);
  command.callback([&request, view] { DrawMap(request, *view); });
}

}  // namespace kestrel::cli
