#include "map/Legend.h"

#include <gtest/gtest.h>

#include <cmath>

#include "RecordingCanvas.h"
#include "core/Numbers.h"
#include "map/Compass.h"

namespace kestrel {
namespace {

TEST(LegendTest, ScaleTextsAreCutNotRounded) {
  const struct {
    float scale;
    const char* text;
  } maps[] = {{156.25F, "1"},      {200, "1.28"},        {282.84F, "1.81"},     {282.842712F, "1.81"},
              {50, ".32"},         {100, ".64"},         {10000, "64"},         {156.40625F, "1.001"},
              {156.2499F, ".999"}, {141.42136F, ".905"}, {9999.999F, "63.999"}, {5000, "32"},
              {1e8F, "640000"},    {2e8F, "1280000"},    {2e9F, "1280000"}};
  for (const auto& row : maps) EXPECT_EQ(MapScaleText(row.scale), row.text) << row.scale;
  const struct {
    float size;
    const char* text;
  } patterns[] = {{0.25F, "1"}, {0.02F, ".08"}, {0.7F, "2.8"}, {0.3535534F, "1.414"}, {0.7071068F, "2.828"}};
  for (const auto& row : patterns) EXPECT_EQ(PatternScaleText(row.size), row.text) << row.size;
  // Each whole thousandth of the map scale is itself, not the one below it.
  for (int thousandth = 320; thousandth <= 64000; ++thousandth) {
    const float scale = 0.15625F * static_cast<float>(thousandth);
    EXPECT_NEAR(LeadingNumber(MapScaleText(scale)), thousandth / 1000.0, 1e-6) << scale;
  }
}

TEST(LegendTest, ThePanelAsDrawn) {
  SessionState state;
  state.SelectedFrequency = 1230;
  state.ScaleFactor = 156.25F;
  state.PatternSize = 0.25F;
  state.HomeLatitude = 0.5F;
  state.HomeLongitude = 75;
  state.HomeName = "Home";
  RecordingCanvas canvas;
  DrawLegend(canvas, state);
  EXPECT_EQ(canvas.Readable(),
            "Panel 000000 (200,9400) \"10\"\n"
            "FilledBox FFFFFF (200,6800) (1900,8080)\n"
            "Text 033023 (500,6860) \"Adjacents\"\n"
            "Text 0000FF (500,7100) \"Unlimited\"\n"
            "Text 008C00 (500,7340) \"Daytime\"\n"
            "Text 8C8C00 (500,7580) \"Critical\"\n"
            "Text 000000 (500,7820) \"Nighttime\"\n"
            "Line 033023 (230,6980) (440,6980)\n"
            "Line 0000FF (230,7220) (440,7220)\n"
            "Line 00FF00 (230,7460) (440,7460)\n"
            "Line FFFF00 (230,7700) (440,7700)\n"
            "Line 000000 (230,7940) (440,7940)\n"
            "FilledBox FFFFFF (200,8080) (4500,8800)\n"
            "Text 202020 (500,8060) \"Frequency: 1230 kHz\"\n"
            "Text 202020 (500,8300) \"Home Lat: .5    Home Lon: 75\"\n"
            "Text 202020 (500,8540) \"Home:  Home\"\n"
            "FilledBox FFFFFF (200,8800) (3300,9400)\n"
            "Text 202020 (500,8780) \"Map:1\"\n"
            "Text 202020 (1700,8780) \"Pattern:1  all\"\n"
            "EndPanel 202020\n");
}

TEST(LegendTest, BoxesWidenToTheirText) {
  SessionState state;
  state.HomeName = std::string(60, 'x');
  state.HoursFilter = HoursFilter::Night;
  state.ScaleFactor = 282.842712F;
  RecordingCanvas canvas;
  DrawLegend(canvas, state);
  const auto texts = canvas.Texts();
  EXPECT_EQ(texts[5], "Frequency: 620 kHz") << "the current channel while none is selected";
  EXPECT_EQ(texts.back(), "Pattern:2  night & crit");
  for (const auto& box : canvas.All("FilledBox"))
    for (const auto& text : canvas.All("Text")) {
      const float middle = text.Points[0].y + 120;
      if (middle < box.Points[0].y || middle > box.Points[1].y) continue;
      EXPECT_GE(box.Points[1].x, text.Points[0].x + canvas.TextWidth(text.Text)) << text.Text;
      EXPECT_EQ(box.Points[0].x, 200);
    }
}

TEST(LegendTest, BannerAndNotice) {
  RecordingCanvas canvas;
  for (const auto filter : {HoursFilter::All, HoursFilter{3}, HoursFilter{-1}})
    DrawHoursBanner(canvas, filter);
  EXPECT_EQ(canvas.Readable(), "");
  DrawHoursBanner(canvas, HoursFilter::Day);
  DrawHoursBanner(canvas, HoursFilter::Night);
  DrawMissingFileNotice(canvas, 1230);
  EXPECT_EQ(canvas.Texts(), (std::vector<std::string>{"    Day, critical & unlimited only",
                                                      "    Night, critical & unlimited only",
                                                      "    No station file for 1230 kHz"}));
  const auto boxes = canvas.All("FilledBox");
  EXPECT_EQ(boxes[0].Points, (std::vector<Point>{{1230, 30}, {4830, 360}}));
  EXPECT_EQ(boxes[0].Color, 0xFFFFEE);
  EXPECT_EQ(canvas.All("Text")[0].Points[0], (Point{1230, 60}));
  EXPECT_GT(boxes[2].Points[0].y, boxes[0].Points[1].y) << "the notice stands under the banner";
}

TEST(CompassTest, SpokesAndTheirBearings) {
  RecordingCanvas canvas;
  DrawCompass(canvas, 1.5F);
  const auto spokes = canvas.All("Line");
  const auto texts = canvas.All("Text");
  const auto boxes = canvas.All("FilledBox");
  ASSERT_EQ(spokes.size(), 36U);
  ASSERT_EQ(texts.size(), 36U);
  for (std::size_t i = 0; i < 36; ++i) {
    const double angle = static_cast<double>(i) * 10 / 57.29578;
    const Point outer = spokes[i].Points[1];
    EXPECT_NEAR(outer.x, 6000 + 1.5 * 4000 * std::sin(angle), 0.01);
    EXPECT_NEAR(outer.y, 4500 - 4000 * std::cos(angle), 0.01);
    const double inner = i % 9 == 0 ? 0 : 800;
    EXPECT_NEAR(spokes[i].Points[0].x, 6000 + 1.5 * inner * std::sin(angle), 0.01);
    EXPECT_NEAR(spokes[i].Points[0].y, 4500 - inner * std::cos(angle), 0.01);
    EXPECT_EQ(spokes[i].Color, 0xFF8888);
    EXPECT_EQ(texts[i].Text, std::to_string(i * 10));
    EXPECT_EQ(boxes[i].Color, 0xFFEEDD);
    EXPECT_EQ(canvas.All("Box")[i].Color, 0xFF1111);
    EXPECT_EQ(canvas.All("Box")[i].Points, boxes[i].Points);
    EXPECT_LE(boxes[i].Points[0].x, texts[i].Points[0].x);
    EXPECT_GE(boxes[i].Points[1].x, texts[i].Points[0].x + canvas.TextWidth(texts[i].Text));
  }
}

}  // namespace
}  // namespace kestrel
