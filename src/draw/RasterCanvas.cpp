#include "draw/RasterCanvas.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "draw/PainterCanvas.h"

namespace kestrel {
namespace {

constexpr QRgb kWhite = 0xFFFFFFFF;

}  // namespace

RasterCanvas::RasterCanvas(QImage& image, const SurfaceRules& rules, DrawingTools& tools, int top)
    : image_(image),
      top_(top),
      view_(rules),
      tools_(tools),
      mask_(tools.Mask(image.size(), top)),
      lineWidth_(static_cast<float>(rules.PixelSize)) {
  tools_.ForgetOldGlyphs();
}

void RasterCanvas::LayInk() {
  if (inked_) mask_.Lay(color_, image_);
  inked_ = false;
}

void RasterCanvas::SetColor(ColorValue color) {
  const QRgb rgb = PlatformColor(color).rgb();
  if (rgb == color_) return;
  LayInk();
  color_ = rgb;
}

void RasterCanvas::SetLineWidth(float width) {
  lineWidth_ = static_cast<float>(width * view_.PixelSize());
}

void RasterCanvas::Line(Point from, Point to) {
  Polyline(std::array{from, to});
}

void RasterCanvas::Polyline(std::span<const Point> points) {
  view_.ForEachRun(points, [&](std::span<const Point> run) {
    mask_.AddPolyline(run, lineWidth_);
    inked_ = true;
  });
}

void RasterCanvas::Polygon(std::span<const Point> points) {
  if (points.empty()) return;
  closed_.assign(points.begin(), points.end());
  closed_.push_back(points.front());
  view_.ForEachRun(closed_, [&](std::span<const Point> run) {
    if (IsPoint(run))
      mask_.AddDisc(run.front(), lineWidth_ / 2);
    else
      mask_.AddPolyline(run, lineWidth_);
    inked_ = true;
  });
}

void RasterCanvas::Circle(Point center, float radius) {
  if (!view_.Shows(center, radius)) return;
  const Point at = view_.At(center);
  const double pixels = view_.Length(radius);
  const int corners = static_cast<int>(std::clamp(6 * std::sqrt(std::abs(pixels)), 12.0, 720.0));
  std::vector<Point> outline;
  for (int i = 0; i <= corners; ++i) {
    const double angle = 2 * std::numbers::pi * i / corners;
    outline.push_back({static_cast<float>(at.x + pixels * std::sin(angle)),
                       static_cast<float>(at.y - pixels * std::cos(angle))});
  }
  mask_.AddPolyline(outline, lineWidth_);
  inked_ = true;
}

void RasterCanvas::FilledCircle(Point center, float radius) {
  if (!view_.Shows(center, radius)) return;
  const Point at = view_.At(center);
  mask_.AddDisc(at, static_cast<float>(view_.Length(radius)));
  inked_ = true;
}

void RasterCanvas::Box(Point corner, Point opposite) {
  const QRectF box = view_.Outlined(corner, opposite);
  const auto left = static_cast<float>(box.left()), right = static_cast<float>(box.right());
  const auto top = static_cast<float>(box.top()), bottom = static_cast<float>(box.bottom());
  mask_.AddPolyline(
      std::array<Point, 5>{{{left, top}, {right, top}, {right, bottom}, {left, bottom}, {left, top}}},
      lineWidth_);
  inked_ = true;
}

void RasterCanvas::FilledBox(Point corner, Point opposite) {
  LayInk();
  const QRectF box = view_.Filled(corner, opposite);
  // Each edge is rounded by itself, so that boxes share it wherever it lies; what is no number is 0.
  const auto pixel = [](double edge, int most) {
    return edge > 0 ? static_cast<int>(std::lround(std::min<double>(edge, most))) : 0;
  };
  const int left = pixel(box.left(), image_.width());
  const int right = pixel(box.right(), image_.width());
  const int bottom = pixel(box.bottom() - top_, image_.height());
  for (int y = pixel(box.top() - top_, image_.height()); y < bottom; ++y)
    std::fill_n(reinterpret_cast<QRgb*>(image_.scanLine(y)) + left, std::max(0, right - left), color_);
}

void RasterCanvas::Area(std::string_view, std::span<const Point> outline) {
  LayInk();
  QPainter painter(&image_);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(1 / image_.devicePixelRatio(), 1 / image_.devicePixelRatio());
  painter.translate(0, -top_);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(color_));
  painter.drawPolygon(view_.Filled(outline), Qt::OddEvenFill);
}

void RasterCanvas::Dot(Point at) {
  if (!view_.Shows(at, 0)) return;
  mask_.AddPoint(view_.At(at));
  inked_ = true;
}

const RasterCanvas::Style& RasterCanvas::PresentStyle() {
  for (const Style& style : styles_)
    if (style.font == font_ && style.inPanel == inPanel_) return style;
  const double size = view_.FontSize(font_);
  return styles_.emplace_back(
      Style{font_, inPanel_, size, measure_.Ascent(font_), &tools_.Glyphs(font_.Face, size)});
}

void RasterCanvas::DrawText(Point topLeft, std::string_view text, bool rimmed) {
  const Style& style = PresentStyle();
  const Point at = view_.At({topLeft.x, topLeft.y + style.ascent});
  const double size = style.size;
  const double x = at.x, y = double{at.y} - top_;
  // Written so that a place that is no number is none.
  if (!(y + size >= 0 && y - 2 * size <= image_.height() && x <= image_.width() &&
        x + size * static_cast<double>(text.size()) >= 0))
    return;
  LayInk();
  if (GlyphCache::Knows(text)) {
    const double rim = std::round(view_.PixelSize());
    if (rimmed)
      for (const double down : {-rim, 0.0, rim})
        for (const double across : {-rim, 0.0, rim})
          style.glyphs->Draw(image_, top_, {at.x + across, at.y + down}, kWhite, text);
    return style.glyphs->Draw(image_, top_, {at.x, at.y}, color_, text);
  }
  QPainter painter(&image_);
  painter.scale(1 / image_.devicePixelRatio(), 1 / image_.devicePixelRatio());
  painter.setFont(style.glyphs->PixelFont());
  painter.setPen(QColor(color_));
  const QPointF start(at.x, at.y - static_cast<float>(top_));
  const QString string = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  if (rimmed) {
    QPainterPath letters;
    letters.addText(start, painter.font(), string);
    painter.strokePath(letters, QPen(Qt::white, RimWidth * view_.PixelSize()));
  }
  painter.drawText(start, string);
}

void RasterCanvas::BeginPanel(Point anchor, const Font& smallest, PanelPlace place) {
  view_.BeginPanel(anchor, smallest, place);
  std::erase_if(styles_, [](const Style& style) { return style.inPanel; });
  inPanel_ = true;
}

void RasterCanvas::EndPanel() {
  view_.EndPanel();
  inPanel_ = false;
}

}  // namespace kestrel
