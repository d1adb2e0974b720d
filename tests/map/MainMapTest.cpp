#include "map/MainMap.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "RecordingCanvas.h"
#include "TestFolder.h"
#include "map/BandScan.h"
#include "map/MomentMap.h"

namespace kestrel {
namespace {

using Texts = std::vector<std::string>;

const QByteArray kStation = "1230,WXYZ,City,ST,US,U,40,75,1,-,-,1\n0,1,0,0,0,0\n";

class MainMapTest : public testing::Test {
 protected:
  MainMapTest() {
    state_.HomeLatitude = 40;
    state_.HomeLongitude = 75;
    state_.CurrentFrequency = state_.SelectedFrequency = 1230;
    files_.Put("REGION2.dat", "40 285\n41 285\n");
    files_.Put("STATES.dat", "40 285\n40 286\n");
  }
  Texts Draw(MapGround ground = MapGround::Empty) {
    canvas_.Clear();
    notes_ = DrawMainMap(canvas_, files_.Folder(), state_, ground);
    return canvas_.Texts();
  }
  /// The texts of stations, which stand in front of the legend's.
  Texts Labels() {
    Texts texts = Draw();
    texts.erase(std::find(texts.begin(), texts.end(), "Adjacents"), texts.end());
    return texts;
  }

  TestFolder files_;
  SessionState state_;
  RecordingCanvas canvas_;
  Texts notes_;
};

TEST_F(MainMapTest, DrawsFromTheGroundUp) {
  files_.Put("1230x.dat", kStation);
  state_.HoursFilter = HoursFilter::Day;
  state_.CompassShown = 1;
  Draw();
  const std::string drawn = canvas_.Readable();
  std::size_t before = 0;
  for (const char* figure : {"Polyline DD9999", "Circle 0000FF", "Polyline CC8888", "\"1230 WXYZ\"",
                             "\"Adjacents\"", "Day, critical", "Line FF8888", "\"350\""}) {
    const std::size_t at = drawn.find(figure);
    ASSERT_NE(at, std::string::npos) << figure;
    EXPECT_GE(at, before) << figure;
    before = at;
  }
  EXPECT_EQ(drawn.find("No station file"), std::string::npos);

  Draw(MapGround::AsDrawn);
  EXPECT_EQ(canvas_.All("Polyline").size(), 0U);
  EXPECT_EQ(canvas_.All("Polygon").size(), 1U);
}

TEST_F(MainMapTest, AdjacentsFollowWhenShown) {
  for (const char* name : {"520x.dat", "530x.dat", "540x.dat", "1690x.dat", "1700x.dat", "1710x.dat"})
    files_.Put(name, kStation);
  state_.CurrentFrequency = state_.SelectedFrequency = 530;
  EXPECT_EQ(Labels(), (Texts{"530 WXYZ"}));
  state_.AdjacentsShown = 1;
  state_.CurrentFrequency = state_.SelectedFrequency = 1700;
  EXPECT_EQ(Labels(), (Texts{"1700 WXYZ", "1690 WXYZ"}));
  state_.CurrentFrequency = state_.SelectedFrequency = 530;
  EXPECT_EQ(Labels(), (Texts{"530 WXYZ", "540 WXYZ"}));
  EXPECT_EQ(notes_, Texts{});
}

TEST_F(MainMapTest, AChannelOutsideTheBandHasNeitherStationsNorLegend) {
  for (const char* name : {"0x.dat", "1700x.dat", "1710x.dat", "5000x.dat"}) files_.Put(name, kStation);
  state_.HoursFilter = HoursFilter::Day;
  for (const float channel : {0.0F, 5000.0F, 1710.0F}) {
    state_.CurrentFrequency = state_.SelectedFrequency = channel;
    EXPECT_EQ(Draw(), Texts{}) << channel;
    EXPECT_EQ(canvas_.All("Polyline").size(), 2U);
  }
  state_.AdjacentsShown = 1;
  EXPECT_EQ(Labels(), (Texts{"1700 WXYZ"})) << "beside 1710";
  EXPECT_EQ(notes_, Texts{});
}

TEST_F(MainMapTest, AMissingFileLeavesItsNotice) {
  state_.AdjacentsShown = 1;
  files_.Put("1240x.dat", "1240,A,c,s,u,U,1,2,3,-,-,13\n" + kStation);
  const Texts texts = Draw();
  EXPECT_EQ(texts.front(), "1240 WXYZ");
  EXPECT_EQ(texts.back(), "    No station file for 1230 kHz");
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "Unlimited"), 1);
  EXPECT_EQ(notes_, (Texts{"1240x.dat:1: 13 towers, at most 12"}));

  files_.Put("1230x.dat", kStation);  // now the missing one is an adjacent
  const Texts whole = Draw();
  EXPECT_EQ(
      std::count_if(whole.begin(), whole.end(),
                    [](const std::string& text) { return text.find("No station") != std::string::npos; }),
      0);
  EXPECT_EQ(notes_, (Texts{"1240x.dat:1: 13 towers, at most 12"}));
}

TEST_F(MainMapTest, AFileThatIsThereAndCannotBeReadIsNotMissing) {
  QDir(files_.Folder().Path()).mkdir("1230x.dat");
  Draw();
  EXPECT_EQ(canvas_.Readable().find("No station file"), std::string::npos);
  ASSERT_EQ(notes_.size(), 1U);
  EXPECT_EQ(notes_[0].substr(0, 11), "1230x.dat: ");
}

