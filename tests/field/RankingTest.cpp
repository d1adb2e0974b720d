#include "field/Ranking.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kestrel {
namespace {

constexpr Position kHome = {40, 80};

/// A single quarter-wave tower north of home by so many km, or an antenna that is not known.
StationRecord Station(const char* call, const char* hours, float power, double kilometres,
                      bool known = true) {
  StationRecord record;
  record.CallSign = call;
  record.City = "TOWN";
  record.Country = "United States";
  record.HoursCode = hours;
  record.Latitude = static_cast<float>(40 + kilometres / FieldKilometresPerDegree);
  record.Longitude = 80;
  record.PowerKW = power;
  record.TowerCount = known ? 1 : 0;
  record.Switch[1] = "0";
  record.Fields[1] = 1;
  record.Heights[1] = 90;
  return record;
}

ChannelRanking Channel(const std::vector<StationRecord>& records, const Position& home = kHome) {
  ChannelRanking channel(1000, home, 8);
  for (std::size_t i = 0; i < records.size(); ++i) channel.Add(records[i], static_cast<int>(2 * i + 1));
  return channel;
}

const Moment kNight = *ReadMoment("2026-11-22T05:00Z", {});
const Moment kDay = *ReadMoment("2026-11-22T17:00Z", {});
const Moment kDusk = *ReadMoment("2026-11-22T22:15Z", {});

std::vector<std::string> Rows(const ChannelRanking& channel, const Ranking& ranking) {
  std::vector<std::string> rows;
  for (const auto& [record, levels, chance] : ranking.Rows) {
    const RecordAtHome& at = channel.Records()[record];
    rows.push_back(at.CallSign + ' ' + HoursLetter(at.OnAir) + ' ' + std::string(WordOf(chance)) + ": " +
                   at.Field.ReasonFor(levels));
  }
  return rows;
}

std::vector<std::string> Silent(const ChannelRanking& channel, const Ranking& ranking) {
  std::vector<std::string> silent;
  for (const auto& [record, reason] : ranking.Silent)
    silent.push_back(channel.Records()[record].CallSign + ": " + std::string(reason));
  return silent;
}

using Texts = std::vector<std::string>;

TEST(RankingTest, TellsWhoItCanBeAndWhy) {
  ChannelRanking channel = Channel({Station("QDAY", "D", 5, 60), Station("QFAR", "U", 50, 900),
                                    Station("QALL", "D", 0.05F, 130), Station("QUNK", "U", 3, 900, false),
                                    Station("QALL", "N", 0.05F, 130), Station("QOUT", "N", 0.01F, -4500),
                                    Station("QTWO", "U", 1, -7000), Station("QNIL", "U", 0, 50)});
  EXPECT_EQ(channel.Records()[4].Line, 9);
  const Ranking night = channel.Rank(kNight, {});
  EXPECT_EQ(
      Rows(channel, night),
      (Texts{"QFAR U likely: sky wave", "QUNK U possible: sky wave, pattern not known",
             "QALL N unlikely: ground and sky wave (fading)", "QTWO U unlikely: sky wave, very long path",
             "QOUT N unlikely: sky wave, very long path", "QNIL U unlikely: power not known"}));
  EXPECT_EQ(Silent(channel, night), Texts{"QDAY: day only"});
  EXPECT_NEAR(night.Needed, night.Rows[0].Levels.Total - 6, 1e-9);

  const Ranking day = channel.Rank(kDay, {});
  EXPECT_EQ(Rows(channel, day),
            (Texts{"QDAY D likely: ground wave", "QALL D unlikely: ground wave",
                   "QFAR U unlikely: ground wave", "QUNK U unlikely: ground wave, pattern not known",
                   "QTWO U unlikely: out of reach, very long path", "QNIL U unlikely: power not known"}));
  EXPECT_EQ(Silent(channel, day), Texts{"QOUT: night only"});
  EXPECT_NEAR(day.Rows[0].Levels.GroundWave, 20 * std::log10(0.3085 * std::sqrt(5) * 3.095 * 1000), 1);

  const Ranking dusk = channel.Rank(kDusk, {});
  const std::string far = dusk.Rows[1].Record == 1 ? Rows(channel, dusk)[1] : Rows(channel, dusk)[0];
  EXPECT_TRUE(far.find("dB below full night") != std::string::npos) << far;

  // The order of asking changes nothing.
  EXPECT_EQ(Rows(channel, channel.Rank(kNight, {})), Rows(channel, night));
}

TEST(RankingTest, StruckStationsAreNotJudgedAndDoNotSetTheMeasure) {
  ChannelRanking channel =
      Channel({Station("QONE", "U", 50, 20), Station("Q\xC3\xB1", "U", 5, 60), Station("QTWO", "U", 1, 60)});
  RankingChoices choices;
  EXPECT_EQ(channel.Rank(kDay, choices).Rows[1].Chance, Likelihood::Unlikely);
  choices.StruckCalls = {" qone ", "QNOT", "q\xC3\xB1"};
  const Ranking ranking = channel.Rank(kDay, choices);
  EXPECT_EQ(Rows(channel, ranking), (Texts{"QTWO U likely: ground wave", "QONE U struck: ground wave",
                                           "Q\xC3\xB1 U struck: ground wave"}));
  EXPECT_EQ(ranking.NotOnChannel, Texts{"QNOT"});
  choices.NeededLevel = 80;
  EXPECT_EQ(channel.Rank(kDay, choices).Rows[0].Chance, Likelihood::Unlikely);
  choices.StruckCalls.push_back("QTWO");
  EXPECT_EQ(channel.Rank(kDay, choices).Needed, 80);
}

TEST(RankingTest, AStationIsACallSignAndItsTown) {
  // By night only the one that has a record for it changes over; codes compare exactly, records of one code
  // are all listed, and equals stay in the file's order.
  StationRecord elsewhere = Station("QONE", "N", 1, 100);
  elsewhere.City = "OTHER";
  ChannelRanking channel =
      Channel({Station("QONE", "U", 1, 100), elsewhere, Station("QTWO", "U", 1, 100),
               Station("QTWO", "N", 1, 100), Station("QTWO", "N", 1, 100), Station("QSML", "n", 1, 100)});
  EXPECT_EQ(Rows(channel, channel.Rank(kNight, {})).size(), 4U);
  const Ranking night = channel.Rank(kNight, {});
  for (std::size_t i = 1; i < 4; ++i) EXPECT_LT(night.Rows[i - 1].Record, night.Rows[i].Record);
  EXPECT_EQ(Silent(channel, night), Texts{"QSML: hours not known"});

  // Each record is judged at its own site: at 23:00 UTC it is night in the east, day in the west.
  StationRecord west = Station("QWST", "D", 1, 100);
  west.Longitude = 120;
  StationRecord east = Station("QEST", "D", 1, 100);
  StationRecord moved = Station("QMOV", "N", 1, 100);
  moved.Longitude = 120;
  ChannelRanking sites =
      Channel({west, Station("QWST", "N", 1, 100), east, moved, Station("QMOV", "D", 1, 100)});
  const Ranking evening = sites.Rank(*ReadMoment("2026-11-22T23:00Z", {}), {});
  EXPECT_EQ(evening.Rows.size(), 2U);  // both of QWST
  EXPECT_EQ(Silent(sites, evening), (Texts{"QEST: day only", "QMOV: changing between its sites"}));
}

TEST(RankingTest, RecordsOfAnyKindGiveNumbers) {
  constexpr float kHuge = std::numeric_limits<float>::max();
  std::vector<StationRecord> records;
  for (const float latitude : {40.0F, -40.0F, 90.0F, -90.0F, kHuge})
    for (const float longitude : {80.0F, -100.0F, kHuge})
      for (const float power : {-1.0F, 0.0F, 1e-45F, kHuge})
        for (const std::int16_t towers : {std::int16_t{0}, std::int16_t{1}, std::int16_t{12}}) {
          StationRecord record = Station("QODD", "U", power, 0);
          record.Latitude = latitude;
          record.Longitude = longitude;
          record.TowerCount = towers;
          for (std::size_t i = 1; i <= MaxTowers; ++i) record.Fields[i] = i % 2 == 0 ? -1 : 1;
          record.Heights[3] = kHuge;
          records.push_back(record);
        }
  for (const Position& home : {kHome, Position{90, 0}, Position{-90, -180}, Position{0, 0}}) {
    ChannelRanking channel = Channel(records, home);
    for (const Moment moment :
         {kDay, kNight, *ReadMoment("1950-01-01T00:00Z", {}), *ReadMoment("2100-12-31T23:59Z", {})})
      for (const HoursRule rule : {HoursRule::Auto, HoursRule::Sun}) {
        const Ranking ranking = channel.Rank(moment, {26, rule, {}});
        ASSERT_EQ(ranking.Rows.size(), records.size());
        EXPECT_TRUE(std::isfinite(ranking.Needed));
        for (const auto& [record, levels, chance] : ranking.Rows) {
          for (const double level :
               {levels.GroundWave, levels.SkyMedian, levels.SkyUpperDecile, levels.Total, levels.High})
            ASSERT_TRUE(std::isfinite(level) && level >= LowestLevel);
          EXPECT_FALSE(channel.Records()[record].Field.ReasonFor(levels).empty());
        }
      }
  }
  EXPECT_TRUE(Channel({}).Rank(kDay, {}).Rows.empty());
}

}  // namespace
}  // namespace kestrel
