#pragma once

#include <string_view>

#include "data/StationSet.h"
#include "import/ImportReport.h"
#include "import/Station.h"

namespace kestrel {

/// Makes the files for these stations, which are sorted by channel, and hands out one after the other, so
/// that no more than one need be held; the stations go as they are written. `stationsLine` is the line of
/// "Stations.txt". Remarks in `report` on names that did not fit.
void MakeStationFiles(Stations stations, std::string_view stationsLine, ImportReport& report,
                      const TakeFile& take);

}  // namespace kestrel
