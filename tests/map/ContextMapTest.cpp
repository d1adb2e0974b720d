#include "map/ContextMap.h"

#include <gtest/gtest.h>

#include "RecordingCanvas.h"
#include "TestFolder.h"

namespace kestrel {
namespace {

constexpr float W = ContextMapWidth;
constexpr float H = ContextMapHeight;
constexpr double kTwipsPerDegree = 111.44 * 120 / 75;  // at zoom 1

RecordingCanvas Draw(const QByteArray& region, float zoom = 1, const QByteArray& states = "") {
  TestFolder data;
  data.Put("REGION2.dat", region);
  data.Put("STATES.dat", states);
  RecordingCanvas canvas;
  DrawContextMap(canvas, data.Folder(), 0, 75, zoom);
  return canvas;
}

TEST(ContextMapTest, OutlinesStandAroundTheStationWithNorthUp) {
  for (const float zoom : {0.25F, 1.0F, 8.0F}) {
    const auto strokes = Draw("0 285\n.5 285\n.5 285.5\n", zoom).All("Polyline");
    ASSERT_EQ(strokes.size(), 1U);
    const double half = zoom * kTwipsPerDegree / 2;
    ASSERT_EQ(strokes[0].Points.size(), 3U);
    EXPECT_NEAR(strokes[0].Points[0].x, 0.35 * W, 0.01);
    EXPECT_NEAR(strokes[0].Points[0].y, 0.325 * H, 0.01);
    EXPECT_NEAR(strokes[0].Points[1].y, 0.325 * H - half, 0.01);
    EXPECT_NEAR(strokes[0].Points[2].x, 0.35 * W + half, 0.1) << "east to the right";
    EXPECT_EQ(strokes[0].Color, 0);
  }
}

TEST(ContextMapTest, LinesBreakAtTheFrameAndAtJumps) {
  const struct {
    const char *what, *vertices;
    std::vector<std::size_t> lengths;
  } rows[] = {
      {"a vertex above the frame", "13 285\n14 285\n13 286\n12 286\n", {2}},
      {"a vertex left of the frame", "0 265\n0 264\n0 265\n0 266\n", {2}},
      {"a vertex right of the frame", "0 305\n0 306\n", {}},
      {"the lines end above the frame's lower edge", "-13 285\n-13.5 285\n-14 285\n-15 285\n", {2}},
      {"a jump of more than a fifth in x", "0 275\n0 289\n0 290\n", {2}},
      {"a jump of more than a fifth in y", "6 285\n-6 285\n-7 285\n", {2}},
      {"jumps of less", "0 275\n0 285\n", {2}},
  };
  for (const auto& row : rows) {
    std::vector<std::size_t> lengths;
    for (const Drawn& stroke : Draw(row.vertices).All("Polyline")) lengths.push_back(stroke.Points.size());
    EXPECT_EQ(lengths, row.lengths) << row.what;
  }
}

TEST(ContextMapTest, TheStationsMarkAndTheFrameLieOnTop) {
  const RecordingCanvas canvas = Draw("0 285\n1 285\n", 1, "0 284\n1 284\n");
  EXPECT_EQ(canvas.All("Polyline").size(), 2U);
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
  EXPECT_EQ(canvas.Texts().size(), 0U);
}

TEST(ContextMapTest, AnOutlineFileThatCannotBeReadIsNamedOnTheMap) {
  TestFolder data;
  const auto draw = [&data] {
    RecordingCanvas canvas;
    DrawContextMap(canvas, data.Folder(), 0, 75, 1);
    EXPECT_EQ(canvas.All("Circle").size(), 2U) << "the station's mark";
    return canvas;
  };
  const RecordingCanvas bare = draw();
  EXPECT_EQ(bare.Texts(),
            (std::vector<std::string>{"REGION2.dat cannot be read", "STATES.dat cannot be read"}));
  for (const Drawn& text : bare.All("Text"))
    EXPECT_TRUE(text.Points[0].x > 0.05F * W && text.Points[0].y > 0.05F * H);
  EXPECT_NE(bare.All("Text")[0].Points, bare.All("Text")[1].Points);
  data.Put("STATES.dat", "0 284\n1 284\n");
  const RecordingCanvas half = draw();
  EXPECT_EQ(half.Texts(), std::vector<std::string>{"REGION2.dat cannot be read"});
  EXPECT_EQ(half.All("Polyline").size(), 1U);
}

}  // namespace
}  // namespace kestrel
