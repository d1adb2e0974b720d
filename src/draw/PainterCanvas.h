#pragma once

#include <QPainter>
#include <optional>

#include "draw/Fonts.h"
#include "draw/SurfaceView.h"
#include "map/Greys.h"

namespace kestrel {

/// A canvas on whatever a QPainter paints on: a window, an image, a PDF page, a printer.
class PainterCanvas final : public Canvas {
 public:
  /// The painter must be active and outlive the canvas; it works in the surface's units. Colours come out as
  /// the recoloring has them; without one, as they are.
  PainterCanvas(QPainter& painter, const SurfaceRules& rules, Recoloring recoloring = {});

  void SetColor(ColorValue color) override;
  void SetLineWidth(float width) override;
  void SetFont(const Font& font) override;
  void SetDash(Dash dash) override { view_.SetDash(dash); }
  void Line(Point from, Point to) override;
  void Polyline(std::span<const Point> points) override;
  void Polygon(std::span<const Point> points) override;
  void Circle(Point center, float radius) override;
  void FilledCircle(Point center, float radius) override;
  void Box(Point corner, Point opposite) override;
  void FilledBox(Point corner, Point opposite) override;
  void Area(std::string_view name, std::span<const Point> outline) override;
  void Dot(Point at) override;
  void Text(Point topLeft, std::string_view text) override;
  void RimmedText(Point topLeft, std::string_view text) override;
  float TextWidth(std::string_view text) const override { return measure_.TextWidth(font_, text); }
  float TextHeight() const override { return measure_.TextHeight(font_); }
  void BeginStation(const StationMark&) override {}
  void EndStation() override {}
  void BeginPanel(Point anchor, const Font& smallest, PanelPlace place) override;
  void EndPanel() override;

 private:
  void DrawRun(std::span<const Point> run);
  void UsePen();
  void UseFont();
  /// Where the text's base line begins; nothing when it does not show.
  std::optional<QPointF> ShownBaseline(Point topLeft, std::string_view text);

  QPainter& painter_;
  SurfaceView view_;
  PlatformTextMeasure measure_;
  Font font_;
  bool fontStale_ = true;
  QColor color_;
  const Recoloring recoloring_;
  float lineWidth_ = 1;
  float widthFactor_ = 1;  // of the present ink
};

/// The platform's colour for one of ours.
QColor PlatformColor(ColorValue color);

}  // namespace kestrel
