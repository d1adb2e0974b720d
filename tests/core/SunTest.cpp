#include "core/Sun.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace kestrel {
namespace {

constexpr double kRadian = std::numbers::pi / 180;

Moment At(const char* text) {
  return *ReadMoment(text, {});
}

/// The Astronomical Almanac's low-precision formulas, good to 0.01 degree from 1950 to 2050.
double AlmanacElevation(double latitude, double west, double days) {
  const double longitude = 280.460 + 0.9856474 * days;
  const double anomaly = (357.528 + 0.9856003 * days) * kRadian;
  const double lambda = (longitude + 1.915 * std::sin(anomaly) + 0.020 * std::sin(2 * anomaly)) * kRadian;
  const double obliquity = (23.439 - 0.0000004 * days) * kRadian;
  const double ascension = std::atan2(std::cos(obliquity) * std::sin(lambda), std::cos(lambda));
  const double declination = std::asin(std::sin(obliquity) * std::sin(lambda));
  const double sidereal = (280.46062 + 360.98564737 * days - west) * kRadian;
  const double phi = latitude * kRadian;
  return std::asin(std::sin(phi) * std::sin(declination) +
                   std::cos(phi) * std::cos(declination) * std::cos(sidereal - ascension)) /
         kRadian;
}

TEST(SunTest, StandsWhereOtherFormulasPutIt) {
  // Meeus's example 25.a, 0h dynamical time, and the seasons of the year 2000.
  EXPECT_NEAR(Sun(At("1992-10-12T23:58:51Z")).Declination(), -7.78507, 2e-5);
  EXPECT_NEAR(Sun(At("2000-03-20T07:35Z")).Declination(), 0, 0.0035);
  EXPECT_NEAR(Sun(At("2000-06-21T01:48Z")).Declination(), 23.438, 0.0035);
  std::mt19937 random(1);
  const auto pick = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  for (int n = 0; n < 2000; ++n) {
    const double latitude = pick(-89, 89), west = pick(-180, 180), days = pick(-18262, 18262);
    EXPECT_NEAR(Sun(days).Elevation({latitude, west}), AlmanacElevation(latitude, west, days), 0.02)
        << latitude << ' ' << west << ' ' << days;
  }
}

TEST(SunTest, EventsLieOnTheirElevationsAndTheClockAgrees) {
  std::mt19937 random(2);
  const auto pick = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  for (int n = 0; n < 300; ++n) {
    const SunSite site(pick(-60, 60), pick(-180, 180));
    const Moment moment = MomentOfDays(pick(-18262, 36889));
    const SunDay day = SunDayAt(site, moment);
    ASSERT_TRUE(day.Dawn && day.Sunrise && day.Sunset && day.Dusk);
    EXPECT_TRUE(*day.Dawn < *day.Sunrise && *day.Sunrise < day.Noon && day.Noon < *day.Sunset &&
                *day.Sunset < *day.Dusk);
    EXPECT_NEAR(Sun(*day.Dawn).Elevation(site), TwilightElevation, 0.004);
    EXPECT_NEAR(Sun(*day.Sunrise).Elevation(site), SunriseElevation, 0.004);
    EXPECT_NEAR(Sun(*day.Sunset).Elevation(site), SunriseElevation, 0.004);
    EXPECT_NEAR(Sun(*day.Dusk).Elevation(site), TwilightElevation, 0.004);
    EXPECT_LT(std::abs(DaysSince2000(day.Noon) - DaysSince2000(moment)), 0.513);

    using std::chrono::hours;
    const SolarClock evening = Sun(*day.Sunset + hours(2)).ClockAt(site);
    EXPECT_FALSE(evening.SunIsUp());
    EXPECT_NEAR(evening.HoursAfterSunset(), 2, 0.05);
    EXPECT_LT(evening.HoursAfterSunrise(), 0);
    const SolarClock morning = Sun(*day.Sunrise - hours(2)).ClockAt(site);
    EXPECT_NEAR(morning.HoursAfterSunrise(), -2, 0.05);
    EXPECT_GT(morning.HoursAfterSunset(), 0);
    const SolarClock early = Sun(*day.Sunrise + hours(1)).ClockAt(site);
    EXPECT_TRUE(early.SunIsUp());
    EXPECT_NEAR(early.HoursAfterSunrise(), 1, 0.05);
    EXPECT_LT(early.HoursAfterSunset(), 0);
  }
}

TEST(SunTest, PolarDaysAndNightsAndTheDaysBetween) {
  using Course = SolarClock::Course;
  const SunSite tromso(69.65, -18.96);
  for (const auto& [text, course] : {std::pair{"2026-06-21T12:00Z", Course::PolarDay},
                                     std::pair{"2026-12-21T12:00Z", Course::PolarNight}}) {
    const SunDay day = SunDayAt(tromso, At(text));
    EXPECT_FALSE(day.Sunrise || day.Sunset) << text;
    EXPECT_EQ(day.Course, course) << text;
    EXPECT_EQ(Sun(At(text)).ClockAt(tromso).Day, course) << text;
  }
  EXPECT_TRUE(SunDayAt(tromso, At("2026-12-21T12:00Z")).Dawn);  // noon twilight of the polar night
  // At the poles the sun keeps its height through the day; the equinox passes without a crash.
  for (const double latitude : {-90.0, 90.0})
    for (const char* text :
         {"2026-03-20T14:00Z", "2026-06-21T12:00Z", "2026-09-23T00:00Z", "2026-12-21T12:00Z"}) {
      const SunDay day = SunDayAt({latitude, 0}, At(text));
      EXPECT_NEAR(Sun(At(text)).Elevation({latitude, 0}), latitude / 90 * Sun(At(text)).Declination(), 0.02);
      EXPECT_LE(std::abs((day.Noon - At(text)).count()), 13 * 3600);
    }
}

}  // namespace
}  // namespace kestrel
