#include "map/BandScan.h"

#include <set>
#include <utility>

#include "core/Numbers.h"
#include "core/Text.h"
#include "data/StationFile.h"

namespace kestrel {
namespace {

constexpr float kLabelLeft = 60;
constexpr float kLabelAbove = 210;
constexpr float kCrossArm = 16;  // half a line of the cross
constexpr Font kLabelFont = {FontFace::Sans, 8};
constexpr Font kMapFont = {FontFace::Sans, 10};
constexpr ColorValue kTextColor = 0x202020;
constexpr ColorValue kCrossColor = 255;

}  // namespace

Result<Done> DrawScannedChannel(Canvas& canvas, const DataFolder& folder, const MapProjection& projection,
                                float channel) {
  const Result<QByteArray> bytes = folder.Read(StationFileName(channel));
  if (!bytes) return bytes.error();

  canvas.SetLineWidth(1);
  const std::string label = NumberText(channel);
  std::set<std::pair<float, float>> labelled;  // a station's second record stands on the same spot
  StationLineReader lines({bytes->constData(), static_cast<std::size_t>(bytes->size())});
  while (const auto line = lines.Next()) {
    StationRecord record;
    StoreStationLine(*line, record);
    const std::optional<Point> at = projection.Station(record.Latitude, record.Longitude);
    if (!at) continue;
    canvas.BeginStation({*at, static_cast<int>(channel), record.CallSign, record.HoursCode});
    if (labelled.emplace(at->x, at->y).second) {
      canvas.SetFont(kLabelFont);
      canvas.SetColor(kTextColor);
      canvas.Text({at->x - kLabelLeft, at->y - kLabelAbove}, label);
      canvas.SetFont(kMapFont);
    }
    canvas.SetColor(kCrossColor);
    canvas.Line({at->x - kCrossArm, at->y}, {at->x + kCrossArm, at->y});
    canvas.Line({at->x, at->y - kCrossArm}, {at->x, at->y + kCrossArm});
    canvas.EndStation();
  }
  return Done{};
}

}  // namespace kestrel
