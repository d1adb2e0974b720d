#include "pattern/Radiation.h"

#include <gtest/gtest.h>

#include "Samples.h"
#include "straight/Antenna.h"

namespace kestrel {
namespace {

/// Sample arrays of spacings as antennas have them, heights mixed.
std::vector<StationRecord> Antennas() {
  std::vector<StationRecord> records = SampleArrays(150, 19);
  for (std::size_t n = 0; n < records.size(); ++n)
    for (std::size_t i = 1; i <= MaxTowers; ++i) {
      records[n].Spacings[i] = std::min(records[n].Spacings[i], 600.0F);
      records[n].Heights[i] = static_cast<float>((n * 37 + (n % 4 == 0 ? 0 : i * 61)) % 300);
    }
  return records;
}

TEST(RadiationTest, GivesTheStraightFormulasField) {
  for (const StationRecord& record : Antennas()) {
    const Radiation fast(record);
    const straight::Antenna straight(record);
    EXPECT_NEAR(fast.Constant() / straight.K, 1, 1e-7) << record.TowerCount;
    for (const double elevation : {0.0, 7.5, 31.0, 88.0})
      for (double azimuth = 0; azimuth < 360; azimuth += 41)
        EXPECT_NEAR(fast.FieldAt(azimuth, elevation) / straight.FieldAt(azimuth, elevation), 1, 1e-7)
            << record.TowerCount << ' ' << azimuth << ' ' << elevation;
  }
}

TEST(RadiationTest, StraightFormulasGiveTheTextbooksFields) {
  StationRecord record;
  record.PowerKW = 1;
  record.TowerCount = 1;
  record.Switch[1] = "0";
  record.Fields[1] = 1;
  const struct {
    float height;
    double lossless, field;
  } rows[] = {{1, 299.9, 16.5},     {10, 300.05, 145.2},  {30, 301.28, 259.1},
              {60, 305.65, 294.4},  {90, 313.67, 309.5},  {120, 326.74, 324.6},
              {180, 380.21, 378.3}, {190, 394.52, 392.4}, {225, 443.64, 439.5}};
  for (const auto& [height, lossless, field] : rows) {
    record.Heights[1] = height;
    const straight::Antenna antenna(record);
    EXPECT_NEAR(antenna.K0, lossless, 0.006) << height;
    EXPECT_NEAR(antenna.K, field, 0.06) << height;
  }
}

}  // namespace
}  // namespace kestrel
