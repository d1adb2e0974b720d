#include "map/NightShade.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>

#include "core/Geodesy.h"
#include "core/Sphere.h"
#include "core/Sun.h"
#include "map/Sheet.h"

namespace kestrel {
namespace {

constexpr double kStep = 2;          // degrees of azimuth around the place under the sun
constexpr double kShortChord = 120;  // twips; no finer than this
constexpr int kMostHalvings = 24;    // of a step
constexpr double kRadian = std::numbers::pi / 180;

/// Which sides of the coordinate range a place lies beyond, a bit each.
int Beyond(Point point) {
  return (point.x < -CoordinateLimit) | (point.x > CoordinateLimit) << 1 | (point.y < -CoordinateLimit) << 2 |
         (point.y > CoordinateLimit) << 3;
}

/// Walks the edge of one part of the night.
class EdgeWalk {
 public:
  EdgeWalk(const SpherePoint& home, double twipsPerDegree, const SpherePoint& underSun, double arc)
      : home_(home), twipsPerDegree_(twipsPerDegree), underSun_(underSun), arc_(arc) {}

  /// The edge, closed, dense enough for straight lines between its points.
  std::vector<Point> Points() {
    const Point first = At(0);
    Point last = first;
    for (double azimuth = 0; azimuth < 360; azimuth += kStep) {
      const Point next = azimuth + kStep < 360 ? At(azimuth + kStep) : first;
      points_.push_back(Clamped(last));
      Refine(last, azimuth, next, azimuth + kStep, kMostHalvings);
      last = next;
    }
    return std::move(points_);
  }

 private:
  Point At(double azimuth) const {
    const SphereCourse course = CourseBetween(home_, PlaceAlong(underSun_, {arc_, azimuth}));
    const double bearing = course.Azimuth * kRadian;
    const double radius = course.Arc * twipsPerDegree_;
    return {static_cast<float>(HomeOnSheet.x + radius * std::sin(bearing)),
            static_cast<float>(HomeOnSheet.y - radius * std::cos(bearing))};
  }

  /// Adds points between two of the edge, whose azimuths are given, while a straight line would not do.
  void Refine(const Point& from, double fromAzimuth, const Point& to, double toAzimuth, int halvings) {
    if (halvings == 0 || IsStraight(from, to)) return;
    const double middleAzimuth = (fromAzimuth + toAzimuth) / 2;
    const Point middle = At(middleAzimuth);
    Refine(from, fromAzimuth, middle, middleAzimuth, halvings - 1);
    points_.push_back(Clamped(middle));
    Refine(middle, middleAzimuth, to, toAzimuth, halvings - 1);
  }

  /// Between two of its places the edge turns around home by less than half a circle, even next to the point
  /// opposite to home: where both lie beyond the same side, so does all between them.
  static bool IsStraight(Point from, Point to) {
    return std::hypot(from.x - to.x, from.y - to.y) <= kShortChord || (Beyond(from) & Beyond(to)) != 0;
  }

  const SpherePoint home_;
  const double twipsPerDegree_;
  const SpherePoint underSun_;
  const double arc_;
  std::vector<Point> points_;
};

/// The point opposite to home, drawn as the circle around everything.
std::vector<Point> EarthsRim(double twipsPerDegree) {
  std::vector<Point> rim;
  for (int bearing = 0; bearing <= 360; ++bearing) {
    const double angle = bearing * kRadian;
    const double radius = 180 * twipsPerDegree;
    rim.push_back(Clamped({static_cast<float>(HomeOnSheet.x + radius * std::sin(angle)),
                           static_cast<float>(HomeOnSheet.y - radius * std::cos(angle))}));
  }
  return rim;
}

}  // namespace

void DrawNightShade(Canvas& canvas, const Position& home, float scaleFactor, Moment moment) {
  const Sun sun(moment);
  const SpherePoint homePoint = {home.Latitude, home.Longitude};
  const SpherePoint underSun = {sun.Declination(), sun.GreenwichHourAngle()};
  const double twipsPerDegree = KilometresPerDegree * scaleFactor / 75;
  const double elevationAtHome = sun.Elevation(SunSite(home.Latitude, home.Longitude));

  const auto shade = [&](std::string_view name, ColorValue color, double elevation) {
    std::vector<Point> outline = EdgeWalk(homePoint, twipsPerDegree, underSun, 90 - elevation).Points();
    const bool oppositeIsDark = -elevationAtHome < elevation;
    if (oppositeIsDark) {
      // One line around both, there and back along the same way.
      outline.push_back(outline.front());
      const std::vector<Point> rim = EarthsRim(twipsPerDegree);
      outline.insert(outline.end(), rim.begin(), rim.end());
    }
    canvas.SetColor(color);
    canvas.Area(name, outline);
  };
  shade("twilight", Palette::Twilight, SunriseElevation);
  shade("night", Palette::Night, TwilightElevation);
}

}  // namespace kestrel
