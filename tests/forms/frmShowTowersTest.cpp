#include "forms/frmShowTowers.h"

#include <QClipboard>

#include "draw/Fonts.h"
#include "forms/FormFixture.h"
#include "map/RecordingCanvas.h"
#include "map/TowerSheet.h"
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
  EXPECT_EQ(form.windowTitle(), "KestrelII - Tower data");
  RecordingCanvas drawn;
  Find<MapSurface>(form, "Table")->Drawing().Play(drawn);
  const QSizeF screen = QSizeF(form.screen()->size()) * 15;
  const std::vector<std::string> words = {"Fields", "Heights", "Phases", "Spacings", "Bearings", "Switch",
                                          " 1 ",    " 90 ",    " 0 ",    " 0 ",      " 0 ",      "0",
                                          " .8 ",   " 90.5 ",  "-90 ",   " 90 ",     " 45 ",     " 1"};
  const double lefts[] = {.05, .12, .19, .26, .33, .4};
  const double tops[] = {.015, .055, .08};
  const auto texts = drawn.All("Text");
  ASSERT_EQ(texts.size(), words.size());
  for (std::size_t row = 0; row < 3; ++row)
    for (std::size_t column = 0; column < 6; ++column) {
      const auto found = std::find_if(texts.begin(), texts.end(), [&](const Drawn& text) {
        return std::abs(text.Points[0].x - screen.width() * lefts[column]) < 0.5 &&
               std::abs(text.Points[0].y - screen.height() * tops[row]) < 0.5;
      });
      ASSERT_NE(found, texts.end()) << row << ' ' << column;
      EXPECT_EQ(found->Text, words[6 * row + column]);
    }

  const ScreenTwips twips = {static_cast<float>(screen.width()), static_cast<float>(screen.height())};
  const double smallest =
      Find<MapSurface>(form, "Table")->minimumWidth() / double{TowerSheetArea(twips).Width};
  EXPECT_GE(smallest * TowerSheetFont(twips).Points * TwipsPerPoint * XHeightShare(FontFace::Sans), 6.99)
      << "no column runs into the next one, however small the window";

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
