#include "straight/Drawing.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <optional>
#include <set>

#include "core/Band.h"
#include "core/Geodesy.h"
#include "core/Numbers.h"
#include "draw/PainterCanvas.h"
#include "map/ChannelPlot.h"
#include "map/Compass.h"
#include "map/Legend.h"
#include "straight/Formulas.h"
#include "straight/Reading.h"

namespace kestrel::straight {
namespace {

constexpr Font kLabelFont = {FontFace::Sans, 8};

/// Draws on an image in the sheet's twips.
class Plot {
 public:
  Plot(QImage& image, const std::string& folder, const SessionState& state, bool labels)
      : folder_(folder), state_(state), labels_(labels), painter_(&image) {
    image.fill(Qt::white);
    rules_.Fit = FitSheet(static_cast<float>(image.width()), static_cast<float>(image.height()));
    rules_.Area = QRectF(image.rect());
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setFont(
        PlatformFont(kLabelFont.Face, SurfaceView(rules_).FontSize(kLabelFont), image.logicalDpiY()));
  }

  void Outlines(const std::string& name, ColorValue color) {
    const Outline outline = ReadOutline(folder_ + "/" + name);
    painter_.setPen(PlatformColor(color));
    std::optional<Point> previous;
    auto penUp = outline.PenUpBefore.begin();
    for (std::size_t i = 0; i < outline.Latitude.size(); ++i) {
      const std::span<const float> latitude(&outline.Latitude[i], 1);
      const std::span<const float> longitude(&outline.Longitude[i], 1);
      Point point;
      PlaceByGreatCircle(state_.HomeLatitude, state_.HomeLongitude, state_.ScaleFactor, latitude, longitude,
                         {&point, 1});
      for (; penUp != outline.PenUpBefore.end() && *penUp <= i; ++penUp) previous.reset();
      if (previous && std::abs(point.x - previous->x) <= 2000 && std::abs(point.y - previous->y) <= 2000)
        Line(*previous, point);
      previous = point;
    }
  }

  void Channel(float channel) {
    StationReader reader(folder_ + "/" + NumberText(channel) + "x.dat");
    std::set<std::string> labelled;
    PatternValues values{};
    while (StationRecord* record = reader.Next()) {
      if (!Passes(HoursOf(record->HoursCode), state_.HoursFilter)) continue;
      const Point at = Station(*record);
      const ColorValue color = Color(channel, record->HoursCode);
      const bool adjacent = state_.AdjacentsShown == 1 && channel != state_.SelectedFrequency;
      painter_.setPen(QPen(PlatformColor(color), adjacent ? 1 : PatternLineWidth));
      if (record->TowerCount > 0 && straight::ComputePattern(*record, values))
        Outline180(at, Factor(record->HoursCode), values);
      else
        Dot(at, 30);
      Label(at, NumberText(channel) + ' ' + record->CallSign, Darkened(PlatformColor(color)), labelled,
            record->CallSign);
    }
  }

  void ScannedChannel(float channel) {
    StationReader reader(folder_ + "/" + NumberText(channel) + "x.dat");
    std::set<std::string> labelled;
    while (const StationRecord* record = reader.Next()) {
      const Point at = Station(*record);
      Label(at, NumberText(channel), QColor(0x20, 0x20, 0x20), labelled, "");
      painter_.setPen(Qt::red);
      Line({at.x - 16, at.y}, {at.x + 16, at.y});
      Line({at.x, at.y - 16}, {at.x, at.y + 16});
    }
  }

  void Panels() {
    PainterCanvas canvas(painter_, rules_);
    DrawLegend(canvas, state_);
    if (state_.CompassShown == 1) DrawCompass(canvas, state_.AspectRatio);
  }

 private:
  QPointF At(Point sheet) const {
    const Point at = rules_.Fit.ToSurface(Clamped(sheet));
    return {at.x, at.y};
  }

  void Line(Point from, Point to) { painter_.drawLine(At(from), At(to)); }

  void Dot(Point at, float radius) {
    const double pixels = double{radius} * rules_.Fit.Scale;
    painter_.setBrush(painter_.pen().color());
    painter_.drawEllipse(At(at), pixels, pixels);
    painter_.setBrush(Qt::NoBrush);
  }

  Point Station(const StationRecord& record) const {
    const float longitude = -record.Longitude;
    Point point;
    PlaceByGreatCircle(state_.HomeLatitude, state_.HomeLongitude, state_.ScaleFactor, {&record.Latitude, 1},
                       {&longitude, 1}, {&point, 1});
    return Clamped(point);
  }

  static double Factor(const std::string& hours) {
    return hours == "N" ? 0.96 : hours == "C" ? 0.98 : hours == "D" ? 1 : 1.02;
  }

  ColorValue Color(float channel, const std::string& hours) const {
    if (state_.AdjacentsShown == 1 && channel != state_.SelectedFrequency) return state_.AdjacentColor;
    return hours == "N"   ? state_.NightColor
           : hours == "C" ? state_.CriticalColor
           : hours == "D" ? state_.DayColor
                          : state_.UnlimitedColor;
  }

  void Outline180(Point at, double factor, const PatternValues& values) {
    const double size = factor * state_.PatternSize * state_.ScaleFactor;
    Point first;
    Point previous;
    for (std::size_t k = 1; k < 360; k += 2) {
      const double bearing = static_cast<double>(k - 1) / DegreesPerRadian;
      const Point point = {
          static_cast<float>(at.x + state_.AspectRatio * size * std::sin(bearing) * values[k]),
          static_cast<float>(at.y - size * std::cos(bearing) * values[k])};
      if (k == 1)
        first = point;
      else
        Line(previous, point);
      previous = point;
    }
    Line(previous, first);
  }

  static QColor Darkened(QColor color) {
    return QColor(color.red() * 11 / 20, color.green() * 11 / 20, color.blue() * 11 / 20);
  }

  void Label(Point at, const std::string& text, QColor labelColor, std::set<std::string>& labelled,
             const std::string& callSign) {
    if (!labels_ || !labelled.insert(callSign + ' ' + NumberText(at.x) + ' ' + NumberText(at.y)).second)
      return;
    const Point base = SurfaceView(rules_).Baseline({at.x - 60, at.y - 210}, kLabelFont);
    painter_.setPen(labelColor);
    painter_.drawText(QPointF(base.x, base.y), QString::fromStdString(text));
  }

  const std::string& folder_;
  const SessionState& state_;
  const bool labels_;
  SurfaceRules rules_;
  QPainter painter_;
};

}  // namespace

void DrawMainMap(QImage& image, const std::string& folder, const SessionState& state, bool labels) {
  Plot plot(image, folder, state, labels);
  plot.Outlines("STATES.dat", 0xDD9999);
  plot.Outlines("REGION2.dat", 0xCC8888);
  plot.Channel(state.CurrentFrequency);
  if (state.AdjacentsShown == 1) {
    plot.Channel(state.CurrentFrequency - ChannelStep);
    plot.Channel(state.CurrentFrequency + ChannelStep);
  }
  plot.Panels();
}

void DrawScan(QImage& image, const std::string& folder, const SessionState& state, bool labels) {
  Plot plot(image, folder, state, labels);
  plot.Outlines("STATES.dat", 0xDD9999);
  plot.Outlines("REGION2.dat", 0xCC8888);
  for (float channel = LowestChannel; channel <= HighestChannel; channel += ChannelStep)
    plot.ScannedChannel(channel);
}

}  // namespace kestrel::straight
