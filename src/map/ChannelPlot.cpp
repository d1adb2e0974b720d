#include "map/ChannelPlot.h"

#include <array>
#include <cmath>

#include "core/Band.h"
#include "core/Geodesy.h"
#include "core/Hours.h"
#include "core/Numbers.h"
#include "data/StationFile.h"
#include "map/Labels.h"

namespace kestrel {
namespace {

constexpr float kUnknownRadius = 30;
constexpr float kSilentRadius = 28;
constexpr Font kLabelFont = {FontFace::Sans, 8};
constexpr Font kMapFont = {FontFace::Sans, 10};

constexpr std::size_t kOutlinePoints = 180;

struct Direction {
  double sine, cosine;
};
using OutlineDirections = std::array<Direction, kOutlinePoints>;

/// Of the outline's points as seen from the station: each second degree from north on.
const OutlineDirections& Directions() {
  static const OutlineDirections directions = [] {
    OutlineDirections made;
    for (std::size_t i = 0; i < made.size(); ++i) {
      const double bearing = static_cast<double>(2 * i) / DegreesPerRadian;
      made[i] = {std::sin(bearing), std::cos(bearing)};
    }
    return made;
  }();
  return directions;
}

}  // namespace

Dash DashOf(Hours hours) {
  switch (hours) {
    case Hours::Nighttime:
      return Dash::Night;
    case Hours::Critical:
      return Dash::Critical;
    case Hours::Unlimited:
      return Dash::Unlimited;
    case Hours::Daytime:
    case Hours::Other:
      return Dash::None;
  }
  return Dash::None;
}

bool HasPattern(StationRecord& record, PatternValues& pattern) {
  return record.TowerCount > 0 && ComputePattern(record, pattern);
}

void DrawPattern(Canvas& canvas, const SessionState& state, Point station, const PatternStyle& style,
                 const PatternValues& values) {
  const double size = double{style.Factor} * state.PatternSize * state.ScaleFactor;
  const OutlineDirections& directions = Directions();
  std::array<Point, kOutlinePoints> outline;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    // The outline stands one degree anticlockwise of the values, as it always has.
    const double magnitude = values[2 * i + 1];
    outline[i] = {static_cast<float>(station.x + state.AspectRatio * size * directions[i].sine * magnitude),
                  static_cast<float>(station.y - size * directions[i].cosine * magnitude)};
  }
  for (Point& point : outline) point = Clamped(point);
  canvas.Polygon(outline);
}

ChannelPlotter::ChannelPlotter(Canvas& canvas, const SessionState& state, const MapProjection& projection,
                               float plotFrequency)
    : canvas_(canvas),
      state_(state),
      projection_(projection),
      plotFrequency_(plotFrequency),
      adjacent_(state.AdjacentsShown == 1 && plotFrequency != state.SelectedFrequency) {
  canvas_.SetFont(kMapFont);
  canvas_.SetLineWidth(adjacent_ ? 1 : PatternLineWidth);
}

void ChannelPlotter::Draw(const StationRecord& record, const PatternValues* pattern) {
  const std::optional<Point> at = projection_.Station(record.At());
  if (!at) return;
  ChooseStyle(HoursOf(record.HoursCode));

  BeginStation(record, *at);
  canvas_.SetColor(style_.Color);
  if (!pattern) {
    canvas_.FilledCircle(*at, kUnknownRadius);
  } else if (style_.Factor == 0) {
    canvas_.Dot(*at);
  } else {
    if (!adjacent_) canvas_.SetDash(DashOf(HoursOf(record.HoursCode)));
    DrawPattern(canvas_, state_, *at, style_, *pattern);
    if (!adjacent_) canvas_.SetDash(Dash::None);
  }
  DrawLabel(record, *at);
  canvas_.EndStation();
}

void ChannelPlotter::DrawSilent(const StationRecord& record) {
  const std::optional<Point> at = projection_.Station(record.At());
  if (!at) return;
  BeginStation(record, *at);
  canvas_.SetColor(Palette::OffAir);
  canvas_.Circle(*at, kSilentRadius);
  canvas_.EndStation();
}

void ChannelPlotter::BeginStation(const StationRecord& record, Point at) {
  canvas_.BeginStation(
      {at, static_cast<int>(plotFrequency_), record.CallSign, record.HoursCode, record.PowerKW});
}

void ChannelPlotter::ChooseStyle(Hours hours) {
  switch (hours) {
    case Hours::Daytime:
      style_ = {state_.DayColor, 1.0F};
      break;
    case Hours::Nighttime:
      style_ = {state_.NightColor, 0.96F};
      break;
    case Hours::Critical:
      style_ = {state_.CriticalColor, 0.98F};
      break;
    case Hours::Unlimited:
      style_ = {state_.UnlimitedColor, 1.02F};
      break;
    case Hours::Other:
      style_.Factor = 0;
      break;
  }
  if (adjacent_) style_.Color = state_.AdjacentColor;
}

void ChannelPlotter::DrawLabel(const StationRecord& record, Point at) {
  const std::string place = NumberText(at.x) + ' ' + NumberText(at.y);
  if (!labelled_.insert(record.CallSign + ' ' + place).second) return;
  canvas_.SetColor(Darkened(style_.Color));
  canvas_.SetFont(kLabelFont);
  const std::string text = NumberText(plotFrequency_) + ' ' + record.CallSign;
  canvas_.Label({at, text, plotFrequency_ == state_.SelectedFrequency, LabelWeight(at, record.PowerKW)});
  canvas_.SetFont(kMapFont);
}

ChannelOutcome ForEachRecord(const DataFolder& folder, float frequency,
                             const std::function<void(StationRecord&)>& use) {
  if (!IsInBand(frequency)) return {};
  const QString name = StationFileName(frequency);
  const Result<QByteArray> bytes = folder.Read(name);
  if (!bytes && bytes.error().kind == Error::Kind::NotFound) return {true, {}};
  if (!bytes) return {false, {bytes.error().Message()}};
  StationFileReader reader(name.toStdString(), {bytes->constData(), static_cast<std::size_t>(bytes->size())});
  while (StationRecord* record = reader.Next()) use(*record);
  return {false, reader.Notes()};
}

ChannelOutcome PlotChannel(Canvas& canvas, const DataFolder& folder, const SessionState& state,
                           const MapProjection& projection, float plotFrequency) {
  ChannelPlotter plotter(canvas, state, projection, plotFrequency);
  PatternValues pattern{};
  return ForEachRecord(folder, plotFrequency, [&](StationRecord& record) {
    if (!Passes(HoursOf(record.HoursCode), state.HoursFilter)) return;
    plotter.Draw(record, HasPattern(record, pattern) ? &pattern : nullptr);
  });
}

}  // namespace kestrel
