#pragma once

#include <QImage>
#include <vector>

#include "draw/DrawingTools.h"
#include "draw/Fonts.h"
#include "draw/SurfaceView.h"

namespace kestrel {

/// A canvas on an image in memory, for pictures of a hundred thousand short lines: lines are gathered in an
/// ink mask and laid on the image when the colour changes, letters come from a cache.
class RasterCanvas final : public Canvas {
 public:
  /// Draws the rows from `top` on that the image holds of a picture whose rules are given in pixels. The
  /// image must be RGB32; it and the tools must outlive the canvas.
  RasterCanvas(QImage& image, const SurfaceRules& rules, DrawingTools& tools, int top = 0);

  /// Completes the image. Call at the end of the drawing.
  void Finish() { LayInk(); }

  void SetColor(ColorValue color) override;
  void SetLineWidth(float width) override;
  void SetFont(const Font& font) override { font_ = font; }
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
  void Text(Point topLeft, std::string_view text) override { DrawText(topLeft, text, false); }
  void RimmedText(Point topLeft, std::string_view text) override { DrawText(topLeft, text, true); }
  float TextWidth(std::string_view text) const override { return measure_.TextWidth(font_, text); }
  float TextHeight() const override { return measure_.TextHeight(font_); }
  void BeginStation(const StationMark&) override {}
  void EndStation() override {}
  void BeginPanel(Point anchor, const Font& smallest, PanelPlace place) override;
  void EndPanel() override;

 private:
  /// A font as it comes out on this surface, inside or outside the present panel.
  struct Style {
    Font font;
    bool inPanel;
    double size;
    float ascent;
    GlyphCache* glyphs;
  };

  const Style& PresentStyle();
  void LayInk();
  void DrawText(Point topLeft, std::string_view text, bool rimmed);

  QImage& image_;
  const int top_;
  SurfaceView view_;
  PlatformTextMeasure measure_;
  DrawingTools& tools_;
  InkMask& mask_;
  bool inked_ = false;
  QRgb color_ = 0xFF000000;
  float lineWidth_ = 1;
  Font font_;
  bool inPanel_ = false;
  std::vector<Style> styles_;
  std::vector<Point> closed_;
};

}  // namespace kestrel
