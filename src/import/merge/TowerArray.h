#pragma once

#include <string>
#include <vector>

#include "import/Station.h"
#include "import/read/AntennaTables.h"

namespace kestrel {

/// The towers of one antenna, ready for a station file; or why its pattern is not known.
struct TowerArray {
  std::vector<Tower> Towers;        ///< in the order of their numbers, those without a field left out
  std::vector<RowPlace> Fieldless;  ///< the rows of those
  bool TooMany = false;             ///< more than MaxTowers with a field
  std::string Fault;  ///< "2 of 3 towers", "tower 2 without a field ratio"; empty when all is well
};

/// Puts the array together from its rows, in any order. A tower with the switch is placed from the one before
/// it, whose own place has been found by then, so a chain adds up; the first tower is always placed from the
/// reference point. A lone tower radiates whatever its ratio says. `announced` is the number of towers that
/// the antenna record gives, 0 when it gives none. REQUIRES: at least one row.
TowerArray ResolveTowers(std::vector<TowerRow> rows, int announced);

}  // namespace kestrel
