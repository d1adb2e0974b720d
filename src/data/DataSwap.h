#pragma once

#include <functional>

#include "core/Result.h"
#include "data/DataFolder.h"
#include "data/StationSet.h"

// Replacing the station files of a data folder all at once. docs/formats/import-journal.md describes what
// stands in the folder meanwhile.

namespace kestrel {

/// Called before each change on the disk; false abandons the work at this point, as a killed process would.
using SwapStep = std::function<bool()>;

/// Hands out the files of a set, one after the other.
using FileSource = std::function<void(const TakeFile&)>;

/// Puts the set of `source` in the place of the folder's station files, "StationsCall.DAT" and
/// "Stations.txt", and keeps those for UndoImport; what was kept before goes. No other file of the folder is
/// touched. The new files are written beside the old ones first; interrupted before all are whole, the old
/// set stays, later the new one is completed by RecoverImport. A failure brings the old set back; there is
/// none once all files are exchanged. Errors: Refused, with the file that made the trouble, or the folder
/// when it cannot be written to or another import is at work in it (a lock file that names no process and
/// that none holds is passed over once it is ten seconds old); NotAFile when something that is no lock file,
/// a link or a long file among them, stands in the lock file's place; nothing is waited for.
Result<Done> SwapInStations(const DataFolder& folder, const FileSource& source, const SwapStep& step = {});

/// Brings the set back that the last import replaced, and keeps the present one in its turn: done twice, all
/// is as it was. Errors: NotFound when there is none; else as SwapInStations.
Result<Done> UndoImport(const DataFolder& folder, const SwapStep& step = {});

/// Whether UndoImport has something to bring back.
bool CanUndoImport(const DataFolder& folder);

/// Finishes or takes back what an interrupted import left. To be called before the folder's files are read;
/// costs next to nothing when there is nothing to do, and does nothing while an import is at work. Errors:
/// Refused and NotAFile as above; Malformed for a damaged journal; the next call tries again.
Result<Done> RecoverImport(const DataFolder& folder, const SwapStep& step = {});

}  // namespace kestrel
