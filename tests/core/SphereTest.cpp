#include "core/Sphere.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace kestrel {
namespace {

TEST(SphereTest, KnownCourses) {
  // A quarter of the sphere, a metre, the date line, over the pole; Los Angeles to New York in E. Williams'
  // Aviation Formulary: 0.623585 radians on course 1.150035.
  const struct {
    SpherePoint from, to;
    double arc, azimuth;
  } rows[] = {{{0, 75}, {0, -15}, 90, 90},
              {{40, 75}, {40.00001, 75}, 0.00001, 0},
              {{-10, 179}, {-10, -179}, 1.969600, 269.826331},
              {{80, 0}, {80, 180}, 20, 0},
              {{33.95, 118.4}, {40 + 38.0 / 60, 73 + 47.0 / 60}, 35.728789, 65.892152},
              {{50, 20}, {50, 20}, 0, 0}};
  for (const auto& [from, to, arc, azimuth] : rows) {
    const SphereCourse course = CourseBetween(from, to);
    EXPECT_NEAR(course.Arc, arc, 3e-5) << from.Latitude << ' ' << from.Longitude;
    EXPECT_NEAR(std::remainder(course.Azimuth - azimuth, 360), 0, 5e-5)
        << from.Latitude << ' ' << from.Longitude;
  }
  EXPECT_NEAR(CourseBetween({40, 75}, {40.00001, 75}).Arc, 0.00001, 1e-12);
  EXPECT_NEAR(CourseBetween({40, 75}, {-40, -105}).Arc, 180, 1e-9);
}

TEST(SphereTest, ACourseLeadsWhereItWasTaken) {
  std::mt19937 random(7);
  const auto pick = [&](double to) { return std::uniform_real_distribution<double>(-to, to)(random); };
  for (int n = 0; n < 500; ++n) {
    const SpherePoint from{n % 9 == 0 ? 90 : pick(90), pick(180)}, to{pick(90), pick(180)};
    const SpherePoint reached = PlaceAlong(from, CourseBetween(from, to));
    EXPECT_NEAR(reached.Latitude, to.Latitude, 1e-9);
    EXPECT_NEAR(CourseBetween(reached, to).Arc, 0, 1e-9);
  }
}

}  // namespace
}  // namespace kestrel
