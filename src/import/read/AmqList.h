#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "core/Hours.h"
#include "import/ImportOptions.h"
#include "import/ImportReport.h"
#include "import/Station.h"
#include "import/read/LineStream.h"
#include "import/read/RowDates.h"

// The AM Query list: one bar-delimited row for each station and period. docs/formats/amq-list.md describes
// it.

namespace kestrel {

/// A facility and its hours of operation.
using FacilityHours = std::pair<FacilityId, Hours>;

/// What the lists said, all of them together, in the order read.
struct AmqStations {
  Stations OnAir;
  std::vector<FacilityHours> OffAir;   ///< periods that a list has under a status that is not on the air
  std::vector<FacilityId> Facilities;  ///< that a list has, on the air or not; any number of times
  /// Those under a status that ends them, or without a call sign: what makes their identity, and the row. A
  /// permit or an application beside a licence ends nothing.
  Stations Ended;
  std::size_t RowCount = 0;             ///< that something is kept of
  std::size_t MostRows = MostKeptRows;  ///< of these
};

/// Whether a line looks like a row of such a list; any number of fields from 31 on.
bool IsAmqRow(std::string_view line);

/// Reads the list to its end and adds its stations on the air. Each row that is not taken is left out in
/// `report` with its reason; lines that do not begin with a bar are no rows, unless a whole one stands after
/// something else. Rows taken are counted as taken only when the stations are merged.
void ReadAmqList(LineStream& lines, int file, const ImportOptions& options, AmqStations& stations,
                 NewestDate& dates, ImportReport& report);

}  // namespace kestrel
