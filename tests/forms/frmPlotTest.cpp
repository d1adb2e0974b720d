#include "forms/frmPlot.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <set>

#include "forms/SampleFolder.h"
#include "forms/StandInPlatform.h"
#include "forms/frmAspect.h"
#include "map/RecordingCanvas.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

class frmPlotTest : public ::testing::Test {
 protected:
  void Open() {
    plot_ = std::make_unique<frmPlot>(workspace_);
    plot_->show();
  }

  QPushButton* Button(const char* name) { return plot_->findChild<QPushButton*>(name); }
  void PressKey(Qt::Key key) {
    plot_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(plot_.get()));  // shortcuts work in the active window
    QTest::keyClick(plot_.get(), key);
  }
  void Press(const char* name) { QTest::mouseClick(Button(name), Qt::LeftButton); }

  /// Presses a command that opens a modal window, and in that window a button.
  void PressInForm(const char* command, const QString& entry, const char* button) {
    QTimer::singleShot(0, [entry, button] {
      QWidget* form = QApplication::activeModalWidget();
      ASSERT_NE(form, nullptr);
      if (!entry.isEmpty()) form->findChild<QLineEdit*>()->setText(entry);
      QTest::mouseClick(form->findChild<QPushButton*>(button), Qt::LeftButton);
    });
    Press(command);
  }

  /// "QDN620 D" for every record drawn.
  std::set<std::string> Drawn() {
    std::set<std::string> drawn;
    for (const StationMark& mark : plot_->Surface().Drawing().Stations())
      drawn.insert(mark.CallSign + ' ' + mark.HoursCode);
    return drawn;
  }

  std::set<int> ChannelsDrawn() {
    std::set<int> channels;
    for (const StationMark& mark : plot_->Surface().Drawing().Stations()) channels.insert(mark.Channel);
    return channels;
  }

  /// Where the mark of a station lies on the map, in pixels.
  QPoint PixelOf(const std::string& callSign) {
    for (const StationMark& mark : plot_->Surface().Drawing().Stations())
      if (mark.CallSign == callSign) return plot_->Surface().FromSheet(mark.At).toPoint();
    ADD_FAILURE() << callSign << " is not on the map";
    return {};
  }

  /// The first line of the tip that is shown; nothing when there is none.
  static std::string TipShown() {
    return QToolTip::isVisible() ? QToolTip::text().section('\n', 0, 0).toStdString() : "";
  }
  static void ForgetTip() {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->inherits("QTipLabel")) delete window;
  }

  /// The tip when the mouse rests there.
  std::string RestAt(QPoint pixel) {
    ForgetTip();
    MapSurface& map = plot_->Surface();
    QTest::mouseMove(&map, pixel);
    QHelpEvent rest(QEvent::ToolTip, pixel, map.mapToGlobal(pixel));
    QApplication::sendEvent(&map, &rest);
    return TipShown();
  }

  /// Clicks on the map. Returns what the lookup has found, "QABC: 2 records", if it opens.
  std::string ClickAt(QPoint pixel, Qt::MouseButton button = Qt::LeftButton) {
    ForgetTip();
    std::string found;
    QTimer look;
    look.setSingleShot(true);
    look.callOnTimeout([&found] {
      auto* lookup = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(lookup, nullptr);
      found = lookup->findChild<QLineEdit*>("txtGetData")->text().toStdString() + ": " +
              std::to_string(lookup->findChild<QListWidget*>("lstGetData")->count()) + " records";
      lookup->reject();
    });
    look.start(0);
    QTest::mouseClick(&plot_->Surface(), button, {}, pixel);
    return found;
  }

  SampleFolder folder_;
  const DataFolder data_ = folder_.Folder();
  SessionState state_;
  StandInPlatform platform_;
  const Workspace workspace_{state_, data_, platform_};
  std::unique_ptr<frmPlot> plot_;
};

using Names = std::set<std::string>;

TEST_F(frmPlotTest, ExitSavesOnceAndSaysSo) {
  Open();
  PressInForm("cmdFreq", "1230", "cmdErasePlot");
  Press("cmdIn");
  Press("cmdExit");
  EXPECT_FALSE(plot_->isVisible());
  EXPECT_EQ(platform_.PausedSeconds, 1);
  EXPECT_TRUE(platform_.Messages.isEmpty());
  const std::string saved = folder_.Text("Kestrel.CFG");
  EXPECT_NE(saved.find("Frequency displayed: 1230\r\n"), std::string::npos) << saved;
  EXPECT_NE(saved.find("Scale factor: 282.8427\r\n"), std::string::npos) << saved;

  folder_.Remove("Kestrel.CFG");
  plot_->close();
  EXPECT_EQ(folder_.Text("Kestrel.CFG"), "") << "saved a second time";
}

