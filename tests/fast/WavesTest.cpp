#include "straight/Waves.h"

#include <gtest/gtest.h>

#include <random>

#include "field/GroundWave.h"
#include "field/SkyWave.h"

namespace kestrel {
namespace {

TEST(WavesTest, GroundWaveTablesGiveTheStraightFormulasLevels) {
  for (const auto& [frequency, conductivity] :
       {std::pair{530.0, 5000.0}, std::pair{640.0, 30.0}, std::pair{1000.0, 5.0}, std::pair{1480.0, 0.1},
        std::pair{1700.0, 1.0}}) {
    const GroundWave fast(frequency, conductivity);
    for (double kilometres = 1; kilometres < 5000; kilometres *= 1.13)
      EXPECT_NEAR(fast.LevelAt(kilometres), straight::GroundWaveLevel(frequency, conductivity, kilometres),
                  0.02)
          << frequency << ' ' << conductivity << ' ' << kilometres;
  }
}

TEST(WavesTest, SkyWaveGivesTheStraightFormulasLevels) {
  std::mt19937 random(11);
  const auto pick = [&](double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  };
  for (int n = 0; n < 500; ++n) {
    const SpherePoint from{pick(-60, 75), pick(30, 170)}, home{pick(-60, 75), pick(30, 170)};
    const Moment moment = MomentOfDays(pick(-18000, 36000));
    const SkyWave fast(from, home);
    const straight::SkyWave straight =
        straight::SkyWaveBetween(from.Latitude, from.Longitude, home.Latitude, home.Longitude);
    EXPECT_NEAR(fast.Kilometres(), straight.Distance, 1e-6);
    EXPECT_NEAR(fast.Azimuth(),
                straight::CourseBetween(from.Latitude, from.Longitude, home.Latitude, home.Longitude), 1e-9);
    EXPECT_NEAR(fast.GeomagneticLatitude(), straight.GeomagneticLatitude, 1e-9);
    EXPECT_NEAR(fast.DepartureAngle(), straight.DepartureAngle, 1e-9);
    EXPECT_NEAR(fast.Median(), straight.Median, 1e-9);
    EXPECT_NEAR(fast.UpperDecile(), straight.UpperDecile, 1e-9);
    EXPECT_NEAR(fast.HourlyLoss(Sun(moment)).value_or(60),
                straight::HourlyLoss(from.Latitude, from.Longitude, home.Latitude, home.Longitude, moment),
                1e-6);
  }
}

}  // namespace
}  // namespace kestrel
