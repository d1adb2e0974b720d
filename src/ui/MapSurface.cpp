#include "ui/MapSurface.h"

#include <QCursor>
#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>

#include "draw/LabelPlacement.h"

namespace kestrel {

MapSurface::MapSurface(QWidget* parent, const SheetArea& area, double smallestXHeight)
    : QWidget(parent), area_(area), smallestXHeight_(smallestXHeight) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setMinimumSize(80, 60);
}

void MapSurface::ShowDrawing() {
  stale_ = true;
  HideTip();
  update();
}

void MapSurface::ShowAdditions() {
  HideTip();
  update();
}

void MapSurface::SetLook(const MapLook& look) {
  if (look == look_) return;
  look_ = look;
  ShowDrawing();
}

void MapSurface::MoveTo(Point by) {
  const Point before = Moved();
  moved_ = MoveWithinLimits(RulesAtRest(size(), 1), by);
  if (moved_ == before) return;
  ShowDrawing();
  // Another place has come under the mouse.
  if (underMouse() && MouseMoved) MouseMoved(ToSheet(mapFromGlobal(QPointF(QCursor::pos()))));
}

Point MapSurface::Moved() const {
  return moved_ == Point() ? moved_ : MoveWithinLimits(RulesAtRest(size(), 1), moved_);
}

SurfaceRules MapSurface::RulesAtRest(QSize pixels, double pixelSize) const {
  SurfaceRules rules = RulesFor(QRect({0, 0}, pixels.expandedTo({1, 1})), area_, pixelSize);
  rules.SmallestXHeight = smallestXHeight_;
  rules.Look = look_;
  rules.Frame = rules.Area;
  return rules;
}

SurfaceRules MapSurface::RulesNow() const {
  SurfaceRules rules = RulesAtRest(size(), 1);
  MoveSheet(rules, Moved());
  return rules;
}

SheetFit MapSurface::Fit() const {
  return RulesNow().Fit;
}

Point MapSurface::ToSheet(const QPointF& position) const {
  return Fit().ToSheet({static_cast<float>(position.x()), static_cast<float>(position.y())});
}

QPointF MapSurface::FromSheet(Point sheet) const {
  const Point at = Fit().ToSurface(sheet);
  return {at.x, at.y};
}

void MapSurface::Render() {
  const QSize pixels = size() * devicePixelRatio();
  SurfaceRules rules = RulesAtRest(pixels, devicePixelRatio());
  MoveSheet(rules, Moved());
  if (stale_ || image_.size() != pixels) {
    if (image_.size() != pixels) image_ = QImage(pixels, QImage::Format_RGB32);
    image_.setDevicePixelRatio(devicePixelRatio());
    RenderAnew(rules);
  } else if (shown_ < drawing_.Length()) {
    renderer_.DrawMore(drawing_, shown_, rules, image_);
  }
  shown_ = drawing_.Length();
  stale_ = false;
}

void MapSurface::RenderAnew(const SurfaceRules& rules) {
  if (!Backdrop) return renderer_.Draw(drawing_, rules, image_);
  Backdrop(image_);
  renderer_.DrawMore(drawing_, 0, rules, image_);
}

void MapSurface::paintEvent(QPaintEvent*) {
  Render();
  QPainter painter(this);
  painter.drawImage(0, 0, image_);
  if (Overlay) Overlay(painter);
}

void MapSurface::mouseMoveEvent(QMouseEvent* event) {
  if (MouseMoved) MouseMoved(ToSheet(event->position()));
}

void MapSurface::mousePressEvent(QMouseEvent* event) {
  if (MousePressed) MousePressed(ToSheet(event->position()), event->button());
}

void MapSurface::mouseReleaseEvent(QMouseEvent* event) {
  const bool here = rect().contains(event->position().toPoint());
  if (Clicked && event->button() == Qt::LeftButton && here) Clicked(ToSheet(event->position()));
}

bool MapSurface::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !TipWanted) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  ShowTip(help->globalPos(), TipWanted(ToSheet(help->pos())));
  return true;
}

std::vector<std::uint32_t> MapSurface::LabelsAt(Point place) const {
  return kestrel::LabelsAt(drawing_, RulesNow(), renderer_.Labels(), FromSheet(place));
}

void MapSurface::leaveEvent(QEvent*) {
  if (MouseLeft) MouseLeft();
}

void MapSurface::resizeEvent(QResizeEvent*) {
  if (Resized) Resized();
}

void MapSurface::ShowTip(QPoint place, const QString& text) {
  // What stands in a file is text, also where it looks like markup.
  tipShown_ = !text.isEmpty();
  QToolTip::showText(place, Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text, this);
}

void MapSurface::HideTip() {
  if (tipShown_) QToolTip::hideText();
  tipShown_ = false;
}

void MapSurface::wheelEvent(QWheelEvent* event) {
  constexpr int kAnglePerStep = 120;
  wheelAngle_ += event->angleDelta().y();
  const int steps = wheelAngle_ / kAnglePerStep;
  wheelAngle_ -= steps * kAnglePerStep;
  if (steps != 0 && WheelTurned) WheelTurned(steps);
  event->accept();
}

}  // namespace kestrel
