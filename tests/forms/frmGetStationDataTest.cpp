#include "forms/frmGetStationData.h"

#include <cmath>

#include <QListWidget>
#include <QScreen>
#include <QScrollBar>

#include "forms/FormFixture.h"
#include "map/RecordingCanvas.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

const QByteArray kFile =
    "1230, QABC, SPRINGFIELD             , IL  , United States, D, 40.5, 75.25, 1,-,-, 1\n"
    "0,1,90,0,0,0\n"
    "1230, QABC, SPRINGFIELD             , IL  , United States, N, 40.5, 75.25, 1,-,-, 2\n"
    "0,1,90,0,0,0\n"
    "0,1,90,-90,90,0\n"
    "1230, QTWO, TWICE                   , TX  , United States, D, 30, 100, 1,-,-, 1\n"
    "0,1,90,0,0,0\n"
    "1230, QTWO, TWICE                   , TX  , United States, D, 30, 100, 5,-,-, 1\n"
    "0,1,90,0,0,0\n"
    "1230, QBRK, NOWHERE                 , TX  , United States, U, 30, 100, 1,-,-, 2\n"
    "0,1,90,0,0,0\n"
    "0,0,90,0,90,0\n";

/// The lookup opened on a channel with a few stations.
class frmGetStationDataTest : public FormTest {
 protected:
  frmGetStationDataTest() {
    Files.Put("1230x.dat", kFile);
    State.CurrentFrequency = 1230;
  }

  frmGetStationData& Open(const QString& callSign = {}) {
    form_ = std::make_unique<frmGetStationData>(Everything, nullptr, callSign);
    form_->show();
    return *form_;
  }

  void LookFor(const QString& text) {
    Type(*form_, "txtGetData", text);
    QTest::keyClick(Find<QLineEdit>(*form_, "txtGetData"), Qt::Key_Return);
  }

  QListWidget* List() { return Find<QListWidget>(*form_, "lstGetData"); }
  bool IsShown(const char* name) { return Find<QWidget>(*form_, name)->isVisible(); }

  RecordingCanvas Plotted() {
    RecordingCanvas canvas;
    Find<MapSurface>(*form_, "Plot")->Drawing().Play(canvas);
    return canvas;
  }

  std::unique_ptr<frmGetStationData> form_;
};

TEST_F(frmGetStationDataTest, OneEnterShowsAPatternAndTheArrowsTheNextOne) {
  Open();
  EXPECT_EQ(form_->windowTitle(), "KestrelII - Get data");
  EXPECT_EQ(Shown(*form_, "Label2"), "in the  1230 kHz list");
  for (const char* hidden : {"Label4", "Label5", "cmdTowers", "cmdContext", "cmdPrint", "cmdExit"})
    EXPECT_FALSE(IsShown(hidden)) << hidden;
  LookFor("  qabc");
  EXPECT_EQ(System.Messages, QStringList());
  EXPECT_EQ(Shown(*form_, "txtGetData"), "QABC");
  ASSERT_EQ(List()->count(), 2);
  EXPECT_EQ(List()->currentRow(), 0);
  for (const char* shown : {"Label4", "Label5", "cmdTowers", "cmdContext", "cmdPrint", "cmdExit"})
    EXPECT_TRUE(IsShown(shown)) << shown;
  const RecordingCanvas day = Plotted();
  EXPECT_EQ(day.All("Polyline").at(0).Color, 0x119911);
  EXPECT_EQ(day.All("Polyline").at(0).Points.size(), 361U);

  QTest::keyClick(List(), Qt::Key_Down);
  const RecordingCanvas night = Plotted();
  EXPECT_EQ(night.All("Polyline").at(0).Color, 0);
  EXPECT_EQ(night.All("Line").size(), 36U) << "the plot was cleared before";
  EXPECT_EQ(night.All("Circle").size(), 1U + 4 + 1);
  ClickRow(*form_, "lstGetData", 0);
  EXPECT_EQ(Plotted().List, day.List);

  // A circle around the centre of the plot, as wide as the session's aspect says.
  State.AspectRatio = 1.5F;
  ClickRow(*form_, "lstGetData", 0);
  const std::vector<Point> round = day.All("Polyline").at(0).Points;
  const std::vector<Point> wide = Plotted().All("Polyline").at(0).Points;
  ASSERT_EQ(wide.size(), round.size());
  for (std::size_t i = 0; i < wide.size(); ++i) {
    const double bearing = static_cast<double>(i) / 57.29578;
    EXPECT_NEAR(round[i].x, 6000 + 1985 * std::sin(bearing), 2) << i;
    EXPECT_NEAR(round[i].y, 6500 - 1985 * std::cos(bearing), 2) << i;
    EXPECT_NEAR(wide[i].x - wide[0].x, 1.5F * (round[i].x - round[0].x), 2) << i;
    EXPECT_NEAR(wide[i].y, round[i].y, 0.5) << i;
  }

  LookFor("qtwo");
  EXPECT_EQ(List()->count(), 2) << "the list is filled anew";
  EXPECT_EQ(Plotted().All("Line").size(), 2U * 36) << "two records with one call sign, hours and tower count";
}

TEST_F(frmGetStationDataTest, ASearchThatFindsNothingLeavesNothingOfTheStationBefore) {
  Open("QABC");
  EXPECT_TRUE(IsShown("cmdTowers"));
  LookFor("nope");
  EXPECT_EQ(List()->count(), 0);
  for (const char* hidden : {"Label5", "cmdTowers", "cmdContext", "cmdPrint", "cmdExit"})
    EXPECT_FALSE(IsShown(hidden)) << hidden;
  EXPECT_EQ(Plotted().List.size(), 0U);
  LookFor("qabc");
  EXPECT_TRUE(IsShown("cmdTowers"));
  EXPECT_EQ(Plotted().All("Line").size(), 36U);
}

