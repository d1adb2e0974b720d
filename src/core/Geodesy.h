#pragma once

#include "core/Position.h"

// Spherical geometry of distance, bearing and map placement, and the plane sums of tower positions.

namespace kestrel {

/// 180 / pi stored as a single; every angle of the array factor and of GreatCircle is converted with it.
inline constexpr float DegreesPerRadian = 57.2957795130823208767981548141052F;

/// Kilometres in one degree of great-circle arc.
inline constexpr double KilometresPerDegree = 111.44;

/// Statute miles in a kilometre.
inline constexpr double MilesPerKilometre = 0.6213637;

/// Arc cosine in radians, 0 to 3.14159265, by way of the arc tangent; the argument is limited to -1 to 1.
double ArcCosine(double x);

/// A course and a distance over the ground.
struct GreatCircleResult {
  float Bearing = 0;   ///< degrees clockwise from north, 0 to 360
  float Distance = 0;  ///< kilometres
};

/// Initial course and distance on the sphere, by the law of cosines. Intermediate steps are stored as
/// singles, so readouts are steady but distances below some 3 km are coarse; MapProjection is the precise way
/// for drawings. The same point twice gives distance 0 and bearing 90.
GreatCircleResult GreatCircle(const Position& from, const Position& to);

/// A plane offset: distance (any unit) and bearing in degrees clockwise from north.
struct PolarOffset {
  float Spacing = 0;
  float Bearing = 0;
};

/// The sum of two plane offsets, its bearing in 0 to 360. Opposite offsets that cancel leave spacing 0 and a
/// bearing that follows from the signs of the rounding residues.
PolarOffset PolarSum(PolarOffset first, PolarOffset second);

}  // namespace kestrel
