#pragma once

#include "import/ImportOptions.h"
#include "import/ImportReport.h"
#include "import/Station.h"
#include "import/read/AmqList.h"
#include "import/read/AntennaTables.h"

namespace kestrel {

/// Puts the stations together from what the files said.
///
/// The AM Query lists say which stations there are, the antenna tables what their antennas look like;
/// stations that only the tables know come from the tables. Of several list rows for a station and hours the
/// one of the last list counts, in one list the one of the best status. A station that a later list ends is
/// gone. A later list, and any list before the tables, also replaces hours that overlap its own (unlimited
/// with day or night). Joined by facility and hours, else by call sign, channel and hours.
///
/// Of a channel at most MaxRecords, the strongest, are kept, those of the lists before those of the tables
/// alone.
///
/// Every row that is still open in `report` is taken or left out. The result is sorted by channel, call sign,
/// place and hours, whatever the order of the rows.
Stations MergeStations(AmqStations amq, const AntennaTables& tables, const ImportOptions& options,
                       ImportReport& report);

}  // namespace kestrel
