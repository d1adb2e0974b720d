#include "pattern/Radiation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kestrel {
namespace {

struct Tower {
  float Field, Height, Phase, Spacing, Bearing;
  const char* Switch = "0";
};

Radiation Of(const std::vector<Tower>& towers, float power = 1) {
  StationRecord record;
  record.PowerKW = power;
  record.TowerCount = static_cast<std::int16_t>(towers.size());
  for (std::size_t i = 1; i <= towers.size(); ++i) {
    const Tower& tower = towers[i - 1];
    record.Switch[i] = tower.Switch;
    record.Fields[i] = tower.Field;
    record.Heights[i] = tower.Height;
    record.Phases[i] = tower.Phase;
    record.Spacings[i] = tower.Spacing;
    record.Bearings[i] = tower.Bearing;
  }
  return Radiation(record);
}

TEST(RadiationTest, ASingleTowerByItsHeight) {
  // With one ohm of loss, at 1 kW.
  const struct {
    float height, field;
  } rows[] = {{1, 16.5F},    {10, 145.2F},  {30, 259.1F},  {60, 294.4F}, {90, 309.5F},
              {120, 324.6F}, {180, 378.3F}, {190, 392.4F}, {225, 439.5F}};
  for (const auto& [height, field] : rows) {
    const Radiation radiation = Of({{0.3F, height, 20, 100, 10}});
    EXPECT_NEAR(radiation.FieldAt(77, 0), field, 0.06) << height;
    EXPECT_NEAR(radiation.FieldAt(0, 0), radiation.FieldAt(200, 0), 1e-9);
    EXPECT_NEAR(radiation.FieldAt(77, 90), 0, 1e-9);
    EXPECT_NEAR(Of({{1, height, 0, 0, 0}}, 50).FieldAt(0, 0), std::sqrt(50) * field, 0.06 * std::sqrt(50));
  }
  // cos(90 sin 30) / cos 30: the textbook's quarter wave.
  const Radiation quarter = Of({{1, 90, 0, 0, 0}});
  EXPECT_NEAR(quarter.FieldAt(0, 30) / quarter.FieldAt(0, 0), 0.8165, 1e-4);
}

TEST(RadiationTest, HeightsThatAreNoneCountAsAQuarterWave) {
  const double quarter = Of({{1, 90, 0, 0, 0}}).FieldAt(0, 20);
  for (const float height : {0.0F, -30.0F, 360.0F, 720.0F, 1e-9F})
    EXPECT_EQ(Of({{1, height, 0, 0, 0}}).FieldAt(0, 20), quarter) << height;
  for (const Radiation& standIn : {Of({}), Of({{0, 225, 0, 0, 0}, {0, 225, 0, 90, 0}})}) {
    EXPECT_EQ(standIn.FieldAt(0, 20), quarter);
    EXPECT_FALSE(standIn.PatternIsKnown());
  }
  EXPECT_TRUE(Of({{1, 90, 0, 0, 0}}).PatternIsKnown());
  EXPECT_EQ(Of({{1, 90, 0, 0, 0}}, 0).FieldAt(0, 0), 0);
  EXPECT_EQ(Of({{1, 90, 0, 0, 0}, {1, 90, 0, 90, 0}}, -5).FieldAt(0, 0), 0);
}

TEST(RadiationTest, AnArraySendsTheStandardPattern) {
  // A cardioid: its null is filled by Q alone, 1.05 x 10 mV/m at 1 kW, and chains stand as written out.
  const Radiation cardioid = Of({{1, 90, 0, 0, 0}, {1, 90, -90, 90, 0}});
  EXPECT_NEAR(cardioid.FieldAt(180, 0), 1.05 * std::max(10.0, 0.025 * cardioid.Constant() * std::sqrt(2)),
              1e-6);
  EXPECT_NEAR(cardioid.FieldAt(0, 0), 1.05 * std::hypot(2 * cardioid.Constant(), 10), 0.01);
  EXPECT_GT(cardioid.FieldAt(180, 40), cardioid.FieldAt(180, 0));
  const Radiation chained = Of({{1, 90, 0, 90, 0}, {1, 90, -90, 90, 0, " 1"}});
  for (const double azimuth : {0.0, 50.0, 180.0})
    EXPECT_NEAR(chained.FieldAt(azimuth, 10), cardioid.FieldAt(azimuth, 10), 1e-9);

  // The power of one kilowatt leaves in whatever directions the array sends it: E^2 over the hemisphere. The
  // standard pattern is 1.05 times larger and 10 mV/m rounder.
  const Radiation array = Of({{1, 110, 10, 0, 0}, {0.6F, 90, -110, 120, 60}, {0.8F, 75, 40, 200, 140}});
  constexpr double kRadian = 3.14159265358979 / 180;
  double power = 0;
  for (double elevation = 0.5; elevation < 90; ++elevation)
    for (double azimuth = 0; azimuth < 360; azimuth += 2)
      power += std::pow(array.FieldAt(azimuth, elevation) / 1.05, 2) * std::cos(elevation * kRadian) * 2 *
               kRadian * kRadian / 376.73e3;
  EXPECT_LT(power, 1);  // what is missing is lost in the ground
  EXPECT_GT(power, 0.95);
}

TEST(RadiationTest, NumbersOfAnySizeGiveAFiniteField) {
  constexpr float kHuge = std::numeric_limits<float>::max();
  const std::vector<std::vector<Tower>> arrays = {
      std::vector<Tower>(12, {1, 90, 0, 0, 0}),  // all in one place
      {{1, 90, 0, 0, 0}, {-1, 90, 0, 0, 0}},     // nothing is left
      {{1, 90, 0, 0, 0}, {1, 90, 180, 0, 0}},    // nearly nothing
      {{kHuge, kHuge, kHuge, kHuge, kHuge}, {-kHuge, 1, 0, -kHuge, 0, "1"}},
      {{1e-45F, 0.001F, 0, 0, 0}, {kHuge, 359.999F, 0, 0, 0}},
      {{1e-45F, 0.001F, 0, 0, 0}}};
  for (const auto& towers : arrays)
    for (const float power : {1e-45F, 1.0F, kHuge})
      for (const double elevation : {0.0, 33.0, 90.0}) {
        const double field = Of(towers, power).FieldAt(123, elevation);
        EXPECT_TRUE(std::isfinite(field) && field >= 0) << field;
      }
}

}  // namespace
}  // namespace kestrel
