#include "draw/PagePainter.h"

#include <algorithm>

#include "draw/LabelPlacement.h"
#include "draw/PainterCanvas.h"

namespace kestrel {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kHairsPerInch = 200;
constexpr double kSmallestPoints = 8;
constexpr double kPointsPerInch = 72;

// On paper so small that the page is shrunk, text does not grow beyond this size on the laid-out page, or
// lines and columns would run together.
constexpr double kMostPointsOfLayout = 10;

SurfaceRules RulesOf(const PagePane& pane, double unitsPerTwip, double unitsPerInch) {
  const QRectF place(pane.Place.Left * unitsPerTwip, pane.Place.Top * unitsPerTwip,
                     pane.Place.Width * unitsPerTwip, pane.Place.Height * unitsPerTwip);
  SurfaceRules rules = RulesFor(place, pane.Sheet, unitsPerInch / kHairsPerInch);
  const double shrinking = unitsPerTwip * kTwipsPerInch / unitsPerInch;
  const double points = std::min(kSmallestPoints, kMostPointsOfLayout * shrinking);
  rules.Look = pane.Look;
  const Point corner = rules.Fit.ToSurface(pane.Moved);
  rules.Frame =
      QRectF(corner.x, corner.y, double{rules.Fit.Scale} * SheetWidth, double{rules.Fit.Scale} * SheetHeight);
  rules.SmallestXHeight = points / kPointsPerInch * kHairsPerInch * XHeightShare(FontFace::Sans);
  return rules;
}

}  // namespace

void PaintPage(QPainter& painter, const PrintedPage& page, QSizeF paintable, double unitsPerInch,
               bool inColor) {
  const double twips = kTwipsPerInch / unitsPerInch;
  const PageSize size = LayoutSize(
      page, {static_cast<float>(paintable.width() * twips), static_cast<float>(paintable.height() * twips)});
  const double unitsPerTwip = paintable.width() / size.Width;
  for (const PagePane& pane : page.Layout(size)) {
    const SurfaceRules rules = RulesOf(pane, unitsPerTwip, unitsPerInch);
    const double hair = rules.PixelSize;
    painter.save();
    painter.setClipRect(rules.Area.adjusted(-hair, -hair, hair, hair));
    PainterCanvas canvas(painter, rules, inColor ? Recoloring() : page.Greys);
    const PlatformTextMeasure measure;
    DisplayList drawing(measure);
    pane.Draw(drawing);
    PlayPlaced(drawing, rules, canvas);
    painter.restore();
  }
}

}  // namespace kestrel
