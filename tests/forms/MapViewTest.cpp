#include "forms/MapView.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QImage>
#include <QMenu>
#include <QWheelEvent>
#include <cmath>

#include "forms/PlotFixture.h"
#include "map/Sheet.h"
#include "ui/StatusLine.h"

namespace kestrel {
namespace {

class MapViewTest : public frmPlotTest {
 protected:
  MapSurface& Map() { return plot_->Surface(); }
  QPointF Home() { return Map().FromSheet(HomeOnSheet); }

  void Drag(QPoint from, QPoint by) {
    QTest::mousePress(&Map(), Qt::LeftButton, {}, from);
    for (int step = 1; step <= 4; ++step) {
      const QPointF at = from + by * step / 4;
      QMouseEvent move(QEvent::MouseMove, at, Map().mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
      QApplication::sendEvent(&Map(), &move);
    }
    QTest::mouseRelease(&Map(), Qt::LeftButton, {}, from + by);
  }

  void Turn(QPoint at, int steps) {
    QWheelEvent turn(at, Map().mapToGlobal(at), {}, {0, 120 * steps}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Map(), &turn);
  }

  static void ExpectAt(QPointF at, QPointF expected, const char* what) {
    EXPECT_NEAR(at.x(), expected.x(), 1.5) << what;
    EXPECT_NEAR(at.y(), expected.y(), 1.5) << what;
  }
};

TEST_F(MapViewTest, ADraggedMapStaysMovedUntilReset) {
  Open();
  plot_->resize(1000, 700);
  const QPointF rest = Home();
  const QPoint grip = PixelOf("QU620");
  Files.Remove("620x.dat");
  Drag(grip, {120, -40});
  ExpectAt(Home(), rest + QPointF(120, -40), "dragged");
  ExpectAt(PixelOf("QU620"), grip + QPointF(120, -40), "nothing was read again");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "no click";
  PressKey(Qt::Key_PageUp);
  Press("cmdHours");
  ExpectAt(Home(), rest + QPointF(120, -40), "another channel, other hours");
  Press("cmdIn");
  ExpectAt(Home(), rest + std::sqrt(2) * QPointF(120, -40), "zoomed around the window's middle");

  PressKey(Qt::Key_Home);
  ExpectAt(Home(), rest, "reset");
  EXPECT_EQ(State.ScaleFactor, 200);
  PressKey(Qt::Key_Right);
  PressKey(Qt::Key_Down, Qt::ControlModifier);
  ExpectAt(Home(), rest - QPointF(0.1 * Map().width(), 0.5 * Map().height()), "arrow keys");
  for (int i = 0; i < 40; ++i) PressKey(Qt::Key_Left, Qt::ControlModifier);
  EXPECT_NEAR(Map().ToSheet({0, 0}).x, -CoordinateLimit, 20) << "as far as there are places";
}

TEST_F(MapViewTest, TheWheelZoomsAtTheMouse) {
  Open();
  const QPoint east = PixelOf("QDN620");
  Turn(east, 2);
  ExpectAt(PixelOf("QDN620"), east, "in");
  EXPECT_NEAR(State.ScaleFactor, 400, 0.01);
  Turn(east, -3);
  ExpectAt(PixelOf("QDN620"), east, "out");
  Turn(east, -20);
  EXPECT_EQ(State.ScaleFactor, 50);
  ExpectAt(PixelOf("QDN620"), east, "as far as the scale goes");
}

TEST_F(MapViewTest, TheLocalViewIsLeftForTheViewBefore) {
  Open();
  Press("cmdIn");
  Press("cmdLarger");
  Drag({200, 200}, {60, 0});
  const auto view = [&] { return std::tuple(State.ScaleFactor, State.PatternSize, Map().Moved().x); };
  const auto before = view();
  for (const bool byChannel : {false, true}) {
    PressInForm("cmdAll", {"cmdAlterYes"});
    EXPECT_EQ(view(), std::tuple(10000.0F, 0.02F, 0.0F));
    byChannel ? PressKey(Qt::Key_PageDown) : Press("cmdOut");
    EXPECT_EQ(view(), before);
  }
  Press("cmdOut");
  EXPECT_NEAR(State.ScaleFactor, 200, 0.01) << "an ordinary step again";
}

TEST_F(MapViewTest, WhatIsShownIsChosenByKeysAndKept) {
  Open();
  EXPECT_EQ(Map().Look().Labels, LabelChoice::Fitting);
  PressKey(Qt::Key_L);
  EXPECT_EQ(Map().Look().Labels, LabelChoice::All);
  PressKey(Qt::Key_L);
  PressKey(Qt::Key_G);
  const MapLook chosen = Map().Look();
  EXPECT_EQ(chosen.Labels, LabelChoice::None);
  EXPECT_FALSE(chosen.Legend);
  Open();
  EXPECT_EQ(Map().Look(), chosen) << "in the next run";
  plot_->findChild<QAction*>("actLabelsfitting")->trigger();
  EXPECT_EQ(Map().Look().Labels, LabelChoice::Fitting);
}

TEST_F(MapViewTest, TheLineUnderTheMapTellsOfMapAndMouse) {
  Open();
  auto* line = Find<StatusLine>(*plot_, "lblMap");
  EXPECT_TRUE(line->Whole().startsWith("620 kHz    ")) << line->Whole().toStdString();
  EXPECT_TRUE(line->Whole().contains(" stations    ")) << line->Whole().toStdString();
  EXPECT_TRUE(line->Whole().contains(" km across    Stations of a test")) << line->Whole().toStdString();
  const QString rest = line->Whole();
  QTest::mouseMove(&Map(), PixelOf("QU620"));
  EXPECT_TRUE(line->Whole().startsWith("3")) << line->Whole().toStdString();
  EXPECT_TRUE(line->Whole().contains(" deg from home")) << line->Whole().toStdString();
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Map(), &leave);
  EXPECT_EQ(line->Whole(), rest);
}

TEST_F(MapViewTest, TheRightButtonOffersWhatCanBeDoneAtAPlace) {
  Open();
  const auto choose = [&](QPoint at, const char* action) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, Map().mapToGlobal(at));
    QApplication::sendEvent(&Map(), &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    auto* chosen = menu->findChild<QAction*>(action);
    ASSERT_NE(chosen, nullptr) << action;
    ASSERT_TRUE(chosen->isEnabled()) << action;
    menu->setActiveAction(chosen);
    QTest::keyClick(menu, Qt::Key_Return);
  };
  const QPoint at = PixelOf("QU620");
  choose(at, "actCopyPlace");
  const QString copied = QGuiApplication::clipboard()->text();
  EXPECT_TRUE(copied.contains(" N, ")) << copied.toStdString();
  const QPointF rest = Home();
  choose(at, "actCentre");
  ExpectAt(PixelOf("QU620"), rest, "centred");
  choose(PixelOf("QDN620"), "actMakeHome");
  EXPECT_NEAR(State.HomeLatitude, 33.5, 0.2);
  EXPECT_NEAR(State.HomeLongitude, 97, 0.2);
  EXPECT_EQ(State.HomeName, "");
  ExpectAt(Home(), rest, "the new home in the middle");
}

TEST_F(MapViewTest, ThePictureSavedIsTheWindows) {
  Open();
  Drag({200, 200}, {60, 30});
  System.NextFileToWrite = Files.Path("map.png");
  PressKey(Qt::Key_S, Qt::ControlModifier);
  const QImage saved(Files.Path("map.png"));
  EXPECT_EQ(saved.size(), Map().size());
  PressKey(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32),
            saved.convertToFormat(QImage::Format_RGB32));
  // Legend and scale bar stand at the sheet's corners in a picture; without them it is the window's own.
  PressKey(Qt::Key_G);
  PressKey(Qt::Key_K);
  PressKey(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32),
            Map().grab().toImage().convertToFormat(QImage::Format_RGB32));
  System.NextFileToWrite = Files.Path("map.gif");
  PressKey(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(System.Messages.size(), 1);
}

}  // namespace
}  // namespace kestrel
