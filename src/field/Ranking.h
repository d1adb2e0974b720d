#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/Position.h"
#include "field/FieldAtHome.h"
#include "field/OnAirStations.h"

// Who it can be: the records of one channel in the order of their fields at home.

namespace kestrel {

/// 0.02 mV/m, some 12 dB above the noise of a house by day.
inline constexpr double UsualNeededLevel = 26;  // dB above 1 uV/m
inline constexpr double LowestNeededLevel = -60;
inline constexpr double HighestNeededLevel = 140;

/// What the listener may choose.
struct RankingChoices {
  double NeededLevel = UsualNeededLevel;  ///< dB above 1 uV/m
  HoursRule Rule = HoursRule::Auto;
  std::vector<std::string>
      StruckCalls;  ///< stations nulled by the loop; case and blanks at the ends do not matter
};

/// How good the chances are that it is this one. Struck stations are not judged.
enum class Likelihood { Likely, Possible, Unlikely, Struck };

/// "likely", "possible", "unlikely", "struck".
std::string_view WordOf(Likelihood likelihood);

/// A record and its field at home, as far as it does not change with the hour.
struct RecordAtHome {
  std::string CallSign;
  std::string City;
  std::string State;
  std::string Country;
  Position At;
  Hours OnAir = Hours::Other;  ///< the hours of the record
  float PowerKW = 0;
  int Towers = 0;
  int Line = 0;        ///< of the station line in its file, from 1
  float Distance = 0;  ///< kilometres, as the program shows it everywhere (GreatCircle)
  float Bearing = 0;   ///< from home, degrees clockwise from north, 0 to 360
  FieldAtHome Field;
};

/// A record on the air.
struct RankedRecord {
  std::size_t Record = 0;  ///< index into ChannelRanking::Records()
  FieldLevels Levels;
  Likelihood Chance = Likelihood::Unlikely;
};

/// One channel at one moment.
struct Ranking {
  double Needed = 0;                  ///< the level that makes a station likely, dB above 1 uV/m
  std::vector<RankedRecord> Rows;     ///< strongest first, equals in the file's order; struck ones at the end
  std::vector<SilentStation> Silent;  ///< in the file's order
  std::vector<std::string> NotOnChannel;  ///< struck calls that no station has
};

/// One channel seen from home: records are added once, and ranked at any moments one after the other without
/// reading or computing their fields again.
///
/// At a moment the records in force are ranked by `FieldLevels::Total`. One is likely when that reaches the
/// needed level and comes within 6 dB of the strongest that is not struck, possible when `FieldLevels::High`
/// does, else unlikely.
class ChannelRanking {
 public:
  /// Frequency and conductivity as GroundWave takes them. REQUIRES: a home of finite numbers.
  ChannelRanking(double frequencyKHz, const Position& home, double conductivity);

  /// Records in the file's order, `line` being that of the station line.
  void Add(const StationRecord& record, int line);

  /// All records of a station file. Returns what its reader left out.
  std::vector<std::string> AddFile(const std::string& name, std::string_view bytes);

  const std::vector<RecordAtHome>& Records() const { return records_; }

  /// REQUIRES: a moment of the years 1950 to 2100.
  Ranking Rank(Moment moment, const RankingChoices& choices);

 private:
  Position home_;
  GroundWave ground_;
  std::vector<RecordAtHome> records_;
  OnAirStations onAir_;
};

}  // namespace kestrel
