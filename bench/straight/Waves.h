#pragma once

#include "core/Moment.h"

// Ground wave, sky wave and its hourly loss written down as the formulas stand in field/GroundWave.h and
// field/SkyWave.h, each value by itself. Degrees, north and WEST positive, kilometres.

namespace kestrel::straight {

/// Level in dB above 1 uV/m at a distance, for 100 mV/m at 1 km.
double GroundWaveLevel(double frequencyKHz, double conductivity, double kilometres);

struct SkyWave {
  double Distance = 0;
  double GeomagneticLatitude = 0;  ///< of the midpoint, uncapped
  double Median = 0;               ///< dB above 1 uV/m for 100 mV/m at 1 km
  double UpperDecile = 0;
  double DepartureAngle = 0;
};

SkyWave SkyWaveBetween(double latitude, double longitude, double homeLatitude, double homeLongitude);

/// Course from the first place to the second, 0 to 360.
double CourseBetween(double latitude, double longitude, double toLatitude, double toLongitude);

/// dB below full night, 0 to 60; 60 stands for no sky wave.
double HourlyLoss(double latitude, double longitude, double homeLatitude, double homeLongitude,
                  Moment moment);

}  // namespace kestrel::straight
