#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "field/BandRanking.h"

// What a list of stations shows of a ranking.

namespace kestrel {

/// A record at the moment that it was ranked for.
struct ListedStation {
  enum class Standing {
    OnAir,
    Struck,  ///< on the air, but nulled by the loop
    Silent,
    Hidden,  ///< not in force, its station being told by another record
  };

  float Frequency = 0;                   ///< kHz
  const RecordAtHome* Record = nullptr;  ///< of the ranking, which must outlive this
  Standing Now = Standing::Hidden;
  FieldLevels Levels;  ///< of one on the air
  Likelihood Chance = Likelihood::Unlikely;
  std::string_view SilentReason;

  bool IsOnAir() const { return Now == Standing::OnAir || Now == Standing::Struck; }
  /// "likely", ..., "struck", "silent".
  std::string_view Word() const { return IsOnAir() ? WordOf(Chance) : "silent"; }
  std::string Reason() const;
};

/// Every record of the channels, channel by channel in the files' order; `rankings` are the channels'. The
/// same channels give the same records at every moment.
std::vector<ListedStation> EveryRecord(const BandRanking& band, const std::vector<Ranking>& rankings);

/// The strongest station of each channel that is not struck, Hidden where there is none.
std::vector<ListedStation> StrongestOfEach(const BandRanking& band, const std::vector<Ranking>& rankings);

/// Channels read and ranked for a moment.
struct RankedChannels {
  std::unique_ptr<BandRanking> Band;  ///< none: not read
  std::vector<Ranking> Rankings;
  std::vector<ListedStation> Stations;  ///< every record

  /// Nothing happens before they are read.
  void Rank(Moment moment, const RankingChoices& choices);
};

/// Finds records by their calls, cities and states.
class StationTexts {
 public:
  StationTexts() = default;
  explicit StationTexts(const std::vector<ListedStation>& stations);

  /// What is typed, as Matches takes it: its words in capitals.
  static std::vector<std::string> WordsOf(std::string_view typed);

  /// Whether each of the words stands somewhere in the call, city or state of the record of that index.
  bool Matches(std::size_t index, const std::vector<std::string>& words) const;

 private:
  std::vector<std::string> texts_;
};

}  // namespace kestrel
