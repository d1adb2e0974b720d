#include "map/StatesMap.h"

#include <gtest/gtest.h>

#include "RecordingCanvas.h"
#include "TestFolder.h"

namespace kestrel {
namespace {

TEST(StatesMapTest, PositionsOfTheMouse) {
  const struct {
    Point at;
    Position clicked;
    Position pointed;
  } rows[] = {
      {{0, 0}, {57.5F, 133}, {57.5F, 133}},      {{20000, 4000}, {37.5F, 30}, {37.5F, 30}},
      {{-9000, 11600}, {0, 170}, {10, 170}},     {{6000, 9800}, {8.5F, 95.5F}, {10, 95.5F}},
      {{6000, -6000}, {80, 95.5F}, {70, 95.5F}}, {{1.3F, 1.9F}, {57.49F, 132.991F}, {57.4905F, 132.991875F}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ClickedPosition(row.at), row.clicked) << row.at.x;
    EXPECT_EQ(PointedPosition(row.at), row.pointed) << row.at.x;
  }
  // What the map draws at x = 0 lies an eighth of a degree farther west.
  EXPECT_EQ(PlaceOnStatesMap(57.5F, 226.875F), (Point{0, 0}));
}

TEST(StatesMapTest, TheFigureAndItsReadout) {
  const TestFolder folder;
  folder.Put("REGION2.dat",
             "> a coast\r\n50 230\r\n49 231\r\n-100 -100\r\n30 260\r\n30 273\r\n31 274\r\n-2000\r\n1 1\r\n");
  folder.Put("STATES.dat", "'borders\r\n40 250\r\n40 251\r\n");
  RecordingCanvas map;
  DrawStatesMap(map, folder.Folder(), {30, 95});
  EXPECT_EQ(map.All("Circle").at(0).Points[0], (Point{160 * 265 - 36300, 5500})) << "home";
  const std::vector<Drawn> strokes = map.All("Polyline");
  ASSERT_EQ(strokes.size(), 3U);  // 13 degrees are 2080 twips: too far to be joined
  EXPECT_EQ(strokes[0].Points, (std::vector<Point>{{500, 1500}, {660, 1700}}));
  EXPECT_EQ(strokes[1].Points, (std::vector<Point>{{7380, 5500}, {7540, 5300}}));
  EXPECT_EQ(strokes[2].Points, (std::vector<Point>{{3700, 3500}, {3860, 3500}}));
  std::vector<Drawn> grid = map.All("Line");
  grid.resize(grid.size() - 2);                     // of home's mark
  EXPECT_EQ(grid.front().Points.front().x, -1100);  // 140 W
  EXPECT_EQ(grid.size(), 10U + 8U);                 // to 50 W, and 10 N to 80 N
  EXPECT_EQ(map.All("Panel").size(), grid.size()) << "each name grows from its line's end";
  const std::vector<Drawn> names = map.All("Text");
  EXPECT_EQ(names[0].Text + ' ' + names[10].Text, "140 W 10 N");
  EXPECT_EQ(names[0].Points[0], (Point{-1060, 9500 - 192}));
  EXPECT_EQ(names[10].Points[0], (Point{-1060, 9500 - 2 * 192})) << "above the names of the longitudes";

  SessionState state;
  state.HomeLatitude = -33.45679F;
  RecordingCanvas strip;
  DrawStatesReadout(strip, Point{20000, 9800}, state);
  EXPECT_EQ(strip.Texts(), (std::vector<std::string>{"Mouse latitude: 10", "Longitude: 30",
                                                     "Current home latitude: -33.456", "Longitude: 96.541"}));
  EXPECT_EQ(strip.All("Text").back().Color, 0xFFFFFF);
  EXPECT_EQ(strip.All("Panel").size(), 2U) << "two texts grow as one piece";
}

}  // namespace
}  // namespace kestrel
