#pragma once

#include <array>
#include <string>
#include <vector>

#include "data/StationFile.h"

namespace kestrel {

/// The tower table's columns: field ratio, height, phase, spacing, bearing and switch.
inline constexpr std::size_t TowerColumns = 6;
inline constexpr std::array<const char*, TowerColumns> TowerHeads = {"Fields",   "Heights",  "Phases",
                                                                     "Spacings", "Bearings", "Switch"};

/// One tower's values as texts: the five numbers in their display form, the switch as the file has it.
using TowerRow = std::array<std::string, TowerColumns>;

/// A row for each tower of a record as the file holds it, those without a field ratio too.
std::vector<TowerRow> TowerTable(const StationRecord& record);

/// Heads and rows as text, columns parted by tabs, lines ended by a line feed; for pasting elsewhere.
std::string TowerTableText(const std::vector<TowerRow>& rows);

}  // namespace kestrel
