#include "forms/PlotFixture.h"
#include "map/RecordingCanvas.h"

namespace kestrel {
namespace {

TEST_F(frmPlotTest, ExitSavesOnceAndSaysSo) {
  Open();
  PressInForm("cmdFreq", {"cmdErasePlot"}, "1230");
  Press("cmdIn");
  Press("cmdExit");
  EXPECT_FALSE(plot_->isVisible());
  EXPECT_EQ(System.PausedSeconds, 1);
  EXPECT_TRUE(System.Messages.isEmpty());
  const std::string saved = Files.Text("Kestrel.CFG");
  EXPECT_NE(saved.find("Frequency displayed: 1230\r\n"), std::string::npos) << saved;
  EXPECT_NE(saved.find("Scale factor: 282.8427\r\n"), std::string::npos) << saved;

  Files.Remove("Kestrel.CFG");
  plot_->close();
  EXPECT_EQ(Files.Text("Kestrel.CFG"), "") << "saved a second time";
}

TEST_F(frmPlotTest, FailedSaveIsSaidAndTheProgramGoesOn) {
  QDir().mkpath(Files.Path("Kestrel.CFG"));
  Open();
  plot_->close();
  EXPECT_EQ(System.Messages, QStringList("The KestrelII last-session file was not written correctly."));
  EXPECT_EQ(System.Beeps, 1);
  EXPECT_EQ(System.PausedSeconds, 0);
  EXPECT_FALSE(plot_->isVisible());
}

TEST_F(frmPlotTest, HoursAndZoomAndPatternSizeGoRound) {
  Open();
  const Names all = {"QDN620 D", "QDN620 N", "QU620 U"};
  EXPECT_EQ(Drawn(), all);
  Press("cmdHours");
  EXPECT_EQ(Drawn(), (Names{"QDN620 D", "QU620 U"}));
  Press("cmdHours");
  EXPECT_EQ(Drawn(), (Names{"QDN620 N", "QU620 U"}));
  PressKey(Qt::Key_H);
  EXPECT_EQ(Drawn(), all);

  for (int i = 0; i < 20; ++i) Press("cmdIn");
  EXPECT_EQ(State.ScaleFactor, 10000);
  EXPECT_FALSE(Button("cmdIn")->isEnabled());
  EXPECT_TRUE(Button("cmdOut")->isEnabled());
  for (int i = 0; i < 20; ++i) Press("cmdOut");
  EXPECT_EQ(State.ScaleFactor, 50);
  EXPECT_FALSE(Button("cmdOut")->isEnabled());
  Press("cmdSmaller");
  EXPECT_LT(State.PatternSize, 0.5F);
  Press("cmdLarger");
  Press("cmdLarger");
  EXPECT_GT(State.PatternSize, 0.5F);
}

TEST_F(frmPlotTest, AnImportIsOnTheMapAndInTheListOfCallSigns) {
  Files.Put("amq.txt", FccRow("KAAA", "620", "5.0", "11"));
  ASSERT_TRUE(LoadPlaceLists(Files.Folder(), State));
  Open();
  const Names before = Drawn();
  const std::vector<std::string> calls = State.CallList;
  System.NextFiles = {Files.Path("amq.txt")};
  System.NextConfirmation = true;
  PressInForm("cmdImport", {"cmdAdd", "cmdImport", "cmdExit"});
  EXPECT_EQ(Drawn(), (Names{"KAAA U"}));
  ASSERT_EQ(State.CallList.size(), 1U);
  EXPECT_EQ(State.CallList[0].substr(0, 4), "KAAA");

  PressInForm("cmdImport", {"cmdUndo", "cmdExit"});
  EXPECT_EQ(Drawn(), before);
  EXPECT_EQ(State.CallList, calls);
}

TEST_F(frmPlotTest, WhatReadersLeftOutStandsUnderTheMap) {
  Files.Put("1230x.dat", "1230,QXYZ,City,ST,US,U,40,75,1,-,-,14\n");
  QDir().mkpath(Files.Path("1250x.dat"));
  Open();
  EXPECT_FALSE(Find<QLabel>(*plot_, "LeftOut")->isVisible());
  PressInForm("cmdFreq", {"cmdErasePlot"}, "1230");
  EXPECT_TRUE(Find<QLabel>(*plot_, "LeftOut")->isVisible());
  EXPECT_EQ(Shown(*plot_, "LeftOut"), "Left out: 1230x.dat:1: 14 towers, at most 12");
  PressInForm("cmdFreq", {"cmdErasePlot"}, "1240");  // is missing, which the map says
  EXPECT_FALSE(Find<QLabel>(*plot_, "LeftOut")->isVisible());
  ScanTheBand();
  EXPECT_EQ(Shown(*plot_, "LeftOut").substr(0, 21), "Left out: 1250x.dat: ");
  EXPECT_TRUE(System.Messages.isEmpty());
}

TEST_F(frmPlotTest, AddPlotKeepsTheFirstChannelAndEraseDoesNot) {
  Open();
  AddChannel("1230");
  EXPECT_EQ(ChannelsDrawn(), (Channels{620, 1230}));
  const std::size_t without = plot_->Surface().Drawing().Length();
  Press("cmdCompass");
  EXPECT_GT(plot_->Surface().Drawing().Length(), without + 36);
  EXPECT_EQ(ChannelsDrawn(), (Channels{620, 1230})) << "laid over what is there";
  Press("cmdCompass");
  EXPECT_EQ(ChannelsDrawn(), Channels{1230}) << "cleared and drawn anew";

  PressInForm("cmdFreq", {"cmdErasePlot"}, "620");
  EXPECT_EQ(ChannelsDrawn(), Channels{620});
  PressInForm("cmdFreq", {"cmdAdd1st"});
  EXPECT_EQ(ChannelsDrawn(), (Channels{620, 630}));
  Press("cmdIn");
  EXPECT_EQ(ChannelsDrawn(), (Channels{620, 630})) << "adjacents stay through a zoom";
  PressKey(Qt::Key_PageUp);
  EXPECT_EQ(ChannelsDrawn(), Channels{630});
  State.CurrentFrequency = 1700;
  PressKey(Qt::Key_PageUp);
  EXPECT_EQ(System.Messages, QStringList("Frequency over 1700 reset to 1700"));
  EXPECT_EQ(ChannelsDrawn(), Channels{}) << "a channel without a file";
}

TEST_F(frmPlotTest, OptionsDrawTheMapAnewOnlyWhereTheyChangeIt) {
  Open();
  AddChannel("1230");
  System.NextColor.reset();
  PressInForm("cmdOptions", {"cmdNight", "optFrench", "cmdExit"});
  EXPECT_EQ(ChannelsDrawn(), (Channels{620, 1230})) << "left as it was";
  for (const char* change : {"cmdNight", "optMiles"}) {
    AddChannel("620");
    AddChannel("1230");
    System.NextColor = 0x123456;
    PressInForm("cmdOptions", {change, "cmdExit"});
    EXPECT_EQ(ChannelsDrawn(), Channels{1230}) << change;
  }
  RecordingCanvas shown;
  plot_->Surface().Drawing().Play(shown);
  const auto lines = shown.All("Polygon");
  EXPECT_TRUE(
      std::any_of(lines.begin(), lines.end(), [](const auto& line) { return line.Color == 0x123456; }));
}

TEST_F(frmPlotTest, ScanDrawsEveryChannelUntilStopped) {
  Files.Put("620x.dat", "620, QFAR, TOWN, TX, United States, D, 33, 99, 1,-,-, 0\n");
  Open();
  EXPECT_FALSE(Button("cmdStop")->isVisible());
  PressInForm("cmdAll", {"cmdPlotNo"});
  EXPECT_EQ(System.EventRounds, 0);

  System.OnEvents = [this](int round) {
    if (round == 118) {
      EXPECT_EQ(ClickAt(PixelOf("QFAR")), "") << "no lookup while the scan runs";
    }
  };
  ScanTheBand();
  EXPECT_EQ(System.EventRounds, 118);
  EXPECT_EQ(ChannelsDrawn(), (Channels{620, 630, 1230}));
  EXPECT_EQ(System.Beeps, 1);
  EXPECT_TRUE(State.StopRequested);

  System.OnEvents = [this](int round) {
    if (round != 118 + 10) return;
    EXPECT_TRUE(Button("cmdStop")->isVisible());
    EXPECT_FALSE(Button("cmdFreq")->isEnabled());
    Press("cmdStop");
  };
  PressInForm("cmdAll", {"cmdAlterYes"});
  EXPECT_EQ(System.EventRounds, 118 + 10);
  EXPECT_EQ(ChannelsDrawn(), Channels{620});
  EXPECT_EQ(State.ScaleFactor, 10000);
  EXPECT_FALSE(Button("cmdIn")->isEnabled());
  EXPECT_TRUE(Button("cmdFreq")->isEnabled());

  System.OnEvents = [this](int round) {
    if (round == 118 + 10 + 3) plot_->close();
  };
  ScanTheBand();
  EXPECT_EQ(System.EventRounds, 118 + 10 + 3);
  EXPECT_FALSE(plot_->isVisible()) << "closed while the scan ran";
  EXPECT_NE(Files.Text("Kestrel.CFG"), "");
}

TEST_F(frmPlotTest, RestingOnAStationTellsOfIt) {
  Files.Put("620x.dat",
            "620, QEAST, TOWN, TX, United States, D, 33, 94, 1,-,-, 0\n"
            "620, QWEST, TOWN, TX, United States, D, 33, 99, 1,-,-, 0\n"
            "620, QNEAR, TOWN, TX, United States, D, 33, 99.3, 1,-,-, 0\n");
  Open();
  plot_->Surface().SetLook({.Labels = LabelChoice::None});  // they can be pointed at, too
  plot_->grab();
  const QPoint east = PixelOf("QEAST");
  for (const QPoint& away : {QPoint(0, 0), QPoint(9, 0), QPoint(6, -6)})
    EXPECT_EQ(RestAt(east + away), "620 kHz QEAST  TOWN, TX") << away.x() << ' ' << away.y();
  EXPECT_EQ(QToolTip::text().count('\n'), 3) << "power and hours, distance and bearing, field below";
  for (const QPoint& away : {QPoint(12, 0), QPoint(9, 9)})
    EXPECT_EQ(RestAt(east + away), "") << away.x() << ' ' << away.y();

  const QPoint west = PixelOf("QWEST");
  const QPoint near = PixelOf("QNEAR");
  ASSERT_LT(west.x() - near.x(), 10) << "both within reach";
  EXPECT_EQ(RestAt(near), "620 kHz QWEST  TOWN, TX: 1 kW daytime; 231 km, 263.9 deg") << "strongest first";
  EXPECT_TRUE(QToolTip::text().section('\n', 1).startsWith("620 kHz QNEAR  TOWN, TX: "));
  Files.Remove("620x.dat");
  EXPECT_EQ(RestAt(east), "") << "the words are read from the file";
}

TEST_F(frmPlotTest, AClickOpensTheLookupForStationsOfTheChannelOnly) {
  Files.Put("630x.dat", "630, QNEXT, TOWN, TX, United States, D, 33, 94, 1,-,-, 0\n");
  Open();
  EXPECT_EQ(ClickAt(PixelOf("QDN620")), "QDN620: 2 records");
  EXPECT_EQ(ClickAt(PixelOf("QU620"), Qt::RightButton), "");
  EXPECT_EQ(ClickAt(PixelOf("QU620") + QPoint(0, -40)), "") << "no station there";
  EXPECT_EQ(TipShown(), "");

  PressInForm("cmdFreq", {"cmdAdd1st"});
  EXPECT_EQ(ClickAt(PixelOf("QNEXT")), "");
  EXPECT_EQ(TipShown(), "630 kHz QNEXT  TOWN, TX");
  EXPECT_EQ(ClickAt(PixelOf("QU620")), "QU620: 1 records");
}

TEST_F(frmPlotTest, PrintOffersTheMapAsItIsShown) {
  std::string title;
  SheetArea onPage;
  RecordingCanvas mapOnPage;
  System.NextPrint = [&](const PrintOffer& offer) {
    const std::vector<PagePane> panes = offer.Page.Layout({14688, 11088});
    RecordingCanvas canvas;
    panes.at(0).Draw(canvas);
    title = canvas.Texts().at(0);
    onPage = panes.at(1).Sheet;
    mapOnPage.Clear();
    panes.at(1).Draw(mapOnPage);
    return std::nullopt;
  };
  const auto printed = [&] {
    Press("cmdPrint");
    RecordingCanvas shown;
    plot_->Surface().Drawing().Play(shown);
    EXPECT_EQ(mapOnPage.List, shown.List);
    return title.substr(0, title.find("    Home: "));
  };
  Open();
  plot_->resize(1600, 500);
  EXPECT_EQ(printed(), "620 kHz");
  const Point corner = plot_->Surface().ToSheet({0, 0});
  ASSERT_LT(corner.x, -3000) << "the window shows more than the sheet";
  EXPECT_LE(onPage.Left, corner.x + 1);
  EXPECT_GE(onPage.Left + onPage.Width, SheetWidth - corner.x - 1);
  plot_->resize(600, 900);
  EXPECT_EQ(printed(), "620 kHz");
  EXPECT_GE(onPage.Top + onPage.Height, plot_->Surface().ToSheet(QPointF(0, plot_->Surface().height())).y - 1)
      << "higher than the sheet";
  AddChannel("1230");
  EXPECT_EQ(printed(), "1230 kHz with 620 kHz");
  ScanTheBand();
  EXPECT_EQ(printed(), "620, 630, 1230 kHz");
  Press("cmdIn");
  AddChannel("620");
  EXPECT_EQ(printed(), "620 kHz with 1230 kHz") << "no scan any more";
  EXPECT_TRUE(System.Messages.isEmpty()) << "cancelled";
}

TEST_F(frmPlotTest, AspectWindowOpensOnceAndIsActive) {
  Open();
  for (int press = 0; press < 2; ++press) {
    PressInForm("cmdOptions", {"cmdAspect"});
    const QList<QDialog*> windows = plot_->findChildren<QDialog*>("frmAspect");
    ASSERT_EQ(windows.size(), 1);
    EXPECT_TRUE(QTest::qWaitForWindowActive(windows.first()));
  }
}

}  // namespace
}  // namespace kestrel
