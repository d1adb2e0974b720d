#include "map/DisplayList.h"

#include <array>

namespace kestrel {

void DisplayList::AddPoints(Verb verb, std::span<const Point> points, float number) {
  Command command{verb};
  command.number = number;
  command.first = static_cast<std::uint32_t>(points_.size());
  command.count = static_cast<std::uint32_t>(points.size());
  points_.insert(points_.end(), points.begin(), points.end());
  commands_.push_back(command);
}

void DisplayList::SetColor(ColorValue color) {
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
  AddPoints(Verb::FilledBox, std::array{corner, opposite});
}
void DisplayList::Dot(Point at) {
  AddPoints(Verb::Dot, std::array{at});
}

void DisplayList::Text(Point topLeft, std::string_view text) {
  Command command{Verb::Text};
  command.first = static_cast<std::uint32_t>(text_.size());
  command.count = static_cast<std::uint32_t>(text.size());
  command.at = topLeft;
  text_ += text;
  commands_.push_back(command);
}

void DisplayList::BeginStation(const StationMark& mark) {
  Command command{Verb::BeginStation};
  command.first = static_cast<std::uint32_t>(stations_.size());
  stations_.push_back(mark);
  commands_.push_back(command);
}

void DisplayList::EndStation() {
  AddPoints(Verb::EndStation, {});
}

void DisplayList::BeginPanel(Point anchor, const Font& smallest) {
  AddPoints(Verb::BeginPanel, std::array{anchor}, smallest.Points);
  commands_.back().face = smallest.Face;
}

void DisplayList::EndPanel() {
  AddPoints(Verb::EndPanel, {});
}

void DisplayList::Clear() {
  font_ = {};
  commands_.clear();
  points_.clear();
  text_.clear();
  stations_.clear();
}

void DisplayList::PlayFrom(std::size_t length, Canvas& canvas, const SheetBox& shown) const {
  bool inPanel = false;  // whose figures may grow out of their boxes
  for (std::size_t i = 0; i < commands_.size(); ++i) {
    const Command& command = commands_[i];
    if (i < length && !SetsState(command.verb)) continue;
    inPanel = command.verb == Verb::BeginPanel || (inPanel && command.verb != Verb::EndPanel);
    if (!IsLine(command.verb) || inPanel || command.box.Touches(shown)) PlayCommand(command, canvas);
  }
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
    case Verb::Dot:
      return canvas.Dot(points()[0]);
    case Verb::Text:
      return canvas.Text(command.at, std::string_view(text_).substr(command.first, command.count));
    case Verb::BeginStation:
      return canvas.BeginStation(stations_[command.first]);
    case Verb::EndStation:
      return canvas.EndStation();
    case Verb::BeginPanel:
      return canvas.BeginPanel(points()[0], {command.face, command.number});
    case Verb::EndPanel:
      return canvas.EndPanel();
  }
}

}  // namespace kestrel
