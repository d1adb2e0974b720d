#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "import/AntennaTables.h"
#include "import/ImportOptions.h"
#include "import/ImportReport.h"
#include "import/Station.h"

namespace kestrel {

/// Why a row is left out.
struct Fault {
  Finding finding;
  std::string text;
};

/// The antenna records of the tables joined with their facilities: where a station's towers are looked up,
/// and which stations the tables know by themselves. Keeps account of the rows that were used.
class TableStations {
 public:
  /// The tables must outlive this. Antenna records that can serve nobody are left out in `report` at once.
  TableStations(const AntennaTables& tables, const ImportOptions& options, ImportReport& report);

  /// Index of the antenna record of this facility and these hours, licensed or permit as asked, or nothing.
  std::optional<std::size_t> Find(const std::string& facility, char hours, bool permit) const;
  /// The same by call sign, channel and hours: only when one facility alone has them, and none of `others`.
  std::optional<std::size_t> FindByCall(const Station& station, const std::set<std::string>& others) const;

  /// The antenna records in the order of their rows.
  std::size_t Count() const { return systems_.size(); }
  bool IsUsed(std::size_t index) const { return systems_[index].used; }
  const std::string& FacilityOf(std::size_t index) const { return systems_[index].facility; }
  char HoursOf(std::size_t index) const { return systems_[index].system->hours; }
  RowPlace RowOf(std::size_t index) const { return systems_[index].system->row; }

  /// The station of a record, its towers not yet set; or why there is none on the air.
  std::optional<Fault> MakeStation(std::size_t index, Station& station) const;

  /// Gives the station the towers of the record and takes the record's rows.
  void UseFor(std::size_t index, Station& station);
  /// Gives a station that no table knows a tower of its own when it is non-directional.
  void UseNothingFor(Station& station);

  /// Leaves out the rows that no station used. To be called once, at the end.
  void CloseAccounts();

 private:
  enum class Standing { Licensed, Permit, Abroad };
  struct System {
    const AntennaSystem* system;
    std::string facility;  ///< empty when no table tells
    const FacilityRow* station = nullptr;
    Standing standing = Standing::Licensed;
    bool used = false;
  };
  using Call = std::tuple<std::string, int, char>;

  void Join(const AntennaSystem& system);
  std::optional<Standing> StandingOf(const AntennaSystem& system, const ApplicationRow* engineering) const;
  bool IsOnAir(const System& system) const;
  void TakeTowers(const std::string& id, const std::set<int>& fieldless);
  void DoWithoutArray(Station& station, Finding why, const std::string& fault);

  const AntennaTables& tables_;
  const ImportOptions& options_;
  ImportReport& report_;
  std::map<std::string, std::string> facilityOfApplication_;  // in the current system
  std::vector<System> systems_;
  std::multimap<std::pair<std::string, char>, std::size_t> byFacility_;
  std::multimap<Call, std::size_t> byCall_;
  std::set<std::string> takenTowers_;  // ant_sys_id whose tower rows are accounted for
};

}  // namespace kestrel
