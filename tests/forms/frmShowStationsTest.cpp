#include "forms/frmShowStations.h"

#include "forms/FormFixture.h"

namespace kestrel {
namespace {

using ShowStationsTest = FormTest;

TEST_F(ShowStationsTest, StopEndsAPlotThatRuns) {
  State.StopRequested = false;
  State.PlotAllStations = 1;
  frmShowStations running(Everything);
  Use(running, [&] { Press(running, "cmdStop"); });
  EXPECT_TRUE(State.StopRequested);
  EXPECT_EQ(State.PlotAllStations, 0);

  frmShowStations idle(Everything);
  EXPECT_FALSE(Find<QAbstractButton>(idle, "cmdStop")->isEnabled()) << "nothing to stop";
}

}  // namespace
}  // namespace kestrel