TEST_F(frmPlotTest, FailedSaveIsSaidAndTheProgramGoesOn) {
  QDir().mkpath(folder_.Path("Kestrel.CFG"));
  Open();
  plot_->close();
  EXPECT_EQ(platform_.Messages, QStringList("The KestrelII last-session file was not written correctly."));
  EXPECT_EQ(platform_.Beeps, 1);
  EXPECT_EQ(platform_.PausedSeconds, 0);
  EXPECT_FALSE(plot_->isVisible());
}

TEST_F(frmPlotTest, ThreePressesOfHoursReturnToAll) {
  Open();
  const Names all = {"QDN620 D", "QDN620 N", "QU620 U"};
  EXPECT_EQ(Drawn(), all);
  Press("cmdHours");
  EXPECT_EQ(Drawn(), (Names{"QDN620 D", "QU620 U"}));
  Press("cmdHours");
  EXPECT_EQ(Drawn(), (Names{"QDN620 N", "QU620 U"}));
  PressKey(Qt::Key_H);
  EXPECT_EQ(Drawn(), all);
}

TEST_F(frmPlotTest, AnImportIsOnTheMapAndInTheListOfCallSigns) {
  folder_.Put(
      "amq.txt",
      "|KAAA|620   kHz|AM ||UNL|Unlimited|B|B|LIC|PLANO|TX|US|BL-1|5.0    kW||||11|N|33|1|11.28|W|96|41|"
      "56.04|OWNER, INC|0.0 km|0.0 mi|0.0 deg|1|0a|7|\n");
  ASSERT_TRUE(LoadPlaceLists(data_, state_));
  Open();
  const Names before = Drawn();
  const std::vector<std::string> calls = state_.CallList;
  platform_.NextFiles = {folder_.Path("amq.txt")};
  const auto inWindow = [&](std::vector<const char*> buttons) {
    QTimer::singleShot(0, [buttons] {
      QWidget* form = QApplication::activeModalWidget();
      ASSERT_NE(form, nullptr);
      for (const char* button : buttons)
        QTest::mouseClick(form->findChild<QPushButton*>(button), Qt::LeftButton);
    });
    Press("cmdImport");
  };
  inWindow({"cmdAdd", "cmdImport", "cmdExit"});
  EXPECT_EQ(Drawn(), (Names{"KAAA U"}));
  ASSERT_EQ(state_.CallList.size(), 1U);
  EXPECT_EQ(state_.CallList[0].substr(0, 4), "KAAA");

  inWindow({"cmdUndo", "cmdExit"});
  EXPECT_EQ(Drawn(), before);
  EXPECT_EQ(state_.CallList, calls);
}

TEST_F(frmPlotTest, ZoomStopsAtBothLimits) {
  Open();
  for (int i = 0; i < 20; ++i) Press("cmdIn");
  EXPECT_EQ(state_.ScaleFactor, 10000);
  EXPECT_FALSE(Button("cmdIn")->isEnabled());
  EXPECT_TRUE(Button("cmdOut")->isEnabled());
  for (int i = 0; i < 20; ++i) Press("cmdOut");
  EXPECT_EQ(state_.ScaleFactor, 50);
  EXPECT_FALSE(Button("cmdOut")->isEnabled());
  for (int i = 0; i < 20; ++i) Press("cmdSmaller");
  EXPECT_FLOAT_EQ(state_.PatternSize, 0.02F);
  for (int i = 0; i < 20; ++i) Press("cmdLarger");
  EXPECT_EQ(state_.PatternSize, 2);
}

TEST_F(frmPlotTest, AddPlotKeepsTheFirstChannelAndEraseDoesNot) {
  Open();
  PressInForm("cmdFreq", "1230", "cmdExit");
  EXPECT_EQ(ChannelsDrawn(), (std::set<int>{620, 1230}));
  PressInForm("cmdFreq", "620", "cmdErasePlot");
  EXPECT_EQ(ChannelsDrawn(), (std::set<int>{620}));
  PressInForm("cmdFreq", "", "cmdAdd1st");
  EXPECT_EQ(ChannelsDrawn(), (std::set<int>{620, 630}));
  Press("cmdIn");
  EXPECT_EQ(ChannelsDrawn(), (std::set<int>{620, 630})) << "adjacents stay through a zoom";
  PressKey(Qt::Key_PageUp);
  EXPECT_EQ(ChannelsDrawn(), (std::set<int>{630}));
  state_.CurrentFrequency = 1700;
  PressKey(Qt::Key_PageUp);
  EXPECT_EQ(platform_.Messages, QStringList("Frequency over 1700 reset to 1700"));
}

