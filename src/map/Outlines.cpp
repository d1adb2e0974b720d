#include "map/Outlines.h"

#include <array>
#include <cmath>
#include <future>
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

std::vector<Point> Places(const Outline& outline, const MapProjection& projection) {
  std::vector<Point> points(outline.Latitude.size());
  projection.Vertices(outline.Latitude, outline.Longitude, points);
  return points;
}

struct PlacedOutline {
  Outline Vertices;
  std::vector<Point> Points;
};

/// Where to cut a file in two that are drawn as the whole is; its end when it is short, or so long that it
/// may have more than MaxVertices, whose lines have two characters at least.
std::size_t WhereToCut(std::string_view bytes) {
  constexpr std::size_t kShort = 262'144;
  const bool cuts = bytes.size() > kShort && bytes.size() <= 2 * MaxVertices;
  return cuts ? FindPenUp(bytes, bytes.size() / 2) : bytes.size();
}

void DrawFile(Canvas& canvas, const DataFolder& folder, const QString& name, ColorValue color,
              const MapProjection& projection, std::vector<std::string>& notes) {
  const Result<QByteArray> bytes = folder.Read(name);
  if (!bytes) {
    if (bytes.error().kind != Error::Kind::NotFound) notes.push_back(bytes.error().Message());
    return;
  }
  canvas.SetColor(color);
  DrawOutline(canvas, {bytes->constData(), static_cast<std::size_t>(bytes->size())}, projection);
}

}  // namespace

void DrawOutline(Canvas& canvas, const Outline& outline, const MapProjection& projection) {
  std::vector<Point> points = Places(outline, projection);
  JoinVertices(canvas, outline, points);
}

void DrawOutline(Canvas& canvas, std::string_view bytes, const MapProjection& projection) {
  const std::size_t cut = WhereToCut(bytes);
  const auto read = [&projection](std::string_view part) {
    PlacedOutline placed{ReadOutline(part), {}};
    placed.Points = Places(placed.Vertices, projection);
    return placed;
  };
  if (cut == bytes.size()) return DrawOutline(canvas, ReadOutline(bytes), projection);
  auto readingBack = std::async(read, bytes.substr(cut));
  PlacedOutline front = read(bytes.substr(0, cut));
  PlacedOutline back = readingBack.get();
  JoinVertices(canvas, front.Vertices, front.Points);
  if (!front.Vertices.Ended) JoinVertices(canvas, back.Vertices, back.Points);
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
