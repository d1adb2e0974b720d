#include <cmath>

#include "Rows.h"
#include "Table.h"
#include "core/Band.h"
#include "field/BandRanking.h"
#include "straight/Ranking.h"
#include "straight/Waves.h"

namespace kestrel::bench {
namespace {

constexpr Position kHome = {33.24278F, 96.54139F};
constexpr float kFrequency = 1490;
constexpr std::size_t kRecords = 1000;

Moment Night() {
  return std::chrono::sys_days(std::chrono::year(2026) / 11 / 22) + std::chrono::hours(5);
}

/// The records of as many channels as it takes, the busiest first.
std::vector<StationRecord> ManyRecords(const Band& band) {
  std::vector<StationRecord> records;
  for (float channel = kFrequency; records.size() < kRecords; channel -= ChannelStep) {
    const std::vector<StationRecord> more = ReadChannel(band, channel);
    records.insert(records.end(), more.begin(), more.end());
  }
  records.resize(kRecords);
  return records;
}

ChannelRanking Prepare(const std::vector<StationRecord>& records) {
  ChannelRanking channel(kFrequency, kHome, AverageConductivity);
  for (const StationRecord& record : records) channel.Add(record, 1);
  return channel;
}

}  // namespace

void AddGroundWaveRow() {
  static const std::vector<double> distances = [] {
    std::vector<double> all;
    all.reserve(kRecords);
    for (int i = 0; i < 1000; ++i) all.push_back(std::exp(i * std::log(3000.0) / 999));
    return all;
  }();
  AddRow(
      "ground wave of one channel, 1,000 distances", "the series for each", {50, 0},
      [] {
        const GroundWave table(kFrequency, AverageConductivity);
        double sum = 0;
        for (const double kilometres : distances) sum += table.LevelAt(kilometres);
        Keep(&sum);
      },
      [] {
        double sum = 0;
        for (const double kilometres : distances)
          sum += straight::GroundWaveLevel(kFrequency, AverageConductivity, kilometres);
        Keep(&sum);
      });
}

void AddRankingRows(const Band& band) {
  const std::vector<StationRecord> records = ManyRecords(band);
  AddRow(
      "1,000 records prepared and ranked, " + band.Name, "straight code", {20, 8},
      [records] {
        ChannelRanking channel = Prepare(records);
        const Ranking ranking = channel.Rank(Night(), {});
        Keep(&ranking);
      },
      [records] {
        const auto ranking = straight::Rank(records, kFrequency, kHome, AverageConductivity, Night());
        Keep(&ranking);
      });
  AddRow(
      "1,000 records at another moment, " + band.Name, "prepared anew", {5, 1.5},
      [channel = Prepare(records), minutes = 0]() mutable {
        minutes = (minutes + 5) % 1440;
        const Ranking ranking = channel.Rank(Night() + std::chrono::minutes(minutes), {});
        Keep(&ranking);
      },
      [records] {
        ChannelRanking channel = Prepare(records);
        const Ranking ranking = channel.Rank(Night(), {});
        Keep(&ranking);
      });
  AddRow("the whole band read and ranked, " + band.Name, {0, 150, true}, [band] {
    BandRanking ranking(DataFolder(QString::fromStdString(band.Folder)), kHome, AverageConductivity);
    const std::vector<Ranking> rankings = ranking.Rank(Night(), {});
    Keep(rankings.data());
  });
}

}  // namespace kestrel::bench
