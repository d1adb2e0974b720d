#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "import/ImportOptions.h"
#include "import/ImportReport.h"
#include "import/Station.h"
#include "import/read/AmqList.h"
#include "import/read/AntennaTables.h"

namespace kestrel {

/// The antenna records of the tables joined with their facilities: where a station's towers are looked up,
/// and which stations the tables know by themselves. Keeps account of the rows that were used.
class TableStations {
 public:
  /// The tables must outlive this. Antenna records that can serve nobody are left out in `report` at once.
  TableStations(const AntennaTables& tables, const ImportOptions& options, ImportReport& report);

  /// Index of the antenna record of this facility and these hours, licensed or permit as asked, or nothing.
  std::optional<std::size_t> Find(FacilityId facility, Hours hours, bool permit) const;
  /// The same by call sign, channel and hours: only when one facility alone has them, and none of `others`,
  /// which are sorted.
  std::optional<std::size_t> FindByCall(const Station& station, const std::vector<FacilityId>& others) const;

  /// The antenna records in the order of their rows.
  std::size_t Count() const { return systems_.size(); }
  bool IsUsed(std::size_t index) const { return systems_[index].used; }
  /// REQUIRES: a record stands in that row.
  std::size_t IndexOf(RowPlace row) const;
  RowPlace RowOf(std::size_t index) const { return systems_[index].row->Row; }

  /// The station of a record, its towers not yet set; or why there is none on the air.
  std::optional<Fault> MakeStation(std::size_t index, Station& station) const;

  /// Gives the station the towers of the record and takes the record's rows.
  void UseFor(std::size_t index, Station& station);
  /// Gives a station that no table knows a tower of its own when it is non-directional.
  void UseNothingFor(Station& station);

  /// Leaves out the rows that no station used. To be called once, at the end.
  void CloseAccounts();

 private:
  enum class Standing : char { Licensed, Permit, Abroad };
  struct System {
    const AntennaSystem* row = nullptr;
    const FacilityRow* station = nullptr;
    FacilityId facility = 0;  ///< 0 when no table tells
    Standing standing = Standing::Licensed;
    bool used = false;
    bool hasTowers = false;  ///< its tower rows are accounted for

    FacilityHours Key() const { return {facility, row->Hours}; }
    std::tuple<std::string_view, int, Hours> Call() const {
      return {station->Names.CallSign(), static_cast<int>(station->Frequency), row->Hours};
    }
  };

  /// Looks the system's facility up; false when it is neither in force nor wanted.
  bool Join(System& system) const;
  void BuildIndexes();
  std::optional<Standing> StandingOf(const AntennaSystem& system, const ApplicationRow* engineering) const;
  bool IsOnAir(const System& system) const;
  void TakeTowers(System& system, const TowerRows& towers, const std::vector<RowPlace>& fieldless);
  void DoWithoutArray(Station& station, Finding why, const std::string& fault);

  const AntennaTables& tables_;
  const ImportOptions& options_;
  ImportReport& report_;
  std::vector<const FacilityRow*> byApplication_;  // of the current system, sorted
  std::vector<System> systems_;
  std::vector<std::uint32_t> byFacility_;  // indexes of those with a facility, sorted by facility and hours
  std::vector<std::uint32_t> byCall_;      // of those with a station, sorted by call sign, channel and hours
};

}  // namespace kestrel
