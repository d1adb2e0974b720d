#include "field/Ranking.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/Geodesy.h"
#include "core/Sphere.h"
#include "core/Text.h"

namespace kestrel {
namespace {

constexpr double kWithinStrongest = 6;  // dB

/// Which calls are struck, and which of the struck are on the channel at all.
class StruckCalls {
 public:
  explicit StruckCalls(const std::vector<std::string>& calls) {
    for (const std::string& call : calls) calls_.push_back({UpperCase(Trim(call)), false});
  }

  bool Has(const std::string& callSign) {
    if (calls_.empty()) return false;
    const std::string upper = UpperCase(callSign);
    bool has = false;
    for (Call& call : calls_)
      if (call.Name == upper) has = call.Found = true;
    return has;
  }

  std::vector<std::string> NotFound() const {
    std::vector<std::string> names;
    for (const Call& call : calls_)
      if (!call.Found) names.push_back(call.Name);
    return names;
  }

 private:
  struct Call {
    std::string Name;
    bool Found;
  };
  std::vector<Call> calls_;
};

/// Sorts and judges. Struck rows stay behind all others.
void Judge(Ranking& ranking, double neededLevel) {
  const auto isStruck = [](const RankedRecord& row) { return row.Chance == Likelihood::Struck; };
  std::stable_sort(ranking.Rows.begin(), ranking.Rows.end(), [&](const auto& a, const auto& b) {
    return isStruck(a) != isStruck(b) ? isStruck(b) : a.Levels.Total > b.Levels.Total;
  });
  ranking.Needed = neededLevel;
  if (ranking.Rows.empty() || isStruck(ranking.Rows.front())) return;
  ranking.Needed = std::max(neededLevel, ranking.Rows.front().Levels.Total - kWithinStrongest);
  for (RankedRecord& row : ranking.Rows)
    if (!isStruck(row))
      row.Chance = row.Levels.Total >= ranking.Needed  ? Likelihood::Likely
                   : row.Levels.High >= ranking.Needed ? Likelihood::Possible
                                                       : Likelihood::Unlikely;
}

}  // namespace

std::string_view WordOf(Likelihood likelihood) {
  constexpr std::array<std::string_view, 4> kWords = {"likely", "possible", "unlikely", "struck"};
  return kWords[static_cast<std::size_t>(likelihood)];
}

ChannelRanking::ChannelRanking(double frequencyKHz, const Position& home, double conductivity)
    : home_(home), ground_(frequencyKHz, conductivity) {}

void ChannelRanking::Add(const StationRecord& record, int line) {
  onAir_.Add(record);
  const GreatCircleResult shown = GreatCircle(home_, record.At());
  // That bearing is rounded: by degrees for a station next to home.
  const double bearing =
      CourseBetween({home_.Latitude, home_.Longitude}, {record.Latitude, record.Longitude}).Azimuth;
  records_.push_back({record.CallSign, record.City, record.State, record.Country, record.At(),
                      HoursOf(record.HoursCode), record.PowerKW, record.TowerCount, line, shown.Distance,
                      static_cast<float>(bearing), FieldAtHome(record, home_, ground_)});
}

std::vector<std::string> ChannelRanking::AddFile(const std::string& name, std::string_view bytes) {
  StationFileReader reader(name, bytes);
  while (const StationRecord* record = reader.Next()) Add(*record, reader.RecordLine());
  return reader.Notes();
}

Ranking ChannelRanking::Rank(Moment moment, const RankingChoices& choices) {
  const Sun sun(moment);
  StruckCalls struck(choices.StruckCalls);
  OnAirRecords now = onAir_.At(moment, sun, choices.Rule);
  Ranking ranking;
  for (std::size_t i = 0; i < records_.size(); ++i) {
    // Asked of all, so that a struck station off the air is known to be on the channel.
    const bool isStruck = struck.Has(records_[i].CallSign);
    if (now.InForce[i])
      ranking.Rows.push_back(
          {i, records_[i].Field.LevelsAt(sun), isStruck ? Likelihood::Struck : Likelihood::Unlikely});
  }
  ranking.Silent = std::move(now.Silent);
  Judge(ranking, choices.NeededLevel);
  ranking.NotOnChannel = struck.NotFound();
  return ranking;
}

}  // namespace kestrel
