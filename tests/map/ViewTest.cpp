#include "map/View.h"

#include <gtest/gtest.h>

#include "map/Sheet.h"

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

TEST(SheetTest, FitsASurfaceOfAnyShape) {
  for (const auto& [width, height] : {std::pair{800.0F, 600.0F}, {1200.0F, 200.0F}, {100.0F, 900.0F}}) {
    const SheetFit fit = FitSheet(width, height);
    const Point middle = fit.ToSurface({SheetWidth / 2, SheetHeight / 2});
    EXPECT_NEAR(middle.x, width / 2, 1e-3);
    EXPECT_NEAR(middle.y, height / 2, 1e-3);
    EXPECT_NEAR(std::min(width - SheetWidth * fit.Scale, height - SheetHeight * fit.Scale), 0, 1e-3);
    const Point back = fit.ToSheet(fit.ToSurface({123, 4567}));
    EXPECT_NEAR(back.x, 123, 0.01);
    EXPECT_NEAR(back.y, 4567, 0.01);
  }
}

}  // namespace
}  // namespace kestrel
