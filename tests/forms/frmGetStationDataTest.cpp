#include "forms/frmGetStationData.h"

#include <algorithm>

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
    "1230, QBIG, TOWN                    , TX  , United States, D, 30, 100, 5,-,-, 14\n" +
    QByteArray("0,1,90,0,0,0\n").repeated(14);

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

  QAbstractItemView* List() { return Find<QAbstractItemView>(*form_, "lstGetData"); }
  int Rows() { return List()->model()->rowCount(); }

  /// How many of the window's own buttons are visible, or enabled.
  int Commands(bool (QWidget::*is)() const) {
    const QList<QPushButton*> all = form_->findChildren<QPushButton*>();
    return static_cast<int>(std::count_if(all.begin(), all.end(), [&](QPushButton* button) {
      return button->window() == form_.get() && (button->*is)();
    }));
  }
  int CommandsShown() { return Commands(&QWidget::isVisible); }
  int CommandsEnabled() { return Commands(&QWidget::isEnabled); }

  RecordingCanvas Plotted() {
    RecordingCanvas canvas;
    Find<MapSurface>(*form_, "Plot")->Drawing().Play(canvas);
    return canvas;
  }

  std::unique_ptr<frmGetStationData> form_;
};

TEST_F(frmGetStationDataTest, OneEnterShowsAPatternAndTheArrowsTheNextOne) {
  Open();
  EXPECT_EQ(Shown(*form_, "Label2"), "in the  1230 kHz list");
  EXPECT_EQ(CommandsShown(), 1);
  LookFor("  qabc");
  EXPECT_EQ(System.Messages, QStringList());
  EXPECT_EQ(Shown(*form_, "txtGetData"), "QABC");
  ASSERT_EQ(Rows(), 2);
  EXPECT_EQ(List()->currentIndex().row(), 0);
  EXPECT_EQ(CommandsShown(), 5);
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

  // As wide as the session's aspect says.
  State.AspectRatio = 1.5F;
  ClickRow(*form_, "lstGetData", 0);
  EXPECT_NEAR(Plotted().All("Polyline").at(0).Points[90].x - 6000,
              1.5F * (day.All("Polyline").at(0).Points[90].x - 6000), 2);

  LookFor("qtwo");
  EXPECT_EQ(Rows(), 2) << "the list is filled anew";
  EXPECT_EQ(Plotted().All("Line").size(), 2U * 36) << "two records with one call sign, hours and tower count";
  LookFor("qbig");
  EXPECT_EQ(Plotted().Texts().at(12), "Pattern not known") << "more towers than are read";
}

TEST_F(frmGetStationDataTest, WhatIsNotFoundIsSaidAndTheRecordDrawnStays) {
  Open("QABC");
  EXPECT_EQ(Rows(), 2) << "a call sign given is looked up at once";
  const RecordingCanvas drawn = Plotted();
  LookFor("   ");
  LookFor("nope");
  EXPECT_EQ(System.Messages, QStringList({"We need a station callsign entry",
                                          "We did not find a station with callsign 'NOPE'.\r\n"
                                          "It may be listed on a frequency other than this (1230)."}));
  EXPECT_EQ(Rows(), 0);
  EXPECT_EQ(CommandsShown(), 5);
  EXPECT_EQ(Plotted().List, drawn.List);
  LookFor(" ");
  EXPECT_EQ(State.RememberedCallSign, "NOPE");
  State.CurrentFrequency = 1240;
  LookFor("QABC");
  EXPECT_EQ(System.Messages.last(), "There is no data for 1240");
  State.RememberedCallSign = "later";
  Open();
  EXPECT_EQ(Shown(*form_, "txtGetData"), "LATER") << "the last entry is offered again";
  LookFor("nope");
  EXPECT_EQ(CommandsShown(), 1) << "no record has been drawn yet";
}

TEST_F(frmGetStationDataTest, TheCommandsRestWhileAWindowIsOpenHoweverItCloses) {
  Open("QABC");
  const struct {
    const char *command, *close;
  } rows[] = {{"cmdTowers", "cmdExit"}, {"cmdTowers", ""}, {"cmdContext", "cmdClose"}, {"cmdContext", ""}};
  for (const auto& row : rows) {
    int seen = -1;
    QTimer::singleShot(0, form_.get(), [&] {
      auto* window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(window, nullptr);
      seen = CommandsEnabled();
      if (*row.close)
        Press(*window, row.close);
      else
        QTest::keyClick(window, Qt::Key_Escape);
      EXPECT_FALSE(window->isVisible());
    });
    Press(*form_, row.command);
    EXPECT_EQ(seen, 0) << row.command;
    EXPECT_EQ(CommandsEnabled(), 5) << row.command;
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
