#include "map/StatesMap.h"

#include <gtest/gtest.h>

#include <QRectF>
#include <optional>

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
  DrawStatesMap(map, folder.Folder());
  const std::vector<Drawn> strokes = map.All("Polyline");
  ASSERT_EQ(strokes.size(), 3U);  // 13 degrees are 2080 twips: too far to be joined
  EXPECT_EQ(strokes[0].Points, (std::vector<Point>{{500, 1500}, {660, 1700}}));
  EXPECT_EQ(strokes[1].Points, (std::vector<Point>{{7380, 5500}, {7540, 5300}}));
  EXPECT_EQ(strokes[2].Points, (std::vector<Point>{{3700, 3500}, {3860, 3500}}));
  const std::vector<Drawn> grid = map.All("Line");
  EXPECT_EQ(grid.front().Points.front().x, -1100);  // 140 W
  EXPECT_EQ(grid.size(), 10U + 8U);                 // to 50 W, and 10 N to 80 N

  SessionState state;
  state.HomeLatitude = -33.45679F;
  RecordingCanvas strip;
  DrawStatesReadout(strip, Point{20000, 9800}, state);
  EXPECT_EQ(strip.Texts(), (std::vector<std::string>{"Mouse latitude: 10", "Longitude: 30",
                                                     "Current home latitude: -33.456", "Longitude: 96.541"}));
  EXPECT_EQ(strip.All("Text").back().Color, 0xFFFFFF);
}

/// Where the canvas' texts stand on a surface that makes them so much larger.
std::vector<QRectF> GrownTexts(const RecordingCanvas& canvas, float growth) {
  std::vector<QRectF> boxes;
  const FixedMeasure measure;
  std::optional<Point> anchor;
  for (const Drawn& drawn : canvas.List) {
    if (drawn.Verb == "Panel") anchor = drawn.Points[0];
    if (drawn.Verb == "EndPanel") anchor.reset();
    if (drawn.Verb != "Text") continue;
    const float height = measure.TextHeight(drawn.Face);
    Point corner = {drawn.Points[0].x, drawn.Points[0].y + height};  // the lower left one
    if (anchor)
      corner = {anchor->x + (corner.x - anchor->x) * growth, anchor->y + (corner.y - anchor->y) * growth};
    boxes.emplace_back(corner.x, corner.y - height * growth,
                       measure.TextWidth(drawn.Face, drawn.Text) * growth, height * growth);
  }
  return boxes;
}

TEST(StatesMapTest, TextsThatHaveGrownKeepApart) {
  const TestFolder folder;
  SessionState state;
  state.HomeLatitude = -33.45679F;
  RecordingCanvas map;
  DrawStatesMap(map, folder.Folder());
  RecordingCanvas strip;
  DrawStatesReadout(strip, Point{1234, 2345}, state);
  const struct {
    const RecordingCanvas& canvas;
    float growth;
    std::size_t texts;
  } rows[] = {{map, 1, 10U + 8U}, {map, 2.5F, 10U + 8U}, {strip, 1, 4}, {strip, 1.25F, 4}};
  for (const auto& row : rows) {
    const std::vector<QRectF> boxes = GrownTexts(row.canvas, row.growth);
    ASSERT_EQ(boxes.size(), row.texts);
    for (std::size_t i = 0; i < boxes.size(); ++i)
      for (std::size_t other = 0; other < i; ++other)
        EXPECT_FALSE(boxes[i].intersects(boxes[other]))
            << row.canvas.Texts()[i] << ", " << row.canvas.Texts()[other] << ", " << row.growth;
  }
}

}  // namespace
}  // namespace kestrel
