#include "straight/Antenna.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

namespace kestrel::straight {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kRadian = kPi / 180;

double VerticalFactor(double height, double elevation) {
  if (std::cos(elevation) < 1e-12) return 0;
  return (std::cos(height * std::sin(elevation)) - std::cos(height)) /
         ((1 - std::cos(height)) * std::cos(elevation));
}

/// The mean of cos(x cos t) over midpoints.
double Bessel(double x) {
  const int count = 24 + static_cast<int>(std::abs(x));
  double sum = 0;
  for (int i = 0; i < count; ++i) sum += std::cos(x * std::cos(kPi * (i + 0.5) / count));
  return sum / count;
}

struct Node {
  double U, Weight;
};

/// The 48 nodes of Gauss and Legendre, for 0 to 1.
std::vector<Node> GaussNodes() {
  constexpr unsigned kCount = 48;
  std::vector<Node> nodes;
  for (unsigned i = 0; i < kCount; ++i) {
    double x = std::cos(kPi * (i + 0.75) / (kCount + 0.5));
    double slope = 1;
    for (int round = 0; round < 6; ++round) {
      const double value = std::legendre(kCount, x);
      slope = kCount * (x * value - std::legendre(kCount - 1, x)) / (x * x - 1);
      x -= value / slope;
    }
    nodes.push_back({(1 + x) / 2, 1 / ((1 - x * x) * slope * slope)});
  }
  return nodes;
}

}  // namespace

Antenna::Antenna(const StationRecord& record) : PowerKW(record.PowerKW) {
  bool anyField = false;
  double north = 0, east = 0;
  for (int i = 1; i <= record.TowerCount; ++i) {
    if (record.Switch[i] == "0") north = east = 0;
    north += record.Spacings[i] * kRadian * std::cos(record.Bearings[i] * kRadian);
    east += record.Spacings[i] * kRadian * std::sin(record.Bearings[i] * kRadian);
    double height = record.Heights[i] * kRadian;
    if (height <= 0 || 1 - std::cos(height) == 0) height = kPi / 2;
    Towers.push_back({record.Fields[i], height, record.Phases[i] * kRadian, north, east});
    if (record.Fields[i] != 0) anyField = true;
  }
  if (!anyField) Towers = {{1, kPi / 2, 0, 0, 0}};
  if (!(PowerKW > 0)) return;

  static const std::vector<Node> nodes = GaussNodes();
  double integral = 0;
  for (const auto& [u, weight] : nodes) {
    const double elevation = std::asin(u);
    double sum = 0;
    for (std::size_t i = 0; i < Towers.size(); ++i)
      for (std::size_t k = 0; k <= i; ++k) {
        const Tower& a = Towers[i];
        const Tower& b = Towers[k];
        sum += (i == k ? 1 : 2) * a.Field * b.Field * VerticalFactor(a.Height, elevation) *
               VerticalFactor(b.Height, elevation) * std::cos(a.Phase - b.Phase) *
               Bessel(std::hypot(a.North - b.North, a.East - b.East) * std::cos(elevation));
      }
    integral += 2 * kPi * weight * sum;
  }
  if (!(integral > 0)) return;
  K0 = std::sqrt(376.73 * 1000 * PowerKW / integral);
  double loss = 0;
  for (const Tower& tower : Towers) {
    double current = K0 * tower.Field / (59.96 * (1 - std::cos(tower.Height)));
    if (tower.Height < kPi / 2) current *= std::sin(tower.Height);
    loss += current * current;
  }
  K = K0 * std::sqrt(1000 * PowerKW / (1000 * PowerKW + loss));
}

double Antenna::Shape(double azimuth, double elevation) const {
  std::complex<double> sum = 0;
  for (const Tower& tower : Towers)
    sum += std::polar(
               1.0, std::cos(elevation) * (tower.North * std::cos(azimuth) + tower.East * std::sin(azimuth)) +
                        tower.Phase) *
           tower.Field * VerticalFactor(tower.Height, elevation);
  return std::abs(sum);
}

double Antenna::FieldAt(double azimuth, double elevation) const {
  if (!(PowerKW > 0)) return 0;
  const double theoretical = K * Shape(azimuth * kRadian, elevation * kRadian);
  if (Towers.size() == 1) return theoretical;
  double shortest = Towers[0].Height;
  double squares = 0;
  for (const Tower& tower : Towers) {
    shortest = std::min(shortest, tower.Height);
    squares += tower.Field * tower.Field;
  }
  double g = VerticalFactor(shortest, elevation * kRadian);
  if (shortest > kPi) g = std::sqrt(g * g + 0.0625) / 1.030776;
  const double q = std::max(0.025 * g * K * std::sqrt(squares), 10.0 * g * std::sqrt(PowerKW));
  return 1.05 * std::sqrt(theoretical * theoretical + q * q);
}

}  // namespace kestrel::straight
