#include "draw/Renderer.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <atomic>
#include <new>
#include <random>
#include <system_error>
#include <thread>

#include "WithoutRights.h"
#include "draw/Fonts.h"
#include "draw/Helper.h"
#include "draw/RasterCanvas.h"

namespace kestrel {
namespace {

constexpr QSize kLarge(1000, 750);

SurfaceRules Rules(double pixelSize = 1) {
  return RulesFor(QRect({0, 0}, kLarge), {}, pixelSize);
}

QImage Paper(int rows) {
  QImage paper(kLarge.width(), rows, QImage::Format_RGB32);
  paper.fill(Qt::white);
  return paper;
}

/// Figures of all kinds everywhere, letters that are not ASCII among them.
void Scribble(Canvas& canvas, unsigned seed = 23) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<float> place(-2000, 14000);
  const auto point = [&] { return Point{place(random), place(random)}; };
  for (int i = 0; i < 300; ++i) {
    canvas.SetColor(i * 50021);
    canvas.SetLineWidth(0.5F * static_cast<float>(i % 8 + 1));
    std::vector<Point> points = {point()};
    for (int k = 0; k < 40; ++k)
      points.push_back({points.back().x + 30, points.back().y + place(random) / 30});
    canvas.Polyline(points);
    canvas.Polygon(std::vector{point(), point(), point()});
    canvas.FilledCircle(point(), 90);
    canvas.SetFont({FontFace::Sans, static_cast<float>(8 + i % 3)});
    canvas.Text(point(), i % 9 == 0 ? "1230 QÄBC" : "1230 QABC");
    if (i % 50 == 0) canvas.FilledBox(point(), point());
  }
}

TEST(RendererTest, APictureInStripsIsTheSameAsTheWhole) {
  const PlatformTextMeasure measure;
  DisplayList list(measure);
  Scribble(list);
  for (const double pixelSize : {1.0, 1.75}) {
    QImage whole = Paper(kLarge.height());
    DrawingTools tools;
    RasterCanvas canvas(whole, Rules(pixelSize), tools);
    list.Play(canvas);
    canvas.Finish();
    for (const int processors : {2, 4}) {
      Renderer renderer(processors);
      for (int round = 0; round < 2; ++round) {  // with new tools, and with those of the first
        QImage image = Paper(kLarge.height());
        image.fill(Qt::red);
        renderer.Draw(list, Rules(pixelSize), image);
        EXPECT_EQ(image, whole) << pixelSize << ' ' << processors;
      }
      // The lower rows alone, which again are drawn in strips, and a few that are not.
      for (const int rows : {600, 31}) {
        QImage lower = Paper(rows);
        renderer.Draw(list, Rules(pixelSize), lower, kLarge.height() - rows);
        EXPECT_EQ(lower, whole.copy(0, kLarge.height() - rows, kLarge.width(), rows)) << rows;
      }
    }
  }
}

TEST(RendererTest, ThePictureIsDrawnWithoutThreadsToo) {
  const PlatformTextMeasure measure;
  DisplayList list(measure);
  Scribble(list);
  QImage alone = Paper(kLarge.height()), image = Paper(kLarge.height());
  Renderer(1).Draw(list, Rules(1), alone);
  EXPECT_TRUE(HoldsWithoutRights([&] {
    const uid_t nobody = geteuid();
    const rlimit none = {1, 1};
    if (setresuid(nobody, nobody, nobody) != 0 || setrlimit(RLIMIT_NPROC, &none) != 0) return false;
    EXPECT_THROW(Helper(), std::system_error);
    Renderer(4).Draw(list, Rules(1), image);
    return image == alone && !testing::Test::HasFailure();
  }));
}

TEST(RendererTest, WhatAThreadThrowsReachesTheCaller) {
  Helper helper;
  for (int round = 0; round < 3; ++round) {
    std::atomic<bool> begun = false;
    helper.Begin([&begun] {
      begun = true;
      throw std::bad_alloc();
    });
    while (!begun) std::this_thread::yield();
    EXPECT_THROW(helper.Finish(), std::bad_alloc);
    helper.Begin([] {});
    helper.Finish();
  }
}

TEST(RendererTest, WhatCameLaterIsDrawnOverWhatIsThere) {
  const PlatformTextMeasure measure;
  DisplayList list(measure);
  Renderer renderer;
  QImage image = Paper(kLarge.height());
  Scribble(list);
  renderer.Draw(list, Rules(), image);
  const std::size_t length = list.Length();
  Scribble(list, 24);
  renderer.DrawMore(list, length, Rules(), image);
  QImage whole = Paper(kLarge.height());
  renderer.Draw(list, Rules(), whole);
  EXPECT_EQ(image, whole);
}

}  // namespace
}  // namespace kestrel
