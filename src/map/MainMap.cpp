#include "map/MainMap.h"

#include "core/Band.h"
#include "data/StationFile.h"
#include "map/ChannelPlot.h"
#include "map/Compass.h"
#include "map/Legend.h"
#include "map/MapProjection.h"
#include "map/Outlines.h"

namespace kestrel {

std::vector<float> ShownChannels(const SessionState& state) {
  const float current = state.CurrentFrequency;
  std::vector<float> channels = {current};
  if (state.AdjacentsShown == 1) channels = {current, current - ChannelStep, current + ChannelStep};
  std::erase_if(channels, [](float channel) { return !IsInBand(channel); });
  return channels;
}

ChannelOutcome ForShownChannels(const DataFolder& folder, const SessionState& state,
                                const std::function<ChannelOutcome(float channel)>& use) {
  ChannelOutcome outcome;
  for (const float channel : ShownChannels(state)) {
    const ChannelOutcome used = use(channel);
    const bool current = channel == state.CurrentFrequency;
    if (current) outcome.FileMissing = used.FileMissing;
    // A neighbour without a file is nothing to speak of, one whose file cannot be read is.
    if (current || !used.FileMissing || folder.Has(StationFileName(channel)))
      outcome.Notes.insert(outcome.Notes.end(), used.Notes.begin(), used.Notes.end());
  }
  return outcome;
}

std::vector<std::string> DrawMainMap(Canvas& canvas, const DataFolder& folder, const SessionState& state,
                                     MapGround ground) {
  const MapProjection projection(state.Home(), state.ScaleFactor);
  const std::vector<float> channels = ShownChannels(state);
  std::vector<std::string> notes;
  if (ground == MapGround::Empty) notes = DrawOutlineFiles(canvas, folder, projection);
  const ChannelOutcome outcome = ForShownChannels(
      folder, state, [&](float channel) { return PlotChannel(canvas, folder, state, projection, channel); });
  notes.insert(notes.end(), outcome.Notes.begin(), outcome.Notes.end());
  if (!channels.empty()) {
    DrawLegend(canvas, state);
    DrawHoursBanner(canvas, state.HoursFilter);
  }
  if (outcome.FileMissing) DrawMissingFileNotice(canvas, state.CurrentFrequency);
  if (state.CompassShown == 1) DrawCompass(canvas, state.AspectRatio);
  return notes;
}

}  // namespace kestrel
