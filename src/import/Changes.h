#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/StationFile.h"

// What an import changed: one set of station files against the one before.

namespace kestrel {

/// One antenna of a station, as its file holds it.
struct ListedAntenna {
  int channel = 0;
  StationRecord record;
};

enum class ChangeKind { New, Gone, Moved, Power, Pattern, CallSign };

/// "new", "gone", "moved", "power", "pattern", "call sign"
std::string_view ChangeName(ChangeKind kind);

struct Change {
  ChangeKind kind = ChangeKind::New;
  int channel = 0;
  std::string callSign;  ///< the new one
  std::string hours;
  std::string place;           ///< "SPRINGFIELD, IL, United States"
  std::string formerCallSign;  ///< of a changed call sign
  float before = 0;            ///< kW or towers; 0 towers: not known
  float after = 0;             ///< kW, towers, or the km moved
};

/// The antennas of a station file.
std::vector<ListedAntenna> ReadAntennas(int channel, const std::string& fileName, std::string_view bytes);

/// The differences on one channel. Antennas of the same hours belong together: first those of one call sign
/// within 1 km, of several those of like power and pattern, whatever their order; then those within 1 km of
/// another call sign, which have changed it; then those of one call sign anywhere, the nearest first. The
/// rest are gone or new. An antenna more than 1 km off has moved; another power or, the power aside, another
/// pattern are changes of their own. Sorted by kind, call sign and hours.
std::vector<Change> CompareChannel(const std::vector<ListedAntenna>& before,
                                   const std::vector<ListedAntenna>& after);

/// "12.3 km", "5 kW -> 10 kW", "2 towers -> 3 towers", "was KABC"; empty for new and gone.
std::string ChangeDetail(const Change& change);

/// For people: counts by kind, then a line for each change, at most `most` of a kind (0: all).
std::string ChangesText(const std::vector<Change>& changes, std::size_t most);

}  // namespace kestrel
