#include "forms/ChosenOnMap.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include "core/Geodesy.h"
#include "core/Sphere.h"
#include "map/Sheet.h"
#include "map/StationTip.h"
#include "ui/Controls.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

constexpr double kRingRadius = 11;  // pixels
constexpr QColor kInk(160, 0, 160);
constexpr double kTwipsScaleKilometres = 75;

/// The station's place on the sheet by its course, also where the map has no room for it.
QPointF PlaceOf(const MapSurface& map, const SessionState& state, const Position& station) {
  const SphereCourse course =
      CourseBetween({state.HomeLatitude, state.HomeLongitude}, {station.Latitude, station.Longitude});
  const double radius = course.Arc * KilometresPerDegree * state.ScaleFactor / kTwipsScaleKilometres;
  const double bearing = course.Azimuth * std::numbers::pi / 180;
  return map.FromSheet({static_cast<float>(HomeOnSheet.x + radius * std::sin(bearing)),
                        static_cast<float>(HomeOnSheet.y - radius * std::cos(bearing))});
}

/// The part of a line within a rectangle (Liang and Barsky 1984); nothing when it passes by.
std::optional<QLineF> Within(const QRectF& box, const QLineF& line) {
  double begin = 0;
  double end = 1;
  const auto cut = [&](double step, double room) {
    if (step == 0) return room >= 0;
    const double at = room / step;
    if (step < 0)
      begin = std::max(begin, at);
    else
      end = std::min(end, at);
    return begin <= end;
  };
  if (!cut(-line.dx(), line.x1() - box.left()) || !cut(line.dx(), box.right() - line.x1()) ||
      !cut(-line.dy(), line.y1() - box.top()) || !cut(line.dy(), box.bottom() - line.y1()))
    return std::nullopt;
  return QLineF(line.pointAt(begin), line.pointAt(end));
}

/// Text beside a place, inside the window, with a white rim.
void PaintText(QPainter& painter, const QRectF& window, QPointF place, const QString& text) {
  const QFontMetricsF metrics(painter.font());
  constexpr double kGap = kRingRadius + 4;
  QRectF box(place.x() + kGap, place.y() - metrics.height() / 2, metrics.horizontalAdvance(text),
             metrics.height());
  if (box.right() > window.right()) box.moveRight(place.x() - kGap);
  box.moveLeft(std::max(box.left(), window.left()));
  box.moveTop(std::clamp(box.top(), window.top(), std::max(window.top(), window.bottom() - box.height())));
  QPainterPath letters;
  letters.addText(box.left(), box.top() + metrics.ascent(), painter.font(), text);
  painter.strokePath(letters, QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(letters, kInk);
}

}  // namespace

void PaintChosen(QPainter& painter, const MapSurface& map, const SessionState& state,
                 const Position& station) {
  const QPointF home = map.FromSheet(HomeOnSheet);
  const QPointF place = PlaceOf(map, state, station);
  const QRectF window(map.rect());
  const std::optional<QLineF> path = Within(window, QLineF(home, place));
  if (!path) return;
  painter.setRenderHint(QPainter::Antialiasing);
  const bool seen = window.contains(place);
  for (const QPen& pen : {QPen(QColor(255, 255, 255, 200), 4), QPen(kInk, 1.5)}) {
    painter.setPen(pen);
    painter.drawLine(*path);
    if (seen) painter.drawEllipse(place, kRingRadius, kRingRadius);
  }
  PaintText(painter, window, path->p2(), Text(FromHomeText(state, station.Latitude, station.Longitude)));
}

}  // namespace kestrel
