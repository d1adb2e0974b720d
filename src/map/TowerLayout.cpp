#include "map/TowerLayout.h"

#include <cmath>
#include <vector>

#include "core/Geodesy.h"

namespace kestrel {
namespace {

constexpr double kTwipsPerRadian = 120;  // of spacing
constexpr int kRings = 4;
constexpr double kRingStep = 90;  // electrical degrees
constexpr int kRingPoints = 3600;

Point OnLayout(double bearing, double spacing, double aspectRatio) {
  const double angle = bearing / DegreesPerRadian;
  const double radius = kTwipsPerRadian * (spacing / DegreesPerRadian);
  return {static_cast<float>(TowerLayoutCenter.x + aspectRatio * radius * std::sin(angle)),
          static_cast<float>(TowerLayoutCenter.y - radius * std::cos(angle))};
}

}  // namespace

void DrawSpacingRings(Canvas& canvas, float aspectRatio) {
  canvas.SetLineWidth(1);
  canvas.SetColor(Palette::SpacingRing);
  std::vector<Point> ring(kRingPoints);
  for (int r = 1; r <= kRings; ++r) {
    for (int i = 0; i < kRingPoints; ++i)
      ring[static_cast<std::size_t>(i)] = OnLayout(i * 360.0 / kRingPoints, r * kRingStep, aspectRatio);
    canvas.Polygon(ring);
  }
}

void DrawTowerLayout(Canvas& canvas, float aspectRatio, const StationRecord& record) {
  DrawSpacingRings(canvas, aspectRatio);
  canvas.SetColor(Palette::Tower);
  for (std::size_t i = 1; i <= static_cast<std::size_t>(record.TowerCount); ++i) {
    const Point at = OnLayout(record.Bearings[i], record.Spacings[i], aspectRatio);
    canvas.Circle(at, 30);
    if (i > 1) continue;
    for (const float radius : {23.0F, 16.0F, 9.0F}) canvas.Circle(at, radius);
  }
}

}  // namespace kestrel
