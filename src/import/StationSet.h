#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "import/ImportReport.h"
#include "import/Station.h"

namespace kestrel {

/// The files that an import replaces, and no others, by name: 118 station files, "StationsCall.DAT" and
/// "Stations.txt".
using StationSet = std::map<std::string, std::string>;

/// The names of those files.
const std::vector<std::string>& StationSetNames();

/// The files for these stations, sorted by channel. `stationsLine` is the line of "Stations.txt". Counts
/// stations and records in `report` and remarks on names that did not fit.
StationSet MakeStationSet(const Stations& stations, std::string_view stationsLine, ImportReport& report);

/// The lines of "StationsCall.DAT": one for each call sign, channel and site within the limits that a home
/// may have, sorted by call sign, CR LF behind each. Of more than MaxCalls those are kept that serve best for
/// choosing home: the strongest station of each town, then the others by power, a station's further sites
/// last. `report` tells of those that are not listed.
std::string CallIndexText(const Stations& stations, ImportReport& report);

/// The sites of the stations: antennas of one call sign, channel and position count once.
int SiteCount(const Stations& stations);

}  // namespace kestrel
