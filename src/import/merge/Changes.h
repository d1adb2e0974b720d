#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "import/PackedTexts.h"

// What an import changed: one set of station files against the one before.

namespace kestrel {

/// A tower by what the pattern sees of it: its share of the strongest field, its phase and place from tower
/// 1's.
struct SeenTower {
  float Field, Phase;  ///< ratio, degrees
  float East, North;   ///< electrical degrees
};

/// One antenna of a station, as far as listeners are told of its changes.
struct ListedAntenna {
  std::string_view CallSign() const { return Texts[0]; }
  std::string_view Hours() const { return Texts[1]; }
  std::string_view Place() const { return Texts[2]; }

  PackedTexts<3> Texts;
  std::int16_t Channel = 0;
  std::int16_t TowerCount = 0;
  float Latitude = 0, Longitude = 0, PowerKW = 0;
  std::vector<SeenTower> Array;  ///< of more than one tower
};

enum class ChangeKind { New, Gone, Moved, Power, Pattern, CallSign };

/// "new", "gone", "moved", "power", "pattern", "call sign"
std::string_view ChangeName(ChangeKind kind);

struct Change {
  std::string_view CallSign() const { return Texts[0]; }  ///< the new one
  std::string_view Hours() const { return Texts[1]; }
  std::string_view Place() const { return Texts[2]; }           ///< "SPRINGFIELD, IL, United States"
  std::string_view FormerCallSign() const { return Texts[3]; }  ///< of a changed call sign

  ChangeKind Kind = ChangeKind::New;
  std::int16_t Channel = 0;
  float Before = 0;  ///< kW or towers; 0 towers: not known
  float After = 0;   ///< kW, towers, or the km moved
  PackedTexts<4> Texts;
};

using ChangeList = std::deque<Change>;

using ListedAntennas = std::deque<ListedAntenna>;

/// The antennas of a station file.
ListedAntennas ReadAntennas(int channel, const std::string& fileName, std::string_view bytes);

/// The differences on one channel. Antennas of the same hours belong together: first those of one call sign
/// within 1 km, of several those of like power and pattern, whatever their order; then those within 1 km of
/// another call sign, which have changed it; then those of one call sign anywhere, the nearest first. The
/// rest are gone or new. An antenna more than 1 km off has moved; another power or, the power aside, another
/// pattern are changes of their own. Where there are so many of one call sign or site as no band has, some
/// stay without their counterpart: at most 400,000 pairs are looked at in each of the three turns, and 10,000
/// of one call sign or hours are chosen from. Sorted by kind, call sign and hours.
ChangeList CompareChannel(const ListedAntennas& before, const ListedAntennas& after);

/// "12.3 km", "5 kW -> 10 kW", "2 towers -> 3 towers", "was KABC"; empty for new and gone.
std::string ChangeDetail(const Change& change);

/// For people: counts by kind, then a line for each change, at most `most` of a kind (0: all).
std::string ChangesText(const ChangeList& changes, std::size_t most);

}  // namespace kestrel
