#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace kestrel {

/// Which stations the user wants.
struct ImportOptions {
  bool IncludeSilent = false;               ///< licensed stations that are silent for the time being
  bool IncludePermits = false;              ///< construction permits of the US too
  std::vector<std::string> Countries = {};  ///< two-letter codes, in capitals; empty: all

  bool WantsCountry(std::string_view code) const {
    return Countries.empty() || std::find(Countries.begin(), Countries.end(), code) != Countries.end();
  }
};

}  // namespace kestrel
