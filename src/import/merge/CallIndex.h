#pragma once

#include <string>

#include "import/ImportReport.h"
#include "import/Station.h"

namespace kestrel {

/// The lines of "StationsCall.DAT": one for each call sign, channel and site within the limits that a home
/// may have, sorted by call sign, CR LF behind each. Of more than MaxCalls those are kept that serve best for
/// choosing home: the strongest station of each town, then the others by power, a station's further sites
/// last. `report` tells of those that are not listed.
std::string CallIndexText(const Stations& stations, ImportReport& report);

/// Counts stations and records in `report`.
void CountStations(const Stations& stations, ImportReport& report);

}  // namespace kestrel
