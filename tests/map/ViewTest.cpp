#include "map/View.h"

#include <gtest/gtest.h>

namespace kestrel {
namespace {

TEST(ViewTest, StepsOfTheSquareRootOfTwoWithinLimits) {
  SessionState state;
  state.ScaleFactor = 200;
  ZoomIn(state);
  EXPECT_EQ(state.ScaleFactor, 282.842712F);
  ZoomIn(state);
  EXPECT_NEAR(state.ScaleFactor, 400, 1e-4);
  state.ScaleFactor = 8000;
  ZoomIn(state);
  EXPECT_EQ(state.ScaleFactor, 10000);
  EXPECT_FALSE(CanZoomIn(state));
  EXPECT_TRUE(CanZoomOut(state));
  state.ScaleFactor = 60;
  ZoomOut(state);
  EXPECT_EQ(state.ScaleFactor, 50);
  EXPECT_FALSE(CanZoomOut(state));

  state.PatternSize = 1.5F;
  EnlargePatterns(state);
  EXPECT_EQ(state.PatternSize, 2);
  state.PatternSize = 0.025F;
  ShrinkPatterns(state);
  EXPECT_EQ(state.PatternSize, 0.02F);
}

}  // namespace
}  // namespace kestrel
