#include "straight/Waves.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

#include "core/Sun.h"

namespace kestrel::straight {
namespace {

using Complex = std::complex<double>;

constexpr double kPi = std::numbers::pi;
constexpr double kRadian = kPi / 180;
constexpr double kRadius = 6371;
constexpr Complex kJ = {0, 1};

/// Flat earth, Sommerfeld's attenuation.
Complex FlatEarth(Complex p) {
  if (std::abs(p) < 20) {
    Complex sum = 1.0 - kJ * std::sqrt(kPi * p) * std::exp(-p);
    Complex term = 1;
    for (int n = 1; n < 200; ++n) {
      term *= -2.0 * p / (2.0 * n - 1);
      sum += term;
    }
    return sum;
  }
  Complex sum = 0;
  Complex term = -1.0 / (2.0 * p);
  for (int n = 1; n < 60; ++n) {
    sum += term;
    const Complex next = term * (2.0 * n + 1) / (2.0 * p);
    if (std::abs(next) > std::abs(term)) break;
    term = next;
  }
  return sum;
}

/// The same with the first two terms of the earth's curvature.
Complex NearField(Complex p, Complex q) {
  const Complex c = 1.0 / (q * q * q);
  if (std::abs(p) < 0.05) {
    const Complex s = std::sqrt(p);
    const double root = std::sqrt(kPi);
    return 1.0 - kJ * root * s - 2.0 * p + kJ * root * (1.0 + c / 4.0) * s * p +
           4.0 / 3 * (1.0 + c / 2.0) * p * p - kJ * root / 2.0 * (1.0 + 3.0 * c / 4.0) * s * p * p -
           8.0 / 15 * (1.0 + c + 7.0 * c * c / 32.0) * p * p * p +
           kJ * root / 6.0 * (1.0 + 5.0 * c / 4.0 + c * c / 2.0) * s * p * p * p +
           16.0 / 105 * (1.0 + 3.0 * c / 2.0 + 27.0 * c * c / 32.0) * p * p * p * p;
  }
  const Complex flat = FlatEarth(p);
  const Complex r = std::sqrt(kPi * p);
  return flat + c / 4.0 * (1.0 - kJ * r - (1.0 + 2.0 * p) * flat) +
         c * c / 4.0 * (1.0 - kJ * r * (1.0 - p) - 2.0 * p + 5.0 * p * p / 6.0 + (p * p / 2.0 - 1.0) * flat);
}

/// Root number s, from 1, carried from q = 0 along the straight line.
Complex ResidueRoot(int s, Complex q) {
  const double z = 3 * kPi * (4 * s - 3) / 8;
  const double y =
      s == 1 ? 1.01879297 : std::pow(z, 2.0 / 3) * (1 - 7 / (48 * z * z) + 35 / (288 * z * z * z * z));
  Complex t = std::polar(y, -kPi / 3);
  const int steps = 30 + static_cast<int>(40 * std::abs(q) / std::sqrt(y));
  const Complex h = q / static_cast<double>(steps);
  const auto slope = [](Complex at, Complex on) { return 1.0 / (at - on * on); };
  for (int i = 0; i < steps; ++i) {
    const Complex on = h * static_cast<double>(i);
    const Complex k1 = slope(t, on);
    const Complex k2 = slope(t + h / 2.0 * k1, on + h / 2.0);
    const Complex k3 = slope(t + h / 2.0 * k2, on + h / 2.0);
    const Complex k4 = slope(t + h * k3, on + h);
    t += h / 6.0 * (k1 + 2.0 * k2 + 2.0 * k3 + k4);
  }
  return t;
}

Complex FarField(double x, Complex q) {
  Complex sum = 0;
  for (int s = 1; s <= 40; ++s) {
    const Complex t = ResidueRoot(s, q);
    sum += std::exp(-kJ * x * t) / (t - q * q);
  }
  return std::polar(1.0, -kPi / 4) * std::sqrt(kPi * x) * sum;
}

struct Vector {
  double X, Y, Z;
};

Vector Unit(double latitude, double longitude) {
  return {std::cos(latitude * kRadian) * std::cos(longitude * kRadian),
          std::cos(latitude * kRadian) * std::sin(longitude * kRadian), std::sin(latitude * kRadian)};
}

double Dot(const Vector& a, const Vector& b) {
  return a.X * b.X + a.Y * b.Y + a.Z * b.Z;
}

double Arc(const Vector& a, const Vector& b) {
  const Vector cross = {a.Y * b.Z - a.Z * b.Y, a.Z * b.X - a.X * b.Z, a.X * b.Y - a.Y * b.X};
  return std::atan2(std::sqrt(Dot(cross, cross)), Dot(a, b));
}

struct Place {
  double Latitude, Longitude;
};

/// The place so far along the great circle from a to b.
Place Along(const Vector& a, const Vector& b, double share) {
  const double arc = Arc(a, b);
  const double ka = arc == 0 ? 1 : std::sin((1 - share) * arc) / std::sin(arc);
  const double kb = arc == 0 ? 0 : std::sin(share * arc) / std::sin(arc);
  const Vector at = {ka * a.X + kb * b.X, ka * a.Y + kb * b.Y, ka * a.Z + kb * b.Z};
  return {std::atan2(at.Z, std::hypot(at.X, at.Y)) / kRadian, std::atan2(at.Y, at.X) / kRadian};
}

double LossAt(const Place& place, Moment moment) {
  const SolarClock clock = Sun(moment).ClockAt({place.Latitude, place.Longitude});
  if (clock.Day == SolarClock::Course::PolarNight) return 0;
  if (clock.Day == SolarClock::Course::PolarDay) return 60;
  const double t = clock.HoursAfterSunset();
  const double sunset = t > 4 ? 0 : 12.40 - 9.248 * t + 2.892 * t * t - 0.3343 * t * t * t;
  const double u = clock.HoursAfterSunrise();
  const double sunrise = u < -3 ? 0 : 9.6 + 12.2 * u + 5.62 * u * u + 0.86 * u * u * u;
  const double loss = clock.SunIsUp() ? std::min(sunset, sunrise) : std::max(sunset, sunrise);
  return std::clamp(loss, 0.0, 60.0);
}

}  // namespace

double GroundWaveLevel(double frequencyKHz, double conductivity, double kilometres) {
  const double omega = 2 * kPi * frequencyKHz * 1000;
  const Complex eta = {conductivity >= 1000 ? 80.0 : 15.0, -conductivity / 1000 / (omega * 8.8541878e-12)};
  const Complex delta = std::sqrt(eta - 1.0) / eta;
  const double radius = 6370.0 * 4 / 3;
  const double k = omega / 299792.458;
  const double nu = std::cbrt(k * radius / 2);
  const Complex q = -kJ * nu * delta;
  const double x = nu * kilometres / radius;
  const Complex attenuation = x <= 0.4 ? NearField(kJ * x * q * q, q) : FarField(x, q);
  return 100 + 20 * std::log10(std::abs(attenuation) / kilometres);
}

SkyWave SkyWaveBetween(double latitude, double longitude, double homeLatitude, double homeLongitude) {
  const Vector a = Unit(latitude, longitude);
  const Vector b = Unit(homeLatitude, homeLongitude);
  const Place middle = Along(a, b, 0.5);
  SkyWave wave;
  wave.Distance = kRadius * Arc(a, b);
  wave.GeomagneticLatitude = std::asin(std::sin(middle.Latitude * kRadian) * std::sin(78.5 * kRadian) +
                                       std::cos(middle.Latitude * kRadian) * std::cos(78.5 * kRadian) *
                                           std::cos((69 - middle.Longitude) * kRadian)) /
                             kRadian;
  const double phi = std::min(60.0, std::abs(wave.GeomagneticLatitude));
  const double slant = std::sqrt(40000 + wave.Distance * wave.Distance);
  wave.Median = 97.5 - 20 * std::log10(slant) -
                (2 * kPi + 4.95 * std::pow(std::tan(phi * kRadian), 2)) * std::sqrt(slant / 1000);
  wave.UpperDecile = wave.Median + (phi < 40 ? 6 : phi >= 60 ? 10 : 0.2 * phi - 2);
  const double hop = wave.Distance / 444.54;
  wave.DepartureAngle =
      hop == 0 ? 90 : std::max(0.0, std::atan(0.00752 / std::tan(hop * kRadian)) / kRadian - hop);
  return wave;
}

double CourseBetween(double latitude, double longitude, double toLatitude, double toLongitude) {
  const double difference = (longitude - toLongitude) * kRadian;
  const double phi = latitude * kRadian;
  const double to = toLatitude * kRadian;
  const double course =
      std::atan2(std::sin(difference) * std::cos(to),
                 std::cos(phi) * std::sin(to) - std::sin(phi) * std::cos(to) * std::cos(difference)) /
      kRadian;
  return course < 0 ? course + 360 : course;
}

double HourlyLoss(double latitude, double longitude, double homeLatitude, double homeLongitude,
                  Moment moment) {
  const Vector a = Unit(latitude, longitude);
  const Vector b = Unit(homeLatitude, homeLongitude);
  const double distance = kRadius * Arc(a, b);
  if (distance <= 2000) return LossAt(Along(a, b, 0.5), moment);
  return std::max(LossAt(Along(a, b, 750 / distance), moment),
                  LossAt(Along(a, b, 1 - 750 / distance), moment));
}

}  // namespace kestrel::straight
