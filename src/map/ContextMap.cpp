#include "map/ContextMap.h"

#include <array>
#include <string>
#include <vector>

#include "core/Distance.h"
#include "core/Geodesy.h"
#include "core/Numbers.h"
#include "map/MapProjection.h"
#include "map/Outlines.h"

namespace kestrel {
namespace {

constexpr float W = ContextMapWidth;
constexpr float H = ContextMapHeight;
constexpr Point kCenter = {0.35F * W, 0.325F * H};
constexpr Point kFrameCorner = {0.05F * W, 0.05F * H};
constexpr Point kFrameOpposite = {0.65F * W, 0.65F * H};
constexpr Point kFromSheet = {kCenter.x - HomeOnSheet.x, kCenter.y - HomeOnSheet.y};
constexpr float kTwipsPer75Km = 120;
constexpr Font kFont = {FontFace::Sans, 10};
constexpr float kSmallestZoom = 0.25F;
constexpr float kLargestZoom = 8;

MapProjection ProjectionOf(const ContextView& view) {
  return {view.Station, kTwipsPer75Km * view.Zoom};
}

bool IsInFrame(Point point) {
  return point.y >= kFrameCorner.y && point.y <= kFrameOpposite.y && point.x >= kFrameCorner.x &&
         point.x <= kFrameOpposite.x;
}

/// Lines go on beyond the frame, under the masks.
OutlinePen PenAround(const MapProjection& projection) {
  OutlinePen pen;
  pen.LongestStep = {0.2F * W, 0.2F * H};
  pen.Place = [projection](const Outline& piece, std::span<Point> points) {
    projection.Vertices(piece.Latitude, piece.Longitude, points);
    for (Point& point : points) point = {point.x + kFromSheet.x, point.y + kFromSheet.y};
  };
  return pen;
}

void DrawHome(Canvas& canvas, const ContextView& view) {
  constexpr float kBeside = 80;
  const std::optional<Point> home = ProjectionOf(view).Station(view.Home);
  if (!home) return;
  const Point at = {home->x + kFromSheet.x, home->y + kFromSheet.y};
  if (!IsInFrame(at)) return;
  DrawHomeMark(canvas, at);
  canvas.BeginPanel(at, kFont);
  canvas.SetFont(kFont);
  // On the side where there is more room.
  const float left = at.x < kCenter.x ? at.x + kBeside : at.x - kBeside - canvas.TextWidth("Home");
  canvas.RimmedText({left, at.y - canvas.TextHeight() / 2}, "Home");
  canvas.EndPanel();
}

void DrawScaleBar(Canvas& canvas, const ContextView& view) {
  constexpr Point kEnd = {kFrameOpposite.x - 150, kFrameOpposite.y - 150};
  constexpr float kLongest = 0.2F * W;
  constexpr float kTick = 60;
  const double twipsPerKilometre = kTwipsPer75Km * view.Zoom / 75;
  const RoundDistance length = LongestRoundDistance(kLongest / twipsPerKilometre, view.Unit);
  const float start = kEnd.x - static_cast<float>(length.Kilometres * twipsPerKilometre);
  canvas.SetColor(Palette::Text);
  canvas.SetLineWidth(2);
  canvas.Polyline(
      std::array<Point, 4>{{{start, kEnd.y - kTick}, {start, kEnd.y}, kEnd, {kEnd.x, kEnd.y - kTick}}});
  canvas.SetLineWidth(1);
  canvas.BeginPanel({kEnd.x, kEnd.y - kTick}, kFont);
  canvas.SetFont(kFont);
  canvas.RimmedText({kEnd.x - canvas.TextWidth(length.Text), kEnd.y - kTick - canvas.TextHeight()},
                    length.Text);
  canvas.EndPanel();
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

void DrawContextMap(Canvas& canvas, const DataFolder& folder, const ContextView& view) {
  const OutlinePen pen = PenAround(ProjectionOf(view));
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
  DrawHome(canvas, view);
  DrawStationMark(canvas);
  DrawMasks(canvas);
  DrawScaleBar(canvas, view);
  if (!unreadable.empty()) DrawNotices(canvas, unreadable);
  canvas.SetColor(Palette::ContextFrame);
  canvas.Box(kFrameCorner, kFrameOpposite);
}

std::string ContextMapWords(const ContextView& view) {
  const double kilometres = (kFrameOpposite.x - kFrameCorner.x) / (kTwipsPer75Km * view.Zoom / 75);
  const bool miles = view.Unit == 1;
  const double width = kilometres * (miles ? MilesPerKilometre : 1);
  return "Coasts and borders around " + PlaceText(view.Station) + ", " + FixedText(width, 0) +
         (miles ? " mi" : " km") + " across; home is at " + PlaceText(view.Home);
}

std::optional<Position> PlaceOnContextMap(const ContextView& view, Point at) {
  if (!IsInFrame(at)) return std::nullopt;
  return ProjectionOf(view).PlaceAt({at.x - kFromSheet.x, at.y - kFromSheet.y});
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
