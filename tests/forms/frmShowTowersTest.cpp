#include "forms/frmShowTowers.h"

#include <QClipboard>

#include "forms/FormFixture.h"
#include "map/RecordingCanvas.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

using frmShowTowersTest = FormTest;

TEST_F(frmShowTowersTest, TheTableStandsInItsColumnsAndIsCopied) {
  Files.Put("1230x.dat",
            "1230, QABC, TOWN, IL, United States, N, 40.5, 75.25, 1,-,-, 1\n"
            "0,1,90,0,0,0\n"
            "1230, QABC, TOWN, IL, United States, N, 40.5, 75.25, 1,-,-, 2\n"
            "0,1,90,0,0,0\n"
            " 1,.8,90.5,-90,90,45\n");
  State.CurrentFrequency = 1230;
  StationSelection selection;
  selection.SelectedCallSign = "QABC";
  selection.SelectedHoursCode = "N";
  selection.SelectedTowerCount = 2;
  frmShowTowers form(Everything, nullptr, selection);
  RecordingCanvas drawn;
  Find<MapSurface>(form, "Table")->Drawing().Play(drawn);
  EXPECT_EQ(drawn.Texts(), (std::vector<std::string>{"Fields", " 1 ", " .8 ", "Heights", " 90 ", " 90.5 ",
                                                     "Phases", " 0 ", "-90 ", "Spacings", " 0 ", " 90 ",
                                                     "Bearings", " 0 ", " 45 ", "Switch", "0", " 1"}));
  const QSizeF screen = QSizeF(form.screen()->size()) * 15;
  const double lefts[] = {.05, .12, .19, .26, .33, .4};
  const double tops[] = {.015, .055, .08};
  std::size_t at = 0;
  for (const Drawn& text : drawn.All("Text")) {
    EXPECT_NEAR(text.Points[0].x, screen.width() * lefts[at / 3], 0.5) << text.Text;
    EXPECT_NEAR(text.Points[0].y, screen.height() * tops[at % 3], 0.5) << text.Text;
    ++at;
  }

  Use(form, [&form] {
    QTest::keyClick(&form, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(
        QApplication::clipboard()->text(),
        "Fields\tHeights\tPhases\tSpacings\tBearings\tSwitch\n1\t90\t0\t0\t0\t0\n.8\t90.5\t-90\t90\t45\t1\n");
    Press(form, "cmdExit");
  });
}

}  // namespace
}  // namespace kestrel
