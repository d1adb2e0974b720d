#include "pattern/Pattern.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace kestrel {
namespace {

struct Tower {
  float Field, Phase, Spacing, Bearing;
  const char* Switch = "0";
};

StationRecord Record(const std::vector<Tower>& towers, const char* hours = "N", float power = 1) {
  StationRecord record;
  record.HoursCode = hours;
  record.PowerKW = power;
  record.TowerCount = static_cast<std::int16_t>(towers.size());
  for (std::size_t i = 1; i <= towers.size(); ++i) {
    const Tower& tower = towers[i - 1];
    record.Switch[i] = tower.Switch;
    record.Fields[i] = tower.Field;
    record.Phases[i] = tower.Phase;
    record.Spacings[i] = tower.Spacing;
    record.Bearings[i] = tower.Bearing;
  }
  return record;
}

PatternValues Compute(const std::vector<Tower>& towers, const char* hours = "N", float power = 1) {
  StationRecord record = Record(towers, hours, power);
  PatternValues values{};
  EXPECT_TRUE(ComputePattern(record, values));
  return values;
}

float LargestDifference(const PatternValues& a, const PatternValues& b) {
  float largest = 0;
  for (std::size_t i = 0; i < a.size(); ++i) largest = std::max(largest, std::abs(a[i] - b[i]));
  return largest;
}

std::vector<Tower> RandomArray(std::mt19937& random) {
  const auto real = [&random](float to) { return std::uniform_real_distribution<float>(0, to)(random); };
  std::vector<Tower> towers(1 + random() % MaxTowers);
  for (Tower& tower : towers) tower = {real(2) + 0.01F, real(360) - 180, real(500), real(360)};
  return towers;
}

TEST(PatternTest, ASingleTowerIsACircleBySizeOfPowerAndHours) {
  const struct {
    const char* hours;
    float power, magnitude;
  } rows[] = {{"N", 1, 2},
              {"C", 1, 2},
              {"u", 1, 2},
              {"U", 1, 2.02F},
              {"D", 1, 1.98F},
              {"N", 10, 4.1422F},
              {"U", 0.25F, 1.30308F},
              {"N", 0, 0}};
  for (const auto& row : rows)
    for (const Tower& tower : {Tower{1, 0, 0, 0}, Tower{0.03F, -77, 90, 211}, Tower{5, 3, 400, 12, "1"}}) {
      const PatternValues values = Compute({tower}, row.hours, row.power);
      for (const float value : values)
        ASSERT_NEAR(value, row.magnitude, 2e-4) << row.hours << ' ' << row.power;
    }
}

/// Two towers on a line to 70 degrees, values relative to the largest, by angle from the line.
TEST(PatternTest, TextbookPairs) {
  constexpr int kAngles[] = {0, 30, 45, 60, 90, 120, 135, 150, 180};
  constexpr int kLine = 70;
  const struct {
    float spacing, phase;
    float relative[9];
  } rows[] = {{180, 0, {0, .2089F, .4440F, .7071F, 1, .7071F, .4440F, .2089F, 0}},
              {180, -180, {1, .9779F, .8960F, .7071F, 0, .7071F, .8960F, .9779F, 1}},
              {90, -90, {1, .9945F, .9737F, .9239F, .7071F, .3827F, .2280F, .1050F, 0}}};
  for (const auto& row : rows) {
    const PatternValues values = Compute({{1, 0, 0, 0}, {1, row.phase, row.spacing, kLine}});
    for (int i = 0; i < 9; ++i)
      for (const int side : {-1, 1}) {
        const int azimuth = (kLine + side * kAngles[i] + 360) % 360;
        EXPECT_NEAR(values[static_cast<std::size_t>(azimuth)], row.relative[i] * 2 * std::sqrt(2.0), 2e-4)
            << row.spacing << ' ' << row.phase << ' ' << azimuth;
      }
  }
}

TEST(PatternTest, ChainedTowersStandFromTheOneBefore) {
  StationRecord record = Record({{1, 0, 0, 0}, {1, 0, 90, 40}, {1, 0, 120, 130, "1"}, {1, 0, 60, 350, " 0"}});
  PatternValues values;
  ASSERT_TRUE(ComputePattern(record, values));
  EXPECT_EQ(record.Spacings[2], 90);
  EXPECT_EQ(record.Bearings[2], 40);
  EXPECT_NEAR(record.Spacings[3], 150, 1e-3);
  EXPECT_NEAR(record.Bearings[3], 93.1301, 1e-3);
  EXPECT_NEAR(record.Spacings[4], 148.3613, 1e-3);
  EXPECT_NEAR(record.Bearings[4], 69.9361, 1e-3);
  const PatternValues resolved =
      Compute({{1, 0, 0, 0}, {1, 0, 90, 40}, {1, 0, 150, 93.1301F}, {1, 0, 148.3613F, 69.9361F}});
  EXPECT_LT(LargestDifference(values, resolved), 1e-4);
}

TEST(PatternTest, PropertiesOfAnyArray) {
  std::mt19937 random(4);
  for (int round = 0; round < 40; ++round) {
    const std::vector<Tower> towers = RandomArray(random);
    const PatternValues values = Compute(towers);
    EXPECT_NEAR(values[360], values[0], 1e-4) << round;

    // The squares of the fields sum to 4, so no magnitude passes 2 sqrt(n), and ratios alone count.
    const float most = *std::max_element(values.begin(), values.end());
    EXPECT_LE(most, 2 * std::sqrt(static_cast<float>(towers.size())) + 1e-4) << round;
    std::vector<Tower> changed = towers;
    for (Tower& tower : changed) tower.Field *= 123;
    EXPECT_LT(LargestDifference(Compute(changed), values), 1e-4) << round;

    changed = towers;
    std::shuffle(changed.begin(), changed.end(), random);
    EXPECT_LT(LargestDifference(Compute(changed), values), 1e-4) << "order " << round;

    // Every tower moved by the same vector, here by chaining all to a point far from the reference.
    changed = towers;
    for (Tower& tower : changed) {
      const double radian = 3.14159265358979 / 180;
      const double east = tower.Spacing * std::sin(tower.Bearing * radian) + 130;
      const double north = tower.Spacing * std::cos(tower.Bearing * radian) - 310;
      tower.Spacing = static_cast<float>(std::hypot(east, north));
      tower.Bearing = static_cast<float>(std::atan2(east, north) / radian);
    }
    EXPECT_LT(LargestDifference(Compute(changed), values), 2e-4) << "translation " << round;

    changed = towers;
    for (Tower& tower : changed) tower.Bearing += 97;
    const PatternValues turned = Compute(changed);
    for (std::size_t azimuth = 0; azimuth < 360; ++azimuth)
      ASSERT_NEAR(turned[(azimuth + 97) % 360], values[azimuth], 2e-4) << "rotation " << round;

    changed = towers;
    for (Tower& tower : changed) tower.Bearing = tower.Phase < 0 ? 25 : 205;
    const PatternValues inLine = Compute(changed);
    for (std::size_t angle = 0; angle < 180; ++angle)
      ASSERT_NEAR(inLine[(25 + angle) % 360], inLine[(385 - angle) % 360], 2e-4) << "symmetry " << round;
  }
}

TEST(PatternTest, StopsWithTheValuesUnchanged) {
  const PatternValues nothing = Compute({});  // no towers are no reason to stop
  EXPECT_EQ(std::count(nothing.begin(), nothing.end(), 0), 361);

  const float huge = std::numeric_limits<float>::max();
  const struct {
    std::vector<Tower> towers;
    float power;
  } rows[] = {
      {{{0, 0, 0, 0}, {0, 0, 90, 0}}, 1},
      {{{-1, 0, 0, 0}, {-.5F, 0, 90, 0}}, 1},
      {{{1, 0, 0, 0}}, -1},
      {{{1, 0, huge, 90}, {1, 0, huge, 90, "1"}}, 1},  // a chain out of all bounds
  };
  for (const auto& row : rows) {
    StationRecord record = Record(row.towers, "N", row.power);
    PatternValues values;
    values.fill(7);
    EXPECT_FALSE(ComputePattern(record, values));
    EXPECT_EQ(std::count(values.begin(), values.end(), 7), 361);
  }
  // A negative ratio beside a positive one is a tower in opposite phase.
  EXPECT_LT(LargestDifference(Compute({{1, 0, 0, 0}, {-.5F, 0, 90, 0}}),
                              Compute({{1, 0, 0, 0}, {.5F, 180, 90, 0}})),
            1e-5);
}

}  // namespace
}  // namespace kestrel
