#pragma once

namespace kestrel {

/// An antenna site, decimal degrees.
struct SitePosition {
  double Latitude = 0;   ///< north positive
  double Longitude = 0;  ///< WEST positive
};

/// Whether the site lies in the Americas, their Antarctic bases among them: 20 to 180 west.
bool IsInAmericas(const SitePosition& position);

/// Great-circle distance in km, exact for neighbours too.
double SiteDistance(const SitePosition& a, const SitePosition& b);

}  // namespace kestrel
