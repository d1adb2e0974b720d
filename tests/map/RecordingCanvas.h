#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "map/Canvas.h"

namespace kestrel {

/// At 10 points every character is 100 twips wide and 240 high, in other sizes in proportion.
class FixedMeasure final : public TextMeasure {
 public:
  float TextWidth(const Font& font, std::string_view text) const override {
    return 10 * font.Points * static_cast<float>(text.size());
  }
  float TextHeight(const Font& font) const override { return 24 * font.Points; }
};

/// One figure on the canvas, with the colour and font it was drawn in.
struct Drawn {
  std::string
      Verb;  ///< "Line", "Polyline", "Text", ...; "Station" and "Panel" for what follows up to their ends
  std::vector<Point> Points;
  float Radius = 0;
  std::string Text;  ///< of a text; call sign and hours code of a station
  ColorValue Color = 0;
  float LineWidth = 1;
  Font Face;
  bool operator==(const Drawn&) const = default;
};

/// A canvas that lists what is drawn on it.
class RecordingCanvas final : public Canvas {
 public:
  std::vector<Drawn> List;

  /// The figures of one verb.
  std::vector<Drawn> All(std::string_view verb) const {
    std::vector<Drawn> found;
    for (const Drawn& drawn : List)
      if (drawn.Verb == verb) found.push_back(drawn);
    return found;
  }

  /// The texts in drawing order.
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const Drawn& drawn : All("Text")) texts.push_back(drawn.Text);
    return texts;
  }

  /// The list as lines such as "Line 0000FF (5950,4500) (6050,4500)", coordinates rounded to whole twips.
  std::string Readable() const {
    std::string lines;
    char buffer[80];
    for (const Drawn& drawn : List) {
      std::snprintf(buffer, sizeof buffer, "%s %06X", drawn.Verb.c_str(), static_cast<unsigned>(drawn.Color));
      lines += buffer;
      for (const Point point : drawn.Points) {
        std::snprintf(buffer, sizeof buffer, " (%.0f,%.0f)", static_cast<double>(point.x),
                      static_cast<double>(point.y));
        lines += buffer;
      }
      if (drawn.Radius > 0) lines += " r" + std::to_string(static_cast<int>(drawn.Radius));
      if (!drawn.Text.empty()) lines += " \"" + drawn.Text + '"';
      lines += '\n';
    }
    return lines;
  }

  void SetColor(ColorValue color) override { color_ = color; }
  void SetLineWidth(float width) override { lineWidth_ = width; }
  void SetFont(const Font& font) override { font_ = font; }
  void Line(Point from, Point to) override { Add("Line", {from, to}); }
  void Polyline(std::span<const Point> points) override { Add("Polyline", {points.begin(), points.end()}); }
  void Polygon(std::span<const Point> points) override { Add("Polygon", {points.begin(), points.end()}); }
  void Circle(Point center, float radius) override { Add("Circle", {center}, radius); }
  void FilledCircle(Point center, float radius) override { Add("FilledCircle", {center}, radius); }
  void Box(Point corner, Point opposite) override { Add("Box", {corner, opposite}); }
  void FilledBox(Point corner, Point opposite) override { Add("FilledBox", {corner, opposite}); }
  void Area(std::string_view name, std::span<const Point> outline) override {
    Add("Area", {outline.begin(), outline.end()}, 0, std::string(name));
  }
  void Dot(Point at) override { Add("Dot", {at}); }
  void RimmedText(Point topLeft, std::string_view text) override { Text(topLeft, text); }
  void Text(Point topLeft, std::string_view text) override { Add("Text", {topLeft}, 0, std::string(text)); }
  float TextWidth(std::string_view text) const override { return measure_.TextWidth(font_, text); }
  float TextHeight() const override { return measure_.TextHeight(font_); }
  void BeginStation(const StationMark& mark) override {
    Add("Station", {mark.At}, 0, std::to_string(mark.Channel) + ' ' + mark.CallSign + ' ' + mark.HoursCode);
  }
  void EndStation() override { Add("EndStation", {}); }
  void BeginPanel(Point anchor, const Font& smallest, PanelPlace) override {
    Add("Panel", {anchor}, 0, std::to_string(static_cast<int>(smallest.Points)));
  }
  void EndPanel() override { Add("EndPanel", {}); }
  // Rings and scale bar stand on every map; they are listed where they are asked for.
  void BeginLayer(MapLayer layer) override { skipping_ = layer != MapLayer::Legend && !WithLayers; }
  void EndLayer() override { skipping_ = false; }
  bool WithLayers = false;
  void Clear() { List.clear(); }

 private:
  void Add(std::string verb, std::vector<Point> points, float radius = 0, std::string text = {}) {
    if (skipping_) return;
    List.push_back({std::move(verb), std::move(points), radius, std::move(text), color_, lineWidth_, font_});
  }

  FixedMeasure measure_;
  ColorValue color_ = 0;
  float lineWidth_ = 1;
  Font font_;
  bool skipping_ = false;
};

}  // namespace kestrel
