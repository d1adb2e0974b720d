#include "map/ContextMap.h"

#include <gtest/gtest.h>

#include "RecordingCanvas.h"
#include "TestFolder.h"

namespace kestrel {
namespace {

constexpr float W = ContextMapWidth;
constexpr float H = ContextMapHeight;
constexpr double kTwipsPerDegree = 111.44 * 120 / 75;  // at zoom 1

const ContextView kView = {{0, 75}, {60, 150}};  // home lies elsewhere

RecordingCanvas Draw(const QByteArray& region, const ContextView& view = kView,
                     const QByteArray& states = "") {
  TestFolder data;
  data.Put("REGION2.dat", region);
  data.Put("STATES.dat", states);
  RecordingCanvas canvas;
  DrawContextMap(canvas, data.Folder(), view);
  return canvas;
}

TEST(ContextMapTest, OutlinesStandAroundTheStationWithNorthUp) {
  for (const float zoom : {0.25F, 1.0F, 8.0F}) {
    ContextView view = kView;
    view.Zoom = zoom;
    const auto strokes = Draw("0 285\n.5 285\n.5 285.5\n", view).All("Polyline");
    ASSERT_EQ(strokes.size(), 2U) << "the line and the scale bar";
    const double half = zoom * kTwipsPerDegree / 2;
    ASSERT_EQ(strokes[0].Points.size(), 3U);
    EXPECT_NEAR(strokes[0].Points[0].x, 0.35 * W, 0.01);
    EXPECT_NEAR(strokes[0].Points[0].y, 0.325 * H, 0.01);
    EXPECT_NEAR(strokes[0].Points[1].y, 0.325 * H - half, 0.01);
    EXPECT_NEAR(strokes[0].Points[2].x, 0.35 * W + half, 0.1) << "east to the right";
    EXPECT_EQ(strokes[0].Color, 0);
  }
}

TEST(ContextMapTest, LinesReachTheWholeFrameAndBreakAtJumps) {
  const struct {
    const char *what, *vertices;
    std::vector<std::size_t> lengths;
  } rows[] = {
      {"beyond the frame on every side", "13 285\n14 285\n13 264\n-15 284\n-17 306\n", {2}},
      {"down to its lower edge and under the mask", "-13 285\n-13.5 285\n-16 285\n-17 285\n", {4}},
      {"a jump of more than a fifth in x", "0 275\n0 289\n0 290\n", {2}},
      {"a jump of more than a fifth in y", "6 285\n-6 285\n-7 285\n", {2}},
      {"jumps of less", "0 275\n0 285\n", {2}},
  };
  for (const auto& row : rows) {
    std::vector<std::size_t> lengths;
    for (const Drawn& stroke : Draw(row.vertices).All("Polyline")) lengths.push_back(stroke.Points.size());
    lengths.pop_back();  // of the scale bar
    EXPECT_EQ(lengths, row.lengths) << row.what;
  }
}

TEST(ContextMapTest, HomeTheScaleBarAndThePlaceUnderTheMouse) {
  ContextView view = {{0, 75}, {10, 65}, 1};
  const RecordingCanvas canvas = Draw("", view);
  EXPECT_EQ(canvas.Texts(), (std::vector<std::string>{"Home", "500 mi"}));
  const std::vector<Point> bar = canvas.All("Polyline").at(0).Points;
  EXPECT_NEAR(bar[2].x - bar[1].x, 500 * 1.609344 * 120 / 75, 0.1);
  const Point home = canvas.All("Circle").at(0).Points[0];
  const Position place = PlaceOnContextMap(view, home).value_or(Position());
  EXPECT_NEAR(place.Latitude, 10, 1e-4);
  EXPECT_NEAR(place.Longitude, 65, 1e-4);
  EXPECT_FALSE(PlaceOnContextMap(view, {home.x, 0.66F * H}));
  view = {{0, 75}, {30, 75}};
  EXPECT_EQ(Draw("", view).Texts(), std::vector<std::string>{"1000 km"}) << "home lies above the frame";
}

TEST(ContextMapTest, TheStationsMarkAndTheFrameLieOnTop) {
  const RecordingCanvas canvas = Draw("0 285\n1 285\n", kView, "0 284\n1 284\n");
  EXPECT_EQ(canvas.All("Polyline").size(), 3U);
  const auto circles = canvas.All("Circle");
  const Point center = {0.35F * W, 0.325F * H};
  const Font face = canvas.List.back().Face;
  EXPECT_EQ(circles, (std::vector<Drawn>{{"Circle", {center}, 10, "", 0xFFFFFF, 10, face},
                                         {"Circle", {center}, 75, "", 255, 1, face}}));
  EXPECT_EQ(canvas.List.front().Verb, "FilledBox") << "what was there is covered first";
  const std::vector<Point> frame = {{0.05F * W, 0.05F * H}, {0.65F * W, 0.65F * H}};
  EXPECT_EQ(canvas.List.back(), (Drawn{"Box", frame, 0, "", 16711680, 1, face}));
  for (const Drawn& mask : canvas.All("FilledBox")) {
    if (mask.Color == 0xFFFFFF) continue;
    EXPECT_EQ(mask.Color, 16777198);
    const bool beside = mask.Points[1].x <= 0.05F * W || mask.Points[0].x >= 0.65F * W ||
                        mask.Points[1].y <= 0.05F * H || mask.Points[0].y >= 0.65F * H;
    EXPECT_TRUE(beside) << "a mask inside the frame";
  }
}

TEST(ContextMapTest, AnOutlineFileThatCannotBeReadIsNamedOnTheMap) {
  TestFolder data;
  const auto draw = [&data] {
    RecordingCanvas canvas;
    DrawContextMap(canvas, data.Folder(), kView);
    EXPECT_EQ(canvas.All("Circle").size(), 2U) << "the station's mark";
    return canvas;
  };
  const RecordingCanvas bare = draw();
  EXPECT_EQ(bare.Texts(),
            (std::vector<std::string>{"1000 km", "REGION2.dat cannot be read", "STATES.dat cannot be read"}));
  for (const Drawn& text : bare.All("Text"))
    EXPECT_TRUE(text.Points[0].x > 0.05F * W && text.Points[0].y > 0.05F * H);
  EXPECT_NE(bare.All("Text")[0].Points, bare.All("Text")[1].Points);
  data.Put("STATES.dat", "0 284\n1 284\n");
  const RecordingCanvas half = draw();
  EXPECT_EQ(half.Texts(), (std::vector<std::string>{"1000 km", "REGION2.dat cannot be read"}));
  EXPECT_EQ(half.All("Polyline").size(), 2U);
}

}  // namespace
}  // namespace kestrel
