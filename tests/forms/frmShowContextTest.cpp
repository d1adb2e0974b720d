#include "forms/frmShowContext.h"

#include <QWheelEvent>

#include "forms/FormFixture.h"
#include "map/RecordingCanvas.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

class frmShowContextTest : public FormTest {
 protected:
  frmShowContextTest() {
    Files.Put("REGION2.dat", "40.5 285\n41 285\n");
    Files.Put("STATES.dat", "");
    State.MapLanguage = "es";
    selection_.SelectedCallSign = "QABC";
    selection_.City = "NEW TOWN";
    selection_.Latitude = 40.5F;
    selection_.Longitude = 75.25F;
  }

  /// Twips of half a degree to the north on the map of the form.
  static float LineHeight(QDialog& form) {
    RecordingCanvas drawn;
    Find<MapSurface>(form, "Map")->Drawing().Play(drawn);
    EXPECT_EQ(drawn.All("Box").size(), 1U) << "drawn anew, not over";
    const auto points = drawn.All("Polyline").at(0).Points;
    return points[0].y - points[1].y;
  }

  StationSelection selection_;
};

TEST_F(frmShowContextTest, ZoomReachesItsLimitsAndClosesTheWayOnePressLater) {
  frmShowContext form(Everything, nullptr, selection_);
  Use(form, [&form] {
    const float atOne = LineHeight(form);
    for (int i = 0; i < 3; ++i) Press(form, "cmdMore");
    EXPECT_NEAR(LineHeight(form), 8 * atOne, 0.5);
    EXPECT_TRUE(Find<QPushButton>(form, "cmdMore")->isEnabled());
    Press(form, "cmdMore");
    EXPECT_FALSE(Find<QPushButton>(form, "cmdMore")->isEnabled());
    Press(form, "cmdLess");
    EXPECT_TRUE(Find<QPushButton>(form, "cmdMore")->isEnabled());
    for (int i = 0; i < 5; ++i) Press(form, "cmdLess");
    EXPECT_NEAR(LineHeight(form), atOne / 4, 0.5);
    EXPECT_FALSE(Find<QPushButton>(form, "cmdLess")->isEnabled());

    auto* map = Find<MapSurface>(form, "Map");
    QWheelEvent turn(map->rect().center(), map->mapToGlobal(map->rect().center()), {}, {0, 120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(map, &turn);
    EXPECT_NEAR(LineHeight(form), atOne / 2, 0.5);
    Press(form, "cmdClose");
  });
}

TEST_F(frmShowContextTest, KeysZoomAndOnlyItsButtonOpensTheWebMap) {
  frmShowContext form(Everything, nullptr, selection_);
  Use(form, [&form, this] {
    const float atOne = LineHeight(form);
    for (int i = 0; i < 5; ++i) QTest::keyClick(form.focusWidget(), Qt::Key_Space);
    EXPECT_NEAR(LineHeight(form), 4 * atOne, 0.5) << "four presses in, and the fifth out again";
    for (int i = 0; i < 9; ++i) QTest::keyClick(form.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(System.Addresses, QStringList());
    Press(form, "cmdMap");
    ASSERT_EQ(System.Addresses.size(), 1);
    auto* notice = Find<QLabel>(form, "lblAddress");
    EXPECT_FALSE(notice->isVisible());
    System.HasBrowser = false;
    Press(form, "cmdMap");
    EXPECT_TRUE(notice->isVisible());
    EXPECT_TRUE(notice->text().endsWith(' ' + System.Addresses[0])) << notice->text().toStdString();
    Press(form, "cmdClose");
  });
  EXPECT_EQ(System.Addresses[0], "http://maps.google.com/maps?hl=es&q=40.5,+-75.25+%28QABC - NEW TOWN%29");
}

}  // namespace
}  // namespace kestrel
