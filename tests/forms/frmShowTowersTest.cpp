#include "forms/frmShowTowers.h"

#include <QClipboard>
#include <QTableView>

#include "forms/FormFixture.h"

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
  auto* table = Find<QTableView>(form, "Table");
  Use(form, [&] {
    // As shares of the screen, at whose half the window stands.
    const double lefts[] = {.05, .12, .19, .26, .33, .4};
    const char* cells[][6] = {{" 1 ", " 90 ", " 0 ", " 0 ", " 0 ", "0"},
                              {" .8 ", " 90.5 ", "-90 ", " 90 ", " 45 ", " 1"}};
    for (int row = 0; row < 2; ++row) {
      for (int column = 0; column < 6; ++column) {
        const QModelIndex cell = table->model()->index(row, column);
        EXPECT_EQ(cell.data().toString(), cells[row][column]);
        const QPoint at = table->viewport()->mapTo(&form, table->visualRect(cell).topLeft());
        // Farther right on a small screen, whose columns are as wide as their heads.
        EXPECT_GE(at.x() + 6, form.screen()->size().width() * lefts[column]) << column;
        EXPECT_NEAR(at.y(), form.screen()->size().height() * (.055 + .025 * row), 6) << row;
      }
    }
    QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(
        QApplication::clipboard()->text(),
        "Fields\tHeights\tPhases\tSpacings\tBearings\tSwitch\n1\t90\t0\t0\t0\t0\n.8\t90.5\t-90\t90\t45\t1\n");
    Press(form, "cmdExit");
  });
}

}  // namespace
}  // namespace kestrel
