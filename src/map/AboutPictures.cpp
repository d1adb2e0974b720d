#include "map/AboutPictures.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/Numbers.h"
#include "data/OutlineFile.h"
#include "data/StationFile.h"
#include "map/ChannelPlot.h"
#include "map/MapProjection.h"
#include "map/Outlines.h"

namespace kestrel {
namespace {

constexpr ColorValue Rgb(int red, int green, int blue) {
  return red | green << 8 | blue << 16;
}

std::string_view View(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
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

/// Rows from near black to blue. Each is drawn down to the bottom, so that no seam shows between two.
void DrawNightSky(Canvas& canvas, const SheetArea& area) {
  constexpr int kRows = 80;
  const Point end = {area.Left + area.Width, area.Top + area.Height};
  for (int row = 0; row < kRows; ++row) {
    canvas.SetColor(Rgb(8 + row / 8, 12 + row / 4, 34 + row));
    canvas.FilledBox({area.Left, area.Top + area.Height * static_cast<float>(row) / kRows}, end);
  }
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
  DrawFitted(canvas, {220, 350}, 420, PatternOf({2, 90, 90, -90}));
}

void DrawArrayPicture(Canvas& canvas) {
  DrawNightSky(canvas, ArrayPictureArea);
  constexpr Point kCenter = {2000, 2180};
  canvas.SetLineWidth(1);
  canvas.SetColor(Rgb(44, 62, 110));
  for (float radius = 430; radius <= 1720; radius += 430) canvas.Circle(kCenter, radius);
  for (int bearing = 0; bearing < 180; bearing += 30) {
    const double angle = bearing * 3.14159265 / 180;
    const Point spoke = {static_cast<float>(1720 * std::sin(angle)),
                         static_cast<float>(1720 * std::cos(angle))};
    canvas.Line({kCenter.x - spoke.x, kCenter.y + spoke.y}, {kCenter.x + spoke.x, kCenter.y - spoke.y});
  }

  const std::array<std::pair<float, ColorValue>, 4> warm = {
      {{9, Rgb(62, 40, 62)}, {6, Rgb(116, 62, 60)}, {3, Rgb(216, 118, 56)}, {1.3F, Rgb(255, 214, 140)}}};
  const std::array<std::pair<float, ColorValue>, 3> cool = {
      {{6, Rgb(24, 62, 100)}, {3, Rgb(40, 122, 158)}, {1.2F, Rgb(150, 232, 240)}}};
  DrawGlowing(canvas, kCenter, 1150, PatternOf({2, 90, 205, 90}), cool);
  DrawGlowing(canvas, kCenter, 1950, PatternOf({4, 90, 25, -75}), warm);

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
  DrawNightSky(canvas, MapPictureArea);

  // The sea, lighter towards its middle.
  constexpr int kShades = 40;
  constexpr float kSeaRadius = 4200;
  for (int shade = 0; shade < kShades; ++shade) {
    const float share = static_cast<float>(shade) / kShades;
    canvas.SetColor(Rgb(14 + shade / 3, 30 + shade, 78 + shade * 3 / 2));
    canvas.FilledCircle(HomeOnSheet, kSeaRadius * std::sqrt(1 - share));
  }

  const MapProjection projection({14, 86}, 36);
  const auto drawOutline = [&](const QString& name, ColorValue color) {
    if (const Result<QByteArray> bytes = folder.Read(name)) {
      canvas.SetColor(color);
      DrawOutline(canvas, View(*bytes), PenFor(projection));
    }
  };
  canvas.SetLineWidth(0.6F);
  drawOutline("STATES.dat", Rgb(70, 100, 160));
  canvas.SetLineWidth(1);
  drawOutline("REGION2.dat", Rgb(150, 190, 235));

  canvas.SetColor(Rgb(255, 196, 96));
  for (const float channel : {1230.F, 1340.F, 1450.F}) {
    const Result<QByteArray> bytes = folder.Read(StationFileName(channel));
    if (!bytes) continue;
    StationLineReader stations(View(*bytes));
    while (const auto station = stations.Next()) {
      const auto at = projection.Station(station->At());
      if (at) canvas.FilledCircle(*at, 26);
    }
  }
}

}  // namespace kestrel
