#pragma once

#include <map>
#include <string>
#include <string_view>

#include "data/StationSet.h"
#include "import/ImportReport.h"
#include "import/Station.h"

namespace kestrel {

/// The files that an import replaces, by name.
using StationSet = std::map<std::string, std::string>;

/// Makes the files for these stations, which are sorted by channel, and hands out one after the other, so
/// that no more than one need be held; the stations go as they are written. `stationsLine` is the line of
/// "Stations.txt". Remarks in `report` on names that did not fit.
void MakeStationFiles(Stations stations, std::string_view stationsLine, ImportReport& report,
                      const TakeFile& take);

/// The files all together, and the stations counted in `report`.
StationSet MakeStationSet(Stations stations, std::string_view stationsLine, ImportReport& report);

/// The lines of "StationsCall.DAT": one for each call sign, channel and site within the limits that a home
/// may have, sorted by call sign, CR LF behind each. Of more than MaxCalls those are kept that serve best for
/// choosing home: the strongest station of each town, then the others by power, a station's further sites
/// last. `report` tells of those that are not listed.
std::string CallIndexText(const Stations& stations, ImportReport& report);

/// Counts stations and records in `report`.
void CountStations(const Stations& stations, ImportReport& report);

}  // namespace kestrel
