#include "draw/PainterCanvas.h"

#include <QPainterPath>
#include <array>
#include <utility>
#include <vector>

namespace kestrel {

QColor PlatformColor(ColorValue color) {
  return QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}

PainterCanvas::PainterCanvas(QPainter& painter, const SurfaceRules& rules, Recoloring recoloring)
    : painter_(painter), view_(rules), recoloring_(std::move(recoloring)) {
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setBrush(Qt::NoBrush);
  SetColor(Palette::Black);
}

void PainterCanvas::UsePen() {
  const double width = lineWidth_ * widthFactor_ * view_.PixelSize();
  painter_.setPen(QPen(color_, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void PainterCanvas::UseFont() {
  if (!fontStale_) return;
  painter_.setFont(PlatformFont(font_.Face, view_.FontSize(font_), painter_.device()->logicalDpiY()));
  fontStale_ = false;
}

void PainterCanvas::SetColor(ColorValue color) {
  const Ink ink = recoloring_ ? recoloring_(color) : Ink{color};
  color_ = PlatformColor(ink.Color);
  widthFactor_ = ink.WidthFactor;
  UsePen();
}

void PainterCanvas::SetLineWidth(float width) {
  lineWidth_ = width;
  UsePen();
}

void PainterCanvas::SetFont(const Font& font) {
  fontStale_ = fontStale_ || font != font_;
  font_ = font;
}

void PainterCanvas::Line(Point from, Point to) {
  Polyline(std::array{from, to});
}

void PainterCanvas::Polyline(std::span<const Point> points) {
  view_.ForEachRun(points, [&](std::span<const Point> run) { DrawRun(run); });
}

void PainterCanvas::DrawRun(std::span<const Point> run) {
  QPolygonF line;
  for (const Point& point : run) line << QPointF(point.x, point.y);
  painter_.drawPolyline(line);
}

void PainterCanvas::Polygon(std::span<const Point> points) {
  if (points.empty()) return;
  std::vector<Point> closed(points.begin(), points.end());
  closed.push_back(points.front());
  view_.ForEachRun(closed, [&](std::span<const Point> run) {
    if (IsPoint(run))
      painter_.drawPoint(QPointF(run.front().x, run.front().y));
    else
      DrawRun(run);
  });
}

void PainterCanvas::Circle(Point center, float radius) {
  if (!view_.Shows(center, radius)) return;
  const Point at = view_.At(center);
  painter_.drawEllipse(QPointF(at.x, at.y), view_.Length(radius), view_.Length(radius));
}

void PainterCanvas::FilledCircle(Point center, float radius) {
  if (!view_.Shows(center, radius)) return;
  const Point at = view_.At(center);
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(color_);
  painter_.drawEllipse(QPointF(at.x, at.y), view_.Length(radius), view_.Length(radius));
  painter_.setBrush(Qt::NoBrush);
  UsePen();
}

void PainterCanvas::Box(Point corner, Point opposite) {
  painter_.drawRect(view_.Outlined(corner, opposite));
}

void PainterCanvas::FilledBox(Point corner, Point opposite) {
  painter_.fillRect(view_.Filled(corner, opposite), color_);
}

void PainterCanvas::Area(std::string_view, std::span<const Point> outline) {
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(color_);
  painter_.drawPolygon(view_.Filled(outline), Qt::OddEvenFill);
  painter_.setBrush(Qt::NoBrush);
  UsePen();
}

void PainterCanvas::Dot(Point at) {
  if (!view_.Shows(at, 0)) return;
  const Point point = view_.At(at);
  painter_.drawPoint(QPointF(point.x, point.y));
}

std::optional<QPointF> PainterCanvas::ShownBaseline(Point topLeft, std::string_view text) {
  UseFont();
  const Point at = view_.Baseline(topLeft, font_);
  const double size = view_.FontSize(font_);
  const QRectF reach(at.x, at.y - 2 * size, size * static_cast<double>(text.size()), 3 * size);
  if (!view_.Area().intersects(reach)) return std::nullopt;
  return QPointF(at.x, at.y);
}

void PainterCanvas::Text(Point topLeft, std::string_view text) {
  const std::optional<QPointF> at = ShownBaseline(topLeft, text);
  if (at) painter_.drawText(*at, QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

void PainterCanvas::RimmedText(Point topLeft, std::string_view text) {
  const std::optional<QPointF> at = ShownBaseline(topLeft, text);
  if (!at) return;
  const QString string = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  QPainterPath letters;
  letters.addText(*at, painter_.font(), string);
  painter_.strokePath(
      letters, QPen(Qt::white, RimWidth * view_.PixelSize(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter_.drawText(*at, string);
}

void PainterCanvas::BeginPanel(Point anchor, const Font& smallest, PanelPlace place) {
  view_.BeginPanel(anchor, smallest, place);
  fontStale_ = true;
}

void PainterCanvas::EndPanel() {
  view_.EndPanel();
  fontStale_ = true;
}

}  // namespace kestrel
