#include "core/Geodesy.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kestrel {
namespace {

TEST(ArcCosineTest, IsExactAtTheEndsAndLimitsBeyond) {
  EXPECT_EQ(ArcCosine(1), 0);
  EXPECT_EQ(ArcCosine(-1), 3.14159265);
  EXPECT_EQ(ArcCosine(0), 1.5707963267949);
  EXPECT_EQ(ArcCosine(1.0000001), 0);
  EXPECT_EQ(ArcCosine(-1.0000001), 3.14159265);
  for (double x = -0.999; x < 1; x += 0.037) EXPECT_NEAR(ArcCosine(x), std::acos(x), 1e-12) << x;
}

/// Of two bearings, 0 to 180.
double Apart(double a, double b) {
  return std::abs(std::remainder(a - b, 360));
}

TEST(GreatCircleTest, KnownCourses) {
  // Published distances stand for a sphere of 6371 km, 111.195 km per degree.
  constexpr float kPublished = 111.44F / 111.195F;
  const struct {
    float homeLatitude, homeWest, latitude, west;
    float kilometres, bearing;
  } rows[] = {
      {40, 75, 40, 80, 426.8F, 271.6F},
      {40, 75, 40, 70, 426.8F, 88.4F},
      {40, 75, 50, 75, 1114.4F, 0},
      {40, 75, 30, 75, 1114.4F, 180},
      {0, 75, 0, 165, 10029.6F, 270},
      {0, 75, 0, -15, 10029.6F, 90},
      {-10, 179, -10, -179, 219.48F, 269.83F},  // across the date line, 2 degrees of longitude
      {40.6413F, 73.7781F, 51.47F, 0.4543F, 5540 * kPublished, 51.3F},     // New York to London
      {33.9425F, 118.408F, 40.6413F, 73.7781F, 3974 * kPublished, 65.9F},  // Los Angeles to New York
  };
  for (const auto& row : rows) {
    const GreatCircleResult result = GreatCircle({row.homeLatitude, row.homeWest}, {row.latitude, row.west});
    EXPECT_NEAR(result.Distance, row.kilometres, 0.1 + row.kilometres * 3e-4)
        << row.latitude << ' ' << row.west;
    EXPECT_LT(Apart(result.Bearing, row.bearing), 0.1)
        << row.latitude << ' ' << row.west << ' ' << result.Bearing;
  }
}

TEST(GreatCircleTest, EndsOfTheSphereAndTheSamePoint) {
  for (const float latitude : {-88.0F, -41.3F, 0.0F, 33.24278F, 47.7F, 90.0F})
    for (const float west : {-180.0F, 0.0F, 96.54139F, 170.0F}) {
      const GreatCircleResult same = GreatCircle({latitude, west}, {latitude, west});
      EXPECT_LT(same.Distance, 3.2F) << latitude << ' ' << west;
      if (same.Distance == 0) {
        EXPECT_EQ(same.Bearing, 90) << latitude << ' ' << west;
      }
      const GreatCircleResult antipode = GreatCircle({latitude, west}, {-latitude, west - 180});
      EXPECT_NEAR(antipode.Distance, 180 * 111.44, 3.2) << latitude << ' ' << west;
      EXPECT_TRUE(antipode.Bearing >= 0 && antipode.Bearing <= 360);
      EXPECT_NEAR(GreatCircle({latitude, west}, {90, west}).Distance, (90 - latitude) * 111.44, 3.2);
      EXPECT_NEAR(GreatCircle({latitude, west}, {-90, west}).Distance, (90 + latitude) * 111.44, 3.2);
    }
  EXPECT_EQ(GreatCircle({0, 75}, {0, 75}).Distance, 0);
  EXPECT_EQ(GreatCircle({0, 75}, {0, 75}).Bearing, 90);
}

TEST(PolarSumTest, AddsPlaneOffsetsWithinTheCircle) {
  const struct {
    PolarOffset first, second, sum;
  } rows[] = {{{90, 0}, {90, 90}, {127.2792F, 45}},
              {{90, 0}, {0, 0}, {90, 0}},
              {{0, 0}, {90, 225}, {90, 225}},
              {{10, 180}, {10, 180}, {20, 180}},
              {{50, 300}, {20, 300}, {70, 300}},
              {{30, 120}, {40, 210}, {50, 173.1301F}},
              {{0, 0}, {0, 0}, {0, 0}},
              {{-90, 0}, {0, 0}, {90, 180}},
              {{120, 130}, {90, 40}, {150, 93.1301F}},
              {{60, 350}, {150, 93.1301F}, {148.3613F, 69.9361F}}};
  for (const auto& row : rows) {
    const PolarOffset sum = PolarSum(row.first, row.second);
    EXPECT_NEAR(sum.Spacing, row.sum.Spacing, 2e-4) << row.first.Spacing << '@' << row.first.Bearing;
    EXPECT_LT(Apart(sum.Bearing, row.sum.Bearing), 2e-4) << sum.Bearing;
  }
  EXPECT_NEAR(PolarSum({90, 90}, {90, 270}).Spacing, 0, 1e-4);
  for (float a = 0; a < 360; a += 7.5F)
    for (float b = 0; b < 360; b += 7.5F) {
      const float bearing = PolarSum({100, a}, {60, b}).Bearing;
      EXPECT_TRUE(bearing >= 0 && bearing < 360) << a << ' ' << b << ' ' << bearing;
    }
}

}  // namespace
}  // namespace kestrel
