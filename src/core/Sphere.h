#pragma once

namespace kestrel {

// Courses on a sphere, for what is computed further. Nothing is rounded between the steps, so places close
// together and the points at the antipodes are as exact as others; the readouts of distance and bearing are
// GreatCircle's.

/// A place in degrees, latitude north and longitude WEST positive.
struct SpherePoint {
  double Latitude = 0;
  double Longitude = 0;
};

/// A course over the sphere.
struct SphereCourse {
  double Arc = 0;  ///< degrees, 0 to 180
  double Azimuth =
      0;  ///< at the start, degrees clockwise from true north, 0 to 360; 0 where there is no course
};

/// The shortest course from one place to another.
SphereCourse CourseBetween(const SpherePoint& from, const SpherePoint& to);

/// Where a course from `from` leads to.
SpherePoint PlaceAlong(const SpherePoint& from, const SphereCourse& course);

}  // namespace kestrel
