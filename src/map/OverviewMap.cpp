#include "map/OverviewMap.h"

#include <algorithm>
#include <cmath>

#include "core/Numbers.h"
#include "data/StationFile.h"
#include "map/MapProjection.h"
#include "map/Outlines.h"

namespace kestrel {
namespace {

constexpr float kStationRadius = 7;

std::string_view View(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

void DrawFile(Canvas& canvas, const DataFolder& folder, const QString& name,
              const MapProjection& projection) {
  if (const Result<QByteArray> bytes = folder.Read(name))
    DrawOutline(canvas, View(*bytes), PenFor(projection));
}

void DrawStations(Canvas& canvas, const DataFolder& folder, float channel, const MapProjection& projection) {
  const Result<QByteArray> bytes = folder.Read(StationFileName(channel));
  if (!bytes) return;
  StationLineReader reader(View(*bytes));
  while (const auto station = reader.Next()) {
    const auto at = projection.Station(station->At());
    if (at) canvas.FilledCircle(*at, kStationRadius);
  }
}

}  // namespace

ColorValue OpeningBackground(double y, double height) {
  const int blue = std::clamp(static_cast<int>(RoundToWhole(300 * y / height)), 1, 255);
  return blue << 16 | 1 << 8 | 1;
}

void DrawOverviewMap(Canvas& canvas, const DataFolder& folder) {
  const MapProjection projection({39, 97}, 160);
  canvas.SetLineWidth(2);
  canvas.SetColor(Palette::OpeningRegion);
  DrawFile(canvas, folder, "REGION2.dat", projection);
  canvas.SetLineWidth(1);
  canvas.SetColor(Palette::OpeningStates);
  DrawFile(canvas, folder, "STATES.dat", projection);
  canvas.SetColor(Palette::OpeningStation);
  for (const float channel : {1230.F, 1240.F, 1340.F, 1400.F, 1450.F, 1490.F})
    DrawStations(canvas, folder, channel, projection);
}

}  // namespace kestrel
