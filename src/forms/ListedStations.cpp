#include "forms/ListedStations.h"

#include <algorithm>

#include "core/Text.h"
#include "core/TextFields.h"

namespace kestrel {

using Standing = ListedStation::Standing;

namespace {

ListedStation Unranked(float frequency, const RecordAtHome& record) {
  ListedStation station;
  station.Frequency = frequency;
  station.Record = &record;
  return station;
}

}  // namespace

std::string ListedStation::Reason() const {
  return IsOnAir() ? Record->Field.ReasonFor(Levels) : std::string(SilentReason);
}

std::vector<ListedStation> EveryRecord(const BandRanking& band, const std::vector<Ranking>& rankings) {
  std::vector<ListedStation> stations;
  for (std::size_t i = 0; i < band.Channels().size(); ++i) {
    const auto& [frequency, channel] = band.Channels()[i];
    const std::size_t first = stations.size();
    for (const RecordAtHome& record : channel.Records()) stations.push_back(Unranked(frequency, record));
    for (const auto& [record, levels, chance] : rankings[i].Rows) {
      ListedStation& station = stations[first + record];
      station.Now = chance == Likelihood::Struck ? Standing::Struck : Standing::OnAir;
      station.Levels = levels;
      station.Chance = chance;
    }
    for (const auto& [record, reason] : rankings[i].Silent) {
      stations[first + record].Now = Standing::Silent;
      stations[first + record].SilentReason = reason;
    }
  }
  return stations;
}

std::vector<ListedStation> StrongestOfEach(const BandRanking& band, const std::vector<Ranking>& rankings) {
  std::vector<ListedStation> stations;
  for (std::size_t i = 0; i < band.Channels().size(); ++i) {
    const auto& [frequency, channel] = band.Channels()[i];
    if (channel.Records().empty()) continue;
    const std::vector<RankedRecord>& rows = rankings[i].Rows;
    if (rows.empty() || rows.front().Chance == Likelihood::Struck)
      stations.push_back(Unranked(frequency, channel.Records().front()));
    else
      stations.push_back({frequency,
                          &channel.Records()[rows.front().Record],
                          Standing::OnAir,
                          rows.front().Levels,
                          rows.front().Chance,
                          {}});
  }
  return stations;
}

void RankedChannels::Rank(Moment moment, const RankingChoices& choices) {
  if (!Band) return;
  Rankings = Band->Rank(moment, choices);
  Stations = EveryRecord(*Band, Rankings);
}

StationTexts::StationTexts(const std::vector<ListedStation>& stations) {
  texts_.reserve(stations.size());
  for (const ListedStation& station : stations)
    texts_.push_back(
        UpperCase(station.Record->CallSign + '\n' + station.Record->City + '\n' + station.Record->State));
}

std::vector<std::string> StationTexts::WordsOf(std::string_view typed) {
  const std::string upper = UpperCase(typed);
  std::string_view rest = upper;
  std::vector<std::string> words;
  while (const auto word = NextWord(rest)) words.emplace_back(*word);
  return words;
}

bool StationTexts::Matches(std::size_t index, const std::vector<std::string>& words) const {
  return std::all_of(words.begin(), words.end(),
                     [&](const std::string& word) { return texts_[index].find(word) != std::string::npos; });
}

}  // namespace kestrel
