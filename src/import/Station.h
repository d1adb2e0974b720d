#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/Hours.h"
#include "import/ImportReport.h"
#include "import/PackedTexts.h"
#include "import/SitePosition.h"

namespace kestrel {

/// A tower as the pattern needs it: its place counted from the reference point of the array.
struct Tower {
  float Field = 1;    ///< ratio, above 0
  float Height = 90;  ///< electrical degrees
  float Phase = 0;    ///< degrees
  float Spacing = 0;  ///< electrical degrees
  float Bearing = 0;  ///< degrees true, 0 to 360
};

/// The towers of an antenna. Stations that have the same ones share them.
using SharedTowers = std::shared_ptr<const std::vector<Tower>>;

/// The number by which the FCC knows a station; 0 when the source has none.
using FacilityId = std::uint32_t;

/// The names of a station. Of one of more than 200 bytes the first 50 characters are held; no file has room
/// for as many.
class StationNames {
 public:
  StationNames() = default;
  StationNames(std::string_view callSign, std::string_view city, std::string_view state,
               std::string_view country);

  std::string_view CallSign() const { return texts_[0]; }  ///< in capitals
  std::string_view City() const { return texts_[1]; }
  std::string_view State() const { return texts_[2]; }
  std::string_view Country() const { return texts_[3]; }  ///< two letters

 private:
  PackedTexts<4> texts_;
};

/// One antenna of a station for its hours of operation, whichever file told of it.
struct Station {
  StationNames Names;
  RowPlace Row;  ///< that it comes from
  FacilityId Facility = 0;
  std::int16_t Channel = 0;  ///< kHz, on the raster of the Americas
  kestrel::Hours Hours = kestrel::Hours::Unlimited;
  std::uint8_t Preference : 6 = 0;  ///< of the status: the lower, the better
  bool Permit : 1 = false;          ///< not yet licensed (US)
  bool Directional : 1 = false;
  SitePosition Position;  ///< in the Americas
  double PowerKW = 0;     ///< above 0
  SharedTowers Towers;    ///< none: the antenna is not known
};

/// Stations without end; no large piece of memory has to be found, or copied, for them.
using Stations = std::deque<Station>;

/// Compares what makes two rows tell of the same antenna: facility and hours; where the facility is not known
/// call sign, channel, town and hours.
bool IdentityLess(const Station& a, const Station& b);

/// Whether the channel is one of 530, 540, ... 1700 kHz.
bool IsOnRaster(double kilohertz);

/// Whether the text names a station: not blank, "-" or "NEW".
bool IsCallSign(std::string_view text);

/// The reason why no station can have this power in kW; empty when it can: 0.0001 to 10000.
std::string PowerFault(double powerKW);

}  // namespace kestrel
