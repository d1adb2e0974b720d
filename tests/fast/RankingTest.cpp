#include "field/Ranking.h"

#include <gtest/gtest.h>

#include <random>

#include "data/DataFolder.h"
#include "straight/Ranking.h"

namespace kestrel {
namespace {

TEST(RankingTest, ChannelsOfTheBandAreRankedAsByTheStraightFormulas) {
  std::mt19937 random(8);
  const auto pick = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  int rows = 0;
  for (const float frequency : {540.0F, 1000.0F, 1510.0F}) {
    const Result<QByteArray> bytes = DataFolder(KESTREL_SHARE_DIR).Read(StationFileName(frequency));
    ASSERT_TRUE(bytes);
    StationFileReader reader("", {bytes->constData(), static_cast<std::size_t>(bytes->size())});
    const Position home = {static_cast<float>(pick(-40, 60)), static_cast<float>(pick(60, 130))};
    const double conductivity = pick(1, 20);
    std::vector<StationRecord> records;
    ChannelRanking channel(frequency, home, conductivity);
    while (const StationRecord* record = reader.Next()) {
      if (records.size() == 120) break;
      records.push_back(*record);
      channel.Add(*record, 0);
    }
    for (int n = 0; n < 3; ++n) {
      const Moment moment = MomentOfDays(pick(0, 20000));
      const Ranking fast = channel.Rank(moment, {});
      const auto straight = straight::Rank(records, frequency, home, conductivity, moment);
      std::vector<const RankedRecord*> byRecord(records.size());
      for (const RankedRecord& row : fast.Rows) byRecord[row.Record] = &row;
      ASSERT_EQ(fast.Rows.size(), straight.size()) << frequency << ' ' << MomentText(moment);
      for (const straight::RankedRecord& wanted : straight) {
        const RankedRecord* const found = byRecord[wanted.Record];
        ASSERT_TRUE(found) << records[wanted.Record].CallSign;
        EXPECT_NEAR(found->Levels.GroundWave, wanted.Ground, 0.02) << records[wanted.Record].CallSign;
        EXPECT_NEAR(found->Levels.SkyMedian, wanted.SkyMedian, 0.001) << records[wanted.Record].CallSign;
        EXPECT_NEAR(found->Levels.SkyUpperDecile, wanted.SkyUpperDecile, 0.001);
        EXPECT_NEAR(found->Levels.Total, wanted.Total, 0.02);
        EXPECT_NEAR(found->Levels.High, wanted.High, 0.02);
        ++rows;
      }
      ASSERT_FALSE(straight.empty());
      EXPECT_NEAR(fast.Rows.front().Levels.Total, straight.front().Total, 0.02);
    }
  }
  EXPECT_GT(rows, 400);
}

}  // namespace
}  // namespace kestrel
