#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "forms/StandInPlatform.h"
#include "forms/frmGetStationData.h"
#include "forms/frmShowContext.h"
#include "map/RecordingCanvas.h"
#include "map/TestFolder.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

const QByteArray kFile =
    "1230, QABC, SPRINGFIELD             , IL  , United States, D, 40.5, 75.25, 1,-,-, 1\n"
    "0,1,90,0,0,0\n"
    "1230, QABC, SPRINGFIELD             , IL  , United States, N, 40.5, 75.25, 1,-,-, 2\n"
    "0,1,90,0,0,0\n"
    "0,1,90,-90,90,0\n"
    "1230, QBRK, NOWHERE                 , TX  , United States, U, 30, 100, 1,-,-, 2\n"
    "0,1,90,0,0,0\n"
    "0,0,90,0,90,0\n";

/// The lookup opened on a channel with a few stations.
class StationDataTest : public ::testing::Test {
 protected:
  StationDataTest() {
    data_.Put("1230x.dat", kFile);
    state_.CurrentFrequency = 1230;
    state_.MapLanguage = "es";
  }

  frmGetStationData& Open(const QString& callSign = {}) {
    form_ = std::make_unique<frmGetStationData>(workspace_, nullptr, callSign);
    form_->show();
    return *form_;
  }

  template <typename Control>
  Control* Find(const char* name) {
    return form_->findChild<Control*>(name);
  }

  void Press(const char* name) { QTest::mouseClick(Find<QPushButton>(name), Qt::LeftButton); }

  void LookFor(const QString& text) {
    auto* box = Find<QLineEdit>("txtGetData");
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
    QTest::keyClick(box, Qt::Key_Return);
  }

  RecordingCanvas Plotted() {
    RecordingCanvas canvas;
    Find<MapSurface>("Plot")->Drawing().Play(canvas);
    return canvas;
  }

  /// Presses a command that opens a window, and acts on that window.
  void PressAndDo(const char* name, const std::function<void(QDialog&)>& act) {
    bool done = false;
    QTimer::singleShot(0, form_.get(), [&] {
      auto* window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(window, nullptr);
      for (const char* command : {"cmdGetData", "cmdExit", "cmdContext", "cmdTowers", "cmdPrint"})
        EXPECT_FALSE(Find<QPushButton>(command)->isEnabled()) << command;
      act(*window);
      done = true;
      if (window->isVisible()) window->reject();
    });
    Press(name);
    EXPECT_TRUE(done);
    for (const char* command : {"cmdGetData", "cmdExit", "cmdContext", "cmdTowers", "cmdPrint"})
      EXPECT_TRUE(Find<QPushButton>(command)->isEnabled()) << command;
  }

  TestFolder data_;
  SessionState state_;
  StandInPlatform system_;
  Workspace workspace_{state_, data_.Folder(), system_};
  std::unique_ptr<frmGetStationData> form_;
};

TEST_F(StationDataTest, FitsASmallScreenItsHeadsFollowingTheList) {
  Open("QABC").resize(500, 400);
  EXPECT_EQ(form_->width(), 500);
  QScrollBar* sideways = Find<QListWidget>("lstGetData")->horizontalScrollBar();
  ASSERT_GT(sideways->maximum(), 0);
  sideways->setValue(sideways->maximum());
  EXPECT_EQ(Find<QLabel>("Label3")->contentsMargins().left(), -sideways->maximum());
}

TEST_F(StationDataTest, OneEnterShowsAPatternAndTheArrowsTheNextOne) {
  Open();
  EXPECT_EQ(form_->windowTitle(), "KestrelII - Get data");
  EXPECT_EQ(Find<QLabel>("Label2")->text(), "in the  1230 kHz list");
  EXPECT_FALSE(Find<QLabel>("Label4")->isVisible());
  EXPECT_FALSE(Find<QPushButton>("cmdTowers")->isVisible());
  LookFor("  qabc");
  EXPECT_EQ(system_.Messages, QStringList());
  EXPECT_EQ(Find<QLineEdit>("txtGetData")->text(), "QABC");
  auto* list = Find<QListWidget>("lstGetData");
  ASSERT_EQ(list->count(), 2);
  EXPECT_EQ(list->currentRow(), 0);
  for (const char* shown : {"Label4", "Label5"}) EXPECT_TRUE(Find<QLabel>(shown)->isVisible()) << shown;
  for (const char* shown : {"cmdTowers", "cmdContext", "cmdPrint", "cmdExit"})
    EXPECT_TRUE(Find<QPushButton>(shown)->isVisible()) << shown;
  const auto day = Plotted();
  EXPECT_EQ(day.All("Polyline").at(0).Color, 0x119911);
  EXPECT_EQ(day.All("Polyline").at(0).Points.size(), 361U);

  QTest::keyClick(list, Qt::Key_Down);
  const auto night = Plotted();
  EXPECT_EQ(night.All("Polyline").at(0).Color, 0);
  EXPECT_EQ(night.All("Line").size(), 36U) << "the plot was cleared before";
  EXPECT_EQ(night.All("Circle").size(), 1U + 4 + 1);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
  EXPECT_EQ(Plotted().List, day.List);
}

