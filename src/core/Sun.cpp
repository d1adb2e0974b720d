#include "core/Sun.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kestrel {
namespace {

constexpr double kRadian = std::numbers::pi / 180;
constexpr double kDaysOfCentury = 36525;
constexpr double kDynamicalLead = 69.0 / 86400;  // days

double Sine(double degrees) {
  return std::sin(degrees * kRadian);
}

double Cosine(double degrees) {
  return std::cos(degrees * kRadian);
}

double To180(double degrees) {
  return std::remainder(degrees, 360);
}

/// The culmination nearest to a time, the upper one (0) or the lower one (180).
double Culmination(const SunSite& site, double days, double hourAngle) {
  for (int round = 0; round < 4; ++round) days -= To180(Sun(days).HourAngle(site) - hourAngle) / 360;
  return days;
}

/// When the sun passes the elevation between two culminations; nothing when it does not.
std::optional<Moment> Passage(const SunSite& site, double low, double high, double elevation) {
  const auto isAbove = [&](double days) { return Sun(days).Elevation(site) >= elevation; };
  const bool before = isAbove(low);
  if (before == isAbove(high)) return std::nullopt;
  constexpr double kTenthOfSecond = 0.1 / 86400;
  while (high - low > kTenthOfSecond) {
    const double middle = (low + high) / 2;
    (isAbove(middle) == before ? low : high) = middle;
  }
  return MomentOfDays((low + high) / 2);
}

}  // namespace

SunSite::SunSite(double latitude, double longitudeWest)
    : SineLatitude(Sine(std::clamp(latitude, -89.99, 89.99))),
      CosineLatitude(Cosine(std::clamp(latitude, -89.99, 89.99))),
      Longitude(To180(longitudeWest)) {}

bool SolarClock::SunIsUp() const {
  return Day == Course::PolarDay || (Day == Course::Usual && std::abs(HourAngle) <= HalfDay);
}

double SolarClock::HoursAfterSunrise() const {
  const double after = HourAngle + HalfDay;
  return (HourAngle > HalfDay ? after - 360 : after) / 15;
}

double SolarClock::HoursAfterSunset() const {
  const double after = HourAngle - HalfDay;
  return (HourAngle < -HalfDay ? after + 360 : after) / 15;
}

Sun::Sun(double daysSince2000) {
  const double t = (daysSince2000 + kDynamicalLead) / kDaysOfCentury;
  const double meanLongitude = 280.46646 + t * (36000.76983 + t * 0.0003032);
  const double anomaly = 357.52911 + t * (35999.05029 - t * 0.0001537);
  const double center = (1.914602 - t * (0.004817 + t * 0.000014)) * Sine(anomaly) +
                        (0.019993 - 0.000101 * t) * Sine(2 * anomaly) + 0.000289 * Sine(3 * anomaly);
  const double node = 125.04 - 1934.136 * t;
  const double sineNode = Sine(node);
  const double longitude = meanLongitude + center - 0.00569 - 0.00478 * sineNode;
  const double obliquity =
      23.4392911 - t * (46.8150 + t * (0.00059 - t * 0.001813)) / 3600 + 0.00256 * Cosine(node);
  const double cosineObliquity = Cosine(obliquity);
  const double sineLongitude = Sine(longitude);
  sineDeclination_ = Sine(obliquity) * sineLongitude;
  cosineDeclination_ = std::sqrt(1 - sineDeclination_ * sineDeclination_);
  const double rightAscension = std::atan2(cosineObliquity * sineLongitude, Cosine(longitude)) / kRadian;

  const double tu = daysSince2000 / kDaysOfCentury;
  const double sidereal = 280.46061837 + 360.98564736629 * daysSince2000 + 0.000387933 * tu * tu -
                          0.00478 * sineNode * cosineObliquity;
  const double hourAngle = std::fmod(sidereal - rightAscension, 360);
  greenwichHourAngle_ = hourAngle < 0 ? hourAngle + 360 : hourAngle;
}

double Sun::Declination() const {
  return std::asin(sineDeclination_) / kRadian;
}

double Sun::HourAngle(const SunSite& site) const {
  return To180(greenwichHourAngle_ - site.Longitude);
}

double Sun::Elevation(const SunSite& site) const {
  const double sine = site.SineLatitude * sineDeclination_ +
                      site.CosineLatitude * cosineDeclination_ * Cosine(HourAngle(site));
  return std::asin(std::clamp(sine, -1.0, 1.0)) / kRadian;
}

SolarClock Sun::ClockAt(const SunSite& site) const {
  static const double sineSunrise = Sine(SunriseElevation);
  const double cosine =
      (sineSunrise - site.SineLatitude * sineDeclination_) / (site.CosineLatitude * cosineDeclination_);
  SolarClock clock;
  clock.HourAngle = HourAngle(site);
  if (cosine > 1) {
    clock.Day = SolarClock::Course::PolarNight;
    clock.HalfDay = 0;
  } else if (cosine < -1) {
    clock.Day = SolarClock::Course::PolarDay;
    clock.HalfDay = 180;
  } else {
    clock.HalfDay = std::acos(cosine) / kRadian;
  }
  return clock;
}

double LocalMeanNoon(const SunSite& site, double daysSince2000) {
  // Days since 2000 are whole at noon of Greenwich.
  return std::round(daysSince2000 - site.Longitude / 360) + site.Longitude / 360;
}

SunDay SunDayAt(const SunSite& site, Moment moment) {
  const double noon = Culmination(site, LocalMeanNoon(site, DaysSince2000(moment)), 0);
  const double before = Culmination(site, noon - 0.5, 180);
  const double after = Culmination(site, noon + 0.5, 180);
  SunDay day;
  day.Noon = MomentOfDays(noon);
  day.Dawn = Passage(site, before, noon, TwilightElevation);
  day.Sunrise = Passage(site, before, noon, SunriseElevation);
  day.Sunset = Passage(site, noon, after, SunriseElevation);
  day.Dusk = Passage(site, noon, after, TwilightElevation);
  if (!day.Sunrise && !day.Sunset)
    day.Course = Sun(noon).Elevation(site) >= SunriseElevation ? SolarClock::Course::PolarDay
                                                               : SolarClock::Course::PolarNight;
  return day;
}

}  // namespace kestrel
