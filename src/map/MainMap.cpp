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
  std::vector<std::string> notes;
  if (ground == MapGround::Empty) notes = DrawOutlineFiles(canvas, folder, projection);

  const ChannelOutcome outcome = PlotChannel(canvas, folder, state, projection, state.CurrentFrequency);
  notes.insert(notes.end(), outcome.Notes.begin(), outcome.Notes.end());
  if (state.AdjacentsShown == 1) {
    for (const float step : {-ChannelStep, ChannelStep}) {
      const float channel = state.CurrentFrequency + step;
      const ChannelOutcome adjacent = PlotChannel(canvas, folder, state, projection, channel);
      // A neighbour without a file is nothing to speak of, one whose file cannot be read is.
      if (!adjacent.FileMissing || folder.Has(StationFileName(channel)))
        notes.insert(notes.end(), adjacent.Notes.begin(), adjacent.Notes.end());
    }
  }
  DrawLegend(canvas, state);
  DrawHoursBanner(canvas, state.HoursFilter);
  if (outcome.FileMissing) DrawMissingFileNotice(canvas, state.CurrentFrequency);
  if (state.CompassShown == 1) DrawCompass(canvas, state.AspectRatio);
  return notes;
}

}  // namespace kestrel
