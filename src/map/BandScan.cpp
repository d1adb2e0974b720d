#include "map/BandScan.h"

#include <bit>
#include <cassert>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <unordered_set>

#include "core/Band.h"
#include "core/Numbers.h"
#include "core/Processors.h"
#include "core/Text.h"
#include "data/StationFile.h"
#include "map/Labels.h"

namespace kestrel {
namespace {

constexpr float kCrossArm = 16;  // half a line of the cross
constexpr Font kLabelFont = {FontFace::Sans, 8};
constexpr Font kMapFont = {FontFace::Sans, 10};

float ChannelOf(std::size_t index) {
  return LowestChannel + ChannelStep * static_cast<float>(index);
}

/// The stations of a channel's file, each with its place; those without one left out.
Result<std::vector<StationMark>> ReadMarks(const DataFolder& folder, const MapProjection& projection,
                                           float channel) {
  const Result<QByteArray> file = folder.Read(StationFileName(channel));
  if (!file) return file.error();
  const std::string_view bytes(file->constData(), static_cast<std::size_t>(file->size()));
  std::vector<StationMark> marks;
  std::vector<float> latitudes, longitudesEast;
  StationLineReader lines(bytes);
  while (const auto line = lines.Next()) {
    marks.push_back({{},
                     static_cast<int>(channel),
                     std::string(Trim(line->CallSign)),
                     std::string(Trim(line->HoursCode)),
                     static_cast<float>(LeadingNumber(line->PowerKW))});
    const Position at = line->At();
    latitudes.push_back(at.Latitude);
    longitudesEast.push_back(-at.Longitude);
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

void DrawChannel(Canvas& canvas, float channel, const std::vector<StationMark>& marks) {
  canvas.SetLineWidth(1);
  canvas.SetFont(kLabelFont);
  const std::string label = NumberText(channel);
  std::unordered_set<std::uint64_t> labelled;  // a station's second record stands on the same spot
  for (const StationMark& mark : marks) {
    const auto [x, y] = mark.At;
    canvas.BeginStation(mark);
    if (labelled.insert(Spot(mark.At)).second) {
      canvas.SetColor(Palette::Text);
      canvas.Label({mark.At, label, false, LabelWeight(mark.At, mark.PowerKW)});
    }
    canvas.SetColor(Palette::ScanCross);
    canvas.Line({x - kCrossArm, y}, {x + kCrossArm, y});
    canvas.Line({x, y - kCrossArm}, {x, y + kCrossArm});
    canvas.EndStation();
  }
  canvas.SetFont(kMapFont);
}

}  // namespace

BandScan::BandScan(const DataFolder& folder, const MapProjection& projection, int processors) {
  for (std::size_t i = 0; ChannelOf(i) <= HighestChannel; ++i)
    readings_.emplace_back([folder, projection, i] { return ReadMarks(folder, projection, ChannelOf(i)); });
  if (processors == 0) processors = ProcessorsToUse();
  for (int i = 1; i < processors; ++i)
    readers_.push_back(std::async([this] {
      while (ReadOne())
        ;
    }));
}

BandScan::~BandScan() {
  next_ = readings_.size();
}

float BandScan::Channel() const {
  return ChannelOf(present_);
}

bool BandScan::ReadOne() {
  const std::size_t channel = next_++;
  if (channel >= readings_.size()) return false;
  readings_[channel]();
  return true;
}

Result<Done> BandScan::DrawNext(Canvas& canvas) {
  assert(!AtEnd());
  const float channel = Channel();
  std::future<Marks> reading = readings_[present_++].get_future();
  while (reading.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
    if (!ReadOne()) reading.wait();
  const Marks marks = reading.get();
  if (!marks) return marks.error();
  DrawChannel(canvas, channel, *marks);
  return Done{};
}

}  // namespace kestrel
