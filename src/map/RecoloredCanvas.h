#pragma once

#include <functional>

#include "map/Canvas.h"

namespace kestrel {

/// How a line of some colour is drawn instead.
struct Ink {
  ColorValue Color = 0;
  float WidthFactor = 1;
};

/// A canvas that passes everything on to another one in other colours, for paper without colour.
class RecoloredCanvas final : public Canvas {
 public:
  using Mapping = std::function<Ink(ColorValue)>;

  /// The canvas must outlive this one.
  RecoloredCanvas(Canvas& canvas, Mapping mapping) : canvas_(canvas), mapping_(std::move(mapping)) {}

  void SetColor(ColorValue color) override;
  void SetLineWidth(float width) override;
  void SetFont(const Font& font) override { canvas_.SetFont(font); }
  void Line(Point from, Point to) override { canvas_.Line(from, to); }
  void Polyline(std::span<const Point> points) override { canvas_.Polyline(points); }
  void Polygon(std::span<const Point> points) override { canvas_.Polygon(points); }
  void Circle(Point center, float radius) override { canvas_.Circle(center, radius); }
  void FilledCircle(Point center, float radius) override { canvas_.FilledCircle(center, radius); }
  void Box(Point corner, Point opposite) override { canvas_.Box(corner, opposite); }
  void FilledBox(Point corner, Point opposite) override { canvas_.FilledBox(corner, opposite); }
  void Dot(Point at) override { canvas_.Dot(at); }
  void Text(Point topLeft, std::string_view text) override { canvas_.Text(topLeft, text); }
  float TextWidth(std::string_view text) const override { return canvas_.TextWidth(text); }
  float TextHeight() const override { return canvas_.TextHeight(); }
  void BeginStation(const StationMark& mark) override { canvas_.BeginStation(mark); }
  void EndStation() override { canvas_.EndStation(); }
  void BeginPanel(Point anchor, const Font& smallest) override { canvas_.BeginPanel(anchor, smallest); }
  void EndPanel() override { canvas_.EndPanel(); }

 private:
  Canvas& canvas_;
  Mapping mapping_;
  float width_ = 1;
  float widthFactor_ = 1;
};

/// Greys for a black-and-white printer. The session's pattern colours become greys of their own, the hours
/// told apart by width too: night thin and black, unlimited thick and dark, day thin and grey, critical thick
/// and grey, adjacent thick and light. White stays white; any other colour becomes a grey of its brightness,
/// dark enough to be seen.
RecoloredCanvas::Mapping GreysOf(const SessionState& state);

/// The same for the station page, whose traces have colours of their own.
RecoloredCanvas::Mapping StationPlotGreys();

}  // namespace kestrel
