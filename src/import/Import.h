#pragma once

#include <QStringList>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/Result.h"
#include "data/DataFolder.h"
#include "import/ImportOptions.h"
#include "import/ImportReport.h"
#include "import/merge/Changes.h"

// From the files that the listener downloaded to the station files of the map.

namespace kestrel {

struct ImportRequest {
  QStringList Files;  ///< paths, plain or zipped, in the order of precedence: the last one counts most
  ImportOptions Options;
  bool DryRun = false;  ///< write nothing
  /// Asked before anything is written when fewer than half of the folder's stations would be left; where
  /// nobody is asked, or the answer is false, all stays as it was.
  std::function<bool(int before, int after)> LeaveFewer = {};
};

/// Called now and then with the share done, 0 to 1, and what is being done; false cancels, except at 1, when
/// the new files are in their place.
using ImportProgress = std::function<bool(double done, std::string_view what)>;

struct ImportOutcome {
  ImportReport Report;
  ChangeList Changes;        ///< against what the folder held before, by channel
  int StationsBefore = 0;    ///< in the folder; 0 when the import did not come so far
  std::string StationsLine;  ///< the new line of "Stations.txt"
  std::optional<Error>
      Failure;  ///< why nothing was written; the report says what was read, cancelled nothing
};

/// Reads the files, puts the stations together, compares them with those in `folder` and puts them in their
/// place. Nothing is written when a file cannot be read to its end, when no station is found, or too few
/// and nobody wants that, when it is cancelled, and on a dry run. A file that can be read and is none of
/// those known is refused in the report and does not stop the others.
ImportOutcome RunImport(const ImportRequest& request, const DataFolder& folder,
                        const ImportProgress& progress = {});

/// The report for people, with the changes below it; at most `mostChanges` of a kind are listed (0: all).
std::string OutcomeText(const ImportOutcome& outcome, std::size_t mostChanges);

}  // namespace kestrel
