#include "map/MainMap.h"

#include <future>

#include "data/StationFile.h"
#include "map/ChannelPlot.h"
#include "map/Compass.h"
#include "map/DisplayList.h"
#include "map/Legend.h"
#include "map/MapProjection.h"
#include "map/Outlines.h"

namespace kestrel {
namespace {

/// Channels ask for the size of no text.
class NoMeasure final : public TextMeasure {
  float TextWidth(const Font&, std::string_view) const override { return 0; }
  float TextHeight(const Font&) const override { return 0; }
};

/// Draws the current channel and its neighbours when they are shown; returns what the current one met, with
/// the notes of all.
ChannelOutcome PlotChannels(Canvas& canvas, const DataFolder& folder, const SessionState& state,
                            const MapProjection& projection) {
  ChannelOutcome outcome = PlotChannel(canvas, folder, state, projection, state.CurrentFrequency);
  if (state.AdjacentsShown != 1) return outcome;
  for (const float step : {-ChannelStep, ChannelStep}) {
    const float channel = state.CurrentFrequency + step;
    const ChannelOutcome adjacent = PlotChannel(canvas, folder, state, projection, channel);
    // A neighbour without a file is nothing to speak of, one whose file cannot be read is.
    if (!adjacent.FileMissing || folder.Has(StationFileName(channel)))
      outcome.Notes.insert(outcome.Notes.end(), adjacent.Notes.begin(), adjacent.Notes.end());
  }
  return outcome;
}

}  // namespace

std::vector<std::string> DrawMainMap(Canvas& canvas, const DataFolder& folder, const SessionState& state,
                                     MapGround ground) {
  const MapProjection projection(state.HomeLatitude, state.HomeLongitude, state.ScaleFactor);
  std::vector<std::string> notes;
  ChannelOutcome outcome;
  if (ground == MapGround::AsDrawn) {
    outcome = PlotChannels(canvas, folder, state, projection);
  } else {
    // The channels' antennas are reckoned while the outlines, which come first, are read.
    const NoMeasure measure;
    DisplayList channels(measure);
    auto plotting = std::async([&] { return PlotChannels(channels, folder, state, projection); });
    notes = DrawOutlineFiles(canvas, folder, projection);
    outcome = plotting.get();
    channels.Play(canvas);
  }
  notes.insert(notes.end(), outcome.Notes.begin(), outcome.Notes.end());
  DrawLegend(canvas, state);
  DrawHoursBanner(canvas, state.HoursFilter);
  if (outcome.FileMissing) DrawMissingFileNotice(canvas, state.CurrentFrequency);
  if (state.CompassShown == 1) DrawCompass(canvas, state.AspectRatio);
  return notes;
}

}  // namespace kestrel
