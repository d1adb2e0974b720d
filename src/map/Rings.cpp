#include "map/Rings.h"

#include <array>
#include <cmath>
#include <string>

#include "core/Geodesy.h"
#include "core/Numbers.h"
#include "map/MapProjection.h"
#include "map/Sheet.h"

namespace kestrel {
namespace {

constexpr Font kRingFont = {FontFace::Sans, 8};
constexpr Font kBarFont = {FontFace::Sans, 9};
constexpr double kLeastRing = 1100;  // twips from ring to ring
constexpr double kLongestBar = 2600;
constexpr float kBarRight = SheetWidth - 300;
constexpr float kBarTop = 9300;

/// The largest of 1, 2 and 5 times a power of ten that is at most `most`.
double RoundBelow(double most) {
  const double power = std::pow(10, std::floor(std::log10(most)));
  return power * (most >= 5 * power ? 5 : most >= 2 * power ? 2 : 1);
}

/// The smallest that is at least `least`.
double RoundAbove(double least) {
  const double below = RoundBelow(least);
  return below >= least ? below : RoundBelow(below * 2.5);
}

bool InMiles(const SessionState& state) {
  return state.MapUnit() == 1;
}

void DrawRingLabels(Canvas& canvas, double radius, const std::string& text) {
  const float halfWidth = canvas.TextWidth(text) / 2 + 30;
  const float height = canvas.TextHeight();
  const auto side = static_cast<float>(radius * std::sqrt(0.5));
  for (const auto& [right, down] : {std::pair(side, -side), {side, side}, {-side, side}, {-side, -side}}) {
    const Point at = {HomeOnSheet.x + right, HomeOnSheet.y + down};
    canvas.BeginPanel(at, kRingFont);
    canvas.SetColor(Palette::White);
    canvas.FilledBox({at.x - halfWidth, at.y - height / 2}, {at.x + halfWidth, at.y + height / 2});
    canvas.SetColor(Palette::RingText);
    canvas.Text({at.x - halfWidth + 30, at.y - height / 2}, text);
    canvas.EndPanel();
  }
}

}  // namespace

double TwipsPerUnit(const SessionState& state) {
  const double twipsPerKilometre = state.ScaleFactor / KilometresPerScale;
  return InMiles(state) ? twipsPerKilometre / MilesPerKilometre : twipsPerKilometre;
}

std::string RoundDistanceText(float distance, const SessionState& state) {
  return NumberText(distance) + (InMiles(state) ? " mi" : " km");
}

void DrawRings(Canvas& canvas, const SessionState& state) {
  const double twips = TwipsPerUnit(state);
  const double step = RoundAbove(kLeastRing / twips);
  const double farthestCorner = std::hypot(CoordinateLimit + HomeOnSheet.x, CoordinateLimit + HomeOnSheet.y);
  const double halfRound = 180 * KilometresPerDegree * state.ScaleFactor / KilometresPerScale;
  const double reach = std::min(farthestCorner, halfRound);
  canvas.BeginLayer(MapLayer::Rings);
  canvas.SetLineWidth(1);
  canvas.SetColor(Palette::Ring);
  for (int ring = 1; ring * step * twips <= reach; ++ring)
    canvas.Circle(HomeOnSheet, static_cast<float>(ring * step * twips));
  canvas.SetFont(kRingFont);
  for (int ring = 1; ring * step * twips <= reach; ++ring)
    DrawRingLabels(canvas, ring * step * twips, RoundDistanceText(static_cast<float>(ring * step), state));
  canvas.EndLayer();
  canvas.SetFont({});
}

void DrawScaleBar(Canvas& canvas, const SessionState& state) {
  const double twips = TwipsPerUnit(state);
  const double distance = RoundBelow(kLongestBar / twips);
  const auto left = static_cast<float>(kBarRight - distance * twips);
  constexpr float kTick = 80;
  canvas.BeginLayer(MapLayer::ScaleBar);
  canvas.BeginPanel({kBarRight, kBarTop}, {kBarFont.Face, 0}, PanelPlace::LowerRight);
  canvas.SetColor(Palette::White);
  canvas.FilledBox({left - 100, kBarTop - 330}, {kBarRight + 100, kBarTop + 100});
  canvas.SetColor(Palette::ScaleBar);
  canvas.SetLineWidth(1.5F);
  const std::array<Point, 4> bar = {
      {{left, kBarTop - kTick}, {left, kBarTop}, {kBarRight, kBarTop}, {kBarRight, kBarTop - kTick}}};
  canvas.Polyline(bar);
  canvas.SetFont(kBarFont);
  canvas.RimmedText({left + 60, kBarTop - 60 - canvas.TextHeight()},
                    RoundDistanceText(static_cast<float>(distance), state));
  canvas.EndPanel();
  canvas.EndLayer();
  canvas.SetFont({});
}

}  // namespace kestrel
