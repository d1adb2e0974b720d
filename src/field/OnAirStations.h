#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "data/StationFile.h"
#include "field/HoursInForce.h"

namespace kestrel {

/// A station off the air, told by its first record.
struct SilentStation {
  std::size_t Record = 0;  ///< its number among those added, from 0
  std::string_view Reason;
};

/// What is on the air at a moment.
struct OnAirRecords {
  std::vector<bool> InForce;          ///< by record
  std::vector<SilentStation> Silent;  ///< in the file's order
};

/// The stations of one channel, and which of their records are in force. A station is a call sign, city,
/// state and country; its sites may differ, and each record is judged by the time of the day at its own.
class OnAirStations {
 public:
  /// Records in the file's order.
  void Add(const StationRecord& record);

  /// `sun` is the sun at `moment`, of the years 1950 to 2100.
  OnAirRecords At(Moment moment, const Sun& sun, HoursRule rule);

 private:
  struct Station {
    std::size_t FirstRecord;
    StationHours Hours;
  };
  struct Record {
    std::size_t Station;
    Hours Code;
    SiteClock Clock;
  };

  std::size_t StationOf(const StationRecord& record);

  std::vector<Station> stations_;
  std::vector<Record> records_;
  std::unordered_map<std::string, std::size_t> stationByName_;
};

}  // namespace kestrel
