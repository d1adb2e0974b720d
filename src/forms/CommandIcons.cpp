#include "forms/CommandIcons.h"

#include <QPainter>
#include <QPixmap>
#include <functional>

namespace kestrel {
namespace {

/// Draws on a square of side 16 at several sizes.
QIcon Drawn(const std::function<void(QPainter&)>& draw) {
  QIcon icon;
  for (const int side : {16, 32, 64, 128}) {
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / 16.0, side / 16.0);
    draw(painter);
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

}  // namespace

QIcon ZoomIcon(bool in, const QColor& ink) {
  return Drawn([&](QPainter& painter) {
    painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawEllipse(QRectF(1.5, 1.5, 9.5, 9.5));
    painter.drawLine(QPointF(9.9, 9.9), QPointF(14.2, 14.2));
    painter.drawLine(QPointF(3.8, 6.25), QPointF(8.7, 6.25));
    if (in) painter.drawLine(QPointF(6.25, 3.8), QPointF(6.25, 8.7));
  });
}

QIcon PatternIcon(bool larger, const QColor& ink) {
  return Drawn([&](QPainter& painter) {
    const double radius = larger ? 6.2 : 3.2;
    painter.setPen(QPen(ink, 1.4));
    painter.drawEllipse(QPointF(8, 8), radius, radius);
    QColor pale = ink;
    pale.setAlphaF(0.45F);
    painter.setPen(QPen(pale, 1, Qt::DotLine));
    painter.drawEllipse(QPointF(8, 8), 9.4 - radius, 9.4 - radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(QPointF(8, 8), 1.1, 1.1);
  });
}

}  // namespace kestrel
