#include "field/SkyWave.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>

namespace kestrel {
namespace {

constexpr double kRadian = std::numbers::pi / 180;
constexpr double kNoSkyWave = 60;             // dB of loss
constexpr double kLongestSinglePoint = 2000;  // km
constexpr double kControlPointFromEnd = 750;  // km

/// Below 60 dB and not below 0, or 60.
double LossAt(const SolarClock& clock) {
  if (clock.Day == SolarClock::Course::PolarNight) return 0;
  if (clock.Day == SolarClock::Course::PolarDay) return kNoSkyWave;
  const double t = clock.HoursAfterSunset();
  const double sunset = t > 4 ? 0 : 12.40 + t * (-9.248 + t * (2.892 - t * 0.3343));
  const double u = clock.HoursAfterSunrise();
  const double sunrise = u < -3 ? 0 : 9.6 + u * (12.2 + u * (5.62 + u * 0.86));
  const double loss = clock.SunIsUp() ? std::min(sunset, sunrise) : std::max(sunset, sunrise);
  return std::clamp(loss, 0.0, kNoSkyWave);
}

double GeomagneticLatitudeOf(const SpherePoint& place) {
  constexpr double kPoleLatitude = 78.5 * kRadian;
  const double latitude = place.Latitude * kRadian;
  const double sine =
      std::sin(latitude) * std::sin(kPoleLatitude) +
      std::cos(latitude) * std::cos(kPoleLatitude) * std::cos((69 - place.Longitude) * kRadian);
  return std::asin(std::clamp(sine, -1.0, 1.0)) / kRadian;
}

double DepartureAngleAt(double kilometres) {
  const double hop = kilometres / 444.54;  // degrees
  const double angle = std::atan2(0.00752 * std::cos(hop * kRadian), std::sin(hop * kRadian)) / kRadian;
  return std::max(0.0, angle - hop);
}

}  // namespace

SkyWave::SkyWave(const SpherePoint& transmitter, const SpherePoint& home)
    : azimuth_(CourseBetween(transmitter, home).Azimuth) {
  const SphereCourse fromHome = CourseBetween(home, transmitter);
  kilometres_ = fromHome.Arc * FieldKilometresPerDegree;
  const auto place = [&](double kilometres) {
    return PlaceAlong(home, {kilometres / FieldKilometresPerDegree, fromHome.Azimuth});
  };
  const auto site = [](const SpherePoint& point) { return SunSite(point.Latitude, point.Longitude); };
  const SpherePoint middle = place(kilometres_ / 2);
  if (kilometres_ <= kLongestSinglePoint) {
    controlPoints_[controlPointCount_++] = site(middle);
  } else {
    controlPoints_[controlPointCount_++] = site(place(kControlPointFromEnd));
    controlPoints_[controlPointCount_++] = site(place(kilometres_ - kControlPointFromEnd));
  }

  geomagneticLatitude_ = GeomagneticLatitudeOf(middle);
  departureAngle_ = DepartureAngleAt(kilometres_);
  const double phi = std::min(60.0, std::abs(geomagneticLatitude_));
  const double tangent = std::tan(phi * kRadian);
  const double slant = std::sqrt(40000 + kilometres_ * kilometres_);
  median_ = 97.5 - 20 * std::log10(slant) -
            (2 * std::numbers::pi + 4.95 * tangent * tangent) * std::sqrt(slant / 1000);
  upperDecile_ = median_ + std::clamp(0.2 * phi - 2, 6.0, 10.0);
}

std::optional<double> SkyWave::HourlyLoss(const Sun& sun) const {
  double loss = 0;
  for (const SunSite& point : std::span(controlPoints_).first(controlPointCount_))
    loss = std::max(loss, LossAt(sun.ClockAt(point)));
  if (loss >= kNoSkyWave) return std::nullopt;
  return loss;
}

}  // namespace kestrel
