#include "draw/RasterCanvas.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

#include "draw/PainterCanvas.h"

namespace kestrel {
namespace {

constexpr QSize kSize(240, 190);

SurfaceRules Rules() {
  return RulesFor(QRect({0, 0}, kSize));
}

QImage Paper() {
  QImage paper(kSize, QImage::Format_RGB32);
  paper.fill(Qt::white);
  return paper;
}

template <typename Draw>
QImage Rastered(Draw draw) {
  QImage image = Paper();
  DrawingTools tools;
  RasterCanvas canvas(image, Rules(), tools);
  draw(canvas);
  canvas.Finish();
  return image;
}

template <typename Draw>
QImage Painted(Draw draw) {
  QImage image = Paper();
  QPainter painter(&image);
  PainterCanvas canvas(painter, Rules());
  draw(canvas);
  return image;
}

/// Ink on the paper, pixels of full black.
double Ink(const QImage& image) {
  double ink = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) ink += (255 - qGray(image.pixel(x, y))) / 255.0;
  return ink;
}

/// The largest difference in ink between two pictures within any block of 4 by 4 pixels.
double LargestLocalDifference(const QImage& a, const QImage& b) {
  double largest = 0;
  for (int top = 0; top + 4 <= a.height(); top += 2)
    for (int left = 0; left + 4 <= a.width(); left += 2) {
      int difference = 0;
      for (int i = 0; i < 16; ++i) {
        const QPoint at(left + i % 4, top + i / 4);
        difference += qGray(a.pixel(at)) - qGray(b.pixel(at));
      }
      largest = std::max(largest, std::abs(difference) / 255.0);
    }
  return largest;
}

TEST(RasterCanvasTest, FiguresLookAsThePainterDrawsThem) {
  const auto figures = [](Canvas& canvas) {
    for (int i = 0; i < 12; ++i) {
      const auto angle = static_cast<float>(i) * 0.5236F;
      canvas.SetColor(i % 2 == 0 ? 0x000000 : 0xCC2222);
      canvas.Line({6000, 4500}, {6000 + 3500 * std::sin(angle), 4500 - 3500 * std::cos(angle)});
    }
    canvas.Circle({2500, 2500}, 1500);
    canvas.FilledCircle({9500, 7500}, 600);
    canvas.FilledBox({8000, 500}, {11000, 2000});
    canvas.Box({500, 7000}, {3000, 9000});
    canvas.Polygon(std::array<Point, 3>{{{500, 5000}, {3500, 5200}, {2000, 6700}}});
    canvas.SetLineWidth(1.5F);
    canvas.Circle({9500, 4500}, 1800);
  };
  const QImage rastered = Rastered(figures);
  const QImage painted = Painted(figures);
  EXPECT_NEAR(Ink(rastered) / Ink(painted), 1, 0.05);
  EXPECT_LT(LargestLocalDifference(rastered, painted), 2.5) << "of 16 pixels";
}

/// A pattern at a small scale, or of no power.
TEST(RasterCanvasTest, AnOutlineThatShrinksToAPointIsDrawnAsOne) {
  for (const float radius : {0.0F, 10.0F}) {  // twips, of which 50 are a pixel
    const auto outline = [&](Canvas& canvas) {
      canvas.SetLineWidth(1.5F);
      canvas.Polygon(std::array<Point, 3>{{{6000, 4500 - radius}, {6000 + radius, 4500}, {6000, 4500}}});
    };
    EXPECT_NEAR(Ink(Rastered(outline)), 1.8, 0.5) << radius;
    EXPECT_NEAR(Ink(Painted(outline)), 1.8, 0.5) << radius;
  }
}

TEST(RasterCanvasTest, TextStandsWhereThePainterPutsIt) {
  const auto words = [](Canvas& canvas) {
    canvas.SetFont({FontFace::Sans, 20});
    canvas.Text({1000, 2000}, "1230 QABC");
    canvas.BeginPanel({1000, 8000}, {FontFace::Sans, 10}, PanelPlace::OnMap);
    canvas.SetFont({FontFace::Sans, 10});
    canvas.Text({1000, 7500}, "Bogot\xC3\xA1");
    canvas.EndPanel();
  };
  const QImage rastered = Rastered(words);
  EXPECT_GT(Ink(rastered), 100);
  EXPECT_NEAR(Ink(rastered) / Ink(Painted(words)), 1, 0.1);
}

TEST(RasterCanvasTest, APolylineIsTheSameWholeAndInPieces) {
  std::mt19937 random(7);
  std::uniform_real_distribution<float> place(0, 9000);
  std::vector<Point> points(60);
  for (Point& point : points) point = {place(random), place(random)};
  const QImage whole = Rastered([&](Canvas& canvas) { canvas.Polyline(points); });
  const QImage pieces = Rastered([&](Canvas& canvas) {
    for (std::size_t i = 0; i + 1 < points.size(); ++i) canvas.Line(points[i], points[i + 1]);
  });
  EXPECT_EQ(whole, pieces);
}

TEST(RasterCanvasTest, NothingOfADrawingComesBackInTheNext) {
  // Lines of all widths and words, across and beyond the borders, in one picture and then in a wider one.
  const auto scribble = [](Canvas& canvas) {
    std::mt19937 random(5);
    std::uniform_real_distribution<float> place(-3000, 15000);
    for (int i = 0; i < 200; ++i) {
      canvas.SetColor(i * 70001);
      canvas.SetLineWidth(0.5F * static_cast<float>(i % 7 + 1));
      canvas.Line({place(random), place(random)}, {place(random), place(random)});
      canvas.FilledCircle({place(random), place(random)}, 300);
      canvas.SetFont({FontFace::Sans, 14});
      canvas.Text({place(random), place(random)}, "1230 QABC");
    }
  };
  const auto drawn = [&](QSize size, DrawingTools& tools) {
    SurfaceRules rules = Rules();
    rules.Area = QRectF(QPointF(0, 0), QSizeF(size));
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    RasterCanvas canvas(image, rules, tools);
    scribble(canvas);
    canvas.Finish();
    return image;
  };
  DrawingTools tools;
  const QImage first = drawn(kSize, tools);
  EXPECT_EQ(drawn(kSize, tools), first);
  const QImage wide = drawn({2100, kSize.height()}, tools);
  // Lines are cut at the picture's border, so a share may round the other way there.
  EXPECT_LT(LargestLocalDifference(wide.copy(QRect(QPoint(0, 0), kSize)), first), 0.1);
}

/// Eight pixels are laid at a time, and what is left over at the right side one by one.
TEST(RasterCanvasTest, APictureOfAnyWidthShowsTheLeftColumnsOfAWiderOne) {
  const auto drawn = [](int width) {
    QImage image(width, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    DrawingTools tools;
    RasterCanvas canvas(image, RulesFor({0, 0, 800, 600}), tools);
    std::mt19937 random(8);
    std::uniform_real_distribution<float> x(-300, 12000), y(-300, 900);
    for (int i = 0; i < 300; ++i) {
      canvas.SetColor(i * 70001);
      canvas.SetLineWidth(0.5F * static_cast<float>(i % 7 + 1));
      canvas.Line({x(random), y(random)}, {x(random), y(random)});
      canvas.FilledCircle({x(random), y(random)}, 60);
      canvas.Text({x(random), y(random)}, "1230");
    }
    canvas.Finish();
    return image;
  };
  const QImage wide = drawn(700);
  for (const int width : {1, 2, 3, 7, 8, 9, 15, 16, 17, 63, 64, 65, 487, 488, 489, 511, 512, 513, 699})
    EXPECT_EQ(drawn(width), wide.copy(0, 0, width, 40)) << width;
}

/// Legends are laid on boxes side by side; lines must not shine through between them.
TEST(RasterCanvasTest, BoxesThatShareAnEdgeLeaveNoSeam) {
  for (const double pixelSize : {1.0, 1.25, 1.5, 1.75, 2.0}) {
    SurfaceRules rules = Rules();
    rules.PixelSize = pixelSize;
    for (float edge = 3000; edge < 3400; edge += 7) {
      QImage image = Paper();
      DrawingTools tools;
      RasterCanvas canvas(image, rules, tools);
      canvas.SetColor(0);
      canvas.FilledBox({2000, 2000}, {5000, edge});
      canvas.FilledBox({2000, edge}, {5000, 5000});
      canvas.Finish();
      const int column = 70;
      int changes = 0;
      for (int y = 1; y < image.height(); ++y)
        changes += image.pixel(column, y) != image.pixel(column, y - 1) ? 1 : 0;
      ASSERT_EQ(changes, 2) << pixelSize << ' ' << edge;
    }
  }
}

TEST(RasterCanvasTest, NothingIsDrawnOutsideThePictureWhateverTheCoordinates) {
  const float hostile[] = {0,
                           -1,
                           1,
                           11999.99F,
                           12000,
                           30000,
                           -30000,
                           1e9F,
                           -1e30F,
                           1e38F,
                           -3.4e38F,
                           6000.5F,
                           1e-6F,
                           2e-6F,
                           std::numeric_limits<float>::quiet_NaN(),
                           std::numeric_limits<float>::infinity()};
  std::mt19937 random(11);
  std::uniform_int_distribution<std::size_t> any(0, std::size(hostile) - 1);
  const auto coordinate = [&] { return hostile[any(random)]; };
  const auto point = [&] { return Point{coordinate(), coordinate()}; };
  const QImage image = Rastered([&](Canvas& canvas) {
    for (int i = 0; i < 4000; ++i) {
      canvas.SetLineWidth(static_cast<float>(i % 5));
      canvas.Polyline(std::vector{point(), point(), point()});
      canvas.Polygon(std::vector{point(), point(), point()});
      canvas.Circle(point(), coordinate());
      canvas.FilledCircle(point(), coordinate());
      canvas.Box(point(), point());
      canvas.FilledBox(point(), point());
      canvas.Dot(point());
      canvas.Text(point(), "far");
    }
  });
  EXPECT_EQ(image.size(), kSize);  // the sanitizers watch every write
}

}  // namespace
}  // namespace kestrel
