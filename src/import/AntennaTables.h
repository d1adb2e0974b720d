#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Hours.h"
#include "import/ImportReport.h"
#include "import/KeyedRows.h"
#include "import/LineStream.h"
#include "import/PackedTexts.h"
#include "import/SitePosition.h"
#include "import/Station.h"
#include "import/TableLayout.h"

// The rows of the antenna tables, kept by their keys until the stations are put together from them. Of
// several rows with the same key the last one counts; one that is not in force takes away what an earlier
// file has under its key.

namespace kestrel {

/// A row of am_ant_sys: one antenna of one application for its hours.
struct AntennaSystem {
  std::string_view Key() const { return texts[0]; }  ///< ant_sys_id
  std::string_view Application() const { return texts[1]; }

  PackedTexts<2> texts;
  RowPlace row;
  SitePosition position;
  double powerKW = 0;           ///< 0 to 1e6; no more than 10000 is taken
  std::int16_t towerCount = 0;  ///< announced, 0 to 1000
  Hours hours = Hours::Unlimited;
  char domesticStatus = 0;   ///< L licensed, C permit, ...; 0 abroad
  bool directional = false;  ///< as the record says; its towers may tell more
  bool current = false;      ///< of the current system: licensed unless its facility says otherwise
};

/// A row of am_towers.
struct TowerRow {
  RowPlace row;
  std::int16_t number = 0;     ///< 1 to 1000
  bool fromPrevious = false;   ///< placed from the tower before, else from the reference point
  std::optional<float> field;  ///< 0 to 1e6
  float height = 0, phase = 0, spacing = 0,
        bearing =
            0;  ///< degrees, 0 to 100000, and -360 to 360 for angles; spacing and bearing as the switch says
};

/// The rows of am_towers for one antenna.
struct TowerRows {
  std::string_view Key() const { return id[0]; }  ///< ant_sys_id

  PackedTexts<1> id;
  std::vector<TowerRow> rows;
};

/// A row of am_eng_data or application: whose application it is. A facility row of the current system is one
/// too.
struct ApplicationRow {
  std::string_view Key() const { return id[0]; }  ///< application_id

  PackedTexts<1> id;
  RowPlace row;
  FacilityId facility = 0;
  char domesticStatus = 0;
};

/// A row of facility, service AM.
struct FacilityRow {
  FacilityId Key() const { return facility; }
  std::string_view Status() const { return texts[0]; }
  std::string_view Application() const { return texts[1]; }  ///< in force; only in the current system

  StationNames names;
  PackedTexts<2> texts;
  RowPlace row;
  FacilityId facility = 0;
  double frequency = 0;  ///< kHz
};

struct AntennaTables {
  KeyedRows<AntennaSystem> systems;
  KeyedRows<TowerRows> towers;
  KeyedRows<ApplicationRow> engineering;
  KeyedRows<ApplicationRow> applications;
  KeyedRows<FacilityRow> facilities;
};

inline std::string KeyText(std::string_view key) {
  return std::string(key);
}
inline std::string KeyText(FacilityId key) {
  return std::to_string(key);
}

/// Reads the table to its end. Rows that are not kept are left out in `report` with their reason; the others
/// are taken or left out when the stations are put together.
void ReadAntennaTable(LineStream& lines, int file, const TableLayout& layout, AntennaTables& tables,
                      ImportReport& report);

}  // namespace kestrel
