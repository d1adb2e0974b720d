#include "ui/MapMover.h"

#include <QApplication>
#include <QGestureEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QShortcut>
#include <QStyleHints>
#include <QWheelEvent>
#include <array>
#include <cmath>
#include <utility>

#include "map/View.h"
#include "ui/Keys.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

// Of the map's width or height, by the arrow keys.
constexpr double kStep = 0.1;
constexpr double kFarStep = 0.5;

constexpr int kAnglePerStep = 120;    // of a wheel, eighths of a degree
constexpr double kLeastPinch = 1.04;  // each zoom draws the map anew

}  // namespace

MapMover::MapMover(MapSurface& surface) : QObject(&surface), surface_(surface) {
  surface_.installEventFilter(this);
  surface_.grabGesture(Qt::PinchGesture);
  AddKeys("move", kStep);
  AddKeys("moveFar", kFarStep);
}

void MapMover::AddKeys(const char* command, double share) {
  static constexpr std::array<std::pair<int, int>, 4> kDirections = {{{-1, 0}, {1, 0}, {0, -1}, {0, 1}}};
  QWidget& window = *surface_.window();
  const QList<QKeySequence> keys = KeysOf(window, command).Sequences();
  for (std::size_t i = 0; i < kDirections.size(); ++i) {
    auto* shortcut = new QShortcut(keys[static_cast<qsizetype>(i)], &window);
    shortcut->setObjectName(command);
    connect(shortcut, &QShortcut::activated, this, [this, share, direction = kDirections[i]] {
      const Point moved = surface_.Moved();
      const double twips = share * surface_.TwipsPerPixel();
      surface_.MoveTo({static_cast<float>(moved.x + direction.first * twips * surface_.width()),
                       static_cast<float>(moved.y + direction.second * twips * surface_.height())});
    });
  }
}

bool MapMover::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return Press(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
      return Drag(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
      return Release(*static_cast<QMouseEvent*>(event));
    case QEvent::Wheel:
      Turn(*static_cast<QWheelEvent*>(event));
      event->accept();
      return true;
    default:
      return IsGesture(*event);
  }
}

bool MapMover::Press(const QMouseEvent& event) {
  pressed_ = event.button() == Qt::LeftButton;
  pressedAt_ = event.position();
  movedBefore_ = surface_.Moved();
  return false;
}

bool MapMover::Drag(const QMouseEvent& event) {
  if (!pressed_ || !(event.buttons() & Qt::LeftButton)) return false;
  const QPointF way = event.position() - pressedAt_;
  if (!dragging_ && way.manhattanLength() < QApplication::styleHints()->startDragDistance()) return true;
  if (!dragging_) surface_.setCursor(Qt::ClosedHandCursor);
  dragging_ = true;
  const double twips = surface_.TwipsPerPixel();
  surface_.MoveTo({static_cast<float>(movedBefore_.x - way.x() * twips),
                   static_cast<float>(movedBefore_.y - way.y() * twips)});
  return true;
}

bool MapMover::Release(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return false;
  pressed_ = false;
  if (!std::exchange(dragging_, false)) return false;
  surface_.unsetCursor();
  return true;
}

void MapMover::Turn(const QWheelEvent& event) {
  wheelAngle_ += event.angleDelta().y();
  const int steps = wheelAngle_ / kAnglePerStep;
  wheelAngle_ -= steps * kAnglePerStep;
  if (steps != 0 && ZoomWanted) ZoomWanted(std::pow(ZoomStep, steps), surface_.ToSheet(event.position()));
}

void MapMover::Pinch(double factor, const QPointF& at) {
  if (!(factor > 0)) return;
  pinched_ *= factor;
  if (pinched_ < kLeastPinch && pinched_ > 1 / kLeastPinch) return;
  const double by = std::exchange(pinched_, 1);
  if (ZoomWanted) ZoomWanted(by, surface_.ToSheet(at));
}

bool MapMover::IsGesture(QEvent& event) {
  if (event.type() == QEvent::NativeGesture) {
    const auto& gesture = static_cast<QNativeGestureEvent&>(event);
    if (gesture.gestureType() != Qt::ZoomNativeGesture) return false;
    Pinch(1 + gesture.value(), gesture.position());
    return true;
  }
  if (event.type() != QEvent::Gesture) return false;
  auto& gestures = static_cast<QGestureEvent&>(event);
  const auto* pinch = static_cast<QPinchGesture*>(gestures.gesture(Qt::PinchGesture));
  if (!pinch) return false;
  gestures.accept();
  Pinch(pinch->scaleFactor(), surface_.mapFromGlobal(pinch->centerPoint()));
  return true;
}

}  // namespace kestrel
