#include "map/DisplayList.h"

#include <gtest/gtest.h>

#include <array>

#include "RecordingCanvas.h"

namespace kestrel {
namespace {

/// Every verb, with arguments that no two share.
void DrawSomething(Canvas& canvas) {
  const std::array<Point, 3> points = {{{1, 2}, {-3, 4.5F}, {30000, -30000}}};
  canvas.SetColor(0x1289AB);
  canvas.SetLineWidth(2.5F);
  canvas.Line({1, 2}, {3, 4});
  canvas.BeginStation({{7, 8}, 1230, "WXYZ", "D"});
  canvas.Polygon(points);
  canvas.SetFont({FontFace::Serif, 8});
  canvas.Text({9, 10}, "Bogotá");
  canvas.EndStation();
  canvas.Polyline(points);
  canvas.Polyline({});
  canvas.SetColor(-1);
  canvas.Circle({11, 12}, 50);
  canvas.FilledCircle({13, 14}, 30);
  canvas.BeginPanel({15, 16}, {FontFace::SansBold, 9});
  canvas.Box({17, 18}, {19, 20});
  canvas.FilledBox({21, 22}, {23, 24});
  canvas.Text({0, 0}, "");
  canvas.EndPanel();
  canvas.BeginStation({{25, 26}, 620, "", "d"});
  canvas.Dot({27, 28});
  canvas.EndStation();
}

TEST(DisplayListTest, PlaysBackWhatWasDrawn) {
  RecordingCanvas direct;
  DrawSomething(direct);
  DrawSomething(direct);

  const FixedMeasure measure;
  DisplayList list(measure);
  EXPECT_EQ(list.Length(), 0U);
  DrawSomething(list);
  DrawSomething(list);
  RecordingCanvas played;
  list.Play(played);
  EXPECT_EQ(played.List, direct.List);

  RecordingCanvas again;  // a list that was played is as it was
  list.Play(again);
  EXPECT_EQ(again.List, direct.List);
  ASSERT_EQ(list.Stations().size(), 4U);
  EXPECT_EQ(list.Stations()[1].HoursCode, "d");
  EXPECT_EQ(list.Stations()[2].At, (Point{7, 8}));
}

TEST(DisplayListTest, PlaysAdditionsInTheColoursSetBeforeAndClearForgetsThem) {
  const FixedMeasure measure;
  DisplayList list(measure);
  DrawSomething(list);
  const std::size_t length = list.Length();
  list.Line({1, 1}, {2, 2});
  RecordingCanvas played;
  list.PlayFrom(length, played);
  ASSERT_EQ(played.List.size(), 1U);
  EXPECT_EQ(played.List[0].Color, -1);
  EXPECT_EQ(played.List[0].LineWidth, 2.5F);
  EXPECT_EQ(played.List[0].Face.Points, 8);

  list.Clear();
  EXPECT_EQ(list.Length(), 0U);
  EXPECT_TRUE(list.Stations().empty());
  EXPECT_EQ(list.TextWidth("ab"), 200) << "in the font of a new canvas";
  list.Dot({1, 2});
  RecordingCanvas anew, direct;
  direct.Dot({1, 2});
  list.Play(anew);
  EXPECT_EQ(anew.List, direct.List);
}

TEST(DisplayListTest, PassesOverLinesThatDoNotTouchWhatIsShown) {
  const SheetBox shown = {{0, 100}, {50, 200}};
  // Lines of one to five points, of which the last alone comes near or not.
  const struct {
    const char* what;
    Point last;
    bool touches;
  } rows[] = {{"above", {10, 99}, false},         {"at the upper edge", {10, 100}, true},
              {"below", {10, 201}, false},        {"at the lower edge", {10, 200}, true},
              {"to the left", {-1, 150}, false},  {"at the left edge", {0, 150}, true},
              {"to the right", {51, 150}, false}, {"at the right edge", {50, 150}, true}};
  const FixedMeasure measure;
  for (const auto& row : rows) {
    const bool beside = row.last.y >= 100 && row.last.y <= 200;
    for (std::size_t length = 1; length <= 5; ++length) {
      std::vector<Point> points(length, row.last);
      for (std::size_t i = 0; i + 1 < length; ++i)
        points[i] = beside ? Point{row.last.x < 25 ? -9.0F : 59.0F, 150 + static_cast<float>(i)}
                           : Point{10 + static_cast<float>(i), row.last.y < 150 ? 90.0F : 210.0F};
      DisplayList list(measure);
      list.Polyline(points);
      list.Polygon(points);
      list.Line(points.front(), points.back());
      RecordingCanvas played;
      list.PlayFrom(0, played, shown);
      EXPECT_EQ(played.List.size(), row.touches ? 3U : 0U) << row.what << ", " << length << " points";
    }
  }
  // Text, and what may grow out of its place in a panel, is drawn wherever it stands.
  DisplayList list(measure);
  list.Text({1000, 1000}, "far");
  list.BeginPanel({1000, 1000}, {});
  list.Line({1000, 1000}, {1001, 1000});
  list.EndPanel();
  list.Line({1000, 1000}, {1001, 1000});
  RecordingCanvas played;
  list.PlayFrom(0, played, shown);
  EXPECT_EQ(played.All("Text").size(), 1U);
  EXPECT_EQ(played.All("Line").size(), 1U);
}

}  // namespace
}  // namespace kestrel
