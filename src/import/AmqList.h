#pragma once

#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "import/ImportOptions.h"
#include "import/ImportReport.h"
#include "import/LineStream.h"
#include "import/Station.h"

// The AM Query list: one bar-delimited row for each station and period. docs/formats/amq-list.md describes
// it.

namespace kestrel {

/// A facility and its hours of operation.
using FacilityHours = std::pair<std::string, char>;

/// What the lists said, all of them together.
struct AmqStations {
  std::vector<Station> onAir;        ///< in the order read
  std::set<FacilityHours> offAir;    ///< periods that a list has under a status that is not on the air
  std::set<std::string> facilities;  ///< that a list has, on the air or not
  /// The last file that has a station under a status that ends it, or without a call sign, by Identity. A
  /// permit or an application beside a licence ends nothing.
  std::unordered_map<std::string, int> endedIn;
};

/// Whether a line looks like a row of such a list; any number of fields from 31 on.
bool IsAmqRow(std::string_view line);

/// Reads the list to its end and adds its stations on the air. Each row that is not taken is left out in
/// `report` with its reason; lines that do not begin with a bar are no rows, unless a whole one stands behind
/// something else. Rows taken are counted as taken only when the stations are merged.
void ReadAmqList(LineStream& lines, int file, const ImportOptions& options, AmqStations& stations,
                 ImportReport& report);

}  // namespace kestrel
