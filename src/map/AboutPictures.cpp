#include "map/AboutPictures.h"

#include <array>
#include <cmath>

#include "map/ChannelPlot.h"
#include "map/OverviewMap.h"

namespace kestrel {
namespace {

constexpr ColorValue Rgb(int red, int green, int blue) {
  return red | green << 8 | blue << 16;
}

/// Towers in line, a spacing (electrical degrees) apart along a bearing.
struct LineOfTowers {
  int Count;
  float Spacing;
  float Bearing;
  float PhaseStep;
};

PatternValues PatternOf(const LineOfTowers& line) {
  StationRecord record;
  record.HoursCode = "N";
  record.PowerKW = 1;
  record.TowerCount = static_cast<std::int16_t>(line.Count);
  for (int tower = 1; tower <= line.Count; ++tower) {
    const auto step = static_cast<float>(tower - 1);
    record.Switch[tower] = "0";
    record.Fields[tower] = 1;
    record.Heights[tower] = 90;
    record.Phases[tower] = step * line.PhaseStep;
    record.Spacings[tower] = step * line.Spacing;
    record.Bearings[tower] = line.Bearing;
  }
  PatternValues values{};
  static_cast<void>(ComputePattern(record, values));
  return values;
}

/// The pattern with its longest ray `radius` twips long.
void DrawFitted(Canvas& canvas, Point center, float radius, const PatternValues& values) {
  SessionState state;
  state.PatternSize = 1;
  state.ScaleFactor = 1;
  const float largest = *std::max_element(values.begin(), values.end());
  DrawPattern(canvas, state, center, {0, radius / largest}, values);
}

void DrawGlowing(Canvas& canvas, Point center, float radius, const PatternValues& values,
                 std::span<const std::pair<float, ColorValue>> layers) {
  for (const auto& [width, color] : layers) {
    canvas.SetLineWidth(width);
    canvas.SetColor(color);
    DrawFitted(canvas, center, radius, values);
  }
}

}  // namespace

void DrawSampleOutline(Canvas& canvas, ColorValue color) {
  canvas.SetLineWidth(1);
  canvas.SetColor(color);
  DrawFitted(canvas, {280, 350}, 620, PatternOf({2, 90, 90, -100}));
}

void DrawArrayPicture(Canvas& canvas) {
  const auto [left, top, width, height] = ArrayPictureArea;
  constexpr int kRows = 80;
  for (int row = 0; row < kRows; ++row) {
    const float step = height / kRows;
    canvas.SetColor(Rgb(8 + row / 8, 12 + row / 4, 34 + row));
    const float y = top + step * static_cast<float>(row);
    canvas.FilledBox({left, y}, {left + width, y + step + 10});
  }

  constexpr Point kCenter = {2000, 2250};
  canvas.SetLineWidth(1);
  canvas.SetColor(Rgb(44, 62, 110));
  for (float radius = 450; radius <= 1800; radius += 450) canvas.Circle(kCenter, radius);
  for (int bearing = 0; bearing < 180; bearing += 30) {
    const double angle = bearing * 3.14159265 / 180;
    const Point spoke = {static_cast<float>(1800 * std::sin(angle)),
                         static_cast<float>(1800 * std::cos(angle))};
    canvas.Line({kCenter.x - spoke.x, kCenter.y + spoke.y}, {kCenter.x + spoke.x, kCenter.y - spoke.y});
  }

  const std::array<std::pair<float, ColorValue>, 4> warm = {
      {{9, Rgb(62, 40, 62)}, {6, Rgb(116, 62, 60)}, {3, Rgb(216, 118, 56)}, {1.3F, Rgb(255, 214, 140)}}};
  const std::array<std::pair<float, ColorValue>, 3> cool = {
      {{6, Rgb(24, 62, 100)}, {3, Rgb(40, 122, 158)}, {1.2F, Rgb(150, 232, 240)}}};
  DrawGlowing(canvas, kCenter, 1150, PatternOf({2, 90, 205, 90}), cool);
  DrawGlowing(canvas, kCenter, 2000, PatternOf({4, 90, 25, -75}), warm);

  for (int tower = 0; tower < 4; ++tower) {
    const float along = (static_cast<float>(tower) - 1.5F) * 170;
    const Point at = {kCenter.x + along * 0.42F, kCenter.y - along * 0.9F};
    canvas.SetColor(Rgb(120, 40, 50));
    canvas.FilledCircle(at, 62);
    canvas.SetColor(Rgb(255, 240, 220));
    canvas.FilledCircle(at, 30);
  }
}

void DrawMapPicture(Canvas& canvas, const DataFolder& folder) {
  const auto [left, top, width, height] = MapPictureArea;
  constexpr int kRows = 100;
  for (int row = 0; row < kRows; ++row) {
    const float step = height / kRows;
    const float y = top + step * static_cast<float>(row);
    canvas.SetColor(OpeningBackground(row, kRows * 2));
    canvas.FilledBox({left, y}, {left + width, y + step + 20});
  }
  DrawOverviewMap(canvas, folder);
}

}  // namespace kestrel
