#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Hours.h"
#include "import/ImportReport.h"
#include "import/PackedTexts.h"
#include "import/SitePosition.h"
#include "import/Station.h"
#include "import/read/KeyedRows.h"
#include "import/read/LineStream.h"
#include "import/read/RowDates.h"
#include "import/read/TableLayout.h"

// The rows of the antenna tables, kept by their keys until the stations are put together from them. Of
// several rows with the same key the last one counts; one that is not in force takes away what an earlier
// file has under its key. Tables of the FCC's current system hold all services, so what belongs to no antenna
// is not kept.

namespace kestrel {

/// A row of am_ant_sys: one antenna of one application for its hours.
struct AntennaSystem {
  std::string_view Key() const { return Texts[0]; }  ///< ant_sys_id
  std::string_view Application() const { return Texts[1]; }

  PackedTexts<2> Texts;
  RowPlace Row;
  SitePosition Position;
  double PowerKW = 0;           ///< 0 to 1e6; no more than 10000 is taken
  std::int16_t TowerCount = 0;  ///< announced, 0 to 1000
  kestrel::Hours Hours = kestrel::Hours::Unlimited;
  char DomesticStatus = 0;   ///< L licensed, C permit, ...; 0 abroad
  bool Directional = false;  ///< as the record says; its towers may tell more
  bool Current = false;      ///< of the current system: licensed unless its facility says otherwise
};

/// A row of am_towers.
struct TowerRow {
  RowPlace Row;
  std::int16_t Number = 0;     ///< 1 to 1000
  bool FromPrevious = false;   ///< placed from the tower before, else from the reference point
  std::optional<float> Field;  ///< 0 to 1e6
  float Height = 0, Phase = 0, Spacing = 0,
        Bearing =
            0;  ///< degrees, 0 to 100000, and -360 to 360 for angles; spacing and bearing as the switch says
};

/// The rows of am_towers for one antenna.
struct TowerRows {
  std::string_view Key() const { return Id[0]; }  ///< ant_sys_id

  PackedTexts<1> Id;
  std::vector<TowerRow> Rows;
};

/// A row of am_eng_data or application: whose application it is. A facility row of the current system is one
/// too.
struct ApplicationRow {
  std::string_view Key() const { return Id[0]; }  ///< application_id

  PackedTexts<1> Id;
  RowPlace Row;
  FacilityId Facility = 0;
  char DomesticStatus = 0;
};

/// A row of facility, service AM.
struct FacilityRow {
  FacilityId Key() const { return Facility; }
  std::string_view Status() const { return Texts[0]; }
  std::string_view Application() const { return Texts[1]; }  ///< in force; only in the current system

  StationNames Names;
  PackedTexts<2> Texts;
  RowPlace Row;
  FacilityId Facility = 0;
  double Frequency = 0;  ///< kHz
};

struct AntennaTables {
  KeyedRows<AntennaSystem> Systems;
  KeyedRows<TowerRows> Towers;
  KeyedRows<ApplicationRow> Engineering;
  KeyedRows<ApplicationRow> Applications;
  KeyedRows<FacilityRow> Facilities;
  std::size_t TowerRowCount = 0;
  /// The applications of `Systems`, sorted; views into them.
  std::vector<std::string_view> AntennaApplications;
  std::size_t MostRows = MostKeptRows;  ///< of each table
};

inline std::string KeyText(std::string_view key) {
  return std::string(key);
}
inline std::string KeyText(FacilityId key) {
  return std::to_string(key);
}

/// Reads the table to its end. Rows that are not kept are left out in `report` with their reason; the others
/// are taken or left out when the stations are put together. REQUIRES: a table of towers or applications
/// comes after all tables of antennas and SortAntennaApplications.
void ReadAntennaTable(LineStream& lines, int file, const TableLayout& layout, AntennaTables& tables,
                      NewestDate& dates, ImportReport& report);

/// To be called when all tables of antennas have been read.
void SortAntennaApplications(AntennaTables& tables);

}  // namespace kestrel
