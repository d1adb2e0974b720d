#include <memory>
#include <optional>

#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Options.h"
#include "cli/RankingOptions.h"
#include "core/Band.h"
#include "data/DataFolder.h"
#include "draw/Fonts.h"
#include "draw/Picture.h"
#include "map/MainMap.h"
#include "map/MomentMap.h"
#include "map/NightShade.h"

namespace kestrel::cli {
namespace {

struct View {
  bool Adjacents = false;
  bool Compass = false;
  bool Shade = false;
  std::optional<kestrel::HoursFilter> HoursFilter;
};

void DrawMap(const Request& request, const View& view) {
  const auto qt = StartQt(QtUse::Pictures);
  SessionState state = SessionFor(request);
  state.SelectedFrequency = state.CurrentFrequency;
  state.AdjacentsShown = view.Adjacents ? 1 : 0;
  state.CompassShown = view.Compass ? 1 : 0;
  state.HoursFilter = view.HoursFilter.value_or(HoursFilter::All);
  if (request.Time && view.HoursFilter && !view.Shade)
    throw WrongUse("--time chooses the hours at each station; --hours has no part in it without --shade");

  const DataFolder folder = DataFor(request);
  const QString stations = StationFileName(state.CurrentFrequency);
  if (IsInBand(state.CurrentFrequency) && !folder.Has(stations))
    Say(stations.toStdString() + ": there is no such file");
  const PlatformTextMeasure measure;
  DisplayList drawing(measure);
  if (view.Shade) DrawNightShade(drawing, state.Home(), state.ScaleFactor, MomentFor(request, state.Home()));
  if (request.Time && !view.Shade) {
    MomentMap map(measure);
    Say(map.Read(folder, state));
    map.Draw(drawing, MomentFor(request, state.Home()), HoursRule::Auto);
  } else {
    Say(DrawMainMap(drawing, folder, state));
  }
  const Result<Done> written =
      WritePicture(drawing, request.Size, QString::fromStdString(request.Output), request.Look);
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
  AddTime(command, request, "records in force at a moment, night shaded: ");
  command.add_flag("--shade", view->Shade,
                   "shade the night of --time, or of now, under the stations of --hours");
  command.add_flag("--compass", view->Compass, "the bearing rose over the map");
  AddPicture(command, request);
  command.callback([&request, view] { DrawMap(request, *view); });
}

}  // namespace kestrel::cli
