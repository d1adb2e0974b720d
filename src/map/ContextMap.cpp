#include "map/ContextMap.h"

#include <limits>
#include <string>
#include <vector>

#include "map/MapProjection.h"
#include "map/Outlines.h"

namespace kestrel {
namespace {

constexpr float W = ContextMapWidth;
constexpr float H = ContextMapHeight;
constexpr Point kCenter = {0.35F * W, 0.325F * H};
constexpr Point kFrameCorner = {0.05F * W, 0.05F * H};
constexpr Point kFrameOpposite = {0.65F * W, 0.65F * H};
constexpr float kLowestLine = 0.6F * H;  // outlines end above the frame's lower edge
constexpr float kTwipsPer75Km = 120;
constexpr float kSmallestZoom = 0.25F;
constexpr float kLargestZoom = 8;

bool IsVisible(Point point) {
  return point.y >= kFrameCorner.y && point.y <= kLowestLine && point.x >= kFrameCorner.x &&
         point.x <= kFrameOpposite.x;
}

/// What lies outside the frame is not drawn.
OutlinePen PenInFrame(const MapProjection& projection) {
  OutlinePen pen;
  pen.LongestStep = {0.2F * W, 0.2F * H};
  pen.Place = [projection](const Outline& piece, std::span<Point> points) {
    constexpr float kNowhere = std::numeric_limits<float>::quiet_NaN();
    projection.Vertices(piece.Latitude, piece.Longitude, points);
    for (Point& point : points) {
      point = {point.x - HomeOnSheet.x + kCenter.x, point.y - HomeOnSheet.y + kCenter.y};
      if (!IsVisible(point)) point = {kNowhere, kNowhere};
    }
  };
  return pen;
}

void DrawStationMark(Canvas& canvas) {
  canvas.SetColor(Palette::White);
  canvas.SetLineWidth(10);
  canvas.Circle(kCenter, 10);
  canvas.SetLineWidth(1);
  canvas.SetColor(Palette::ContextMark);
  canvas.Circle(kCenter, 75);
  canvas.Line({0.34F * W, kCenter.y}, {0.36F * W, kCenter.y});
  canvas.Line({kCenter.x, 0.315F * H}, {kCenter.x, 0.335F * H});
}

/// Hides what lies outside the frame. The surface may be wider or higher than the map, so the masks reach far
/// beyond the drawing area.
void DrawMasks(Canvas& canvas) {
  constexpr float kFar = CoordinateLimit;
  canvas.SetColor(Palette::ContextGround);
  canvas.FilledBox({-kFar, -kFar}, {kFrameCorner.x, kFar});
  canvas.FilledBox({kFrameOpposite.x, -kFar}, {kFar, kFar});
  canvas.FilledBox({-kFar, -kFar}, {kFar, kFrameCorner.y});
  canvas.FilledBox({-kFar, kFrameOpposite.y}, {kFar, kFar});
}

/// Names the outline files that could not be read in the frame's upper left corner.
void DrawNotices(Canvas& canvas, const std::vector<std::string>& unreadable) {
  constexpr float kMargin = 100;
  constexpr Font kFont = {FontFace::Sans, 10};
  Point at = {kFrameCorner.x + kMargin, kFrameCorner.y + kMargin};
  canvas.BeginPanel(at, kFont);
  canvas.SetFont(kFont);
  canvas.SetColor(Palette::Text);
  for (const std::string& name : unreadable) {
    canvas.Text(at, name + " cannot be read");
    at.y += canvas.TextHeight();
  }
  canvas.EndPanel();
}

}  // namespace

void DrawContextMap(Canvas& canvas, const DataFolder& folder, float latitude, float longitude, float zoom) {
  const OutlinePen pen = PenInFrame(MapProjection({latitude, longitude}, kTwipsPer75Km * zoom));
  canvas.SetColor(Palette::White);
  canvas.FilledBox(kFrameCorner, kFrameOpposite);
  canvas.SetLineWidth(1);
  std::vector<std::string> unreadable;
  for (const char* name : {"REGION2.dat", "STATES.dat"}) {
    const Result<QByteArray> bytes = folder.Read(name);
    if (!bytes) {
      unreadable.emplace_back(name);
      continue;
    }
    canvas.SetColor(Palette::ContextOutline);
    DrawOutline(canvas, {bytes->constData(), static_cast<std::size_t>(bytes->size())}, pen);
  }
  DrawStationMark(canvas);
  DrawMasks(canvas);
  if (!unreadable.empty()) DrawNotices(canvas, unreadable);
  canvas.SetColor(Palette::ContextFrame);
  canvas.Box(kFrameCorner, kFrameOpposite);
}

void ContextZoom::ZoomIn() {
  MayZoomOut = true;
  Scale *= 2;
  if (Scale > kLargestZoom) {
    Scale = kLargestZoom;
    MayZoomIn = false;
  }
}

void ContextZoom::ZoomOut() {
  MayZoomIn = true;
  Scale /= 2;
  if (Scale < kSmallestZoom) {
    Scale = kSmallestZoom;
    MayZoomOut = false;
  }
}

}  // namespace kestrel