TEST_F(StationDataTest, WhatIsNotFoundIsSaid) {
  Open();
  EXPECT_EQ(Find<QLineEdit>("txtGetData")->text(), "");
  LookFor("   ");
  LookFor("nope");
  EXPECT_EQ(system_.Messages, QStringList({"We need a station callsign entry",
                                           "We did not find a station with callsign 'NOPE'.\r\n"
                                           "It may be listed on a frequency other than this (1230)."}));
  EXPECT_EQ(state_.LookupCallSign, "NOPE");
  LookFor(" ");
  EXPECT_EQ(state_.LookupCallSign, "");
  EXPECT_EQ(state_.RememberedCallSign, "NOPE");
  state_.CurrentFrequency = 1240;
  LookFor("QABC");
  EXPECT_EQ(system_.Messages.last(), "There is no data for 1240");
  state_.RememberedCallSign = "later";
  Open();
  EXPECT_EQ(Find<QLineEdit>("txtGetData")->text(), "LATER") << "the last entry is offered again";
}

TEST_F(StationDataTest, ARecordWithoutAFieldRatioShowsTheLegendAlone) {
  Open("QBRK");
  EXPECT_EQ(Find<QListWidget>("lstGetData")->count(), 1) << "a call sign given is looked up at once";
  EXPECT_EQ(Plotted().Texts(),
            (std::vector<std::string>{"Unlimited", "Daytime", "Critical", "Nighttime", "Enlarged 5x"}));
  EXPECT_EQ(system_.Messages, QStringList());
}

TEST_F(StationDataTest, TheTowerTableOpensAndIsCopied) {
  Open("QABC");
  QTest::keyClick(Find<QListWidget>("lstGetData"), Qt::Key_Down);
  PressAndDo("cmdTowers", [](QDialog& table) {
    EXPECT_EQ(table.windowTitle(), "KestrelII - Tower data");
    RecordingCanvas drawn;
    table.findChild<MapSurface*>("Table")->Drawing().Play(drawn);
    const auto texts = drawn.All("Text");
    ASSERT_EQ(texts.size(), 18U);
    const QSizeF screen = QSizeF(table.screen()->size()) * 15;
    EXPECT_NEAR(texts[0].Points[0].x, screen.width() * 0.05, 0.5);
    EXPECT_NEAR(texts[0].Points[0].y, screen.height() * 0.015, 0.5);
    std::vector<Point> first;
    for (const Drawn& text : texts)
      if (text.Text == "-90 ") first = text.Points;
    ASSERT_EQ(first.size(), 1U);
    EXPECT_NEAR(first[0].x, screen.width() * 0.19, 0.5) << "phases";
    EXPECT_NEAR(first[0].y, screen.height() * 0.08, 0.5) << "second row";
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(
        QApplication::clipboard()->text(),
        "Fields\tHeights\tPhases\tSpacings\tBearings\tSwitch\n1\t90\t0\t0\t0\t0\n1\t90\t-90\t90\t0\t0\n");
    QTest::keyClick(&table, Qt::Key_Escape);
  });
}

TEST_F(StationDataTest, TheContextMapZoomsAndOpensTheWebMap) {
  data_.Put("REGION2.dat", "40.5 285\n41 285\n");
  Open("QABC");
  PressAndDo("cmdContext", [this](QDialog& context) {
    EXPECT_EQ(context.windowTitle(), "KestrelII - Context map");
    const auto button = [&](const char* name) { return context.findChild<QPushButton*>(name); };
    const auto height = [&] {
      RecordingCanvas drawn;
      context.findChild<MapSurface*>("Map")->Drawing().Play(drawn);
      EXPECT_EQ(drawn.All("Box").size(), 1U) << "drawn anew, not over";
      const auto points = drawn.All("Polyline").at(0).Points;
      return points[0].y - points[1].y;
    };
    const float atOne = height();
    for (int i = 0; i < 3; ++i) QTest::mouseClick(button("cmdMore"), Qt::LeftButton);
    EXPECT_NEAR(height(), 8 * atOne, 0.5);
    EXPECT_TRUE(button("cmdMore")->isEnabled());
    QTest::mouseClick(button("cmdMore"), Qt::LeftButton);
    EXPECT_NEAR(height(), 8 * atOne, 0.5);
    EXPECT_FALSE(button("cmdMore")->isEnabled());
    for (int i = 0; i < 5; ++i) QTest::mouseClick(button("cmdLess"), Qt::LeftButton);
    EXPECT_TRUE(button("cmdLess")->isEnabled() && button("cmdMore")->isEnabled());
    QTest::mouseClick(button("cmdLess"), Qt::LeftButton);
    EXPECT_FALSE(button("cmdLess")->isEnabled());
    QTest::mouseClick(button("cmdMap"), Qt::LeftButton);
    EXPECT_EQ(system_.Addresses, QStringList("http://maps.google.com/maps?hl=es&q=40.5,+-75.25+%28QABC - "
                                             "SPRINGFIELD%29"));
    QTest::mouseClick(button("cmdClose"), Qt::LeftButton);
  });
}

}  // namespace
}  // namespace kestrel
