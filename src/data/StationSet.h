#pragma once

#include <functional>
#include <string>
#include <vector>

#include "data/DataFolder.h"

namespace kestrel {

/// The names of the files that an import replaces, and no others: 118 station files, "StationsCall.DAT" and
/// "Stations.txt".
const std::vector<std::string>& StationSetNames();

/// The stations in the folder's station files: sites of a call sign on a channel. A file that cannot be read
/// has none.
int StationsIn(const DataFolder& folder);

/// Takes one of the files, whole.
using TakeFile = std::function<void(const std::string& name, std::string bytes)>;

}  // namespace kestrel
