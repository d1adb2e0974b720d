#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/DataFolder.h"
#include "data/StationFile.h"

// Looking up the stations of one call sign on one channel: from the search text to the rows of a list, from a
// row's selection to the record with its towers. Every call reads the station file.

namespace kestrel {

/// The record that the listener chose, as the tower table, the context map and the printed page need it.
struct StationSelection {
  std::string SelectedCallSign;
  std::string City;
  std::string State;
  std::string Country;
  std::string SelectedHoursCode;
  float Latitude = 0;   ///< degrees, north positive
  float Longitude = 0;  ///< degrees, WEST positive
  float PowerKW = 0;
  std::int16_t SelectedTowerCount = 0;  ///< as the file has it, also beyond MaxTowers
};

/// One row of the list: what it shows, and what choosing it selects, its texts in capitals as the line has
/// them.
struct ListRow {
  std::string Line;
  StationSelection Selection;
};

/// No search lists more.
inline constexpr std::size_t MaxListRows = 1000;

struct SearchResult {
  std::string CallSign;  ///< what was searched for: the entry in capitals, without blanks at its ends
  std::vector<ListRow> Rows;
  bool Ended = false;   ///< the file was read to its end
  std::string Message;  ///< what the listener is told; empty when all went well
};

/// Lists the records of `entry`'s call sign in the channel's station file. The call signs of the file are
/// compared as they stand. A record without latitude, longitude or power is not listed. Messages: nothing
/// entered, nothing found, no readable file or more than MaxListRows rows.
SearchResult SearchStations(const DataFolder& folder, float frequency, std::string_view entry);

/// A station line's fields as one line of fixed columns: 8, 29, 34, 52, 56, 68, 80 and 87 characters up to
/// the end of each but the last. A longer field pushes all after it to the right.
std::string ListLine(const StationLine& line);

/// The heads of a list's columns, each word over its column.
std::string_view ListHeads();

/// Every record of the channel's file with the selection's call sign, hours code and tower count, in file
/// order, as the file has them. A missing file gives none.
std::vector<StationRecord> LoadRecords(const DataFolder& folder, float frequency,
                                       const StationSelection& selection);

/// Whether some, but not all, of the record's field ratios are 0: such a record is never drawn.
bool HasBrokenTowers(const StationRecord& record);

/// "in the  1230 kHz list"; nothing when the channel's text is shorter than 3 characters.
std::optional<std::string> ChannelLabel(float frequency);

/// The address of a web map around the station, with its call sign and city as the pin's name. Nothing in it
/// is encoded; the host stands before everything that comes from data.
std::string WebMapAddress(const StationSelection& selection, std::string_view language);

}  // namespace kestrel
