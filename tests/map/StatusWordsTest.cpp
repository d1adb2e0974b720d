#include "map/StatusWords.h"

#include <gtest/gtest.h>

#include <cmath>

#include "map/MapProjection.h"
#include "map/Sheet.h"

namespace kestrel {
namespace {

TEST(StatusWordsTest, APlaceOfTheSheetIsWhatIsDrawnThere) {
  for (const Position home : {Position{33.24278F, 96.54139F}, Position{-55, 68}, Position{71, 156.7F}}) {
    const MapProjection projection(home, 200);
    for (const Position place : {Position{42.35F, 71.05F}, Position{-33, -18}, Position{21, 157}, home}) {
      const std::optional<Point> drawn = projection.Station(place);
      ASSERT_TRUE(drawn);
      if (std::abs(drawn->x) >= CoordinateLimit || std::abs(drawn->y) >= CoordinateLimit) continue;
      const std::optional<Position> read = projection.PlaceAt(*drawn);
      ASSERT_TRUE(read);
      EXPECT_NEAR(read->Latitude, place.Latitude, 1e-3);
      EXPECT_NEAR(std::remainder(read->Longitude - place.Longitude, 360), 0, 1e-3);
    }
  }
}

TEST(StatusWordsTest, TheLineTellsPlaceDistanceAndBothBearings) {
  SessionState state;
  state.HomeLatitude = 40;
  state.HomeLongitude = 75;
  const auto at = [&](Position place) {
    return MouseWords(state, *MapProjection(state.Home(), state.ScaleFactor).Station(place));
  };
  EXPECT_EQ(at({40, 80}),
            "40.000 N, 80.000 W    426.7 km, 271.6 deg from home, which lies at 88.3 deg from there");
  state.DistanceUnit = 1;
  EXPECT_EQ(at({50, -10}).substr(0, 20), "50.000 N, 10.000 E  ");
  EXPECT_EQ(at({-12, 60}).substr(0, 20), "12.000 S, 60.000 W  ");
  EXPECT_NE(at({40, 80}).find("265.1 mi"), std::string::npos);
  state.ScaleFactor = 50;
  EXPECT_EQ(MouseWords(state, {6000, 4500 - 50 * 180 * 112 / 75.0F}), "") << "beyond the opposite point";
}

TEST(StatusWordsTest, TheMapAtRest) {
  SessionState state;
  EXPECT_EQ(StationCount({{{1, 1}, 620, "QA", "D"},
                          {{1, 1}, 620, "QA", "N"},
                          {{2, 1}, 620, "QA", "U"},
                          {{1, 1}, 630, "QA", "D"}}),
            3U);
  EXPECT_EQ(ShownWords(state, 3, 12000), "3 stations    4500 km across");
  state.ScaleFactor = 10000;
  state.DistanceUnit = 1;
  EXPECT_EQ(ShownWords(state, 1, 12000), "1 station    55.9 mi across");
}

}  // namespace
}  // namespace kestrel
