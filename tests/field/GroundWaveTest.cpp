#include "field/GroundWave.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kestrel {
namespace {

double MillivoltsAt(double frequency, double conductivity, double kilometres) {
  return std::pow(10, (GroundWave(frequency, conductivity).LevelAt(kilometres) - 60) / 20);
}

TEST(GroundWaveTest, KnownFields) {
  // mV/m for 100 mV/m at 1 km: an exact solution, the worked examples of 47 CFR 73.183, and a reading of the
  // FCC's graph for 1560 kHz.
  const struct {
    double frequency, conductivity, kilometres, field, tolerance;
  } rows[] = {
      {1000, 8, 1, 94.45, 0.001},       {1000, 8, 10, 6.820, 0.001},     {1000, 8, 20, 2.481, 0.001},
      {1000, 8, 50, 0.4379, 0.001},     {1000, 8, 100, 0.08291, 0.002},  {1000, 8, 200, 0.01302, 0.002},
      {1000, 8, 500, 0.000400, 0.003},  {1000, 5000, 10, 9.957, 0.001},  {1000, 5000, 200, 0.3580, 0.002},
      {1000, 5000, 500, 0.0574, 0.002}, {1000, 5000, 50, 1.914, 0.001},  {1000, 5000, 100, 0.8859, 0.002},
      {550, 5000, 10, 9.971, 0.001},    {550, 5000, 100, 0.9151, 0.002}, {550, 5000, 200, 0.3903, 0.002},
      {1000, 5, 14.92, 2.84, 0.004},    {550, 5000, 50, 1.938, 0.001},   {550, 5000, 500, 0.0776, 0.002},
      {1000, 10, 20, 2.84, 0.004},      {1000, 5, 36.11, 0.5, 0.004},    {1000, 5, 44.92, 0.304, 0.004},
      {1000, 15, 82.94, 0.304, 0.004},  {1000, 6, 62.5, 0.1773, 0.004},  {1560, 0.1, 1, 30.5, 0.005}};
  for (const auto& [frequency, conductivity, kilometres, field, tolerance] : rows)
    EXPECT_NEAR(MillivoltsAt(frequency, conductivity, kilometres) / field, 1, tolerance)
        << frequency << ' ' << conductivity << ' ' << kilometres;
}

TEST(GroundWaveTest, FallsSteadilyOnEveryGroundAndAtEveryDistance) {
  for (const double frequency : {530.0, 1700.0})
    for (const double conductivity : {1e-9, 0.01, 1.0, 5.0, 30.0, 999.0, 1000.0, 10000.0}) {
      const GroundWave wave(frequency, conductivity);
      EXPECT_EQ(wave.LevelAt(0), wave.LevelAt(1));
      EXPECT_LT(wave.LevelAt(1), 100.5);
      double last = wave.LevelAt(1);
      for (double kilometres = 1.01; kilometres < 30000; kilometres *= 1.07) {
        const double level = wave.LevelAt(kilometres);
        EXPECT_LT(level, last) << frequency << ' ' << conductivity << ' ' << kilometres;
        last = level;
      }
    }
  EXPECT_GT(GroundWave(1000, 30).LevelAt(50), GroundWave(1000, 1).LevelAt(50));
}

}  // namespace
}  // namespace kestrel
