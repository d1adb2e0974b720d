#include "map/MainMap.h"

#include <algorithm>
#include <future>

#include "core/Band.h"
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

/// Whether the files are about as long as those of real channels, the longest of which has 50 KB.
bool AreOrdinary(const std::vector<float>& channels, const DataFolder& folder) {
  constexpr qint64 kLong = 200'000;
  return std::all_of(channels.begin(), channels.end(),
                     [&](float channel) { return folder.Size(StationFileName(channel)) <= kLong; });
}

}  // namespace

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
  const auto plot = [&](Canvas& on) {
    return ForShownChannels(
        folder, state, [&](float channel) { return PlotChannel(on, folder, state, projection, channel); });
  };
  std::vector<std::string> notes;
  ChannelOutcome outcome;
  if (ground == MapGround::Empty && AreOrdinary(channels, folder)) {
    // The channels' antennas are reckoned while the outlines, which come first, are read. For a moment the
    // channels are in memory twice.
    const NoMeasure measure;
    DisplayList plotted(measure);
    auto plotting = std::async([&] { return plot(plotted); });
    notes = DrawOutlineFiles(canvas, folder, projection);
    outcome = plotting.get();
    plotted.Play(canvas);
  } else {
    if (ground == MapGround::Empty) notes = DrawOutlineFiles(canvas, folder, projection);
    outcome = plot(canvas);
  }
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
