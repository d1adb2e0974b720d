#include "map/NightShade.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

#include "RecordingCanvas.h"
#include "core/Geodesy.h"
#include "core/Sphere.h"
#include "core/Sun.h"
#include "map/Sheet.h"

namespace kestrel {
namespace {

/// By the even-odd rule.
bool IsInside(const std::vector<Point>& outline, Point place) {
  bool inside = false;
  for (std::size_t i = 0, j = outline.size() - 1; i < outline.size(); j = i++) {
    const Point a = outline[i], b = outline[j];
    if ((a.y > place.y) != (b.y > place.y) &&
        double{place.x} < a.x + (double{b.x} - a.x) * (double{place.y} - a.y) / (double{b.y} - a.y))
      inside = !inside;
  }
  return inside;
}

/// Looks from home in all directions and asks at each place whether it is shaded as the sun stands there.
/// Places within a third of a degree of the edge, and next to the point opposite to home, are passed over.
void ExpectShadeToFollowTheSun(const Position& home, float scale, Moment moment) {
  RecordingCanvas canvas;
  DrawNightShade(canvas, home, scale, moment);
  const std::vector<Drawn> areas = canvas.All("Area");
  ASSERT_EQ(areas.size(), 2U);
  EXPECT_EQ(areas[0].Text, "twilight");
  EXPECT_EQ(areas[1].Text, "night");
  const Sun sun(moment);
  const double twipsPerDegree = KilometresPerDegree * scale / 75;
  for (double arc = 1; arc < 178; arc += 11.5) {
    for (double bearing = 3; bearing < 360; bearing += 23) {
      const double angle = bearing * std::acos(-1.0) / 180;
      const Point at = {static_cast<float>(HomeOnSheet.x + arc * twipsPerDegree * std::sin(angle)),
                        static_cast<float>(HomeOnSheet.y - arc * twipsPerDegree * std::cos(angle))};
      if (std::max(std::abs(at.x), std::abs(at.y)) >= CoordinateLimit - 200) continue;
      const SpherePoint place = PlaceAlong({home.Latitude, home.Longitude}, {arc, bearing});
      const double elevation = sun.Elevation(SunSite(place.Latitude, place.Longitude));
      for (const auto& [area, level] : {std::pair(0, SunriseElevation), std::pair(1, TwilightElevation)}) {
        if (std::abs(elevation - level) < 0.35) continue;
        ASSERT_EQ(IsInside(areas[static_cast<std::size_t>(area)].Points, at), elevation < level)
            << areas[static_cast<std::size_t>(area)].Text << " at " << place.Latitude << ' '
            << place.Longitude << ", the sun at " << elevation << ", home " << home.Latitude << ' '
            << home.Longitude << ", scale " << scale << ", " << MomentText(moment);
      }
    }
  }
}

TEST(NightShadeTest, ShadesWhereTheSunIsDown) {
  const std::vector<Position> homes = {{33.24F, 96.54F}, {64.84F, 147.72F}, {-53.16F, 70.91F}, {0, 0},
                                       {0, 180},         {90, 0},           {-90, 45}};
  int turn = 0;
  for (const Position& home : homes)
    for (unsigned month = 1; month <= 12; ++month)
      for (const int hour : {2, 13}) {
        const Moment moment =
            std::chrono::sys_days(std::chrono::year(2026) / month / 21) + std::chrono::hours(hour);
        const float scale = std::array{50.0F, 120.0F, 1000.0F}[static_cast<std::size_t>(turn++ % 3)];
        ExpectShadeToFollowTheSun(home, scale, moment);
      }
}

// The edge then passes the point opposite to home, which is the map's whole rim, or home itself.
TEST(NightShadeTest, HoldsWhileTheEdgePassesHomeAndThePointOppositeToIt) {
  for (const Position& home : {Position{33.24F, 96.54F}, Position{-33.4F, 70.6F}, Position{0, 0}}) {
    const SunSite site(home.Latitude, home.Longitude);
    for (const auto& [month, day] : {std::pair(3U, 20U), std::pair(6U, 21U), std::pair(12U, 21U)}) {
      const Moment noon = SunDayAt(site, std::chrono::sys_days(std::chrono::year(2026) / month / day) +
                                             std::chrono::hours(18))
                              .Noon;
      for (const double elevation :
           {-SunriseElevation, SunriseElevation, -TwilightElevation, TwilightElevation}) {
        std::chrono::seconds since{0};
        for (std::chrono::seconds step = std::chrono::hours(8); step.count() > 0; step /= 2)
          if (Sun(noon + since + step).Elevation(site) > elevation) since += step;
        for (const int seconds : {-240, -20, -1, 0, 1, 2, 20, 240})
          for (const float scale : {60.0F, 1500.0F})
            ExpectShadeToFollowTheSun(home, scale, noon + since + std::chrono::seconds(seconds));
      }
    }
  }
}

}  // namespace
}  // namespace kestrel