TEST_F(frmPlotTest, CompassIsLaidOverAndTakenAway) {
  Open();
  PressInForm("cmdFreq", "1230", "cmdExit");
  const std::size_t without = plot_->Surface().Drawing().Length();
  Press("cmdCompass");
  EXPECT_GT(plot_->Surface().Drawing().Length(), without + 36);
  EXPECT_EQ(ChannelsDrawn(), (std::set<int>{620, 1230})) << "laid over what is there";
  Press("cmdCompass");
  EXPECT_EQ(ChannelsDrawn(), (std::set<int>{1230})) << "cleared and drawn anew";
}

TEST_F(frmPlotTest, ScanDrawsEveryChannelUntilStopped) {
  Open();
  EXPECT_FALSE(Button("cmdStop")->isVisible());
  PressInForm("cmdAll", "", "cmdPlotNo");
  EXPECT_EQ(platform_.EventRounds, 0);

  PressInForm("cmdAll", "", "cmdAlterNo");
  EXPECT_EQ(platform_.EventRounds, 118);
  EXPECT_EQ(ChannelsDrawn(), (std::set<int>{620, 630, 1230}));
  EXPECT_EQ(platform_.Beeps, 1);
  EXPECT_TRUE(state_.StopRequested);

  platform_.OnEvents = [this](int round) {
    if (round != 118 + 10) return;
    EXPECT_TRUE(Button("cmdStop")->isVisible());
    EXPECT_FALSE(Button("cmdFreq")->isEnabled());
    Press("cmdStop");
  };
  PressInForm("cmdAll", "", "cmdAlterYes");
  EXPECT_EQ(platform_.EventRounds, 118 + 10);
  EXPECT_EQ(ChannelsDrawn(), (std::set<int>{620}));
  EXPECT_EQ(state_.ScaleFactor, 10000);
  EXPECT_FALSE(Button("cmdIn")->isEnabled());
  EXPECT_TRUE(Button("cmdFreq")->isEnabled());
}

TEST_F(frmPlotTest, RestingOnAStationTellsOfIt) {
  folder_.Put("620x.dat",
              "620, QEAST, TOWN, TX, United States, D, 33, 94, 1,-,-, 0\n"
              "620, QWEST, TOWN, TX, United States, D, 33, 99, 1,-,-, 0\n"
              "620, QNEAR, TOWN, TX, United States, D, 33, 99.3, 1,-,-, 0\n");
  Open();
  const QPoint east = PixelOf("QEAST");
  EXPECT_EQ(RestAt(east), "620 kHz QEAST  TOWN, TX");
  EXPECT_EQ(QToolTip::text().count('\n'), 2) << "power and hours, distance and bearing below";
  for (const QPoint& away : {QPoint(9, 0), QPoint(-9, 0), QPoint(0, 9), QPoint(6, -6)})
    EXPECT_EQ(RestAt(east + away), "620 kHz QEAST  TOWN, TX") << away.x() << ' ' << away.y();
  for (const QPoint& away : {QPoint(12, 0), QPoint(0, -12), QPoint(9, 9)})
    EXPECT_EQ(RestAt(east + away), "") << away.x() << ' ' << away.y();

  const QPoint west = PixelOf("QWEST");
  const QPoint near = PixelOf("QNEAR");
  ASSERT_GT(west.x() - near.x(), 2);
  ASSERT_LT(west.x() - near.x(), 10) << "both within reach";
  EXPECT_EQ(RestAt(near), "620 kHz QNEAR  TOWN, TX");
  EXPECT_EQ(RestAt(west), "620 kHz QWEST  TOWN, TX");
  folder_.Remove("620x.dat");
  EXPECT_EQ(RestAt(east), "") << "the words are read from the file";
}

