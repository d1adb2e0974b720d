#include "map/DisplayList.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kestrel {
namespace {

float DistanceToSegment(Point point, Point from, Point to) {
  const float x = to.x - from.x, y = to.y - from.y;
  const float squared = x * x + y * y;
  const float way = (point.x - from.x) * x + (point.y - from.y) * y;
  const float share = squared > 0 ? std::clamp(way / squared, 0.0F, 1.0F) : 0;
  return std::hypot(point.x - from.x - share * x, point.y - from.y - share * y);
}

}  // namespace

void DisplayList::AddPoints(Verb verb, std::span<const Point> points, float number) {
  Command command{verb};
  command.number = number;
  command.first = static_cast<std::uint32_t>(points_.size());
  command.count = static_cast<std::uint32_t>(points.size());
  points_.insert(points_.end(), points.begin(), points.end());
  commands_.push_back(command);
}

void DisplayList::SetColor(ColorValue color) {
  color_ = color;
  Command command{Verb::SetColor};
  command.first = static_cast<std::uint32_t>(color);
  commands_.push_back(command);
}

void DisplayList::SetLineWidth(float width) {
  AddPoints(Verb::SetLineWidth, {}, width);
}

void DisplayList::SetFont(const Font& font) {
  font_ = font;
  AddPoints(Verb::SetFont, {}, font.Points);
  commands_.back().face = font.Face;
}

void DisplayList::SetDash(Dash dash) {
  Command command{Verb::SetDash};
  command.first = static_cast<std::uint32_t>(dash);
  commands_.push_back(command);
}

void DisplayList::Line(Point from, Point to) {
  AddPoints(Verb::Line, std::array{from, to});
  commands_.back().box = BoxAround(std::array{from, to});
}
void DisplayList::Polyline(std::span<const Point> points) {
  AddPoints(Verb::Polyline, points);
  commands_.back().box = BoxAround(points);
}
void DisplayList::Polygon(std::span<const Point> points) {
  AddPoints(Verb::Polygon, points);
  commands_.back().box = BoxAround(points);
}
void DisplayList::Circle(Point center, float radius) {
  AddPoints(Verb::Circle, std::array{center}, radius);
}
void DisplayList::FilledCircle(Point center, float radius) {
  AddPoints(Verb::FilledCircle, std::array{center}, radius);
}
void DisplayList::Box(Point corner, Point opposite) {
  AddPoints(Verb::Box, std::array{corner, opposite});
}
void DisplayList::FilledBox(Point corner, Point opposite) {
  if (panel_)
    panelBoxes_.push_back({panel_->Anchor, panel_->Smallest, corner, opposite, panel_->Place, layer_});
  AddPoints(Verb::FilledBox, std::array{corner, opposite});
}
void DisplayList::Area(std::string_view name, std::span<const Point> outline) {
  Command command{Verb::Area};
  command.first = static_cast<std::uint32_t>(areas_.size());
  areas_.push_back({std::string(name), {outline.begin(), outline.end()}});
  commands_.push_back(command);
}
void DisplayList::Dot(Point at) {
  AddPoints(Verb::Dot, std::array{at});
}

void DisplayList::AddText(Verb verb, Point topLeft, std::string_view text) {
  Command command{verb};
  command.first = static_cast<std::uint32_t>(text_.size());
  command.count = static_cast<std::uint32_t>(text.size());
  command.at = topLeft;
  text_ += text;
  commands_.push_back(command);
}

void DisplayList::Text(Point topLeft, std::string_view text) {
  AddText(Verb::Text, topLeft, text);
}

void DisplayList::RimmedText(Point topLeft, std::string_view text) {
  AddText(Verb::RimmedText, topLeft, text);
}

void DisplayList::Label(const StationLabel& label) {
  AddText(Verb::Label, label.At, label.Text);
  Command& command = commands_.back();
  labels_.push_back(
      {label.At, command.first, command.count, color_, font_, label.Chosen, label.Weight, station_});
  command.first = static_cast<std::uint32_t>(labels_.size()) - 1;
}

void DisplayList::BeginStation(const StationMark& mark) {
  Command command{Verb::BeginStation};
  command.first = static_cast<std::uint32_t>(stations_.size());
  station_ = command.first;
  stations_.push_back(mark);
  commands_.push_back(command);
}

void DisplayList::EndStation() {
  station_.reset();
  AddPoints(Verb::EndStation, {});
}

void DisplayList::BeginPanel(Point anchor, const Font& smallest, PanelPlace place) {
  panel_ = PanelBox{anchor, smallest, {}, {}, place, {}};
  AddPoints(Verb::BeginPanel, std::array{anchor}, smallest.Points);
  commands_.back().face = smallest.Face;
  commands_.back().count = static_cast<std::uint32_t>(place);
}

void DisplayList::EndPanel() {
  panel_.reset();
  AddPoints(Verb::EndPanel, {});
}

void DisplayList::BeginLayer(MapLayer layer) {
  layer_ = layer;
  Command command{Verb::BeginLayer};
  command.first = static_cast<std::uint32_t>(layer);
  commands_.push_back(command);
}

void DisplayList::EndLayer() {
  layer_.reset();
  commands_.push_back(Command{Verb::EndLayer});
}

void DisplayList::Clear() {
  font_ = {};
  color_ = 0;
  panel_.reset();
  layer_.reset();
  station_.reset();
  labels_.clear();
  panelBoxes_.clear();
  commands_.clear();
  points_.clear();
  text_.clear();
  areas_.clear();
  stations_.clear();
}

