#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "map/MapLook.h"
#include "map/Sheet.h"

namespace kestrel {

/// A label of a list, with what it is drawn in.
struct KeptLabel {
  Point At;                 ///< of the station
  std::uint32_t First = 0;  ///< of the list's bytes of text
  std::uint32_t Count = 0;
  ColorValue Color = 0;
  Font Face;
  bool Chosen = false;
  float Weight = 0;
  std::optional<std::uint32_t> Station;  ///< whose it is, of the list's stations
};

/// A box that a panel of a list fills.
struct PanelBox {
  Point Anchor;
  Font Smallest;
  Point Corner;
  Point Opposite;
  PanelPlace Place = PanelPlace::OnMap;
  std::optional<MapLayer> Layer;
};

/// Where labels are drawn: the upper left corner of each, nothing for those left out.
using LabelPlaces = std::vector<std::optional<Point>>;

/// A canvas that keeps what is drawn on it, whole and unthinned, and can repeat it on any other canvas:
/// a resized window, a sharper screen, a picture, paper. Drawing more adds to what is there.
class DisplayList final : public Canvas {
 public:
  /// The measure must outlive the list.
  explicit DisplayList(const TextMeasure& measure) : measure_(measure) {}

  void SetColor(ColorValue color) override;
  void SetLineWidth(float width) override;
  void SetFont(const Font& font) override;
  void SetDash(Dash dash) override;
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
  void Label(const StationLabel& label) override;
  float TextWidth(std::string_view text) const override { return measure_.TextWidth(font_, text); }
  float TextHeight() const override { return measure_.TextHeight(font_); }
  void BeginStation(const StationMark& mark) override;
  void EndStation() override;
  void BeginPanel(Point anchor, const Font& smallest, PanelPlace place = PanelPlace::OnMap) override;
  void EndPanel() override;
  void BeginLayer(MapLayer layer) override;
  void EndLayer() override;

  /// Discards what has been drawn.
  void Clear();

  /// Draws everything again, in the order it was drawn.
  void Play(Canvas& canvas) const { PlayFrom(0, canvas); }

  /// How much has been drawn: what PlayFrom takes to draw only what came later.
  std::size_t Length() const { return commands_.size(); }

  /// Draws what was drawn after the list was `length` long, in the colours and fonts set before.
  void PlayFrom(std::size_t length, Canvas& canvas) const {
    PlayFrom(length, canvas, SheetBox::Everything());
  }

  /// Likewise, but lines, open or closed, that do not touch `shown` are passed over, unless they belong to a
  /// panel. Lines have no width here: for wide ones `shown` is larger by their reach.
  /// The labels come where `places` says, those beyond its end where the canvas has them. Layers that the
  /// look does not show are left out.
  void PlayFrom(std::size_t length, Canvas& canvas, const SheetBox& shown, const LabelPlaces& places = {},
                const MapLook& look = MapLook::Everything()) const;

  /// The stations drawn, in drawing order.
  const std::vector<StationMark>& Stations() const { return stations_; }

  /// Those with a line of theirs within `reach` twips of the place, in drawing order.
  std::vector<std::uint32_t> StationsWithLineAt(Point place, float reach) const;

  /// The labels and the boxes of panels, in drawing order.
  const std::vector<KeptLabel>& Labels() const { return labels_; }
  const std::vector<PanelBox>& PanelBoxes() const { return panelBoxes_; }
  std::string_view LabelText(const KeptLabel& label) const {
    return std::string_view(text_).substr(label.First, label.Count);
  }

 private:
  enum class Verb : std::uint8_t {
    SetColor,
    SetLineWidth,
    SetFont,
    SetDash,
    Line,
    Polyline,
    Polygon,
    Circle,
    FilledCircle,
    Box,
    FilledBox,
    Area,
    Dot,
    Text,
    RimmedText,
    Label,
    BeginStation,
    EndStation,
    BeginPanel,
    EndPanel,
    BeginLayer,
    EndLayer,
  };

  /// One verb and where its arguments lie.
  struct Command {
    Verb verb;
    FontFace face = FontFace::Sans;
    float number = 0;         // width, radius or font size
    std::uint32_t first = 0;  // in points_, text_, areas_, stations_ or labels_; or the colour, dash or layer
    std::uint32_t count = 0;  // of points or bytes of text; or the panel's place
    Point at = {};            // the text's place
    SheetBox box = {};        // around lines
  };

  struct NamedArea {
    std::string Name;
    std::vector<Point> Outline;
  };

  static bool SetsState(Verb verb) {
    return verb == Verb::SetColor || verb == Verb::SetLineWidth || verb == Verb::SetFont ||
           verb == Verb::SetDash;
  }
  static bool IsLine(Verb verb) {
    return verb == Verb::Line || verb == Verb::Polyline || verb == Verb::Polygon;
  }
  void AddPoints(Verb verb, std::span<const Point> points, float number = 0);
  void PlayCommand(const Command& command, Canvas& canvas) const;
  void AddText(Verb verb, Point topLeft, std::string_view text);
  void PlayLabels(std::span<const std::uint32_t> labels, Canvas& canvas, const LabelPlaces& places) const;

  const TextMeasure& measure_;
  Font font_;
  ColorValue color_ = 0;
  std::optional<PanelBox> panel_;         // being drawn, its box not yet known
  std::optional<MapLayer> layer_;         // being drawn
  std::optional<std::uint32_t> station_;  // likewise
  std::vector<Command> commands_;
  std::vector<Point> points_;
  std::string text_;
  std::vector<NamedArea> areas_;
  std::vector<StationMark> stations_;
  std::vector<KeptLabel> labels_;
  std::vector<PanelBox> panelBoxes_;
};

}  // namespace kestrel
