#include "map/MapProjection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "core/Geodesy.h"

namespace kestrel {
namespace {

constexpr float kDegreesPer75Km = 75 / 111.44F;

Point Vertex(const MapProjection& projection, float latitude, float east) {
  Point point;
  projection.Vertices({&latitude, 1}, {&east, 1}, {&point, 1});
  return point;
}

void ExpectNear(Point point, Point wanted, float tolerance) {
  EXPECT_NEAR(point.x, wanted.x, tolerance);
  EXPECT_NEAR(point.y, wanted.y, tolerance);
}

TEST(MapProjectionTest, KnownPlaces) {
  const MapProjection equator({0, 75}, 1000);
  ExpectNear(*equator.Station({kDegreesPer75Km, 75}), {6000, 3500}, 0.01F);
  ExpectNear(*equator.Station({-kDegreesPer75Km, 75}), {6000, 5500}, 0.01F);
  ExpectNear(*equator.Station({0, 75 + kDegreesPer75Km}), {5000, 4500}, 0.01F);
  ExpectNear(*equator.Station({0, 75 - kDegreesPer75Km}), {7000, 4500}, 0.01F);
  ExpectNear(Vertex(equator, 0, 285 + kDegreesPer75Km), {7000, 4500}, 0.05F);
  EXPECT_EQ(*equator.Station({0, 75}), HomeOnSheet);
  EXPECT_EQ(Vertex(equator, 0, 285), HomeOnSheet);

  // 5000 km away: a station at the limit, a vertex where it falls.
  const float far = 5000 / 111.44F;
  ExpectNear(*equator.Station({far, 75}), {6000, -30000}, 0.01F);
  ExpectNear(*equator.Station({0, 75 + far}), {-30000, 4500}, 0.01F);
  ExpectNear(*equator.Station({0, 75 - far}), {30000, 4500}, 0.01F);
  ExpectNear(Vertex(equator, far, 285), {6000, 4500 - 66666.67F}, 0.1F);
}

TEST(MapProjectionTest, AWestLongitudeAndItsEastOneAreOnePlace) {
  const MapProjection projection({40, 75}, 100);
  for (const float west : {75.25F, -10.0F, 100.0F, 170.0F, 180.0F})
    for (const float latitude : {-55.0F, 0.0F, 40.5F, 71.0F}) {
      const Point station = *projection.Station({latitude, west});
      ExpectNear(Vertex(projection, latitude, 360 - west), station, 0.02F);
      ExpectNear(Vertex(projection, latitude, -west), station, 0.02F);
    }
  EXPECT_EQ(LongitudeInRange(190), -170);
  EXPECT_EQ(LongitudeInRange(-190), 170);
  EXPECT_EQ(LongitudeInRange(180), 180);
  EXPECT_EQ(LongitudeInRange(-180), -180);
  EXPECT_EQ(LongitudeInRange(260), -100);
  EXPECT_EQ(LongitudeInRange(540), 180);
  EXPECT_EQ(LongitudeInRange(900), 180);
  EXPECT_EQ(LongitudeInRange(901), 181);  // two turns at most
}

TEST(MapProjectionTest, WhatHasNoPositionIsLeftOut) {
  const MapProjection projection({40, 75}, 100);
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const float infinite = std::numeric_limits<float>::infinity();
  for (const float bad : {nan, infinite, -infinite}) {
    EXPECT_FALSE(projection.Station({bad, 75}));
    EXPECT_FALSE(projection.Station({40, bad}));
    EXPECT_TRUE(std::isnan(Vertex(projection, bad, 285).x));
    EXPECT_TRUE(std::isnan(Vertex(projection, 40, bad).y));
  }
  // Numbers that are no place on earth still fall somewhere on the sheet.
  for (const float odd : {1e30F, -3e38F, 1000.0F}) EXPECT_TRUE(projection.Station({odd, odd}));
}

/// A course placed as the projection's formulas say.
Point Placed(double kilometres, double bearing) {
  const double radius = kilometres * 200 / 75;
  return {static_cast<float>(6000 + radius * std::sin(bearing / 57.29578)),
          static_cast<float>(4500 - radius * std::cos(bearing / 57.29578))};
}

/// The law of cosines as GreatCircle has it, but in doubles throughout.
Point ByCosines(double homeLatitude, double homeWest, double latitude, double west) {
  const double radian = 3.14159265358979323846 / 180;
  const double phi1 = homeLatitude * radian, phi2 = latitude * radian, lambda = (homeWest - west) * radian;
  const double cosArc = std::sin(phi1) * std::sin(phi2) + std::cos(phi2) * std::cos(phi1) * std::cos(lambda);
  const double arc = std::acos(std::clamp(cosArc, -1.0, 1.0));
  const double cosBearing = (std::sin(phi2) - cosArc * std::sin(phi1)) / (std::sin(arc) * std::cos(phi1));
  const double bearing = std::acos(std::clamp(cosBearing, -1.0, 1.0)) / radian;
  return Placed(arc / radian * 111.44, std::sin(lambda) < 0 ? -bearing : bearing);
}

float Apart(Point a, Point b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

/// Everything from 200 km to 9000 km agrees to 0.05 twip at scale 200 with the definition, and with
/// GreatCircle itself as far as its stored singles go: they do not resolve bearings close to north and south,
/// nor next to a pole, so there the distance alone is compared.
TEST(MapProjectionTest, AgreesWithTheGreatCircle) {
  int compared = 0;
  for (const float homeLatitude : {-87.0F, -60.0F, -30.0F, 0.0F, 33.24278F, 45.0F, 60.0F, 87.0F})
    for (const float homeWest : {-179.9F, 30.0F, 96.54139F, 180.0F}) {
      const MapProjection projection({homeLatitude, homeWest}, 200);
      for (float latitude = -78; latitude <= 80; latitude += 6.3F)
        for (float west = -178; west < 180; west += 17.7F) {
          const GreatCircleResult course = GreatCircle({homeLatitude, homeWest}, {latitude, west});
          if (course.Distance < 200 || course.Distance > 9000) continue;
          SCOPED_TRACE(testing::Message()
                       << homeLatitude << ' ' << homeWest << ' ' << latitude << ' ' << west);
          ++compared;
          const Point exact = *projection.Station({latitude, west});
          EXPECT_LT(Apart(exact, Vertex(projection, latitude, -west)), 0.01);
          EXPECT_LT(Apart(exact, ByCosines(homeLatitude, homeWest, latitude, west)), 0.05);
          const double radius = Apart(exact, HomeOnSheet);
          EXPECT_NEAR(course.Distance * 200 / 75, radius, 0.05);
          if (std::abs(homeLatitude) > 60 || std::abs(exact.x - 6000) < 0.1 * radius) continue;
          EXPECT_LT(Apart(exact, Placed(course.Distance, course.Bearing)), 0.05);
        }
    }
  EXPECT_GT(compared, 5000);
}

/// Next to home, where GreatCircle is coarse, a plane is the measure: 100 m steps at the closest scale.
TEST(MapProjectionTest, IsPreciseNextToHome) {
  for (const float homeLatitude : {-30.0F, 33.24278F, 60.0F}) {
    const MapProjection projection({homeLatitude, 96.54139F}, 10000);
    for (int step = -20; step <= 20; ++step) {
      const float latitude = homeLatitude + 0.001F * static_cast<float>(step);
      const float west = 96.54139F + 0.001F * static_cast<float>(step);
      const double north = (double{latitude} - homeLatitude) * 111.44 / 75 * 10000;
      const double east =
          -(double{west} - 96.54139F) * 111.44 / 75 * 10000 * std::cos(homeLatitude / 57.29578);
      const Point point = *projection.Station({latitude, west});
      EXPECT_NEAR(point.x, 6000 + east, 0.2) << homeLatitude << ' ' << step;
      EXPECT_NEAR(point.y, 4500 - north, 0.2) << homeLatitude << ' ' << step;
    }
  }
}

}  // namespace
}  // namespace kestrel
