#include "map/BandScan.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <unordered_set>
#include <vector>

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

/// The stations of a channel's file, each with its place; those without one left out.
std::vector<StationMark> ReadMarks(std::string_view bytes, const MapProjection& projection, float channel) {
  std::vector<StationMark> marks;
  std::vector<float> latitudes, longitudesEast;
  StationLineReader lines(bytes);
  while (const auto line = lines.Next()) {
    marks.push_back({{},
                     static_cast<int>(channel),
                     std::string(Trim(line->CallSign)),
                     std::string(Trim(line->HoursCode))});
    latitudes.push_back(static_cast<float>(line->Number(line->Latitude)));
    longitudesEast.push_back(-static_cast<float>(line->Number(line->Longitude)));
  }
  std::vector<Point> places(marks.size());
  projection.Vertices(latitudes, longitudesEast, places);
  for (std::size_t i = 0; i < marks.size(); ++i) marks[i].At = places[i];
  std::erase_if(
      marks, [](const StationMark& mark) { return !std::isfinite(mark.At.x) || !std::isfinite(mark.At.y); });
  for (StationMark& mark : marks) mark.At = Clamped(mark.At);
  return marks;
}

/// The place's two numbers as one.
std::uint64_t Spot(Point at) {
  return std::uint64_t{std::bit_cast<std::uint32_t>(at.x)} << 32 | std::bit_cast<std::uint32_t>(at.y);
}

}  // namespace

Result<Done> DrawScannedChannel(Canvas& canvas, const DataFolder& folder, const MapProjection& projection,
                                float channel) {
  const Result<QByteArray> bytes = folder.Read(StationFileName(channel));
  if (!bytes) return bytes.error();

  canvas.SetLineWidth(1);
  canvas.SetFont(kLabelFont);
  const std::string label = NumberText(channel);
  std::unordered_set<std::uint64_t> labelled;  // a station's second record stands on the same spot
  const std::string_view view(bytes->constData(), static_cast<std::size_t>(bytes->size()));
  for (const StationMark& mark : ReadMarks(view, projection, channel)) {
    const auto [x, y] = mark.At;
    canvas.BeginStation(mark);
    if (labelled.insert(Spot(mark.At)).second) {
      canvas.SetColor(kTextColor);
      canvas.Text({x - kLabelLeft, y - kLabelAbove}, label);
    }
    canvas.SetColor(kCrossColor);
    canvas.Line({x - kCrossArm, y}, {x + kCrossArm, y});
    canvas.Line({x, y - kCrossArm}, {x, y + kCrossArm});
    canvas.EndStation();
  }
  canvas.SetFont(kMapFont);
  return Done{};
}

}  // namespace kestrel
