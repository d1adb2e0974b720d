#pragma once

#include <QImage>
#include <QWidget>
#include <functional>

#include "draw/Fonts.h"
#include "draw/Renderer.h"
#include "map/DisplayList.h"
#include "map/Sheet.h"

class QPainter;

namespace kestrel {

/// The widget that shows a sheet. It keeps what is drawn on its `Drawing()` and repeats it at every size and
/// on every screen; the sheet is fitted to the widget, and what the widget shows beyond it shows more of the
/// map. It is white in every theme, like paper.
class MapSurface : public QWidget {
 public:
  /// Fits `area` of the sheet to the widget; `smallestXHeight` in pixels is how small text may get.
  explicit MapSurface(QWidget* parent = nullptr, const SheetArea& area = {}, double smallestXHeight = 7);

  /// Draw here, then call ShowDrawing.
  DisplayList& Drawing() { return drawing_; }
  const DisplayList& Drawing() const { return drawing_; }
  void ShowDrawing();

  /// The same when something was only added: the picture is drawn on, not anew.
  void ShowAdditions();

  /// What of the map is shown.
  void SetLook(const MapLook& look);
  const MapLook& Look() const { return look_; }

  /// Shows another part of the map, `by` twips farther right and down than at first, as far as there is any.
  /// What keeps to the corners stays. Nothing is drawn anew, only repeated.
  void MoveTo(Point by);
  Point Moved() const;

  /// Where a position of the mouse lies on the sheet, in twips, and back.
  Point ToSheet(const QPointF& position) const;
  QPointF FromSheet(Point sheet) const;

  /// Twips that a pixel of an ordinary screen covers.
  float TwipsPerPixel() const { return 1 / Fit().Scale; }

  /// Paints what the drawing stands on over an image of the widget's pixels; white paper without it.
  std::function<void(QImage&)> Backdrop;

  /// Paints over the picture, in pixels of the widget.
  std::function<void(QPainter&)> Overlay;

  /// Called with the position in twips. Mouse tracking is on when MouseMoved is set.
  std::function<void(Point)> MouseMoved;
  std::function<void(Point, Qt::MouseButton)> MousePressed;
  /// Called when the left button has been pressed and released on the surface.
  std::function<void(Point)> Clicked;
  /// Called when the mouse has left the surface.
  std::function<void()> MouseLeft;
  std::function<void()> Resized;
  /// Called when the mouse rests at a position; what it returns is shown there, unless it is empty.
  std::function<QString(Point)> TipWanted;
  /// The labels shown at a place of the sheet.
  std::vector<std::uint32_t> LabelsAt(Point place) const;
  /// Shows a plain text at a place of the screen, as long as the mouse stays there.
  void ShowTip(QPoint place, const QString& text);

  void HideTip();

  /// What the surface shows in words, for screen readers, which ask when they need it; without it its
  /// accessible description.
  std::function<QString()> Words;

  /// Called with the wheel's whole steps, away from the user positive.
  std::function<void(int)> WheelTurned;

  QSize sizeHint() const override { return {1000, 792}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void Render();
  void RenderAnew(const SurfaceRules& rules);
  SurfaceRules RulesNow() const;
  /// The rules for a surface of this many pixels, not moved.
  SurfaceRules RulesAtRest(QSize pixels, double pixelSize) const;
  SheetFit Fit() const;

  PlatformTextMeasure measure_;
  DisplayList drawing_{measure_};
  SheetArea area_;
  double smallestXHeight_;
  MapLook look_;
  Point moved_;  // as asked for
  Renderer renderer_;
  QImage image_;           // the drawing at the widget's size
  bool stale_ = true;      // the drawing has changed since
  std::size_t shown_ = 0;  // how much of it the image holds
  bool tipShown_ = false;
  int wheelAngle_ = 0;  // eighths of a degree not yet reported
};

}  // namespace kestrel
