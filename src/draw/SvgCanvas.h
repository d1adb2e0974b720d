#pragma once

#include <QByteArray>
#include <QXmlStreamWriter>
#include <map>
#include <optional>
#include <set>

#include "draw/Fonts.h"
#include "draw/SurfaceView.h"

namespace kestrel {

/// A canvas that writes SVG 1.1: text stays text, lines stay lines, and each station that the picture shows
/// is a group with an id of its own ("QABC-1230-D", a second one "QABC-1230-D-2").
class SvgCanvas final : public Canvas {
 public:
  /// `size` in pixels is the picture's.
  SvgCanvas(QSizeF size, const SurfaceRules& rules);

  /// The whole document. Call once, at the end.
  QByteArray Finish();

  void SetColor(ColorValue color) override;
  void SetLineWidth(float width) override { lineWidth_ = width; }
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
  void Text(Point topLeft, std::string_view text) override { WriteText(topLeft, text, false); }
  void RimmedText(Point topLeft, std::string_view text) override { WriteText(topLeft, text, true); }
  float TextWidth(std::string_view text) const override { return measure_.TextWidth(font_, text); }
  float TextHeight() const override { return measure_.TextHeight(font_); }
  void BeginStation(const StationMark& mark) override;
  void EndStation() override;
  void BeginPanel(Point anchor, const Font& smallest, PanelPlace place) override {
    view_.BeginPanel(anchor, smallest, place);
  }
  void EndPanel() override { view_.EndPanel(); }

 private:
  void Begin(const QString& element);
  void WriteStroke();
  void WriteCircle(Point center, float radius, bool filled);
  void WriteText(Point topLeft, std::string_view text, bool rimmed);
  void WriteBox(Point corner, Point opposite, bool filled);
  QString UniqueId(const StationMark& mark);

  SurfaceView view_;
  PlatformTextMeasure measure_;
  Font font_;
  QString color_ = "#000000";
  double lineWidth_ = 1;
  QByteArray document_;
  QXmlStreamWriter xml_;
  std::optional<StationMark> pending_;  // a station whose group is opened with its first visible element
  bool groupOpen_ = false;
  std::set<QString> ids_;
  std::map<QString, int> numbers_;  // the last one added to an id
};

}  // namespace kestrel
