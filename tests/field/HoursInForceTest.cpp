#include "field/HoursInForce.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrel {
namespace {

TimeOfDay TimeAt(SiteClock& clock, const std::string& text, HoursRule rule = HoursRule::Auto) {
  const Moment moment = *ReadMoment(text, {});
  return clock.At(moment, Sun(moment), rule);
}

TEST(SiteClockTest, AUnitedStatesLicenceHoldsTheTimesOfTheFifteenthAllMonth) {
  // New York's June: 4:30 and 7:30 Eastern standard time.
  SiteClock newYork({40.71, 74.01}, true);
  const struct {
    const char* text;
    TimeOfDay time;
  } rows[] = {{"2026-06-03T09:29:59Z", TimeOfDay::Night},
              {"2026-06-03T09:30Z", TimeOfDay::CriticalHours},
              {"2026-06-30T11:29:59Z", TimeOfDay::CriticalHours},
              {"2026-06-30T11:30Z", TimeOfDay::Day},
              {"2026-06-15T22:29:59Z", TimeOfDay::Day},
              {"2026-06-15T22:30Z", TimeOfDay::CriticalHours},
              {"2026-07-01T00:29:59Z", TimeOfDay::CriticalHours},  // still June there
              {"2026-07-01T00:30Z", TimeOfDay::Night},
              {"2026-12-01T12:10Z", TimeOfDay::Night},
              {"2026-12-01T12:15Z", TimeOfDay::CriticalHours}};
  for (const auto& [text, time] : rows) EXPECT_EQ(TimeAt(newYork, text), time) << text;
  EXPECT_EQ(TimeAt(newYork, "2026-06-03T09:28Z", HoursRule::Sun), TimeOfDay::CriticalHours);
  // In the west a day ends on the next date of Greenwich.
  SiteClock honolulu({21.3, 157.9}, true);
  EXPECT_EQ(TimeAt(honolulu, "2026-07-02T02:00Z"), TimeOfDay::Day);
  EXPECT_EQ(TimeAt(honolulu, "2026-07-02T03:30Z"), TimeOfDay::CriticalHours);
  EXPECT_EQ(TimeAt(honolulu, "2026-07-02T05:30Z"), TimeOfDay::Night);
  SiteClock barrow({71.3, 156.8}, true);
  EXPECT_EQ(TimeAt(barrow, "2026-12-15T22:00Z"), TimeOfDay::Night);
  EXPECT_EQ(TimeAt(barrow, "2026-06-15T10:00Z"), TimeOfDay::Day);
}

TEST(SiteClockTest, ElsewhereTheSunDecides) {
  SiteClock toronto({43.65, 79.38}, false);
  const SunSite site(43.65, 79.38);
  const SunDay day = SunDayAt(site, *ReadMoment("2026-11-03T17:00Z", {}));
  using std::chrono::minutes;
  const struct {
    Moment moment;
    TimeOfDay time;
  } rows[] = {{*day.Sunrise - minutes(2), TimeOfDay::Night},
              {*day.Sunrise + minutes(2), TimeOfDay::CriticalHours},
              {*day.Sunrise + minutes(118), TimeOfDay::CriticalHours},
              {*day.Sunrise + minutes(122), TimeOfDay::Day},
              {*day.Sunset - minutes(122), TimeOfDay::Day},
              {*day.Sunset - minutes(118), TimeOfDay::CriticalHours},
              {*day.Sunset + minutes(2), TimeOfDay::Night}};
  for (const auto& [moment, time] : rows)
    EXPECT_EQ(toronto.At(moment, Sun(moment), HoursRule::Auto), time) << MomentText(moment);
  SiteClock north({78, 20}, false);
  EXPECT_EQ(TimeAt(north, "2026-06-21T00:00Z"), TimeOfDay::Day);
  EXPECT_EQ(TimeAt(north, "2026-12-21T12:00Z"), TimeOfDay::Night);
}

TEST(HoursInForceTest, TheFirstCodeThatTheStationHas) {
  const struct {
    const char *codes, *critical, *day, *night;  // the code in force, or why there is none
  } rows[] = {{"U", "U", "U", "U"},
              {"DN", "D", "D", "N"},
              {"DNC", "C", "D", "N"},
              {"D", "D", "D", "day only"},
              {"N", "night only", "night only", "N"},
              {"C", "C", "critical hours are over", "day only"},
              {"CN", "C", "critical hours are over", "N"},
              {"UD", "D", "D", "U"},
              {"UN", "U", "U", "N"},
              {"UC", "C", "U", "U"},
              {"X", "hours not known", "hours not known", "hours not known"}};
  for (const auto& row : rows) {
    StationHours station;
    for (const char code : std::string(row.codes)) station.Add(HoursOf(std::string(1, code)));
    for (const auto& [time, wanted] :
         {std::pair{TimeOfDay::CriticalHours, row.critical}, std::pair{TimeOfDay::Day, row.day},
          std::pair{TimeOfDay::Night, row.night}}) {
      const std::optional<Hours> hours = HoursInForce(station, time);
      EXPECT_EQ(hours ? std::string(1, HoursLetter(*hours)) : std::string(SilenceReason(station, time)),
                wanted)
          << row.codes;
    }
  }
}

}  // namespace
}  // namespace kestrel
