#include "map/ChannelPlot.h"

#include <gtest/gtest.h>

#include <cmath>

#include "RecordingCanvas.h"
#include "TestFolder.h"

namespace kestrel {
namespace {

/// A station line at degrees north and west of 40 N, 75 W; one tower unless said otherwise.
QByteArray Station(const char* call, const char* hours, const char* place = "40,75",
                   const char* towers = "1\n0,1,0,0,0,0") {
  return QByteArray("1230,") + call + ",City,ST,US," + hours + ',' + place + ",1,-,-," + towers + '\n';
}

class ChannelPlotTest : public testing::Test {
 protected:
  ChannelPlotTest() {
    state_.HomeLatitude = 40;
    state_.HomeLongitude = 75;
    state_.ScaleFactor = 200;
    state_.PatternSize = 0.5F;
    state_.SelectedFrequency = 1230;
    state_.DayColor = 0xD;
    state_.NightColor = 0x4;
    state_.CriticalColor = 0xC;
    state_.UnlimitedColor = 0xF;
    state_.AdjacentColor = 0xA;
  }

  ChannelOutcome Plot(float channel = 1230) {
    canvas_.Clear();
    return PlotChannel(canvas_, files_.Folder(), state_, MapProjection({40, 75}, state_.ScaleFactor),
                       channel);
  }

  /// Channel, call sign, hours code, figure and colour of each station drawn.
  std::string Stations(float channel = 1230) {
    const ChannelOutcome outcome = Plot(channel);
    EXPECT_EQ(outcome.Notes, std::vector<std::string>{});
    std::string text;
    for (std::size_t i = 0; i + 1 < canvas_.List.size(); ++i) {
      if (canvas_.List[i].Verb != "Station") continue;
      const Drawn& figure = canvas_.List[i + 1];
      char color[8];
      std::snprintf(color, sizeof color, "%X", static_cast<unsigned>(figure.Color));
      text += canvas_.List[i].Text + ' ' + figure.Verb + ' ' + color + '\n';
    }
    return text;
  }

