#include "forms/PlotFixture.h"
#include "forms/TimeBar.h"

namespace kestrel {
namespace {

using MapHourTest = frmPlotTest;

// The map by day and by night; nothing is read while the time moves, everything when the slider is let go.
TEST_F(MapHourTest, TheBarChoosesTheRecordsOnTheMap) {
  Open();
  auto* bar = Find<TimeBar>(*plot_, "TimeBar");
  EXPECT_FALSE(bar->isVisible());
  PressKey(Qt::Key_T);
  EXPECT_TRUE(bar->isVisible());
  EXPECT_FALSE(Button("cmdHours")->isEnabled());

  bar->SetMoment(*ReadMoment("2026-06-21T18:00Z", {}));
  EXPECT_EQ(Drawn(), (Names{"QDN620 D", "QU620 U"}));
  Files.Put("620x.dat", "");
  bar->SetMoment(*ReadMoment("2026-06-21T06:00Z", {}));
  EXPECT_EQ(Drawn(), (Names{"QDN620 N", "QU620 U"}));
  Press("cmdCompass");
  EXPECT_EQ(Drawn(), Names{});
  Files.Put("620x.dat", SampleFolder::Channel("620"));
  bar->Settled();
  EXPECT_EQ(Drawn(), (Names{"QDN620 N", "QU620 U"}));
  AddChannel("1230");
  EXPECT_EQ(ChannelsDrawn(), (Channels{620, 1230}));

  ScanTheBand();
  bar->SetMoment(*ReadMoment("2026-06-21T18:00Z", {}));
  EXPECT_EQ(ChannelsDrawn(), (Channels{620, 1230}));
  EXPECT_FALSE(Button("cmdHours")->isEnabled());

  PressKey(Qt::Key_T);
  EXPECT_FALSE(bar->isVisible());
  EXPECT_TRUE(Button("cmdHours")->isEnabled());
  EXPECT_EQ(Drawn(), (Names{"QDN1230 D", "QDN1230 N", "QU1230 U"}));
  bar->SetMoment(*ReadMoment("2026-06-21T06:00Z", {}));
  EXPECT_EQ(Drawn(), (Names{"QDN1230 D", "QDN1230 N", "QU1230 U"}));
}

}  // namespace
}  // namespace kestrel
