#include "forms/PlotList.h"

#include <QAction>
#include <QCheckBox>
#include <QSettings>
#include <QShortcut>
#include <QTableView>
#include <QToolTip>

#include "forms/PlotFixture.h"
#include "forms/StationList.h"

namespace kestrel {
namespace {

class PlotListTest : public frmPlotTest {
 protected:
  ~PlotListTest() override {
    plot_.reset();
    QSettings().clear();
  }

  StationList& List() { return *Find<StationList>(*plot_, "StationList"); }
  std::string Chosen() { return List().Chosen() ? List().Chosen()->Record->CallSign : "nobody"; }
  std::string Focused() {
    const QWidget* focus = QApplication::focusWidget();
    return focus ? focus->objectName().toStdString() : "";
  }
};

TEST_F(PlotListTest, AStationIsChosenOnTheMapAndInTheList) {
  Open();
  PressKey(Qt::Key_W);
  EXPECT_EQ(ClickAt(PixelOf("QU620")), "");
  EXPECT_EQ(Chosen(), "QU620");
  const QImage ringed = plot_->Surface().grab().toImage();
  EXPECT_EQ(ClickAt(PixelOf("QU620")), "QU620: 1 records");
  auto* rows = Find<QTableView>(List(), "Stations");
  rows->setCurrentIndex(rows->model()->index(0, 0));
  EXPECT_EQ(Chosen(), "QDN620");
  EXPECT_NE(plot_->Surface().grab().toImage(), ringed);

  RestAt(PixelOf("QU620"));
  const QString tip = QToolTip::text().section('\n', -1);
  EXPECT_TRUE(tip.contains(" dB above 1 uV/m, ")) << tip.toStdString();
  PressKey(Qt::Key_F6, Qt::ShiftModifier);
  const QString said = plot_->Surface().accessibleDescription();
  EXPECT_TRUE(said.startsWith("620 kHz at Plano TX, ")) << said.toStdString();
  EXPECT_TRUE(said.contains(": 2 on the air, the strongest QDN620 TOWN TX ")) << said.toStdString();

  // Closed, it leaves the map as it was; the next start opens it again.
  PressKey(Qt::Key_PageUp);
  EXPECT_EQ(Chosen(), "nobody");
  PressKey(Qt::Key_W);
  EXPECT_EQ(ClickAt(PixelOf("QU630")), "QU630: 1 records");
  PressKey(Qt::Key_W);
  Open();
  EXPECT_TRUE(List().isVisible());
}

TEST_F(PlotListTest, KeysLeadRoundTheWindowAndThroughTheBand) {
  Open();
  plot_->Surface().setFocus();
  PressKey(Qt::Key_W, Qt::ShiftModifier);
  EXPECT_EQ(Focused(), "Stations");
  auto* rows = Find<QTableView>(List(), "Stations");
  EXPECT_EQ(rows->model()->rowCount(), 3);
  QTest::keyClick(rows, Qt::Key_Down);  // which moves the map elsewhere
  QTest::keyClick(rows, Qt::Key_Down);
  EXPECT_EQ(plot_->Surface().Moved(), Point());
  QTest::keyClick(rows, Qt::Key_Return);
  EXPECT_EQ(ChannelsDrawn(), Channels{1230});
  EXPECT_EQ(Chosen(), "QDN1230");
  EXPECT_FALSE(List().IsWholeBand());
  PressKey(Qt::Key_F6);
  EXPECT_EQ(Focused(), "cmdFreq");
  PressKey(Qt::Key_F6);
  EXPECT_EQ(Focused(), "Map");
  PressKey(Qt::Key_F6);
  EXPECT_EQ(Focused(), "Stations");

  // A call that is on another channel: the lookup's message, then a key.
  System.Messages.clear();
  QTimer::singleShot(0, [] {
    auto* lookup = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(lookup, nullptr);
    Type(*lookup, "txtGetData", "qu630");
    kestrel::Press(*lookup, "cmdGetData");
    EXPECT_TRUE(Find<QLabel>(*lookup, "lblBand")->isVisible());
    for (QShortcut* shortcut : lookup->findChildren<QShortcut*>())
      if (shortcut->key() == QKeySequence("Ctrl+F")) emit shortcut->activated();
    EXPECT_FALSE(lookup->isVisible());
    lookup->reject();
  });
  Press("cmdData");
  EXPECT_EQ(System.Messages.size(), 1);
  auto* find = Find<QLineEdit>(List(), "txtFind");
  EXPECT_EQ(plot_->focusWidget(), find);
  QTest::keyClick(find, Qt::Key_Return);
  EXPECT_EQ(ChannelsDrawn(), Channels{630});
  EXPECT_EQ(Chosen(), "QU630");
}

TEST_F(PlotListTest, TheListRestsWhileAllStationsArePlotted) {
  Open();
  PressKey(Qt::Key_W);
  System.OnEvents = [this](int) { EXPECT_FALSE(List().isEnabled()); };
  ScanTheBand();
  System.OnEvents = {};
  EXPECT_TRUE(List().isEnabled());
  EXPECT_GT(System.EventRounds, 0);
}

}  // namespace
}  // namespace kestrel
