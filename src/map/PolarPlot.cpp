#include "map/PolarPlot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "core/Geodesy.h"

namespace kestrel {
namespace {

constexpr float kSpokeStart = 300;
constexpr float kSpokeEnd = 2180;
constexpr float kMarkRadius = 30;
constexpr double kTraceRadius = 1985;
constexpr double kEnlargedRadius = 10000;
constexpr float kPlotBox = 2000;  // the enlarged trace ends this far from the centre, in x and in y
constexpr float kBearingRadius = 2400;
constexpr float kBearingRise = 105;
constexpr Font kBearingFont = {FontFace::Sans, 8};
constexpr Font kPlotFont = {FontFace::Sans, 10};
constexpr std::size_t kTracePoints = 360;

/// The point `radius` from the centre at a bearing in degrees.
Point OnPlot(double bearing, double radius, double aspectRatio) {
  const double angle = bearing / DegreesPerRadian;
  return {static_cast<float>(PolarPlotCenter.x + radius * aspectRatio * std::sin(angle)),
          static_cast<float>(PolarPlotCenter.y - radius * std::cos(angle))};
}

ColorValue TraceColor(Hours hours) {
  if (hours == Hours::Nighttime) return Palette::NightTrace;
  if (hours == Hours::Critical) return Palette::CriticalTrace;
  if (hours == Hours::Daytime) return Palette::DayTrace;
  return Palette::UnlimitedTrace;
}

/// The largest horizontal or vertical excursion, looked for at every second value.
double Extent(const PatternValues& values) {
  double extent = 0;
  for (std::size_t i = 1; i < kTracePoints; i += 2) {
    const double angle = static_cast<double>(i - 1) / DegreesPerRadian;
    extent = std::max({extent, std::abs(std::sin(angle) * values[i]), std::abs(std::cos(angle) * values[i])});
  }
  return extent;
}

/// The closed trace. It stands one degree anticlockwise of the values, as the map's outlines do.
std::vector<Point> TracePoints(const PatternValues& values, double radius, double aspectRatio) {
  const double scale = radius / Extent(values);
  std::vector<Point> points;
  for (std::size_t i = 1; i <= kTracePoints; ++i)
    points.push_back(OnPlot(static_cast<double>(i - 1), scale * values[i], aspectRatio));
  points.push_back(points.front());
  return points;
}

bool IsInPlotBox(Point point) {
  return std::abs(point.x - PolarPlotCenter.x) < kPlotBox && std::abs(point.y - PolarPlotCenter.y) < kPlotBox;
}

/// Draws each segment in blue or white by where it ends, segments of one colour in one stroke.
void DrawEnlarged(Canvas& canvas, const std::vector<Point>& points) {
  std::vector<Point> stroke = {points.front()};
  bool inside = true;
  const auto endStroke = [&] {
    canvas.SetColor(inside ? Palette::EnlargedTrace : Palette::White);
    if (stroke.size() > 1) canvas.Polyline(stroke);
  };
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (IsInPlotBox(points[i]) != inside) {
      endStroke();
      stroke = {points[i - 1]};
      inside = !inside;
    }
    stroke.push_back(points[i]);
  }
  endStroke();
}

void DrawSpokes(Canvas& canvas, float aspectRatio) {
  canvas.SetLineWidth(1);
  canvas.SetColor(Palette::Spoke);
  for (int bearing = 0; bearing <= 350; bearing += 10)
    canvas.Line(OnPlot(bearing, kSpokeStart, aspectRatio), OnPlot(bearing, kSpokeEnd, aspectRatio));
  canvas.SetColor(Palette::PlotMark);
  canvas.Circle(PolarPlotCenter, kMarkRadius);
}

void DrawBearings(Canvas& canvas, float aspectRatio) {
  canvas.SetFont(kBearingFont);
  canvas.SetColor(Palette::Bearing);
  for (int bearing = 0; bearing <= 330; bearing += 30) {
    const std::string text = std::to_string(bearing);
    const Point at = OnPlot(bearing, kBearingRadius, aspectRatio);
    canvas.Text({at.x - canvas.TextWidth(text) / 2, at.y - kBearingRise}, text);
  }
  canvas.SetFont(kPlotFont);
}

}  // namespace

bool DrawPolarPlot(Canvas& canvas, float aspectRatio, Hours hours, const PatternValues& values) {
  if (!(Extent(values) > 0)) {
    DrawUnknownPattern(canvas, aspectRatio);
    return false;
  }
  DrawSpokes(canvas, aspectRatio);
  canvas.SetColor(TraceColor(hours));
  canvas.Polyline(TracePoints(values, kTraceRadius, aspectRatio));
  DrawEnlarged(canvas, TracePoints(values, kEnlargedRadius, aspectRatio));
  DrawBearings(canvas, aspectRatio);
  return true;
}

void DrawUnknownPattern(Canvas& canvas, float aspectRatio) {
  static constexpr std::string_view kWords = "Pattern not known";
  constexpr float kBelowMark = 120;
  constexpr float kMargin = 60;
  DrawSpokes(canvas, aspectRatio);
  DrawBearings(canvas, aspectRatio);
  const float halfWidth = canvas.TextWidth(kWords) / 2;
  const Point corner = {PolarPlotCenter.x - halfWidth, PolarPlotCenter.y + kBelowMark};
  canvas.BeginPanel(PolarPlotCenter, kPlotFont);
  canvas.SetColor(Palette::White);
  canvas.FilledBox({corner.x - kMargin, corner.y},
                   {corner.x + 2 * halfWidth + kMargin, corner.y + canvas.TextHeight()});
  canvas.SetColor(Palette::Text);
  canvas.Text(corner, kWords);
  canvas.EndPanel();
}

void DrawPlotLegend(Canvas& canvas) {
  struct Entry {
    float Top;
    ColorValue Color;
    std::string_view Text;
  };
  static constexpr std::array kEntries = {
      Entry{6200, Palette::UnlimitedLegend, "Unlimited"}, Entry{6450, Palette::DayTrace, "Daytime"},
      Entry{6700, Palette::CriticalTrace, "Critical"}, Entry{6950, Palette::NightTrace, "Nighttime"},
      Entry{7200, Palette::EnlargedTrace, "Enlarged 5x"}};
  constexpr float kLeft = 500;
  canvas.BeginPanel({kLeft, kEntries.front().Top}, kPlotFont);
  canvas.SetFont(kPlotFont);
  for (const Entry& entry : kEntries) {
    canvas.SetColor(entry.Color);
    canvas.Text({kLeft, entry.Top}, entry.Text);
  }
  canvas.EndPanel();
}

}  // namespace kestrel
