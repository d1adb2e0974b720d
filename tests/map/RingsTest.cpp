#include "map/Rings.h"

#include <gtest/gtest.h>

#include <cmath>

#include "RecordingCanvas.h"
#include "core/Numbers.h"
#include "map/Sheet.h"

namespace kestrel {
namespace {

RecordingCanvas Drawn(void (*draw)(Canvas&, const SessionState&), const SessionState& state) {
  RecordingCanvas canvas;
  canvas.WithLayers = true;
  draw(canvas, state);
  return canvas;
}

TEST(RingsTest, RingsAreAsFarAsTheirLabelsSay) {
  SessionState state;
  for (const int unit : {0, 1})
    for (const float scale : {50.0F, 200.0F, 333.3F, 10000.0F}) {
      state.DistanceUnit = static_cast<std::int16_t>(unit);
      state.ScaleFactor = scale;
      const RecordingCanvas canvas = Drawn(DrawRings, state);
      const auto rings = canvas.All("Circle");
      const auto texts = canvas.All("Text");
      ASSERT_FALSE(rings.empty());
      ASSERT_EQ(texts.size(), 4 * rings.size());
      EXPECT_GE(rings[0].Radius, 1099) << scale;
      EXPECT_LE(rings[0].Radius, 2751) << scale;
      for (std::size_t i = 0; i < rings.size(); ++i) {
        const std::string& text = texts[4 * i].Text;
        const double kilometres = LeadingNumber(text) * (unit == 1 ? 1 / 0.6213637 : 1);
        EXPECT_NEAR(rings[i].Radius, kilometres * scale / 75, 0.01) << text;
        EXPECT_TRUE(text.ends_with(unit == 1 ? " mi" : " km")) << text;
        EXPECT_LE(kilometres, 180 * 111.44) << "beyond the point opposite to home";
      }
    }
}

TEST(RingsTest, TheBarIsAsLongAsItSays) {
  SessionState state;
  for (const float scale : {50.0F, 200.0F, 282.8427F, 10000.0F}) {
    state.ScaleFactor = scale;
    const RecordingCanvas canvas = Drawn(DrawScaleBar, state);
    const std::vector<Point> bar = canvas.All("Polyline").at(0).Points;
    const double length = bar[2].x - bar[1].x;
    EXPECT_NEAR(length, LeadingNumber(canvas.Texts().at(0)) * scale / 75, 0.01);
    EXPECT_GT(length, 1000);
    EXPECT_LT(bar[2].x, SheetWidth);
  }
}

}  // namespace
}  // namespace kestrel