  TestFolder files_;
  SessionState state_;
  RecordingCanvas canvas_;
};

TEST_F(ChannelPlotTest, HoursFilterAndColours) {
  files_.Put("1230x.dat",
             Station("DAY", "D") + Station("NIGHT", "N") + Station("CRIT", "C") + Station("UNL", "U"));
  const std::string day = "1230 DAY D Polygon D\n", night = "1230 NIGHT N Polygon 4\n",
                    critical = "1230 CRIT C Polygon C\n", unlimited = "1230 UNL U Polygon F\n";
  const struct {
    std::int16_t filter;
    std::string stations;
  } rows[] = {{0, day + night + critical + unlimited},
              {1, day + critical + unlimited},
              {2, night + critical + unlimited},
              {3, unlimited},
              {-1, unlimited}};
  for (const auto& row : rows) {
    state_.HoursFilter = HoursFilter{row.filter};
    EXPECT_EQ(Stations(), row.stations) << row.filter;
  }
}

TEST_F(ChannelPlotTest, AnHoursCodeOfNoKindIsAPointInTheFormerColour) {
  files_.Put("1230x.dat", Station("A", "d") + Station("B", "C") + Station("E", "d") + Station("F", "UU") +
                              Station("G", "N"));
  EXPECT_EQ(Stations(),
            "1230 A d Dot 0\n1230 B C Polygon C\n1230 E d Dot C\n1230 F UU Dot C\n1230 G N Polygon 4\n");
  state_.HoursFilter = HoursFilter::Night;
  EXPECT_EQ(Stations(), "1230 B C Polygon C\n1230 G N Polygon 4\n");
}

TEST_F(ChannelPlotTest, AdjacentChannelsHaveTheirOwnColour) {
  files_.Put("1220x.dat", Station("A", "D") + Station("B", "d") + Station("C", "U"));
  files_.Put("1230x.dat", Station("E", "D"));
  EXPECT_EQ(Stations(1220), "1220 A D Polygon D\n1220 B d Dot D\n1220 C U Polygon F\n")
      << "only when adjacents are shown";
  state_.AdjacentsShown = 1;
  EXPECT_EQ(Stations(1220), "1220 A D Polygon A\n1220 B d Dot A\n1220 C U Polygon A\n");
  EXPECT_EQ(Stations(1230), "1230 E D Polygon D\n");
}

TEST_F(ChannelPlotTest, UnknownPatternsAreDotsAndLeaveNoShapeBehind) {
  files_.Put("1230x.dat", Station("A", "D") + Station("B", "N", "40,75", "0") +
                              Station("E", "U", "41,75", "2\n0,0,0,0,0,0\n0,0,0,0,90,0") +
                              Station("F", "d", "42,75", "0"));
  EXPECT_EQ(
      Stations(),
      "1230 A D Polygon D\n1230 B N FilledCircle 4\n1230 E U FilledCircle F\n1230 F d FilledCircle F\n");
  for (const Drawn& dot : canvas_.All("FilledCircle")) EXPECT_EQ(dot.Radius, 30);
  EXPECT_EQ(canvas_.Texts().size(), 4U);
}

TEST_F(ChannelPlotTest, OneLabelForACallSignAndPlace) {
  files_.Put("1230x.dat", Station("WXYZ", "D") + Station("WXYZ", "N") + Station("WXYZ", "N", "40.5,75") +
                              Station("WABC", "N"));
  Plot();
  EXPECT_EQ(canvas_.Texts(), (std::vector<std::string>{"1230 WXYZ", "1230 WXYZ", "1230 WABC"}));
  const Drawn label = canvas_.All("Text").front();
  EXPECT_EQ(label.Points.front(), (Point{5940, 4290}));
  EXPECT_EQ(label.Face.Points, 8);
  EXPECT_EQ(canvas_.All("Station").size(), 4U);
  EXPECT_EQ(canvas_.All("EndStation").size(), 4U);
  EXPECT_EQ(canvas_.List.back().Face.Points, 10) << "the font is set back";

  state_.HoursFilter = HoursFilter::Night;  // the label does not hang on the record that is filtered out
  Plot();
  EXPECT_EQ(canvas_.Texts().size(), 3U);
}

TEST_F(ChannelPlotTest, ChannelsOutsideTheBandAndMissingFiles) {
  for (const char* name : {"520x.dat", "1710x.dat", "530x.dat"}) files_.Put(name, Station("A", "U"));
  for (const float channel :
       {520.0F, 529.9F, 1700.1F, 1710.0F, 0.0F, -5.0F, std::numeric_limits<float>::quiet_NaN()}) {
    const ChannelOutcome outcome = Plot(channel);
    EXPECT_FALSE(outcome.FileMissing);
    EXPECT_EQ(canvas_.Readable(), "") << channel;
  }
  EXPECT_EQ(Stations(530), "530 A U Polygon F\n");
  const ChannelOutcome missing = Plot(1700);
  EXPECT_TRUE(missing.FileMissing);
  EXPECT_EQ(missing.Notes, std::vector<std::string>());
  EXPECT_EQ(canvas_.Readable(), "");
  files_.Put("1240x.dat", "hello\n" + Station("A", "U"));
  EXPECT_EQ(Plot(1240).Notes,
            std::vector<std::string>{"1240x.dat:1: not a station line, which begins with the channel"});
}

class DrawPatternTest : public testing::Test {
 protected:
  std::vector<Point> Draw(const PatternValues& values, Point station = {6000, 4500}, float factor = 1) {
    RecordingCanvas canvas;
    DrawPattern(canvas, state_, station, {0, factor}, values);
    EXPECT_EQ(canvas.List.size(), 1U);
    EXPECT_EQ(canvas.List.front().Verb, "Polygon");
    EXPECT_EQ(canvas.List.front().Points.size(), 180U);
    return canvas.List.front().Points;
  }
  SessionState state_;
};

TEST_F(DrawPatternTest, TheOutlineStandsOneDegreeAnticlockwise) {
  state_.ScaleFactor = 1000;
  state_.PatternSize = 0.5F;
  PatternValues values;
  for (std::size_t i = 0; i < values.size(); ++i) values[i] = 1 + static_cast<float>(i) / 1000;
  const std::vector<Point> outline = Draw(values, {100, -200}, 0.96F);
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const double bearing = 2.0 * static_cast<double>(i) / 57.295779513;
    const double radius = 0.96 * 0.5 * 1000 * (1 + (2.0 * static_cast<double>(i) + 1) / 1000);
    EXPECT_NEAR(outline[i].x, 100 + radius * std::sin(bearing), 0.01) << i;
    EXPECT_NEAR(outline[i].y, -200 - radius * std::cos(bearing), 0.01) << i;
  }
}

TEST_F(DrawPatternTest, AspectWidensAndTheLimitHolds) {
  state_.ScaleFactor = 100;
  state_.PatternSize = 1;
  state_.AspectRatio = 1.5F;
  PatternValues values;
  values.fill(10);
  std::vector<Point> outline = Draw(values);
  EXPECT_NEAR(outline[45].x, 7500, 0.01);  // due east
  EXPECT_NEAR(outline[45].y, 4500, 0.01);
  EXPECT_NEAR(outline[0].y, 3500, 0.01);  // due north
  EXPECT_NEAR(outline[135].x, 4500, 0.01);

  state_.ScaleFactor = 10000;
  outline = Draw(values);
  EXPECT_EQ(outline[0].y, -30000);
  EXPECT_EQ(outline[45].x, 30000);
  EXPECT_EQ(outline[90].y, 30000);
  EXPECT_EQ(outline[135].x, -30000);
}

/// The same antenna by hours: sizes that never coincide.
TEST_F(ChannelPlotTest, SizesByHours) {
  files_.Put("1230x.dat", Station("A", "U") + Station("A", "D") + Station("A", "C") + Station("A", "N"));
  Plot();
  const auto outlines = canvas_.All("Polygon");
  ASSERT_EQ(outlines.size(), 4U);
  const double factors[] = {1.02 * 1.01, 1.0 * 0.99, 0.98, 0.96};
  for (std::size_t i = 0; i < 4; ++i)
    for (const Point point : outlines[i].Points)
      ASSERT_NEAR(std::hypot(point.x - 6000, point.y - 4500), 2 * 0.5 * 200 * factors[i], 0.01) << i;
}

}  // namespace
}  // namespace kestrel
