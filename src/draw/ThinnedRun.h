#pragma once

#include <array>
#include <span>
#include <vector>

#include "map/Canvas.h"

namespace kestrel {

/// A run of a polyline's vertices without those that do not show: vertices closer to the one before than a
/// distance, and up to three in turn that lie on the straight line between their neighbours or off it by at
/// most a fifth of the distance. So no point of the polyline is farther than 1.2 times the distance from the
/// run.
class ThinnedRun {
 public:
  explicit ThinnedRun(float closest) : closest_(closest), straight_(closest / 5) {}

  void Clear() { vertices_.clear(); }

  void Begin(Point first) {
    vertices_.assign(1, first);
    passedCount_ = 0;
  }

  /// Adds a vertex; one that `must` be there however close it is.
  void Add(Point point, bool must) {
    const Point last = vertices_.back();
    if (!must && SquaredDistance(last, point) < closest_ * closest_) return;
    if (vertices_.size() > 1 && passedCount_ < passed_.size() && IsStraight(point)) {
      passed_[passedCount_++] = last;
      vertices_.back() = point;
    } else {
      passedCount_ = 0;
      vertices_.push_back(point);
    }
  }

  std::span<const Point> Vertices() const { return vertices_; }

 private:
  static float SquaredDistance(Point a, Point b) {
    const float x = b.x - a.x, y = b.y - a.y;
    return x * x + y * y;
  }

  /// Whether a line from the last vertex but one to `end` takes the place of those between.
  bool IsStraight(Point end) const {
    const Point begin = vertices_[vertices_.size() - 2];
    const float x = end.x - begin.x, y = end.y - begin.y;
    const float squared = x * x + y * y;
    const auto along = [&](Point between) {
      const float toX = between.x - begin.x, toY = between.y - begin.y;
      const float off = toX * y - toY * x, way = toX * x + toY * y;
      return off * off <= straight_ * straight_ * squared && way >= 0 && way <= squared;
    };
    bool straight = squared > 0 && along(vertices_.back());
    for (std::size_t i = 0; i < passedCount_; ++i) straight = straight && along(passed_[i]);
    return straight;
  }

  float closest_, straight_;
  std::vector<Point> vertices_;
  std::array<Point, 3> passed_;  // between the last two vertices
  std::size_t passedCount_ = 0;
};

/// Whether a run has shrunk to one point, which an outline still shows: as the dot of a round pen.
inline bool IsPoint(std::span<const Point> run) {
  return run.size() == 2 && run.front() == run.back();
}

}  // namespace kestrel
