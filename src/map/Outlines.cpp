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

void JoinVertices(Canvas& canvas, const Outline& outline, std::span<Point> points) {
  std::size_t begin = 0;  // of the present stroke
  const auto endStroke = [&](std::size_t end) {
    if (end > begin + 1) canvas.Polyline(points.subspan(begin, end - begin));
  };
  auto penUp = outline.PenUpBefore.begin();
  for (std::size_t i = 0; i < points.size(); ++i) {
    const bool placed = std::isfinite(points[i].x) && std::isfinite(points[i].y);
    bool lifted = !placed || i == begin || IsLongStep(points[i - 1], points[i]);
    for (; penUp != outline.PenUpBefore.end() && *penUp <= i; ++penUp) lifted = true;
    if (lifted) {
      endStroke(i);
      begin = placed ? i : i + 1;
    }
    points[i] = Clamped(points[i]);
  }
  endStroke(points.size());
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
