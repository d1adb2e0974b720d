#include "map/MainMap.h"

#include "data/StationFile.h"
#include "map/ChannelPlot.h"
#include "map/Compass.h"
#include "map/Legend.h"
#include "map/MapProjection.h"
#include "map/Outlines.h"

namespace kestrel {

std::vector<std::string> DrawMainMap(Canvas& canvas, const DataFolder& folder, const SessionState& state,
                                     MapGround ground) {
  const MapProjection projection(state.HomeLatitude, state.HomeLongitude, state.ScaleFactor);
  if (ground == MapGround::Empty) DrawOutlineFiles(canvas, folder, projection);

  ChannelOutcome outcome = PlotChannel(canvas, folder, state, projection, state.CurrentFrequency);
  std::vector<std::string> notes = std::move(outcome.Notes);
  if (state.AdjacentsShown == 1) {
    for (const float step : {-ChannelStep, ChannelStep}) {
      const ChannelOutcome adjacent =
          PlotChannel(canvas, folder, state, projection, state.CurrentFrequency + step);
      if (!adjacent.FileMissing) notes.insert(notes.end(), adjacent.Notes.begin(), adjacent.Notes.end());
    }
  }
  DrawLegend(canvas, state);
  DrawHoursBanner(canvas, state.HoursFilter);
  if (outcome.FileMissing) DrawMissingFileNotice(canvas, state.CurrentFrequency);
  if (state.CompassShown == 1) DrawCompass(canvas, state.AspectRatio);
  return notes;
}

}  // namespace kestrel