TEST_F(frmGetStationDataTest, WhatIsNotFoundIsSaid) {
  Open();
  EXPECT_EQ(Shown(*form_, "txtGetData"), "");
  LookFor("   ");
  LookFor("nope");
  EXPECT_EQ(System.Messages, QStringList({"We need a station callsign entry",
                                          "We did not find a station with callsign 'NOPE'.\r\n"
                                          "It may be listed on a frequency other than this (1230)."}));
  EXPECT_EQ(State.LookupCallSign, "NOPE");
  LookFor(" ");
  EXPECT_EQ(State.LookupCallSign, "");
  EXPECT_EQ(State.RememberedCallSign, "NOPE");
  State.CurrentFrequency = 1240;
  LookFor("QABC");
  EXPECT_EQ(System.Messages.last(), "There is no data for 1240");
  State.RememberedCallSign = "later";
  Open();
  EXPECT_EQ(Shown(*form_, "txtGetData"), "LATER") << "the last entry is offered again";
}

TEST_F(frmGetStationDataTest, ALongListScrollsAndKeepsThePlotInView) {
  QByteArray many;
  for (int i = 0; i < 120; ++i)
    many += "1240, QMNY, TOWN                    , TX  , United States, D, 30, " +
            QByteArray::number(100 + i % 9) + ", 1,-,-, 1\n0,1,90,0,0,0\n";
  Files.Put("1240x.dat", many);
  State.CurrentFrequency = 1240;
  Open("QMNY");
  EXPECT_EQ(List()->count(), 120);
  EXPECT_LT(List()->height(), form_->height() / 3);
  EXPECT_GT(Find<MapSurface>(*form_, "Plot")->height(), form_->height() / 4);
  QTest::keyClick(List(), Qt::Key_End);
  EXPECT_EQ(List()->currentRow(), 119);
  EXPECT_TRUE(List()->viewport()->rect().intersects(List()->visualItemRect(List()->item(119))));
}

TEST_F(frmGetStationDataTest, InANarrowWindowTheHeadsMoveWithTheList) {
  Open("QABC");
  EXPECT_LE(form_->width(), form_->screen()->availableSize().width());
  form_->resize(520, 500);
  ASSERT_EQ(form_->width(), 520) << "the heads do not widen the window";
  auto* bar = List()->horizontalScrollBar();
  ASSERT_GT(bar->maximum(), 0);
  auto* heads = Find<QLabel>(*form_, "Label3");
  const int left = heads->mapTo(form_.get(), QPoint()).x();
  bar->setValue(bar->maximum());
  EXPECT_EQ(heads->mapTo(form_.get(), QPoint()).x(), left - bar->maximum());
  EXPECT_GE(List()->viewport()->height(), 2 * List()->sizeHintForRow(0)) << "the bar hides no line";
}

TEST_F(frmGetStationDataTest, ARecordWithoutAFieldRatioShowsItsTowersAlone) {
  Open("QBRK");
  EXPECT_EQ(List()->count(), 1) << "a call sign given is looked up at once";
  EXPECT_EQ(Plotted().Texts(),
            (std::vector<std::string>{"Unlimited", "Daytime", "Critical", "Nighttime", "Enlarged 5x"}));
  EXPECT_EQ(Plotted().All("Circle").size(), 4U + 1);
  EXPECT_EQ(System.Messages, QStringList());
}

TEST_F(frmGetStationDataTest, TheCommandsRestWhileAWindowIsOpenHoweverItCloses) {
  Open("QABC");
  const auto enabled = [this] {
    int count = 0;
    for (const char* command : {"cmdGetData", "cmdExit", "cmdContext", "cmdTowers", "cmdPrint"})
      count += Find<QPushButton>(*form_, command)->isEnabled();
    return count;
  };
  const struct {
    const char *command, *close;
  } rows[] = {{"cmdTowers", "cmdExit"}, {"cmdTowers", ""}, {"cmdContext", "cmdClose"}, {"cmdContext", ""}};
  for (const auto& row : rows) {
    int seen = -1;
    QTimer::singleShot(0, form_.get(), [&] {
      auto* window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(window, nullptr);
      seen = enabled();
      if (*row.close)
        Press(*window, row.close);
      else
        QTest::keyClick(window, Qt::Key_Escape);
      EXPECT_FALSE(window->isVisible());
    });
    Press(*form_, row.command);
    EXPECT_EQ(seen, 0) << row.command;
    EXPECT_EQ(enabled(), 5) << row.command;
  }
  Press(*form_, "cmdExit");
  EXPECT_FALSE(form_->isVisible());
}

TEST_F(frmGetStationDataTest, PrintHandsTheRecordChosenToThePrinter) {
  std::vector<std::string> offered;
  System.NextPrint = [&](const PrintOffer& offer) {
    RecordingCanvas canvas;
    for (const PagePane& pane : offer.Page.Layout({11088, 14688})) pane.Draw(canvas);
    offered = canvas.Texts();
    EXPECT_FALSE(offer.Outlines) << "no outline map beside a station";
    return std::nullopt;
  };
  Open("QABC");
  QTest::keyClick(List(), Qt::Key_Down);
  Press(*form_, "cmdPrint");
  EXPECT_EQ(std::count(offered.begin(), offered.end(), "nighttime (N)"), 1);
  EXPECT_EQ(System.Messages, QStringList());
}

}  // namespace
}  // namespace kestrel
