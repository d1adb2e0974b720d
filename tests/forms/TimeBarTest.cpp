#include "forms/TimeBar.h"

#include <QDateEdit>
#include <QSlider>

#include "forms/FormFixture.h"

namespace kestrel {
namespace {

// A listener moves through the hours and the days, then back to now.
TEST(TimeBarTest, SliderDateAndClockChooseOneMoment) {
  Moment clock = *ReadMoment("2026-12-31T22:58:40Z", {});
  TimeBar bar([&clock] { return clock; });
  int changes = 0, settled = 0;
  bar.Changed = [&] { ++changes; };
  bar.Settled = [&] { ++settled; };
  bar.ShowHome({33.2F, 96.5F});
  bar.ShowStation(Position{71, 156});
  bar.resize(500, 40);
  bar.show();
  const auto now = [&] { return MomentText(bar.At()); };
  EXPECT_EQ(now(), "2026-12-31T22:58Z");

  auto* slider = Find<QSlider>(bar, "sliTime");
  EXPECT_EQ(slider->value(), 22 * 12 + 11);
  QTest::keyClick(slider, Qt::Key_Right);
  EXPECT_EQ(now(), "2026-12-31T23:00Z");
  QTest::keyClick(slider, Qt::Key_PageDown);  // another channel's, not the hour's
  EXPECT_EQ(now(), "2026-12-31T23:00Z");
  EXPECT_EQ(changes, 1);
  slider->setSliderDown(true);
  slider->setSliderPosition(0);
  slider->setSliderDown(false);
  EXPECT_EQ(now(), "2026-12-31T00:00Z");
  EXPECT_EQ(settled, 1);

  auto* date = Find<QDateEdit>(bar, "dateUtc");
  date->setDate({2024, 2, 29});
  EXPECT_EQ(now(), "2024-02-29T00:00Z");
  bar.SetMoment(*ReadMoment("2026-06-21T12:04:59Z", {}));
  EXPECT_EQ(date->date(), QDate(2026, 6, 21));
  EXPECT_EQ(slider->value(), 12 * 12);
  bar.SetMoment(std::chrono::sys_days(std::chrono::year(2300) / 1 / 1));
  EXPECT_EQ(now(), "2100-12-31T23:55Z");
  bar.SetMoment(Moment{} - std::chrono::years(200));
  EXPECT_EQ(now(), "1950-01-01T00:00Z");

  Press(bar, "cmdNow");
  EXPECT_EQ(now(), "2026-12-31T22:58Z");
  EXPECT_TRUE(Find<QPushButton>(bar, "cmdNow")->isChecked());
  QTest::keyClick(slider, Qt::Key_Left);
  EXPECT_FALSE(Find<QPushButton>(bar, "cmdNow")->isChecked());
  EXPECT_EQ(now(), "2026-12-31T22:50Z");
}

}  // namespace
}  // namespace kestrel
