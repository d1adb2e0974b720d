#pragma once

#include <QEvent>
#include <QObject>
#include <QPointF>
#include <functional>

#include "map/Canvas.h"

class QMouseEvent;
class QWheelEvent;

namespace kestrel {

class MapSurface;

/// Lets a map be moved: dragged with the left button, by the arrow keys of its window, and zoomed at the
/// mouse by wheel and pinch. A press that does not move is still a click.
class MapMover final : public QObject {
 public:
  /// Belongs to the surface. The keys are those of the window's commands "move" and "moveFar".
  explicit MapMover(MapSurface& surface);

  /// Called to make the map so many times as large around a place of the sheet.
  std::function<void(double factor, Point place)> ZoomWanted;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void AddKeys(const char* command, double share);
  bool Press(const QMouseEvent& event);
  bool Drag(const QMouseEvent& event);
  bool Release(const QMouseEvent& event);
  void Turn(const QWheelEvent& event);
  void Pinch(double factor, const QPointF& at);
  bool IsGesture(QEvent& event);

  MapSurface& surface_;
  bool pressed_ = false;
  bool dragging_ = false;
  QPointF pressedAt_;
  Point movedBefore_;
  int wheelAngle_ = 0;  // eighths of a degree not yet reported
  double pinched_ = 1;  // likewise a factor
};

}  // namespace kestrel
