#pragma once

#include <random>
#include <vector>

#include "data/StationFile.h"

// What the fast code and the straight code are compared on.

namespace kestrel {

/// Arrays of 1 to 12 towers: some of any angle, some of whole degrees and equal fields, whose nulls are deep.
inline std::vector<StationRecord> SampleArrays(int count, unsigned seed) {
  std::mt19937 random(seed);
  const auto pick = [&](double low, double high) {
    return static_cast<float>(std::uniform_real_distribution<double>(low, high)(random));
  };
  std::vector<StationRecord> records;
  for (int n = 0; n < count; ++n) {
    const bool regular = n % 3 == 0;
    StationRecord record;
    record.HoursCode = std::string(1, "NDUC"[n % 4]);
    record.PowerKW = pick(0.1, 50);
    record.TowerCount = static_cast<std::int16_t>(1 + n % MaxTowers);
    for (std::size_t i = 1; i <= static_cast<std::size_t>(record.TowerCount); ++i) {
      record.Switch[i] = n % 5 == 0 ? "-1" : "0";
      record.Fields[i] = regular ? 1 : pick(0.05, 2);
      record.Phases[i] = regular ? -90.0F * static_cast<float>(i - 1) : pick(-400, 400);
      record.Spacings[i] = regular ? 90.0F * static_cast<float>(i - 1) : pick(0, 2000);
      record.Bearings[i] = regular ? static_cast<float>(n % 360) : pick(-360, 720);
    }
    records.push_back(record);
  }
  return records;
}

/// A sphere's worth of vertices, the poles, the date line and multiples of 90 degrees among them.
struct SampleVertices {
  std::vector<float> Latitudes;
  std::vector<float> Longitudes;
};

inline SampleVertices SampleSphere(int count, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<float> latitude(-90, 90);
  std::uniform_real_distribution<float> longitude(-200, 540);
  SampleVertices vertices;
  for (int n = 0; n < count; ++n) {
    vertices.Latitudes.push_back(n % 10 == 0 ? static_cast<float>(n / 10 % 5 * 45 - 90) : latitude(random));
    vertices.Longitudes.push_back(n % 7 == 0 ? static_cast<float>(n / 7 % 17 * 45 - 180) : longitude(random));
  }
  return vertices;
}

}  // namespace kestrel
