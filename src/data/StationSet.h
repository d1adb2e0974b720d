#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kestrel {

/// The names of the files that an import replaces, and no others: 118 station files, "StationsCall.DAT" and
/// "Stations.txt".
const std::vector<std::string>& StationSetNames();

/// Takes one of the files, whole.
using TakeFile = std::function<void(const std::string& name, std::string bytes)>;

}  // namespace kestrel
