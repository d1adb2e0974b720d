#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "Samples.h"
#include "levels/Levels.h"

// The kernels give the same bytes at every vector level that the machine has.

namespace kestrel {
namespace {

TEST(LevelsTest, SweepGivesTheSameBytes) {
  for (const StationRecord& record : SampleArrays(500, 11)) {
    SweepTower towers[MaxTowers];
    for (std::size_t i = 0; i < static_cast<std::size_t>(record.TowerCount); ++i)
      towers[i] = {record.Fields[i + 1], record.Spacings[i + 1] / 57.3, record.Bearings[i + 1] / 57.3,
                   record.Phases[i + 1] / 57.3};
    float expected[PatternAzimuths];
    SweepPattern(towers, record.TowerCount, expected);
    for (const Level& level : LevelsHere()) {
      float magnitudes[PatternAzimuths];
      level.Sweep(towers, record.TowerCount, magnitudes);
      ASSERT_EQ(std::memcmp(magnitudes, expected, sizeof expected), 0) << level.Name;
    }
  }
}

TEST(LevelsTest, ProjectionGivesTheSameBytes) {
  const SampleVertices vertices = SampleSphere(10007, 5);
  const std::size_t count = vertices.Latitudes.size();
  const ProjectionCenter home = {0.5481822, 0.8363609, -96.54139, 17000};
  std::vector<float> expected(2 * count);
  PlaceVertices(home, vertices.Latitudes.data(), vertices.Longitudes.data(), expected.data(), count);
  for (const Level& level : LevelsHere()) {
    std::vector<float> places(2 * count);
    level.Place(home, vertices.Latitudes.data(), vertices.Longitudes.data(), places.data(), count);
    EXPECT_EQ(std::memcmp(places.data(), expected.data(), sizeof(float) * places.size()), 0) << level.Name;
    // One by one: the loop's remainder does what its vectors do.
    for (std::size_t i = 0; i < count; ++i)
      level.Place(home, &vertices.Latitudes[i], &vertices.Longitudes[i], &places[2 * i], 1);
    EXPECT_EQ(std::memcmp(places.data(), expected.data(), sizeof(float) * places.size()), 0) << level.Name;
  }
}

TEST(LevelsTest, MixingGivesTheColorsOfTheFormula) {
  // Every share of ink over colours of all kinds, in rows with blank eights among them.
  constexpr int kEights = 3, kRows = 96, kStep = 29;
  std::mt19937 random(3);
  std::vector<std::uint8_t> ink(kRows * kStep);
  std::vector<QRgb> below(kRows * kStep);
  for (std::size_t i = 0; i < ink.size(); ++i) {
    ink[i] = i / 8 % 3 == 0 ? 0 : static_cast<std::uint8_t>(i);
    below[i] = 0xFF000000 | (random() & 0xFFFFFF);
  }
  const QRgb color = 0xFF12C0FE;
  std::vector<QRgb> expected = below;
  for (std::size_t i = 0; i < ink.size(); ++i)
    if (i % kStep < 8 * kEights) expected[i] = Mixed(color, below[i], ink[i]);
  for (const Level& level : LevelsHere()) {
    std::vector<QRgb> pixels = below;
    level.Mix(color, {ink.data(), kStep}, {pixels.data(), kStep}, kEights, kRows);
    EXPECT_EQ(pixels, expected) << level.Name;

    // A row of all 64, of which some are laid; the others keep their colours and their ink.
    constexpr std::uint64_t kLaid = 0xA5000F0F0FF00081;
    std::vector<std::uint8_t> row(ink.begin(), ink.begin() + 512);
    pixels = below;
    level.Lay(color, row.data(), pixels.data(), kLaid);
    for (std::size_t i = 0; i < 8 * 64; ++i) {
      const bool laid = kLaid >> i / 8 & 1;
      EXPECT_EQ(pixels[i], laid ? Mixed(color, below[i], ink[i]) : below[i]) << level.Name << ' ' << i;
      EXPECT_EQ(row[i], laid ? 0 : ink[i]) << level.Name << ' ' << i;
    }
  }
}

}  // namespace
}  // namespace kestrel
