#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "core/Palette.h"

namespace kestrel {

/// A place on the sheet, in twips (1440 to the inch), x to the right, y downwards.
struct Point {
  float x = 0;
  float y = 0;
  bool operator==(const Point&) const = default;
};

enum class FontFace { Sans, SansBold, Serif };

/// A face and its size in points of the sheet (20 twips to the point).
struct Font {
  FontFace Face = FontFace::Sans;
  float Points = 10;
  bool operator==(const Font&) const = default;
};

/// How wide and high text is on the sheet.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  virtual float TextWidth(const Font& font, std::string_view text) const = 0;  ///< twips
  virtual float TextHeight(const Font& font) const = 0;                        ///< twips, one line
};

/// A station's mark on the map: what a group of drawing belongs to, and what the mouse can point at.
struct StationMark {
  Point At;
  int Channel = 0;  ///< kHz
  std::string CallSign;
  std::string HoursCode;
  float PowerKW = 0;
};

/// A station's label, and how much it matters where there is no room for all.
struct StationLabel {
  Point At;  ///< of the station
  std::string_view Text;
  bool Chosen = false;  ///< of the channel that was chosen
  float Weight = 0;     ///< power over the square of the distance from home, in any unit
};

/// What a panel keeps to: its place on the map, or a corner of the surface, however the map is moved.
enum class PanelPlace : std::uint8_t { OnMap, UpperLeft, LowerLeft, LowerRight };

/// How a line is broken. Those of the hours are where the surface tells hours by their lines.
enum class Dash : std::uint8_t { None, Spoke, Night, Critical, Unlimited };

/// Parts of the map that a surface may leave out.
enum class MapLayer : std::uint8_t { Legend, Rings, ScaleBar };

/// Where a label's upper left corner is tried first: 60 twips left of the station, just above it.
inline Point FirstLabelPlace(Point station) {
  return {station.x - 60, station.y - 210};
}

/// What every figure is drawn on: the screen, a picture, paper, a file, a list. Coordinates are twips. The
/// colour, line width and font set last hold for what follows; a canvas begins with black, 1 and Sans 10.
class Canvas {
 public:
  virtual ~Canvas() = default;

  virtual void SetColor(ColorValue color) = 0;
  virtual void SetLineWidth(float width) = 0;  ///< in pixels of an ordinary screen, whatever the scale
  virtual void SetFont(const Font& font) = 0;
  /// Of lines, open or closed; a canvas begins with None, and a figure that breaks its lines sets it back.
  virtual void SetDash(Dash) {}

  virtual void Line(Point from, Point to) = 0;
  virtual void Polyline(std::span<const Point> points) = 0;
  virtual void Polygon(std::span<const Point> points) = 0;  ///< a closed outline, not filled
  virtual void Circle(Point center, float radius) = 0;
  virtual void FilledCircle(Point center, float radius) = 0;
  virtual void Box(Point corner, Point opposite) = 0;
  virtual void FilledBox(Point corner, Point opposite) = 0;
  /// The inside of a closed outline, filled by the even-odd rule. Files that name their parts keep the name.
  virtual void Area(std::string_view name, std::span<const Point> outline) = 0;
  virtual void Dot(Point at) = 0;                               ///< a single point, one pixel
  virtual void Text(Point topLeft, std::string_view text) = 0;  ///< one line, UTF-8
  /// The same with a white rim, so that lines below do not cut the letters.
  virtual void RimmedText(Point topLeft, std::string_view text) = 0;

  /// A label of a station, in the colour and font set last. A list keeps it for the surface to place, on top
  /// of what was drawn since the panel before it; other canvases draw it at its first place.
  virtual void Label(const StationLabel& label) { RimmedText(FirstLabelPlace(label.At), label.Text); }

  virtual float TextWidth(std::string_view text) const = 0;  ///< twips, in the font set last
  virtual float TextHeight() const = 0;                      ///< twips, in the font set last

  /// What is drawn up to EndStation belongs to the station. Stations do not nest.
  virtual void BeginStation(const StationMark& mark) = 0;
  virtual void EndStation() = 0;

  /// What is drawn up to EndPanel is one piece around `anchor`: where its text, of the font given, would come
  /// out too small to read, the whole piece grows away from the anchor. A font of 0 points lets nothing grow
  /// but text itself. Of a corner's panel the coordinates tell how far from the sheet's corner it stands.
  /// Panels do not nest.
  virtual void BeginPanel(Point anchor, const Font& smallest, PanelPlace place = PanelPlace::OnMap) = 0;
  virtual void EndPanel() = 0;

  /// What is drawn up to EndLayer is left out where the layer is not shown. Layers do not nest; panels and
  /// stations begin and end within one.
  virtual void BeginLayer(MapLayer) {}
  virtual void EndLayer() {}
};

}  // namespace kestrel
