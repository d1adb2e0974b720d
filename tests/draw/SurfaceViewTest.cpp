#include "draw/SurfaceView.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "draw/Fonts.h"

namespace kestrel {
namespace {

using Stroke = std::vector<QPointF>;

std::vector<Stroke> StrokesOf(SurfaceView& view, const std::vector<Point>& points) {
  std::vector<Stroke> runs;
  view.ForEachRun(points, [&](std::span<const Point> run) {
    Stroke& stroke = runs.emplace_back();
    for (const Point& point : run) stroke.emplace_back(point.x, point.y);
  });
  return runs;
}

double DistanceTo(QPointF a, QPointF b, QPointF point) {
  const QPointF along = b - a;
  const double length = QPointF::dotProduct(along, along);
  const double share = length > 0 ? std::clamp(QPointF::dotProduct(point - a, along) / length, 0.0, 1.0) : 0;
  const QPointF off = point - (a + share * along);
  return std::hypot(off.x(), off.y());
}

double DistanceTo(const std::vector<Stroke>& runs, QPointF point) {
  double least = 1e9;
  for (const Stroke& run : runs)
    for (std::size_t i = 1; i < run.size(); ++i)
      least = std::min(least, DistanceTo(run[i - 1], run[i], point));
  return least;
}

/// A walk whose steps are now short, now long, in and out of the surface.
std::vector<Point> RandomWalk(std::mt19937& random) {
  std::uniform_real_distribution<float> unit(-1, 1);
  std::vector<Point> points = {{6000 + 7000 * unit(random), 4500 + 7000 * unit(random)}};
  for (int i = 0; i < 60; ++i) {
    const float reach = i % 20 < 12 ? 6 : i % 20 < 17 ? 300 : 12000;
    Point next = points.back();
    next.x = std::clamp(next.x + reach * unit(random), -CoordinateLimit, CoordinateLimit);
    next.y = std::clamp(next.y + reach * unit(random), -CoordinateLimit, CoordinateLimit);
    points.push_back(next);
  }
  return points;
}

TEST(SurfaceViewTest, CullingAndThinningLoseNothingThatShows) {
  std::mt19937 random(20261121);
  const SurfaceRules rules = RulesFor({0, 0, 640, 480});
  SurfaceView view(rules);
  int shown = 0;
  for (int round = 0; round < 200; ++round) {
    const std::vector<Point> points = RandomWalk(random);
    const std::vector<Stroke> runs = StrokesOf(view, points);
    Stroke plain;
    for (const Point& point : points) plain.emplace_back(view.At(point).x, view.At(point).y);
    for (std::size_t i = 1; i < plain.size(); ++i) {
      for (double share = 0; share <= 1; share += 1.0 / 16) {
        const QPointF point = plain[i - 1] + share * (plain[i] - plain[i - 1]);
        if (!rules.Area.contains(point)) continue;
        ++shown;
        ASSERT_LE(DistanceTo(runs, point), 1.2 * rules.Thinning + 1e-6)
            << "round " << round << ", segment " << i;
      }
    }
    for (const Stroke& run : runs)
      for (const QPointF& point : run)
        ASSERT_NE(std::find(plain.begin(), plain.end(), point), plain.end()) << "round " << round;
  }
  EXPECT_GT(shown, 10000);
}

TEST(SurfaceViewTest, ThinningShortensCrowdedLinesAndKeepsTheSmallestShape) {
  SurfaceView view(RulesFor({0, 0, 1200, 950}));  // ten twips to the pixel
  std::vector<Point> crowded;
  for (int i = 0; i <= 1000; ++i) crowded.push_back({1000 + static_cast<float>(i), 1000});
  const std::vector<Stroke> runs = StrokesOf(view, crowded);
  ASSERT_EQ(runs.size(), 1U);
  EXPECT_LE(runs[0].size(), 202U);
  EXPECT_EQ(runs[0].front(), QPointF(100, 100));
  EXPECT_EQ(runs[0].back(), QPointF(200, 100));

  EXPECT_EQ(StrokesOf(view, {{50, 50}, {51, 51}, {50, 51}, {50, 50}}).size(), 1U);
  EXPECT_EQ(StrokesOf(view, {{-3000, 50}, {-2000, 9000}, {-50, -3000}, {20000, -100}}).size(), 0U);
  EXPECT_EQ(StrokesOf(view, {{-1000, 4500}, {13000, 4500}}).size(), 1U);
}

TEST(SurfaceViewTest, WhatIsNearlyStraightIsDrawnStraight) {
  SurfaceView view(RulesFor({0, 0, 1200, 950}));  // ten twips to the pixel
  // A circle as antenna patterns have, 50 pixels in radius: no more vertices than it needs to look round.
  std::vector<Point> circle;
  Stroke plain;
  for (int i = 0; i <= 180; ++i) {
    const double angle = i * 3.14159265 / 90;
    circle.push_back(
        {static_cast<float>(6000 + 500 * std::sin(angle)), static_cast<float>(4500 - 500 * std::cos(angle))});
    plain.emplace_back(view.At(circle.back()).x, view.At(circle.back()).y);
  }
  const std::vector<Stroke> runs = StrokesOf(view, circle);
  ASSERT_EQ(runs.size(), 1U);
  EXPECT_LE(runs[0].size(), 91U);
  EXPECT_EQ(runs[0].front(), plain.front());
  EXPECT_EQ(runs[0].back(), plain.back());
  for (const QPointF& point : plain) EXPECT_LE(DistanceTo(runs, point), 0.1 + 1e-4);

  // Of a straight line four steps become one; back and forth on one line is no straight line.
  const auto count = [&](const std::vector<float>& xs) {
    std::vector<Point> points;
    for (const float x : xs) points.push_back({x, 1000});
    return StrokesOf(view, points).at(0).size();
  };
  EXPECT_EQ(count({0, 100, 200, 300, 400, 500}), 3U);
  EXPECT_EQ(count({0, 100, 50, 150, 0, 500}), 6U);
  EXPECT_EQ(count({0, 100, 0}), 3U);
  EXPECT_EQ(count({0, 100, 200, 0}), 3U);
}

TEST(SurfaceViewTest, APanelGrowsAsOnePieceFromItsAnchorUntilItsTextCanBeRead) {
  const Font legend{FontFace::Sans, 10};
  const Font label{FontFace::Sans, 8};
  SurfaceView small(RulesFor({0, 0, 320, 253}));
  const Point anchor{200, 9400};
  const Point corner{1900, 6800};
  const Point before = small.At(corner);
  small.BeginPanel(anchor, legend);
  EXPECT_EQ(small.At(anchor), RulesFor({0, 0, 320, 253}).Fit.ToSurface(anchor));
  EXPECT_NEAR(small.FontSize(legend) * XHeightShare(FontFace::Sans), 7, 1e-3);
  EXPECT_NEAR(small.FontSize({FontFace::Sans, 20}), 2 * small.FontSize(legend), 1e-3);
  const double growth = small.Length(100) / (100 * RulesFor({0, 0, 320, 253}).Fit.Scale);
  EXPECT_GT(growth, 2);
  EXPECT_NEAR(small.At(corner).x - small.At(anchor).x, growth * (before.x - small.At(anchor).x), 1e-3);
  small.EndPanel();
  EXPECT_EQ(small.At(corner), before);
  EXPECT_NEAR(small.FontSize(label) * XHeightShare(FontFace::Sans), 7, 1e-3);

  SurfaceView large(RulesFor({0, 0, 4800, 3800}));
  large.BeginPanel(anchor, legend);
  EXPECT_NEAR(large.FontSize(legend), 80, 1e-3);  // 200 twips at 0.4 pixels
}

TEST(SurfaceViewTest, ADashedLineIsBrokenAlongItsWholeLength) {
  SurfaceRules rules = RulesFor({0, 0, 1200, 950});
  rules.Look.HourLines = true;
  const std::vector<Point> corner = {{1000, 1000}, {3003, 1000}, {3003, 2000}};  // 300.3 pixels
  const auto ink = [&](Dash dash, std::size_t& strokes) {
    SurfaceView view(rules);
    view.SetDash(dash);
    double length = 0;
    const std::vector<Stroke> runs = StrokesOf(view, corner);
    for (const Stroke& run : runs)
      for (std::size_t i = 1; i < run.size(); ++i)
        length += std::hypot(run[i].x() - run[i - 1].x(), run[i].y() - run[i - 1].y());
    strokes = runs.size();
    return length;
  };
  std::size_t strokes = 0;
  EXPECT_NEAR(ink(Dash::None, strokes), 300.3, 0.01);
  EXPECT_EQ(strokes, 1U);
  EXPECT_NEAR(ink(Dash::Night, strokes), 180.3, 0.01) << "six of ten";
  EXPECT_EQ(strokes, 31U);
  EXPECT_NEAR(ink(Dash::Spoke, strokes), 100.3, 0.01);
  rules.Look.HourLines = false;
  EXPECT_NEAR(ink(Dash::Night, strokes), 300.3, 0.01) << "whole where hours are told by colour alone";
  EXPECT_NEAR(ink(Dash::Spoke, strokes), 100.3, 0.01);
}

TEST(SurfaceViewTest, APanelOfACornerStaysWhereItIsWhenTheSheetIsMoved) {
  const Font legend{FontFace::Sans, 10};
  SurfaceRules rules = RulesFor({0, 0, 2000, 950});  // ten twips to the pixel, 400 pixels beside the sheet
  SurfaceView picture(rules);
  picture.BeginPanel({200, 9400}, legend, PanelPlace::LowerLeft);
  EXPECT_EQ(picture.At({200, 9400}), (Point{420, 940})) << "the sheet's corner";
  rules.Frame = rules.Area;
  MoveSheet(rules, {1234, -500});
  SurfaceView window(rules);
  EXPECT_EQ(window.At(HomeOnSheet), (Point{1000 - 123, 500}));
  const auto corner = [&](Point anchor, PanelPlace place) {
    window.BeginPanel(anchor, legend, place);
    const Point at = window.At(anchor);
    window.EndPanel();
    return at;
  };
  EXPECT_EQ(corner({200, 9400}, PanelPlace::LowerLeft), (Point{20, 940}));
  EXPECT_EQ(corner({1230, 30}, PanelPlace::UpperLeft), (Point{123, 3}));
  EXPECT_EQ(corner({11800, 9400}, PanelPlace::LowerRight), (Point{1980, 940}));
  EXPECT_EQ(window.At(HomeOnSheet), (Point{1000 - 123, 500})) << "the map after the panels";
}

TEST(SurfaceViewTest, MovingStopsAtTheCoordinateLimit) {
  const SurfaceRules rules = RulesFor({0, 0, 1200, 950});
  const Point far = MoveWithinLimits(rules, {1e6F, -1e6F});
  EXPECT_FLOAT_EQ(far.x, CoordinateLimit - SheetWidth);
  EXPECT_FLOAT_EQ(far.y, -CoordinateLimit);
  EXPECT_EQ(MoveWithinLimits(rules, {100, 200}), (Point{100, 200}));
  const Point wide = MoveWithinLimits(RulesFor({0, 0, 9000, 950}), {100, 200});
  EXPECT_EQ(wide, (Point{0, 200})) << "all of the breadth is seen already";
}

TEST(SurfaceViewTest, BoxesThatShareAnEdgeShareItOnTheSurface) {
  SurfaceView view(RulesFor({0, 0, 777, 555}));
  const QRectF upper = view.Filled({200, 6800}, {1900, 8080});
  const QRectF lower = view.Filled({200, 8080}, {4500, 8800});
  EXPECT_EQ(upper.bottom(), lower.top());
  EXPECT_EQ(upper.bottom(), std::round(upper.bottom()));
  EXPECT_EQ(view.Outlined({1900, 8080}, {200, 6800}), upper.adjusted(.5, .5, -.5, -.5));
}

}  // namespace
}  // namespace kestrel
