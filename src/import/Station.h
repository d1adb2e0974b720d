#pragma once

#include <string>
#include <vector>

#include "import/ImportReport.h"
#include "import/SitePosition.h"

namespace kestrel {

/// A tower as the pattern needs it: its place counted from the reference point of the array.
struct Tower {
  double field = 1;    ///< ratio, above 0
  double height = 90;  ///< electrical degrees
  double phase = 0;    ///< degrees
  double spacing = 0;  ///< electrical degrees
  double bearing = 0;  ///< degrees true, 0 to 360
};

/// One antenna of a station for its hours of operation, whichever file told of it.
struct Station {
  RowPlace row;          ///< that it comes from
  std::string facility;  ///< empty when the source has none
  std::string callSign;  ///< in capitals
  std::string city;
  std::string state;
  std::string country;    ///< two letters
  int channel = 0;        ///< kHz, on the raster of the Americas
  char hours = 'U';       ///< D, N, C or U
  SitePosition position;  ///< in the Americas
  double powerKW = 0;     ///< above 0
  int preference = 0;     ///< of the status: the lower, the better
  bool permit = false;    ///< not yet licensed (US)
  bool directional = false;
  std::vector<Tower> towers;  ///< none: the antenna is not known
};

/// What makes two rows tell of the same antenna: facility and hours; where the facility is not known call
/// sign, channel, town and hours.
std::string Identity(const Station& station);

/// Whether the channel is one of 530, 540, ... 1700 kHz.
bool IsOnRaster(double kilohertz);

/// Whether the text names a station: not blank, "-" or "NEW".
bool IsCallSign(std::string_view text);

/// The reason why no station can have this power in kW; empty when it can.
std::string PowerFault(double powerKW);

}  // namespace kestrel
