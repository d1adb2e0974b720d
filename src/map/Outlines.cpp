#include "map/Outlines.h"

#include <array>
#include <cmath>
#include <vector>

namespace kestrel {
namespace {

constexpr ColorValue kHomeColor = 255;
constexpr float kLongestStep = 2000;  // twips, in x or in y
constexpr float kHomeRadius = 50;

bool IsLongStep(Point from, Point to) {
  // Written so that a step to nowhere (NaN) is a long one.
  return !(std::abs(to.x - from.x) <= kLongestStep && std::abs(to.y - from.y) <= kLongestStep);
}

void DrawHomeMark(Canvas& canvas) {
  const auto [x, y] = HomeOnSheet;
  canvas.SetColor(kHomeColor);
  canvas.Circle(HomeOnSheet, kHomeRadius);
  canvas.Line({x - kHomeRadius, y}, {x + kHomeRadius, y});
  canvas.Line({x, y - kHomeRadius}, {x, y + kHomeRadius});
}

Result<Outline> ReadOutlineFile(const DataFolder& folder, const QString& name) {
  const Result<QByteArray> bytes = folder.Read(name);
  if (!bytes) return bytes.error();
  return ReadOutline({bytes->constData(), static_cast<std::size_t>(bytes->size())});
}

void DrawFile(Canvas& canvas, const DataFolder& folder, const QString& name, ColorValue color,
              const MapProjection& projection, std::vector<std::string>& notes) {
  const Result<Outline> outline = ReadOutlineFile(folder, name);
  if (!outline) {
    if (outline.error().kind != Error::Kind::NotFound) notes.push_back(outline.error().Message());
    return;
  }
  canvas.SetColor(color);
  DrawOutline(canvas, *outline, projection);
}

}  // namespace

void DrawOutline(Canvas& canvas, const Outline& outline, const MapProjection& projection) {
  std::vector<Point> points(outline.Latitude.size());
  projection.Vertices(outline.Latitude, outline.Longitude, points);
  JoinVertices(canvas, outline, points);
}

void JoinVertices(Canvas& canvas, const Outline& outline, std::span<const Point> points) {
  std::vector<Point> stroke;
  const auto endStroke = [&] {
    if (stroke.size() > 1) canvas.Polyline(stroke);
    stroke.clear();
  };
  auto penUp = outline.PenUpBefore.begin();
  for (std::size_t i = 0; i < points.size(); ++i) {
    bool lifted = stroke.empty() || IsLongStep(stroke.back(), points[i]);
    for (; penUp != outline.PenUpBefore.end() && *penUp <= i; ++penUp) lifted = true;
    if (lifted) endStroke();
    if (std::isfinite(points[i].x) && std::isfinite(points[i].y)) stroke.push_back(Clamped(points[i]));
  }
  endStroke();
}

std::vector<std::string> DrawOutlineFiles(Canvas& canvas, const DataFolder& folder,
                                          const MapProjection& projection) {
  std::vector<std::string> notes;
  canvas.SetLineWidth(1);
  DrawFile(canvas, folder, "STATES.dat", StatesOutlineColor, projection, notes);
  DrawHomeMark(canvas);
  DrawFile(canvas, folder, "REGION2.dat", RegionOutlineColor, projection, notes);
  return notes;
}

}  // namespace kestrel
