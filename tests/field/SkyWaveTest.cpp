#include "field/SkyWave.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kestrel {
namespace {

TEST(SkyWaveTest, KnownPathsAtFullNight) {
  const struct {
    SpherePoint from, to;
    double kilometres, phi, median, upperDecile;
  } rows[] = {{{40.7, 74}, {41.88, 87.63}, 1145.1, 52.69, 20.23, 28.76},
              {{25.76, 80.19}, {40.7, 74}, 1756.9, 44.63, 17.78, 24.71},
              {{47.6, 122.33}, {61.22, 149.9}, 2309.5, 58.54, 0.51, 10.21},
              {{34.05, 118.24}, {40.7, 74}, 3936.1, 49.37, -0.24, 7.64},
              {{-34.6, 58.38}, {-23.55, 46.63}, 1674.7, -18.15, 24.11, 30.11},
              {{64.84, 147.72}, {69, 133.7}, 763.6, 67.84, 20.78, 30.78}};
  for (const auto& row : rows) {
    const SkyWave wave(row.from, row.to);
    EXPECT_NEAR(wave.Kilometres(), row.kilometres, 0.05);
    EXPECT_NEAR(wave.GeomagneticLatitude(), row.phi, 0.005);
    EXPECT_NEAR(wave.Median(), row.median, 0.005);
    EXPECT_NEAR(wave.UpperDecile(), row.upperDecile, 0.005);
  }
  // The example of 47 CFR 73.185: 724 km, 0.1616 mV/m at 10 percent from 260 mV/m; between the bounds 9.6
  // and 16.6.
  const SkyWave example({40, 100}, {44 + 26.0 / 60 + 5.0 / 3600, 93 + 32.0 / 60 + 54.0 / 3600});
  EXPECT_NEAR(example.Kilometres(), 724.4, 0.05);
  EXPECT_NEAR(2.6 * std::pow(10, (example.UpperDecile() - 60) / 20), 0.1616, 0.0002);
  EXPECT_NEAR(example.DepartureAngle(), 13.2, 0.05);
}

TEST(SkyWaveTest, EndsOfTheRangeGiveNumbers) {
  EXPECT_EQ(SkyWave({40, 75}, {40, 75}).DepartureAngle(), 90);
  EXPECT_GT(SkyWave({40, 75}, {42, 75}).DepartureAngle(), 30);
  EXPECT_EQ(SkyWave({40, 75}, {62, 75}).DepartureAngle(), 0);
  for (const SpherePoint& far :
       {SpherePoint{-40, -105}, SpherePoint{90, 0}, SpherePoint{-90, 12}, SpherePoint{40, 75}}) {
    const SkyWave wave(far, {40, 75});
    for (const double number : {wave.Kilometres(), wave.Azimuth(), wave.GeomagneticLatitude(),
                                wave.DepartureAngle(), wave.Median(), wave.UpperDecile()})
      EXPECT_TRUE(std::isfinite(number));
  }
  EXPECT_NEAR(SkyWave({-90, 0}, {40, 75}).Azimuth(), 285,
              1e-9);  // every course north, by the start's meridian
}

/// The loss on a path of some hundred kilometres, by the hours from the midpoint's event.
TEST(SkyWaveTest, HourlyLossFollowsTheSunAtTheMidpoint) {
  const SkyWave wave({40, 77}, {40, 73});
  const Moment noon = *ReadMoment("2026-03-20T17:00Z", {});
  const SunDay day = SunDayAt({40.02, 75}, noon);
  const auto at = [&](Moment event, double hours) {
    return wave.HourlyLoss(Sun(event + std::chrono::seconds(static_cast<int>(hours * 3600))));
  };
  const struct {
    Moment event;
    double hours, loss;
  } rows[] = {{*day.Sunset, 0, 12.4},   {*day.Sunset, -1, 24.9}, {*day.Sunset, -2, 45.1},
              {*day.Sunset, 1, 5.7},    {*day.Sunset, 5, 0},     {*day.Sunrise, 0, 9.6},
              {*day.Sunrise, -1, 2.16}, {*day.Sunrise, -3.2, 0}, {*day.Sunrise, 1, 28.3}};
  for (const auto& [event, hours, loss] : rows) {
    const std::optional<double> found = at(event, hours);
    ASSERT_TRUE(found) << hours;
    EXPECT_NEAR(*found, loss, 0.3) << hours;
  }
  EXPECT_FALSE(wave.HourlyLoss(Sun(noon)));
  EXPECT_FALSE(at(*day.Sunset, -2.7));

  // A long path is as bad as its worse end: in the west it is still day.
  const SkyWave across({40, 120}, {40, 75});
  EXPECT_GT(across.HourlyLoss(Sun(*day.Sunset)).value_or(60), 50);
  // No night and no day: the polar summer has no sky wave, the polar night all of it.
  const SkyWave polar({78, 20}, {80, 20});
  EXPECT_FALSE(polar.HourlyLoss(Sun(*ReadMoment("2026-06-21T00:00Z", {}))));
  EXPECT_EQ(polar.HourlyLoss(Sun(*ReadMoment("2026-12-21T12:00Z", {}))), 0);
}

}  // namespace
}  // namespace kestrel
