#include "map/StatesMap.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/Numbers.h"
#include "map/Outlines.h"

namespace kestrel {
namespace {

constexpr int kGridStep = 10;   // degrees
constexpr int kWestEdge = 220;  // degrees east
constexpr int kEastEdge = 310;
constexpr int kSouthEdge = 10;
constexpr int kNorthEdge = 80;
constexpr Font kGridFont = {FontFace::Sans, 8};

constexpr Font kStripFont = {FontFace::Sans, 7.5F};
constexpr float kStripTextTop = 7700;

void DrawGrid(Canvas& canvas) {
  canvas.SetLineWidth(1);
  canvas.SetFont(kGridFont);
  constexpr float kGap = 40;  // between a label and its line
  // The label stands so many lines above the point it belongs to, also when it has grown.
  const auto line = [&](Point from, Point to, Point named, float lines, const std::string& text) {
    canvas.SetColor(Palette::Grid);
    canvas.Line(from, to);
    canvas.SetColor(Palette::GridText);
    canvas.BeginPanel(named, kGridFont);
    canvas.Text({named.x + kGap, named.y - lines * canvas.TextHeight()}, text);
    canvas.EndPanel();
  };
  for (int east = kWestEdge; east <= kEastEdge; east += kGridStep) {
    const auto longitude = static_cast<float>(east);
    const Point south = PlaceOnStatesMap(kSouthEdge, longitude);
    line(PlaceOnStatesMap(kNorthEdge, longitude), south, south, 1, std::to_string(360 - east) + " W");
  }
  for (int latitude = kSouthEdge; latitude <= kNorthEdge; latitude += kGridStep) {
    const Point west = PlaceOnStatesMap(static_cast<float>(latitude), kWestEdge);
    // The lowest one stands above the names of the longitudes.
    const float lines = latitude == kSouthEdge ? 2 : 1;
    line(west, PlaceOnStatesMap(static_cast<float>(latitude), kEastEdge), west, lines,
         std::to_string(latitude) + " N");
  }
}

OutlinePen PenOnStatesMap() {
  OutlinePen pen;
  pen.Comments = CommentLines::Skip;
  pen.Place = [](const Outline& piece, std::span<Point> points) {
    for (std::size_t i = 0; i < points.size(); ++i)
      points[i] = PlaceOnStatesMap(piece.Latitude[i], piece.Longitude[i]);
  };
  return pen;
}

void DrawFile(Canvas& canvas, const DataFolder& folder, const QString& name, ColorValue color) {
  const Result<QByteArray> bytes = folder.Read(name);
  if (!bytes) return;
  canvas.SetColor(color);
  DrawOutline(canvas, {bytes->constData(), static_cast<std::size_t>(bytes->size())}, PenOnStatesMap());
}

Position PositionAt(Point at, double southLimit, double northLimit) {
  return {static_cast<float>(std::clamp(57.5 - 0.005 * at.y, southLimit, northLimit)),
          static_cast<float>(std::clamp(133 - 0.00625 * at.x, 30.0, 170.0))};
}

/// The product is a single, so that a value which is one of thousandths already stays what it is.
float CutToThousandth(float value) {
  return static_cast<float>(std::trunc(value * 1000.0F) * 0.001);
}

}  // namespace

Point PlaceOnStatesMap(float latitude, float longitudeEast) {
  return {160 * longitudeEast - 36300, 11500 - 200 * latitude};
}

Position PointedPosition(Point at) {
  return PositionAt(at, 10, 70);
}

Position ClickedPosition(Point at) {
  const Position position = PositionAt(at, 0, 80);
  return {CutToThousandth(position.Latitude), CutToThousandth(position.Longitude)};
}

void DrawStatesMap(Canvas& canvas, const DataFolder& folder, const Position& home) {
  DrawGrid(canvas);
  DrawFile(canvas, folder, "REGION2.dat", Palette::RegionOutline);
  DrawFile(canvas, folder, "STATES.dat", Palette::StatesOutline);
  DrawHomeMark(canvas, PlaceOnStatesMap(home.Latitude, 360 - home.Longitude));
}

void DrawStatesReadout(Canvas& canvas, std::optional<Point> mouse, const SessionState& state) {
  canvas.SetFont(kStripFont);
  const auto print = [&](float x, const char* caption, float value) {
    canvas.Text({x, kStripTextTop}, caption + NumberText(CutToThousandth(value)));
  };
  // Two texts keep apart when they have grown.
  const auto beginPair = [&](float x) {
    canvas.BeginPanel({x, kStripTextTop + canvas.TextHeight() / 2}, kStripFont);
  };
  canvas.SetColor(Palette::Strip);
  canvas.FilledBox({1, 7600}, {11999, 7999});
  canvas.SetColor(Palette::HomeStrip);
  canvas.FilledBox({4600, 7600}, {11999, 7999});
  if (mouse) {
    const Position pointed = PointedPosition(*mouse);
    canvas.SetColor(0);
    beginPair(300);
    print(300, "Mouse latitude: ", pointed.Latitude);
    print(2310, "Longitude: ", pointed.Longitude);
    canvas.EndPanel();
  }
  canvas.SetColor(Palette::White);
  beginPair(4700);
  print(4700, "Current home latitude: ", state.HomeLatitude);
  print(7400, "Longitude: ", state.HomeLongitude);
  canvas.EndPanel();
}

}  // namespace kestrel
