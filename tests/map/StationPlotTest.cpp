#include "map/StationPlot.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "RecordingCanvas.h"
#include "map/PolarPlot.h"

namespace kestrel {
namespace {

constexpr double kRadian = 3.14159265358979 / 180;

/// A two-tower cardioid to the north: its values are known in closed form.
StationRecord Cardioid() {
  StationRecord record;
  record.HoursCode = "N";
  record.PowerKW = 1;
  record.TowerCount = 2;
  record.Switch = {"", "0", "0"};
  record.Fields = {0, 1, 1};
  record.Spacings = {0, 0, 90};
  record.Phases = {0, 0, -90};
  return record;
}

double CardioidValue(double azimuth) {
  return std::abs(2 * std::sqrt(2.0) * std::cos(45 * kRadian * (std::cos(azimuth * kRadian) - 1)));
}

RecordingCanvas Plot(std::vector<StationRecord> records, float aspectRatio = 1) {
  RecordingCanvas canvas;
  DrawStationPlot(canvas, aspectRatio, std::move(records));
  return canvas;
}

std::vector<Drawn> Strokes(const RecordingCanvas& canvas, ColorValue color) {
  std::vector<Drawn> found;
  for (const Drawn& drawn : canvas.All("Polyline"))
    if (drawn.Color == color) found.push_back(drawn);
  return found;
}

/// The cardioid's points, one degree anticlockwise of the values, its extent brought to `radius`.
std::vector<Point> Trace(double radius, double aspect = 1) {
  double largest = 0;  // from every second value
  for (int d = 1; d <= 359; d += 2)
    for (const double share : {std::sin((d - 1) * kRadian), std::cos((d - 1) * kRadian)})
      largest = std::max(largest, std::abs(share * CardioidValue(d)));
  std::vector<Point> points;
  for (int d = 1; d <= 361; ++d) {
    const double length = radius / largest * CardioidValue(d == 361 ? 1 : d);
    points.push_back({static_cast<float>(6000 + aspect * length * std::sin((d - 1) * kRadian)),
                      static_cast<float>(6500 - length * std::cos((d - 1) * kRadian))});
  }
  return points;
}

void ExpectNear(const std::vector<Point>& points, const std::vector<Point>& wanted, double tolerance) {
  ASSERT_EQ(points.size(), wanted.size());
  for (std::size_t i = 0; i < points.size(); ++i) {
    EXPECT_NEAR(points[i].x, wanted[i].x, tolerance) << i;
    EXPECT_NEAR(points[i].y, wanted[i].y, tolerance) << i;
  }
}

TEST(StationPlotTest, TheTraceFollowsThePatternAndItsEnlargementEndsAtThePlotBox) {
  for (const float aspect : {1.0F, 0.6F, 1.5F}) {
    const auto traces = Strokes(Plot({Cardioid()}, aspect), 0);
    ASSERT_EQ(traces.size(), 1U);
    ExpectNear(traces[0].Points, Trace(1985, aspect), 0.5);
  }
  // Blue inside, white outside, by where a segment ends.
  const auto isInside = [](Point at) { return at.x > 4000 && at.x < 8000 && at.y > 4500 && at.y < 8500; };
  std::vector<Point> enlarged = {Trace(10000).front()};
  for (const Drawn& stroke : Plot({Cardioid()}).All("Polyline")) {
    if (stroke.Color == 0) continue;
    EXPECT_NEAR(stroke.Points[0].x, enlarged.back().x, 2.5) << "where the former stroke ended";
    EXPECT_NEAR(stroke.Points[0].y, enlarged.back().y, 2.5);
    for (std::size_t i = 1; i < stroke.Points.size(); ++i) {
      EXPECT_EQ(stroke.Color, isInside(stroke.Points[i]) ? 0xFF4444 : 0xFFFFFF) << i;
      enlarged.push_back(stroke.Points[i]);
    }
  }
  ExpectNear(enlarged, Trace(10000), 2.5);
}

TEST(StationPlotTest, SpokesBearingsAndLegendStandInTheirPlaces) {
  const RecordingCanvas canvas = Plot({Cardioid()}, 0.8F);
  const auto spokes = canvas.All("Line");
  ASSERT_EQ(spokes.size(), 36U);
  EXPECT_EQ(spokes[0].Points, (std::vector<Point>{{6000, 6200}, {6000, 4320}}));
  EXPECT_NEAR(spokes[9].Points[0].x, 6000 + 300 * 0.8, 0.01);
  EXPECT_NEAR(spokes[9].Points[1].x, 6000 + 2180 * 0.8, 0.01);
  EXPECT_EQ(spokes[0].Color, 0xDDDDDD);
  const auto texts = canvas.All("Text");
  ASSERT_EQ(texts.size(), 12U + 5U);
  EXPECT_EQ(texts[3].Text, "90");
  EXPECT_NEAR(texts[3].Points[0].x, 6000 + 2400 * 0.8 - FixedMeasure().TextWidth(texts[3].Face, "90") / 2,
              0.01)
      << "half the text's width to the left";
  EXPECT_NEAR(texts[3].Points[0].y, 6395, 0.01);
  const std::map<std::string, std::pair<float, ColorValue>> legend = {{"Unlimited", {6200, 0x000099}},
                                                                      {"Daytime", {6450, 0x119911}},
                                                                      {"Critical", {6700, 0xCCCC11}},
                                                                      {"Nighttime", {6950, 0}},
                                                                      {"Enlarged 5x", {7200, 0xFF4444}}};
  for (std::size_t i = 12; i < texts.size(); ++i) {
    const auto entry = legend.find(texts[i].Text);
    ASSERT_NE(entry, legend.end()) << texts[i].Text;
    EXPECT_EQ(texts[i].Points[0], (Point{500, entry->second.first}));
    EXPECT_EQ(texts[i].Color, entry->second.second);
  }
  const std::map<std::string, ColorValue> traces = {
      {"N", 0}, {"C", 0xCCCC11}, {"D", 0x119911}, {"U", 0x0000AA}, {"X", 0x0000AA}};
  for (const auto& [hours, color] : traces) {
    StationRecord record = Cardioid();
    record.HoursCode = hours;
    EXPECT_EQ(Plot({record}).All("Polyline").at(0).Color, color) << hours;
  }
}

TEST(StationPlotTest, TowersStandWhereTheReferencePointPutsThem) {
  StationRecord record = Cardioid();
  record.TowerCount = 12;
  for (std::size_t i = 1; i <= 12; ++i) {
    record.Switch[i] = i == 1 ? "0" : " 1";  // each one placed from the one before
    record.Fields[i] = 1;
    record.Spacings[i] = i == 1 ? 0 : 30;
    record.Bearings[i] = 90;
  }
  const RecordingCanvas canvas = Plot({record}, 1.5F);
  const auto circles = canvas.All("Circle");
  ASSERT_EQ(circles.size(), 1U + 4 + 11) << "the station's mark, the first tower's rings, the other towers";
  EXPECT_EQ(circles[0].Points[0], (Point{6000, 6500}));
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(circles[i + 1].Radius, 30 - 7 * static_cast<float>(i));
  for (std::size_t i = 2; i <= 12; ++i) {
    const Drawn& tower = circles[i + 3];
    EXPECT_EQ(tower.Color, 0xFF0000);
    EXPECT_EQ(tower.Radius, 30);
    EXPECT_NEAR(tower.Points[0].x, 10200 + 1.5 * 120 * 30 * static_cast<double>(i - 1) * kRadian, 0.05) << i;
    EXPECT_NEAR(tower.Points[0].y, 6500, 0.05);
  }
  const auto rings = canvas.All("Polygon");
  ASSERT_EQ(rings.size(), 4U);
  for (std::size_t r = 1; r <= 4; ++r) {
    EXPECT_NEAR(rings[r - 1].Points[0].y, 6500 - 120 * 90 * static_cast<double>(r) * kRadian, 0.01);
    EXPECT_NEAR(rings[r - 1].Points[900].x, 10200 + 1.5 * 120 * 90 * static_cast<double>(r) * kRadian, 0.01);
  }
}

TEST(StationPlotTest, WhatCannotBeDrawnIsNotDrawnWrong) {
  const std::string words = "Pattern not known";
  const auto says = [&](const RecordingCanvas& canvas) {
    const auto texts = canvas.Texts();
    return std::count(texts.begin(), texts.end(), words);
  };
  StationRecord unknown = Cardioid();
  unknown.TowerCount = 0;
  StationRecord allZero = Cardioid();
  allZero.Fields.fill(0);
  StationRecord silent = Cardioid();
  silent.PowerKW = 0;
  for (const std::vector<StationRecord>& records :
       std::vector<std::vector<StationRecord>>{{unknown}, {allZero}, {silent}, {}}) {
    const RecordingCanvas canvas = Plot(records);
    EXPECT_EQ(says(canvas), 1);
    EXPECT_EQ(canvas.All("Line").size(), 36U);
    EXPECT_EQ(canvas.All("Polyline").size(), 0U);
    EXPECT_EQ(canvas.All("Circle").size(), 1U) << "no towers";
  }
  StationRecord broken = Cardioid();
  broken.Fields[2] = 0;
  broken.Switch[2] = "1";
  broken.Spacings[1] = 90;  // the second tower stands 90 degrees beyond the first
  const RecordingCanvas towersAlone = Plot({broken});
  EXPECT_EQ(towersAlone.All("Text").size(), 5U) << "the legend, no bearings";
  EXPECT_EQ(towersAlone.All("Line").size(), 0U);
  EXPECT_EQ(towersAlone.All("Polyline").size(), 0U);
  EXPECT_EQ(towersAlone.All("Polygon").size(), 4U);
  const auto towers = towersAlone.All("Circle");
  ASSERT_EQ(towers.size(), 4U + 1);
  EXPECT_NEAR(towers[4].Points[0].y, 6500 - 120 * 180 * kRadian, 0.05);

  const RecordingCanvas twins = Plot({Cardioid(), Cardioid()});
  EXPECT_EQ(Strokes(twins, 0).size(), 2U) << "the second over the first";
  EXPECT_EQ(twins.All("Polygon").size(), 4U) << "and the towers of the last";
}

}  // namespace
}  // namespace kestrel
