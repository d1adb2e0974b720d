#include "draw/SurfaceView.h"

#include <algorithm>
#include <cmath>

#include "draw/Fonts.h"

namespace kestrel {

SurfaceRules RulesFor(const QRectF& surface, const SheetArea& area, double pixelSize) {
  SurfaceRules rules;
  rules.Fit = FitSheet(static_cast<float>(surface.width()), static_cast<float>(surface.height()), area);
  rules.Fit.Left += static_cast<float>(surface.left());
  rules.Fit.Top += static_cast<float>(surface.top());
  rules.Area = surface;
  rules.PixelSize = pixelSize;
  return rules;
}

void MoveSheet(SurfaceRules& rules, Point by) {
  const SheetFit& fit = rules.Fit;
  if (!rules.Frame)
    rules.Frame = QRectF(fit.Left, fit.Top, double{fit.Scale} * SheetWidth, double{fit.Scale} * SheetHeight);
  const auto pixel = static_cast<float>(rules.PixelSize);
  const auto whole = [&](float twips) { return std::round(twips * fit.Scale / pixel) * pixel; };
  rules.Fit.Left -= whole(by.x);
  rules.Fit.Top -= whole(by.y);
}

Point MoveWithinLimits(const SurfaceRules& rules, Point by) {
  const auto held = [](float wanted, float first, float last) {
    const float least = std::min(-CoordinateLimit - first, 0.0F);
    const float most = std::max(CoordinateLimit - last, 0.0F);
    // A surface that shows the whole range already has nowhere to go.
    return least < most && last - first < 2 * CoordinateLimit ? std::clamp(wanted, least, most) : 0;
  };
  const auto corner = [&](const QPointF& at) {
    return rules.Fit.ToSheet({static_cast<float>(at.x()), static_cast<float>(at.y())});
  };
  const Point first = corner(rules.Area.topLeft());
  const Point last = corner(rules.Area.bottomRight());
  return {held(by.x, first.x, last.x), held(by.y, first.y, last.y)};
}

Point SurfaceView::Grown(Point sheet) const {
  const auto growth = static_cast<float>(panelGrowth_);
  return {panelAnchor_.x + (sheet.x - panelAnchor_.x) * growth,
          panelAnchor_.y + (sheet.y - panelAnchor_.y) * growth};
}

double SurfaceView::Growth(const Font& font) const {
  const double xHeight = font.Points * TwipsPerPoint * rules_.Fit.Scale * XHeightShare(font.Face);
  return std::max(1.0, rules_.SmallestXHeight * rules_.PixelSize / xHeight);
}

double SurfaceView::FontSize(const Font& font) const {
  const double growth = panelGrowth_ == 1 ? Growth(font) : panelGrowth_;
  return font.Points * TwipsPerPoint * rules_.Fit.Scale * growth;
}

Point SurfaceView::Baseline(Point topLeft, const Font& font) const {
  return At({topLeft.x, topLeft.y + PlatformTextMeasure().Ascent(font)});
}

void SurfaceView::BeginPanel(Point anchor, const Font& smallest, PanelPlace place) {
  panelAnchor_ = anchor;
  panelGrowth_ = smallest.Points > 0 ? Growth(smallest) : 1;
  if (place == PanelPlace::OnMap || !rules_.Frame) return;
  const QRectF& frame = *rules_.Frame;
  const double scale = fit_.Scale;
  const bool right = place == PanelPlace::LowerRight;
  const bool lower = place != PanelPlace::UpperLeft;
  fit_.Left = static_cast<float>(right ? frame.right() - scale * SheetWidth : frame.left());
  fit_.Top = static_cast<float>(lower ? frame.bottom() - scale * SheetHeight : frame.top());
}

void SurfaceView::EndPanel() {
  panelGrowth_ = 1;
  fit_ = rules_.Fit;
}

void SurfaceView::SetDash(Dash dash) {
  const bool ofHours = dash != Dash::None && dash != Dash::Spoke;
  dash_ = DashLengths(ofHours && !rules_.Look.HourLines ? Dash::None : dash);
}

QRectF SurfaceView::Filled(Point corner, Point opposite) const {
  const auto snapped = [&](Point sheet) {
    const Point at = At(sheet);
    return QPointF(std::round(at.x / rules_.PixelSize), std::round(at.y / rules_.PixelSize)) *
           rules_.PixelSize;
  };
  return QRectF(snapped(corner), snapped(opposite)).normalized();
}

QRectF SurfaceView::Outlined(Point corner, Point opposite) const {
  const double half = rules_.PixelSize / 2;
  return Filled(corner, opposite).adjusted(half, half, -half, -half).normalized();
}

QPolygonF SurfaceView::Filled(std::span<const Point> outline) const {
  QPolygonF filled;
  filled.reserve(static_cast<qsizetype>(outline.size()));
  for (const Point& point : outline) {
    const Point at = At(point);
    filled << QPointF(at.x, at.y);
  }
  return filled;
}

bool SurfaceView::Shows(Point sheet, double radiusTwips) const {
  const Point at = At(sheet);
  const double radius = Length(radiusTwips) + 2 * rules_.PixelSize;
  return rules_.Area.intersects(QRectF(at.x - radius, at.y - radius, 2 * radius, 2 * radius));
}

}  // namespace kestrel
