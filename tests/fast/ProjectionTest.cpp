#include <gtest/gtest.h>

#include <cmath>

#include "Samples.h"
#include "straight/Formulas.h"
#include "straight/Reading.h"

namespace kestrel {
namespace {

struct Home {
  float Latitude;
  float Longitude;  // west positive
};
constexpr Home kHomes[] = {
    {33.24278F, 96.54139F}, {60, 45}, {-30, 170}, {0, 0}, {88, 180}, {-88, 30}, {90, 0}};

std::vector<Point> Places(const MapProjection& projection, const SampleVertices& vertices) {
  std::vector<Point> points(vertices.Latitudes.size());
  projection.Vertices(vertices.Latitudes, vertices.Longitudes, points);
  return points;
}

/// The same single, its neighbour, or within a hundredth of a twip.
void ExpectSamePlace(float fast, float straight) {
  if (std::nextafter(fast, straight) == straight) return;
  EXPECT_NEAR(fast, straight, 0.01);
}

void ExpectSamePlaces(const Home& home, float scale, const SampleVertices& vertices) {
  const std::vector<Point> fast = Places(MapProjection({home.Latitude, home.Longitude}, scale), vertices);
  for (std::size_t i = 0; i < fast.size(); ++i) {
    const Point straight =
        straight::Place(home.Latitude, home.Longitude, scale, vertices.Latitudes[i], vertices.Longitudes[i]);
    // Near the point opposite home the direction, and so the place, hangs on the last bits.
    const double reach = std::hypot(straight.x - 6000, straight.y - 4500) / scale * 75 / 111.44;
    if (reach > 179.999) continue;
    ExpectSamePlace(fast[i].x, straight.x);
    ExpectSamePlace(fast[i].y, straight.y);
    if (testing::Test::HasFailure()) FAIL() << vertices.Latitudes[i] << ' ' << vertices.Longitudes[i];
  }
}

TEST(ProjectionTest, SineAndCosineAreAsExactAsStated) {
  constexpr double kStated = 3.5e-12;
  for (int i = -72'000; i <= 72'000; ++i) {
    const double degrees = i / 100.0;
    const auto [sine, cosine] = SineAndCosine(degrees);
    ASSERT_NEAR(sine, std::sin(degrees * 3.14159265358979324 / 180), kStated) << degrees;
    ASSERT_NEAR(cosine, std::cos(degrees * 3.14159265358979324 / 180), kStated) << degrees;
    if (i % 9000 != 0) continue;
    const int quarter = (i / 9000 % 4 + 4) % 4;
    EXPECT_EQ(sine, quarter == 1 ? 1 : quarter == 3 ? -1 : 0) << degrees;
    EXPECT_EQ(cosine, quarter == 0 ? 1 : quarter == 2 ? -1 : 0) << degrees;
  }
}

TEST(ProjectionTest, VerticesLieWhereTheStraightFormulaPutsThem) {
  const SampleVertices vertices = SampleSphere(20000, 7);
  for (const Home& home : kHomes)
    for (const float scale : {50.0F, 200.0F, 10000.0F})
      ASSERT_NO_FATAL_FAILURE(ExpectSamePlaces(home, scale, vertices));
}

TEST(ProjectionTest, OutlinesLieWhereTheStraightFormulaPutsThem) {
  const Outline outline = straight::ReadOutline(std::string(KESTREL_SHARE_DIR) + "/REGION2.dat");
  ASSERT_GT(outline.Latitude.size(), 10000U);
  ASSERT_NO_FATAL_FAILURE(ExpectSamePlaces(kHomes[0], 200, {outline.Latitude, outline.Longitude}));
}

TEST(ProjectionTest, HomeIsExactAndHostileAnglesKeepTheirPlace) {
  const MapProjection projection({33.24278F, 96.54139F}, 10000);
  EXPECT_EQ(projection.Station({33.24278F, 96.54139F}), HomeOnSheet);
  EXPECT_EQ(MapProjection({40, 75}, 1000).Station({40.5F, 75})->x, 6000);
  const SampleVertices hostile = {{1e7F, 3.4e38F, -1e20F, 1, 1}, {1, 1, 1, 2e6F, -3.4e38F}};
  const std::vector<Point> fast = Places(projection, hostile);
  for (std::size_t i = 0; i < fast.size(); ++i) {
    const Point straight =
        straight::Place(33.24278F, 96.54139F, 10000, hostile.Latitudes[i], hostile.Longitudes[i]);
    ExpectSamePlace(fast[i].x, straight.x);
    ExpectSamePlace(fast[i].y, straight.y);
  }
  EXPECT_FALSE(projection.Station({std::nanf(""), 0}));
  EXPECT_FALSE(projection.Station({0, std::nanf("")}));
  EXPECT_TRUE(MapProjection({3e38F, -3e38F}, 200).Station({10, 20}));
}

}  // namespace
}  // namespace kestrel
