#include "field/GroundWave.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <numbers>

namespace kestrel {
namespace {

using Complex = std::complex<double>;

constexpr double kPi = std::numbers::pi;
constexpr Complex kJ = {0, 1};
constexpr double kEarthRadius = 6370.0 * 4 / 3;  // km, widened for the mean bending of the air
constexpr double kLightSpeed = 299792.458;       // km/s
constexpr double kSaltWater = 1000;              // mS/m
constexpr double kChangeOver = 0.4;              // of x
constexpr int kResidues = 40;
constexpr std::size_t kDistances = 512;
constexpr double kFarthest = 5000;  // km

const double kStep = std::log(kFarthest) / (kDistances - 1);

/// Without the care for infinities that the library's division takes.
Complex Inverse(Complex z) {
  return std::conj(z) / std::norm(z);
}

/// 1 - j sqrt(pi p) exp(-p) erfc(j sqrt p).
Complex FlatEarth(Complex p) {
  if (std::norm(p) < 400) {
    Complex sum = 1.0 - kJ * std::sqrt(kPi * p) * std::exp(-p);
    Complex term = 1;
    for (int n = 1; n < 200 && std::norm(term) > 1e-30; ++n) {
      term *= p * (-2.0 / (2 * n - 1));
      sum += term;
    }
    return sum;
  }
  const Complex inverse = Inverse(2.0 * p);
  Complex sum = 0;
  Complex term = -inverse;
  for (int n = 1; n < 20; ++n) {  // beyond, the terms of |p| = 20 grow again
    sum += term;
    term *= inverse * (2.0 * n + 1);
  }
  return sum;
}

/// F for small x: the flat earth's with the terms of 1 / q^3 and 1 / q^6.
Complex NearField(Complex p, Complex c) {
  const double root = std::sqrt(kPi);
  if (std::norm(p) < 0.05 * 0.05) {  // where the brackets below cancel, the same in powers
    const Complex s = std::sqrt(p);
    const Complex even =
        1.0 + p * (-2.0 + p * (4.0 / 3 * (1.0 + c / 2.0) +
                               p * (-8.0 / 15 * (1.0 + c * (1.0 + c * (7.0 / 32))) +
                                    p * (16.0 / 105 * (1.0 + c * (1.5 + c * (27.0 / 32)))))));
    const Complex odd =
        -1.0 +
        p * (1.0 + c / 4.0 + p * (-0.5 * (1.0 + c * 0.75) + p * (1.0 / 6 * (1.0 + c * (1.25 + c / 2.0)))));
    return even + kJ * root * s * odd;
  }
  const Complex flat = FlatEarth(p);
  const Complex r = root * std::sqrt(p);
  const Complex first = 1.0 - kJ * r - (1.0 + 2.0 * p) * flat;
  const Complex second = 1.0 - kJ * r * (1.0 - p) + p * (-2.0 + p * (5.0 / 6)) + (p * p / 2.0 - 1.0) * flat;
  return flat + c / 4.0 * (first + c * second);
}

/// The sum over residues, for x above kChangeOver.
class FarField {
 public:
  explicit FarField(Complex q) {
    for (int s = 1; s <= kResidues; ++s) {
      const Complex root = Root(s, q);
      terms_[static_cast<std::size_t>(s - 1)] = {root, Inverse(root - q * q)};
    }
  }

  Complex At(double x) const {
    Complex sum = 0;
    for (const auto& [root, weight] : terms_) {
      const double size = std::exp(x * root.imag());
      const Complex term = std::polar(size, -x * root.real()) * weight;
      sum += term;
      if (std::norm(term) < 1e-12 * std::norm(sum)) break;
    }
    return std::polar(std::sqrt(kPi * x), -kPi / 4) * sum;
  }

 private:
  struct Term {
    Complex Root, Weight;
  };

  /// Root number s, counted from 1: the one of q = 0 carried along dt/dq = 1 / (t - q^2) (Runge-Kutta).
  static Complex Root(int s, Complex q) {
    const double z = 3 * kPi * (4 * s - 3) / 8;
    const double y =
        s == 1 ? 1.01879297 : std::pow(z, 2.0 / 3) * (1 - 7 / (48 * z * z) + 35 / (288 * z * z * z * z));
    Complex t = std::polar(y, -kPi / 3);
    const int steps = 30 + static_cast<int>(40 * std::abs(q) / std::sqrt(y));
    const Complex h = q / static_cast<double>(steps);
    for (int i = 0; i < steps; ++i) {
      const Complex from = h * static_cast<double>(i);
      const Complex middle = from + 0.5 * h;
      const Complex to = from + h;
      const Complex k1 = h * Inverse(t - from * from);
      const Complex k2 = h * Inverse(t + 0.5 * k1 - middle * middle);
      const Complex k3 = h * Inverse(t + 0.5 * k2 - middle * middle);
      const Complex k4 = h * Inverse(t + k3 - to * to);
      t += (k1 + 2.0 * (k2 + k3) + k4) / 6.0;
    }
    return t;
  }

  std::array<Term, kResidues> terms_;
};

/// eta: the ground's complex relative permittivity.
Complex Permittivity(double angularFrequency, double conductivity) {
  constexpr double kElectricConstant = 8.8541878e-12;  // F/m
  return {conductivity >= kSaltWater ? 80.0 : 15.0,
          -conductivity / 1000 / (angularFrequency * kElectricConstant)};
}

}  // namespace

GroundWave::GroundWave(double frequencyKHz, double conductivity) {
  const double angularFrequency = 2000 * kPi * frequencyKHz;
  const Complex eta = Permittivity(angularFrequency, conductivity);
  const double nu = std::cbrt(angularFrequency / kLightSpeed * kEarthRadius / 2);
  const Complex q = -kJ * nu * std::sqrt(eta - 1.0) / eta;
  const Complex curvature = Inverse(q * q * q);
  const FarField far(q);
  for (std::size_t i = 0; i < kDistances; ++i) {
    const double kilometres = std::exp(kStep * static_cast<double>(i));
    const double x = nu * kilometres / kEarthRadius;
    const Complex attenuation = x <= kChangeOver ? NearField(kJ * x * q * q, curvature) : far.At(x);
    levels_.push_back(100 + 10 * std::log10(std::norm(attenuation)) - 20 * std::log10(kilometres));
  }
}

double GroundWave::LevelAt(double kilometres) const {
  const double steps = std::log(std::max(1.0, kilometres)) / kStep;
  const std::size_t i = std::min(static_cast<std::size_t>(steps), kDistances - 2);
  return levels_[i] + (levels_[i + 1] - levels_[i]) * (steps - static_cast<double>(i));
}

}  // namespace kestrel
