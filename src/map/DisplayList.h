#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "map/Sheet.h"

namespace kestrel {

/// A canvas that keeps what is drawn on it, whole and unthinned, and can repeat it on any other canvas:
/// a resized window, a sharper screen, a picture, paper. Drawing more adds to what is there.
class DisplayList final : public Canvas {
 public:
  /// The measure must outlive the list.
  explicit DisplayList(const TextMeasure& measure) : measure_(measure) {}

  void SetColor(ColorValue color) override;
  void SetLineWidth(float width) override;
  void SetFont(const Font& font) override;
  void Line(Point from, Point to) override;
  void Polyline(std::span<const Point> points) override;
  void Polygon(std::span<const Point> points) override;
  void Circle(Point center, float radius) override;
  void FilledCircle(Point center, float radius) override;
  void Box(Point corner, Point opposite) override;
  void FilledBox(Point corner, Point opposite) override;
  void Dot(Point at) override;
  void Text(Point topLeft, std::string_view text) override;
  float TextWidth(std::string_view text) const override { return measure_.TextWidth(font_, text); }
  float TextHeight() const override { return measure_.TextHeight(font_); }
  void BeginStation(const StationMark& mark) override;
  void EndStation() override;
  void BeginPanel(Point anchor, const Font& smallest) override;
  void EndPanel() override;

  /// Discards what has been drawn.
  void Clear();

  bool IsEmpty() const { return commands_.empty(); }

  /// Draws everything again, in the order it was drawn.
  void Play(Canvas& canvas) const { PlayFrom(0, canvas); }

  /// How much has been drawn: what PlayFrom takes to draw only what came later.
  std::size_t Length() const { return commands_.size(); }

  /// Draws what was drawn after the list was `length` long, in the colours and fonts set before.
  void PlayFrom(std::size_t length, Canvas& canvas) const {
    PlayFrom(length, canvas, SheetBox::Everything());
  }

  /// Likewise, but lines, open or closed, that do not touch `shown` are passed over, unless they belong to a
  /// panel. Lines have no width here: who draws wide ones shows more by their reach.
  void PlayFrom(std::size_t length, Canvas& canvas, const SheetBox& shown) const;

  /// The stations drawn, in drawing order.
  const std::vector<StationMark>& Stations() const { return stations_; }

 private:
  enum class Verb : std::uint8_t {
    SetColor,
    SetLineWidth,
    SetFont,
    Line,
    Polyline,
    Polygon,
    Circle,
    FilledCircle,
    Box,
    FilledBox,
    Dot,
    Text,
    BeginStation,
    EndStation,
    BeginPanel,
    EndPanel,
  };

  /// One verb and where its arguments lie.
  struct Command {
    Verb verb;
    FontFace face = FontFace::Sans;
    float number = 0;         // width, radius or font size
    std::uint32_t first = 0;  // in points_, text_ or stations_; or the colour
    std::uint32_t count = 0;  // of points or bytes of text
    Point at = {};            // the text's place
    SheetBox box = {};        // around lines
  };

  static bool SetsState(Verb verb) {
    return verb == Verb::SetColor || verb == Verb::SetLineWidth || verb == Verb::SetFont;
  }
  static bool IsLine(Verb verb) {
    return verb == Verb::Line || verb == Verb::Polyline || verb == Verb::Polygon;
  }
  void AddPoints(Verb verb, std::span<const Point> points, float number = 0);
  void PlayCommand(const Command& command, Canvas& canvas) const;

  const TextMeasure& measure_;
  Font font_;
  std::vector<Command> commands_;
  std::vector<Point> points_;
  std::string text_;
  std::vector<StationMark> stations_;
};

}  // namespace kestrel