TEST_F(frmPlotTest, AClickOpensTheLookupForStationsOfTheChannelOnly) {
  folder_.Put("630x.dat", "630, QNEXT, TOWN, TX, United States, D, 33, 94, 1,-,-, 0\n");
  folder_.Put("1230x.dat", "1230, QFAR, TOWN, TX, United States, D, 33, 99, 1,-,-, 0\n");
  Open();
  EXPECT_EQ(ClickAt(PixelOf("QDN620")), "QDN620: 2 records");
  EXPECT_EQ(ClickAt(PixelOf("QU620")), "QU620: 1 records");
  EXPECT_EQ(ClickAt(PixelOf("QU620"), Qt::RightButton), "");
  EXPECT_EQ(ClickAt(PixelOf("QU620") + QPoint(0, -40)), "") << "no station there";
  EXPECT_EQ(TipShown(), "");

  const auto expectTipOnly = [this](const char* callSign, const char* tip) {
    EXPECT_EQ(ClickAt(PixelOf(callSign)), "") << callSign;
    EXPECT_EQ(TipShown(), tip);
  };
  PressInForm("cmdFreq", "", "cmdAdd1st");
  expectTipOnly("QNEXT", "630 kHz QNEXT  TOWN, TX");
  EXPECT_EQ(ClickAt(PixelOf("QU620")), "QU620: 1 records");
  PressInForm("cmdFreq", "1230", "cmdExit");
  ASSERT_EQ(state_.CurrentFrequency, 1230);
  EXPECT_EQ(ClickAt(PixelOf("QFAR")), "QFAR: 1 records");
  expectTipOnly("QU620", "620 kHz QU620  CITY, OK");
  platform_.OnEvents = [&](int round) {
    if (round == 118) {
      EXPECT_EQ(ClickAt(PixelOf("QFAR")), "") << "not while the scan runs";
    }
  };
  PressInForm("cmdAll", "", "cmdAlterNo");
  expectTipOnly("QNEXT", "630 kHz QNEXT  TOWN, TX");
  EXPECT_EQ(ClickAt(PixelOf("QFAR")), "QFAR: 1 records");
}

TEST_F(frmPlotTest, PrintOffersTheMapAsItIsShown) {
  std::string title;
  SheetArea onPage;
  RecordingCanvas mapOnPage;
  platform_.NextPrint = [&](const PrintOffer& offer) {
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
  PressInForm("cmdFreq", "1230", "cmdExit");
  EXPECT_EQ(printed(), "1230 kHz with 620 kHz");
  PressInForm("cmdAll", "", "cmdAlterNo");
  EXPECT_EQ(printed(), "620, 630, 1230 kHz");
  Press("cmdIn");
  Press("cmdCompass");
  EXPECT_EQ(printed(), "1230 kHz");
  EXPECT_TRUE(platform_.Messages.isEmpty()) << "cancelled";
}

TEST_F(frmPlotTest, AspectWindowOpensOnceAndIsActive) {
  Open();
  PressInForm("cmdOptions", "", "cmdAspect");
  auto* aspect = plot_->findChild<frmAspect*>();
  ASSERT_NE(aspect, nullptr);
  EXPECT_TRUE(QTest::qWaitForWindowActive(aspect));
  PressInForm("cmdOptions", "", "cmdAspect");
  EXPECT_EQ(plot_->findChildren<frmAspect*>().size(), 1);
  EXPECT_TRUE(QTest::qWaitForWindowActive(aspect));
}

TEST_F(frmPlotTest, WindowMayBeClosedWhileTheScanRuns) {
  Open();
  platform_.OnEvents = [this](int round) {
    if (round == 3) plot_->close();
  };
  PressInForm("cmdAll", "", "cmdAlterNo");
  EXPECT_EQ(platform_.EventRounds, 3);
  EXPECT_FALSE(plot_->isVisible());
  EXPECT_NE(folder_.Text("Kestrel.CFG"), "");
}

TEST_F(frmPlotTest, MissingAndBrokenFilesLeaveTheRest) {
  folder_.Remove("STATES.dat");
  folder_.Remove("620x.dat");
  Open();
  EXPECT_TRUE(Drawn().empty());
  EXPECT_FALSE(plot_->Surface().Drawing().IsEmpty());
  EXPECT_TRUE(platform_.Messages.isEmpty());
  folder_.Put("1230x.dat", "junk\n\n1230,QX,T,S,C,D,33,97,1,-,-,99\n" + SampleFolder::Channel("1230"));
  PressInForm("cmdFreq", "1230", "cmdErasePlot");
  EXPECT_EQ(Drawn(), (Names{"QDN1230 D", "QDN1230 N", "QU1230 U"}));
}

}  // namespace
}  // namespace kestrel
