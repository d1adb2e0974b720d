#include "map/MomentMap.h"

#include "map/Compass.h"
#include "map/Legend.h"
#include "map/NightShade.h"
#include "map/Rings.h"

namespace kestrel {

std::vector<std::string> MomentMap::Read(const DataFolder& folder, const SessionState& state,
                                         MapGround ground) {
  std::vector<std::string> notes;
  if (ground == MapGround::Empty) {
    layers_.clear();
    outlines_.Clear();
    notes = DrawMapGround(outlines_, folder, state);
  }
  Layer& layer = layers_.emplace_back();
  layer.State = state;
  const ChannelOutcome outcome = ForShownChannels(state, [&](float frequency) {
    Channel& channel = layer.Channels.emplace_back();
    channel.Frequency = frequency;
    return ForEachRecord(folder, frequency, [&channel](StationRecord& record) {
      channel.Stations.Add(record);
      Plotted& plotted = channel.Records.emplace_back();
      plotted.IsKnown = HasPattern(record, plotted.Pattern);
      plotted.Record = record;
    });
  });
  layer.FileMissing = outcome.FileMissing;
  notes.insert(notes.end(), outcome.Notes.begin(), outcome.Notes.end());
  return notes;
}

void MomentMap::Draw(Canvas& canvas, Moment moment, HoursRule rule) {
  if (layers_.empty()) return;
  const SessionState& state = layers_.back().State;
  DrawNightShade(canvas, state.Home(), state.ScaleFactor, moment);
  outlines_.Play(canvas);
  for (Layer& layer : layers_)
    for (Channel& channel : layer.Channels) DrawChannel(canvas, layer.State, channel, moment, rule);
  if (!layers_.back().Channels.empty()) DrawLegend(canvas, state, moment);
  if (layers_.back().FileMissing) DrawMissingFileNotice(canvas, state.CurrentFrequency);
  if (state.CompassShown == 1) DrawCompass(canvas, state.AspectRatio);
  DrawScaleBar(canvas, state);
}

void MomentMap::DrawChannel(Canvas& canvas, const SessionState& state, Channel& channel, Moment moment,
                            HoursRule rule) {
  const MapProjection projection(state.Home(), state.ScaleFactor);
  ChannelPlotter plotter(canvas, state, projection, channel.Frequency);
  const OnAirRecords now = channel.Stations.At(moment, Sun(moment), rule);
  for (const SilentStation& silent : now.Silent) plotter.DrawSilent(channel.Records[silent.Record].Record);
  for (std::size_t i = 0; i < channel.Records.size(); ++i) {
    const Plotted& plotted = channel.Records[i];
    if (now.InForce[i]) plotter.Draw(plotted.Record, plotted.IsKnown ? &plotted.Pattern : nullptr);
  }
}

}  // namespace kestrel
