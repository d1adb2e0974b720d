#pragma once

#include <array>
#include <optional>

#include "core/Sphere.h"
#include "core/Sun.h"

namespace kestrel {

/// Kilometres in one degree of arc on the sphere of 6371 km, on which all fields are computed.
inline constexpr double FieldKilometresPerDegree = 111.19492664455873;

/// The sky wave of one path at full night (47 CFR 73.190), half-hourly medians over the year, six hours after
/// sunset, for 100 mV/m at 1 km at the departure angle:
///
///     Fc(50) = 97.5 - 20 log D - (2 pi + 4.95 tan^2 Phi) sqrt(D / 1000),   D = sqrt(40000 + d^2)
///     Fc(10) = Fc(50) + 6 below |Phi| = 40, + 10 above 60, + 0.2 |Phi| - 2 between
///     Phi = arcsin(sin a sin 78.5 + cos a cos 78.5 cos(69 - b)), midpoint a, b
///     theta = arctan(k cot(d / 444.54)) - d / 444.54, not below 0;   k = 0.00752, a layer 96.5 km high
///
/// In Fc |Phi| counts 60 at most.
/// Measured up to some 4,000 km and hardly below 100. Neither frequency nor season, sunspots, or the sea near
/// an aerial are in it; within 20 degrees of the geomagnetic equator east-west paths are several dB weaker.
class SkyWave {
 public:
  /// REQUIRES: finite numbers.
  SkyWave(const SpherePoint& transmitter, const SpherePoint& home);

  double Kilometres() const { return kilometres_; }
  /// The true course at the transmitter towards home, 0 to 360.
  double Azimuth() const { return azimuth_; }
  /// Of the midpoint, -90 to 90.
  double GeomagneticLatitude() const { return geomagneticLatitude_; }
  /// Degrees, 0 to 90: 0 from about 2,200 km on, where the path has two hops or more.
  double DepartureAngle() const { return departureAngle_; }
  /// Fc(50) and Fc(10), dB above 1 uV/m.
  double Median() const { return median_; }
  double UpperDecile() const { return upperDecile_; }

  /// How far the sky wave stays below its full night, dB, 0 to 60 (ITU-R P.1147), by the hours t from sunset
  /// and sunrise at the path's midpoint, or, above 2,000 km, at 750 km from both ends, of which the greater
  /// loss counts:
  ///
  ///     at sunset    12.40 - 9.248 t + 2.892 t^2 - 0.3343 t^3,   from 4 h on 0
  ///     at sunrise    9.6 + 12.2 t + 5.62 t^2 + 0.86 t^3,        up to 3 h before it 0
  ///
  /// The greater of the two while the sun is down, the lesser while it is up; 0 in a polar night. Nothing
  /// where there is no sky wave: at 60 dB or more, and on a polar day.
  std::optional<double> HourlyLoss(const Sun& sun) const;

 private:
  double kilometres_ = 0;
  double azimuth_ = 0;
  double geomagneticLatitude_ = 0;
  double departureAngle_ = 0;
  double median_ = 0;
  double upperDecile_ = 0;
  std::array<SunSite, 2> controlPoints_;
  std::size_t controlPointCount_ = 0;
};

}  // namespace kestrel
