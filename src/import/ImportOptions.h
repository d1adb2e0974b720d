#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace kestrel {

/// Which stations the user wants.
struct ImportOptions {
  bool includeSilent = false;               ///< licensed stations that are silent for the time being
  bool includePermits = false;              ///< construction permits of the US too
  std::vector<std::string> countries = {};  ///< two-letter codes, in capitals; empty: all

  bool WantsCountry(std::string_view code) const {
    return countries.empty() || std::find(countries.begin(), countries.end(), code) != countries.end();
  }
};

}  // namespace kestrel