std::vector<std::uint32_t> DisplayList::StationsWithLineAt(Point place, float reach) const {
  std::vector<std::uint32_t> found;
  std::optional<std::uint32_t> station;
  const SheetBox around = {{place.x - reach, place.y - reach}, {place.x + reach, place.y + reach}};
  for (const Command& command : commands_) {
    if (command.verb == Verb::BeginStation) station = command.first;
    if (command.verb == Verb::EndStation) station.reset();
    if (!station || !IsLine(command.verb) || !command.box.Touches(around)) continue;
    if (!found.empty() && found.back() == *station) continue;
    const std::span points(points_.data() + command.first, command.count);
    bool near = false;
    const std::size_t first = command.verb == Verb::Polygon ? 0 : 1;  // a closed one goes back to its begin
    for (std::size_t i = first; i < points.size() && !near; ++i)
      near = DistanceToSegment(place, points[i > 0 ? i - 1 : points.size() - 1], points[i]) <= reach;
    if (near) found.push_back(*station);
  }
  return found;
}

void DisplayList::PlayLabels(std::span<const std::uint32_t> labels, Canvas& canvas,
                             const LabelPlaces& places) const {
  for (const std::uint32_t i : labels) {
    const KeptLabel& label = labels_[i];
    const bool placed = i < places.size();
    if (placed && !places[i]) continue;
    canvas.SetColor(label.Color);
    canvas.SetFont(label.Face);
    if (placed)
      canvas.RimmedText(*places[i], LabelText(label));
    else
      canvas.Label({label.At, LabelText(label), label.Chosen, label.Weight});
  }
}

void DisplayList::PlayFrom(std::size_t length, Canvas& canvas, const SheetBox& shown,
                           const LabelPlaces& places, const MapLook& look) const {
  bool inPanel = false;               // whose figures may grow out of their boxes
  bool hidden = false;                // the present layer is
  std::vector<std::uint32_t> labels;  // not yet drawn: they lie over the lines of all stations
  Command color{Verb::SetColor}, font{Verb::SetFont};
  font.number = Font().Points;
  const auto playLabels = [&] {
    if (labels.empty()) return;
    PlayLabels(labels, canvas, places);
    labels.clear();
    PlayCommand(color, canvas);
    PlayCommand(font, canvas);
  };
  for (std::size_t i = 0; i < commands_.size(); ++i) {
    const Command& command = commands_[i];
    if (command.verb == Verb::SetColor) color = command;
    if (command.verb == Verb::SetFont) font = command;
    if (command.verb == Verb::BeginLayer) hidden = !look.Shows(static_cast<MapLayer>(command.first));
    const bool passed = i < length || hidden;
    if (command.verb == Verb::EndLayer) hidden = false;
    if (passed && !SetsState(command.verb)) continue;
    if (command.verb == Verb::Label) {
      labels.push_back(command.first);
      continue;
    }
    if (command.verb == Verb::BeginPanel) playLabels();
    inPanel = command.verb == Verb::BeginPanel || (inPanel && command.verb != Verb::EndPanel);
    if (!IsLine(command.verb) || inPanel || command.box.Touches(shown)) PlayCommand(command, canvas);
  }
  playLabels();
}

void DisplayList::PlayCommand(const Command& command, Canvas& canvas) const {
  const auto points = [&] { return points_.data() + command.first; };
  switch (command.verb) {
    case Verb::SetColor:
      return canvas.SetColor(static_cast<ColorValue>(command.first));
    case Verb::SetLineWidth:
      return canvas.SetLineWidth(command.number);
    case Verb::SetFont:
      return canvas.SetFont({command.face, command.number});
    case Verb::SetDash:
      return canvas.SetDash(static_cast<Dash>(command.first));
    case Verb::Line:
      return canvas.Line(points()[0], points()[1]);
    case Verb::Polyline:
      return canvas.Polyline({points(), command.count});
    case Verb::Polygon:
      return canvas.Polygon({points(), command.count});
    case Verb::Circle:
      return canvas.Circle(points()[0], command.number);
    case Verb::FilledCircle:
      return canvas.FilledCircle(points()[0], command.number);
    case Verb::Box:
      return canvas.Box(points()[0], points()[1]);
    case Verb::FilledBox:
      return canvas.FilledBox(points()[0], points()[1]);
    case Verb::Area:
      return canvas.Area(areas_[command.first].Name, areas_[command.first].Outline);
    case Verb::Dot:
      return canvas.Dot(points()[0]);
    case Verb::Text:
      return canvas.Text(command.at, std::string_view(text_).substr(command.first, command.count));
    case Verb::RimmedText:
      return canvas.RimmedText(command.at, std::string_view(text_).substr(command.first, command.count));
    case Verb::Label:
      return;  // PlayLabels draws them
    case Verb::BeginStation:
      return canvas.BeginStation(stations_[command.first]);
    case Verb::EndStation:
      return canvas.EndStation();
    case Verb::BeginPanel:
      return canvas.BeginPanel(points()[0], {command.face, command.number},
                               static_cast<PanelPlace>(command.count));
    case Verb::EndPanel:
      return canvas.EndPanel();
    case Verb::BeginLayer:
      return canvas.BeginLayer(static_cast<MapLayer>(command.first));
    case Verb::EndLayer:
      return canvas.EndLayer();
  }
}

}  // namespace kestrel
