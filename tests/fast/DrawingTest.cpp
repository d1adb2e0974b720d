#include <gtest/gtest.h>

#include <QImage>
#include <cmath>

#include "draw/Fonts.h"
#include "draw/Renderer.h"
#include "map/BandScan.h"
#include "map/MainMap.h"
#include "map/Outlines.h"
#include "straight/Drawing.h"

// The quick drawings show what the straight ones do: not pixel by pixel, since each antialiases in its own
// way, but the same ink in the same places.

namespace kestrel {
namespace {

constexpr QSize kSize(800, 600);
constexpr int kBlock = 8;

/// Ink in pixels of full black, within a block or the whole picture.
double Ink(const QImage& image, QRect part) {
  double ink = 0;
  for (int y = part.top(); y <= part.bottom(); ++y)
    for (int x = part.left(); x <= part.right(); ++x) ink += (255 - qGray(image.pixel(x, y))) / 255.0;
  return ink;
}

/// `least`: the quick picture's ink in that of the straight one, which lays the joints of short segments
/// twice.
void ExpectSameInk(const QImage& quick, const QImage& straight, double least) {
  const double ink = Ink(straight, straight.rect());
  EXPECT_GT(ink, 5000);
  EXPECT_GT(Ink(quick, quick.rect()) / ink, least);
  EXPECT_LT(Ink(quick, quick.rect()) / ink, 1.02);
  double largest = 0;
  for (int y = 0; y + kBlock <= kSize.height(); y += kBlock)
    for (int x = 0; x + kBlock <= kSize.width(); x += kBlock) {
      const QRect block(x, y, kBlock, kBlock);
      largest = std::max(largest, std::abs(Ink(quick, block) - Ink(straight, block)));
    }
  EXPECT_LT(largest, 16) << "of " << kBlock * kBlock << " pixels";
}

template <typename Draw>
QImage Quick(Draw draw) {
  const PlatformTextMeasure measure;
  DisplayList list(measure);
  draw(list);
  QImage image(kSize, QImage::Format_RGB32);
  SurfaceRules rules = RulesFor(image.rect());
  rules.Look.Labels = LabelChoice::None;  // their rims cover lines
  Renderer(2).Draw(list, rules, image);
  return image;
}

TEST(DrawingTest, AChannelAloneAndWithItsAdjacents) {
  const DataFolder folder(KESTREL_SHARE_DIR);
  for (const bool adjacents : {false, true}) {
    SessionState state;
    state.CurrentFrequency = state.SelectedFrequency = 1450;
    state.AdjacentsShown = adjacents ? 1 : 0;
    QImage straight(kSize, QImage::Format_RGB32);
    straight::DrawMainMap(straight, KESTREL_SHARE_DIR, state, false);
    ExpectSameInk(Quick([&](DisplayList& list) { DrawMainMap(list, folder, state); }), straight, 0.7);
  }
}

TEST(DrawingTest, TheWholeBand) {
  const DataFolder folder(KESTREL_SHARE_DIR);
  const SessionState state;
  QImage straight(kSize, QImage::Format_RGB32);
  straight::DrawScan(straight, KESTREL_SHARE_DIR, state, false);
  const MapProjection projection(state.Home(), state.ScaleFactor);
  ExpectSameInk(Quick([&](DisplayList& list) {
                  DrawOutlineFiles(list, folder, projection);
                  for (BandScan scan(folder, projection); !scan.AtEnd();) EXPECT_TRUE(scan.DrawNext(list));
                }),
                straight, 0.7);
}

}  // namespace
}  // namespace kestrel
