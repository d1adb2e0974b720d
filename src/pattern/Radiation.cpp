#include "pattern/Radiation.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>
#include <utility>
#include <vector>

namespace kestrel {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kRadian = kPi / 180;
constexpr double kQuarterWave = kPi / 2;
constexpr double kImpedanceOfSpace = 376.73;  // ohms

/// f at an elevation, as products of sines: differences of cosines lose a short tower's digits.
double VerticalFactor(double height, double sine, double cosine) {
  if (!(cosine > 1e-12)) return 0;
  const double half = std::sin(height / 2);
  return std::sin(height * (1 + sine) / 2) * std::sin(height * (1 - sine) / 2) / (half * half * cosine);
}

/// Gauss-Legendre nodes and weights for the interval 0 to 1.
struct GaussRule {
  struct Node {
    double Sine, Cosine, Weight;  // the node is a sine of elevation
  };
  std::vector<Node> Nodes;

  explicit GaussRule(int count) {
    for (int i = 0; i < count; ++i) {
      double x = std::cos(kPi * (i + 0.75) / (count + 0.5));
      double slope = 1;
      for (int round = 0; round < 8; ++round) {
        double last = 1;
        double value = x;
        for (int n = 2; n <= count; ++n)
          last = std::exchange(value, ((2 * n - 1) * x * value - (n - 1) * last) / n);
        slope = count * (x * value - last) / (x * x - 1);
        x -= value / slope;
      }
      const double sine = (1 + x) / 2;
      Nodes.push_back({sine, std::sqrt((1 - sine) * (1 + sine)), 1 / ((1 - x * x) * slope * slope)});
    }
  }
};

/// The rule for integrands that turn by so many radians from the horizon to the zenith.
std::span<const GaussRule::Node> RuleFor(double radians) {
  static const GaussRule few(16), more(24), most(48);
  return radians < 8 ? few.Nodes : radians < 20 ? more.Nodes : most.Nodes;
}

}  // namespace

Radiation::Radiation(const StationRecord& record) : powerKW_(std::max(0.0F, record.PowerKW)) {
  double north = 0;
  double east = 0;
  for (std::size_t i = 1; i <= static_cast<std::size_t>(record.TowerCount); ++i) {
    const bool chained = record.Switch[i] != "0";
    const double spacing = record.Spacings[i] * kRadian;
    const double bearing = record.Bearings[i] * kRadian;
    north = (chained ? north : 0) + spacing * std::cos(bearing);
    east = (chained ? east : 0) + spacing * std::sin(bearing);
    patternIsKnown_ = patternIsKnown_ || record.Fields[i] != 0;
    AddTower(record.Fields[i], record.Heights[i] * kRadian, north, east, record.Phases[i] * kRadian);
  }
  if (!patternIsKnown_) {
    count_ = 0;
    AddTower(1, kQuarterWave, 0, 0, 0);
  }
  shortest_ = towers_[0].Height;
  double squares = 0;
  for (const Tower& tower : std::span(towers_.data(), count_)) {
    shortest_ = std::min(shortest_, tower.Height);
    squares += tower.Field * tower.Field;
  }
  rootSumSquare_ = std::sqrt(squares);
  // K0 and the loss in one: K^2 = P / (I / 376.73 + sum of the ohms seen by the ratios), P in watts.
  constant_ = std::sqrt(1000 * powerKW_ / (PowerIntegral() / kImpedanceOfSpace + LossResistance()));
}

void Radiation::AddTower(double field, double height, double north, double east, double phase) {
  const bool isHeight = height > 0 && 1 - std::cos(height) != 0;
  towers_[count_++] = {field, isHeight ? height : kQuarterWave, north, east, phase};
}

double Radiation::PowerIntegral() const {
  std::array<std::array<double, MaxTowers>, MaxTowers> product;   // of a pair's ratios and cosine of phases
  std::array<std::array<double, MaxTowers>, MaxTowers> distance;  // radians
  double farthest = 0;
  double tallest = 0;
  for (std::size_t i = 0; i < count_; ++i) {
    tallest = std::max(tallest, towers_[i].Height);
    for (std::size_t k = 0; k < i; ++k) {
      product[i][k] = 2 * towers_[i].Field * towers_[k].Field * std::cos(towers_[i].Phase - towers_[k].Phase);
      distance[i][k] = std::hypot(towers_[i].North - towers_[k].North, towers_[i].East - towers_[k].East);
      farthest = std::max(farthest, distance[i][k]);
    }
  }
  double integral = 0;
  for (const auto& [sine, cosine, weight] : RuleFor(farthest + 2 * tallest)) {
    std::array<double, MaxTowers> factor;
    double sum = 0;
    for (std::size_t i = 0; i < count_; ++i) {
      const bool asBefore = i > 0 && towers_[i].Height == towers_[i - 1].Height;
      factor[i] = asBefore ? factor[i - 1] : VerticalFactor(towers_[i].Height, sine, cosine);
      sum += towers_[i].Field * towers_[i].Field * factor[i] * factor[i];
      for (std::size_t k = 0; k < i; ++k)
        sum += product[i][k] * factor[i] * factor[k] * ::j0(distance[i][k] * cosine);
    }
    integral += weight * sum;
  }
  return std::max(0.0, 2 * kPi * integral);
}

double Radiation::LossResistance() const {
  double resistance = 0;
  for (const Tower& tower : std::span(towers_.data(), count_)) {
    const double half = std::sin(tower.Height / 2);
    double current = tower.Field / (59.96 * 2 * half * half);
    if (tower.Height < kQuarterWave) current *= std::sin(tower.Height);
    resistance += current * current;
  }
  return resistance;
}

double Radiation::FieldAt(double azimuth, double elevation) const {
  const double sine = std::sin(elevation * kRadian);
  const double cosine = std::cos(elevation * kRadian);
  const double northward = std::cos(azimuth * kRadian) * cosine;
  const double eastward = std::sin(azimuth * kRadian) * cosine;
  double sines = 0;
  double cosines = 0;
  for (const Tower& tower : std::span(towers_.data(), count_)) {
    const double factor = tower.Field * VerticalFactor(tower.Height, sine, cosine);
    const double psi = tower.North * northward + tower.East * eastward + tower.Phase;
    sines += factor * std::sin(psi);
    cosines += factor * std::cos(psi);
  }
  const double theoretical = constant_ * std::hypot(sines, cosines);
  if (count_ == 1) return theoretical;
  double shape = VerticalFactor(shortest_, sine, cosine);
  if (shortest_ > kPi) shape = std::sqrt(shape * shape + 0.0625) / 1.030776;
  const double quadrature = shape * std::max(0.025 * constant_ * rootSumSquare_, 10 * std::sqrt(powerKW_));
  return 1.05 * std::hypot(theoretical, quadrature);
}

}  // namespace kestrel
