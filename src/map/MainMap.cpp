#include "map/MainMap.h"

#include <algorithm>
#include <string_view>

#include "core/Band.h"
#include "map/ChannelPlot.h"
#include "map/Compass.h"
#include "map/Legend.h"
#include "map/MapProjection.h"
#include "map/Outlines.h"
#include "map/Rings.h"

namespace kestrel {

std::vector<float> ShownChannels(const SessionState& state) {
  const float current = state.CurrentFrequency;
  std::vector<float> channels = {current};
  if (state.AdjacentsShown == 1) channels = {current, current - ChannelStep, current + ChannelStep};
  std::erase_if(channels, [](float channel) { return !IsInBand(channel); });
  return channels;
}

ChannelOutcome ForShownChannels(const SessionState& state,
                                const std::function<ChannelOutcome(float channel)>& use) {
  ChannelOutcome outcome;
  for (const float channel : ShownChannels(state)) {
    const ChannelOutcome used = use(channel);
    if (channel == state.CurrentFrequency) outcome.FileMissing = used.FileMissing;
    outcome.Notes.insert(outcome.Notes.end(), used.Notes.begin(), used.Notes.end());
  }
  return outcome;
}

std::string NotesLine(const std::vector<std::string>& notes) {
  struct File {
    std::string_view Name, First;
    int More = 0;
  };
  std::vector<File> files;
  for (const std::string_view note : notes) {
    const std::string_view name = note.substr(0, note.find(':'));
    const auto known =
        std::find_if(files.begin(), files.end(), [&](const File& f) { return f.Name == name; });
    if (known == files.end())
      files.push_back({name, note});
    else
      ++known->More;
  }
  std::string line;
  for (const File& file : files) {
    line.append(line.empty() ? "Left out: " : "; ").append(file.First);
    if (file.More > 0) line += " (and " + std::to_string(file.More) + " more)";
  }
  return line;
}

std::vector<std::string> DrawMapGround(Canvas& canvas, const DataFolder& folder, const SessionState& state) {
  std::vector<std::string> notes =
      DrawOutlineFiles(canvas, folder, MapProjection(state.Home(), state.ScaleFactor));
  DrawRings(canvas, state);
  return notes;
}

std::vector<std::string> DrawMainMap(Canvas& canvas, const DataFolder& folder, const SessionState& state,
                                     MapGround ground) {
  const MapProjection projection(state.Home(), state.ScaleFactor);
  const std::vector<float> channels = ShownChannels(state);
  std::vector<std::string> notes;
  if (ground == MapGround::Empty) notes = DrawMapGround(canvas, folder, state);
  const ChannelOutcome outcome = ForShownChannels(
      state, [&](float channel) { return PlotChannel(canvas, folder, state, projection, channel); });
  notes.insert(notes.end(), outcome.Notes.begin(), outcome.Notes.end());
  if (!channels.empty()) {
    DrawLegend(canvas, state);
    DrawHoursBanner(canvas, state.HoursFilter);
  }
  if (outcome.FileMissing) DrawMissingFileNotice(canvas, state.CurrentFrequency);
  if (state.CompassShown == 1) DrawCompass(canvas, state.AspectRatio);
  DrawScaleBar(canvas, state);
  return notes;
}

}  // namespace kestrel