TEST(NotesLineTest, SaysTheFirstFaultOfEachFile) {
  EXPECT_EQ(NotesLine({}), "");
  EXPECT_EQ(NotesLine({"a: lost"}), "Left out: a: lost");
  EXPECT_EQ(NotesLine({"a:1: x", "b: y", "a:2: z", "a:9: x"}), "Left out: a:1: x (and 2 more); b: y");
}

TEST_F(MainMapTest, TheScanMarksStationsWithoutPatterns) {
  files_.Put("1230x.dat", kStation + kStation + "1230,WABC,City,ST,US,N,-60,75,1,-,-,0\n");
  const MapProjection projection({40, 75}, 1000);
  RecordingCanvas canvas;
  BandScan scan(files_.Folder(), projection);
  while (scan.Channel() < 1230) EXPECT_EQ(scan.DrawNext(canvas).error().kind, Error::Kind::NotFound);
  EXPECT_TRUE(canvas.List.empty());
  ASSERT_TRUE(scan.DrawNext(canvas));
  EXPECT_EQ(canvas.Texts(), (Texts{"1230", "1230"}));
  EXPECT_EQ(canvas.All("Text")[0].Points[0], (Point{5940, 4290}));
  EXPECT_EQ(canvas.All("Line")[0].Points, (std::vector<Point>{{5984, 4500}, {6016, 4500}}));
  EXPECT_EQ(canvas.All("Line")[1].Points, (std::vector<Point>{{6000, 4484}, {6000, 4516}}));
  EXPECT_EQ(canvas.All("Line").size(), 6U);
  EXPECT_EQ(canvas.All("Line")[0].Color, 255);
  EXPECT_EQ(canvas.All("Polygon").size(), 0U);

  // The others in their order, one that is no file among them, whoever reads them ahead.
  for (const char* name : {"1240x.dat", "1690x.dat", "1700x.dat"}) files_.Put(name, kStation);
  QDir(files_.Folder().Path()).mkdir("1250x.dat");
  for (const int processors : {1, 4}) {
    canvas.Clear();
    std::vector<float> drawn, faulty;
    for (BandScan whole(files_.Folder(), projection, processors); !whole.AtEnd();) {
      const float channel = whole.Channel();
      const Result<Done> done = whole.DrawNext(canvas);
      if (done)
        drawn.push_back(channel);
      else if (done.error().kind != Error::Kind::NotFound)
        faulty.push_back(channel);
    }
    EXPECT_EQ(drawn, (std::vector<float>{1230, 1240, 1690, 1700}));
    EXPECT_EQ(faulty, std::vector<float>{1250});
    EXPECT_EQ(canvas.Texts(), (Texts{"1230", "1230", "1240", "1690", "1700"}));
  }
}

// A station by day and by night, one that sends by day only, and an added channel; nothing is read after
// Read.
TEST_F(MainMapTest, DrawsTheRecordsInForceAtAMoment) {
  files_.Put("1230x.dat",
             "1230,WXYZ,City,ST,United States,D,40,75,1,-,-,1\n0,1,90,0,0,0\n"
             "1230,WXYZ,City,ST,United States,N,40,75,.5,-,-,1\n0,1,90,0,0,0\n"
             "1230,WDAY,Town,ST,United States,D,41,75,1,-,-,1\n0,1,90,0,0,0\n");
  files_.Put("1240x.dat", "1240,XADD,Town,ST,Mexico,U,39,75,1,-,-,1\n0,1,90,0,0,0\n");
  const FixedMeasure measure;
  MomentMap map(measure);
  state_.HoursFilter = HoursFilter::Day;  // without a part in it
  EXPECT_TRUE(map.Read(files_.Folder(), state_).empty());
  state_.CurrentFrequency = state_.SelectedFrequency = 1240;
  EXPECT_TRUE(map.Read(files_.Folder(), state_, MapGround::AsDrawn).empty());
  files_.Put("1230x.dat", "");

  const auto drawnAt = [&](const char* moment) {
    canvas_.Clear();
    map.Draw(canvas_, *ReadMoment(moment, {}), HoursRule::Auto);
    Texts stations;
    for (const Drawn& drawn : canvas_.List) {
      if (drawn.Verb == "Station") stations.push_back(drawn.Text);
      if (drawn.Verb == "Circle" && drawn.Color == Palette::OffAir) stations.back() += " off";
    }
    return stations;
  };
  EXPECT_EQ(drawnAt("2026-06-21T17:00Z"), (Texts{"1230 WXYZ D", "1230 WDAY D", "1240 XADD U"}));
  EXPECT_EQ(drawnAt("2026-06-21T05:00Z"), (Texts{"1230 WDAY D off", "1230 WXYZ N", "1240 XADD U"}));
  const std::string drawn = canvas_.Readable();
  EXPECT_LT(drawn.find("\"night\""), drawn.find("Polyline DD9999"));
  EXPECT_NE(drawn.find("2026-06-21T05:00Z"), std::string::npos);
  EXPECT_EQ(drawn.find("Day, critical"), std::string::npos);
  EXPECT_EQ(drawn.find("WDAY\""), std::string::npos);
}

}  // namespace
}  // namespace kestrel
