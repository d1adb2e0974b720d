#pragma once

#include <optional>

#include "core/Moment.h"

// The sun seen from the ground. Degrees throughout, latitude north and longitude WEST positive. Elevations
// are those of the sun's centre without refraction; the horizon of sunrise and sunset is therefore at
// SunriseElevation.

namespace kestrel {

inline constexpr double SunriseElevation = -0.833;  ///< the upper edge on the horizon, mean refraction
inline constexpr double TwilightElevation = -6;     ///< the end of civil twilight

/// A place whose sine and cosine of latitude are at hand. The latitude is brought to -89.99 to 89.99, where
/// there still is a course of the day.
struct SunSite {
  double SineLatitude = 0;
  double CosineLatitude = 1;
  double Longitude = 0;  ///< WEST positive

  SunSite() = default;
  /// REQUIRES: finite numbers.
  SunSite(double latitude, double longitudeWest);
};

/// How far the day has come at a place: the hour angle of the sun and that of sunrise and sunset on the same
/// declination.
struct SolarClock {
  enum class Course { Usual, PolarDay, PolarNight };

  Course Day = Course::Usual;
  double HourAngle = 0;  ///< -180 to 180, 0 at noon, positive after it
  double HalfDay = 0;    ///< of the sunset, 0 to 180; 180 on a polar day, 0 in a polar night

  bool SunIsUp() const;
  /// Hours since the sun rose, negative before it does: counted from the sunrise of this day while the sun is
  /// up, to the next one while it is down. REQUIRES: neither polar day nor polar night.
  double HoursAfterSunrise() const;
  /// Hours since the sun set, negative before it does: to the sunset of this day while the sun is up, from
  /// the last one while it is down. REQUIRES: neither polar day nor polar night.
  double HoursAfterSunset() const;
};

/// The sun at one moment, within 0.01 degree from 1950 to 2100 (J. Meeus, Astronomical Algorithms, chapter
/// 25, low accuracy; T in centuries of dynamical time since 2000, which is taken as universal time plus 69
/// s):
///
///     L0 = 280.46646 + 36000.76983 T + 0.0003032 T^2                        mean longitude
///     M = 357.52911 + 35999.05029 T - 0.0001537 T^2                         mean anomaly
///     C = (1.914602 - 0.004817 T) sin M + (0.019993 - 0.000101 T) sin 2M + 0.000289 sin 3M
///     lambda = L0 + C - 0.00569 - 0.00478 sin(125.04 - 1934.136 T)          apparent longitude
///     sin(declination) = sin(obliquity) sin(lambda)
///     sin(elevation) = sin(latitude) sin(declination) + cos(latitude) cos(declination) cos(hour angle)
class Sun {
 public:
  explicit Sun(Moment moment) : Sun(DaysSince2000(moment)) {}
  explicit Sun(double daysSince2000);

  /// -23.5 to 23.5; with GreenwichHourAngle() as longitude WEST it is the place that has the sun overhead.
  double Declination() const;
  /// 0 to 360.
  double GreenwichHourAngle() const { return greenwichHourAngle_; }

  double Elevation(const SunSite& site) const;
  /// -180 to 180.
  double HourAngle(const SunSite& site) const;
  SolarClock ClockAt(const SunSite& site) const;

 private:
  double sineDeclination_;
  double cosineDeclination_;
  double greenwichHourAngle_;
};

/// The sun's events around one noon. An event is nothing when there is none between that noon and the
/// midnights of the sun beside it.
struct SunDay {
  Moment Noon;  ///< upper culmination
  std::optional<Moment> Dawn, Sunrise, Sunset, Dusk;
  SolarClock::Course Course = SolarClock::Course::Usual;  ///< polar when the sun neither rises nor sets
};

/// The day of the site's local mean solar time that `moment` falls into. To a few seconds between 70 S and
/// 70 N.
SunDay SunDayAt(const SunSite& site, Moment moment);

/// Noon of the local mean solar day that holds a moment, in days since 2000, both.
double LocalMeanNoon(const SunSite& site, double daysSince2000);

}  // namespace kestrel
