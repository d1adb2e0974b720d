#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Lines.h"
#include "core/Position.h"

// The station files, one for each channel. docs/formats/station-files.md describes them.

namespace kestrel {

inline constexpr int MaxTowers = 12;
inline constexpr int MaxRecords = 10000;  ///< of a channel; the busiest one has some hundreds
inline constexpr int MaxNotes = 100;      ///< of a file; what is left out beyond is not reported

/// One antenna of one station: its position, power and towers for its hours of operation. Tower arrays are
/// indexed 1 to TowerCount; index 0 stays 0.
struct StationRecord {
  std::string CallSign;
  std::string City;
  std::string State;
  std::string Country;
  std::string HoursCode;  ///< what HoursOf reads
  float Latitude = 0;     ///< degrees, north positive
  float Longitude = 0;    ///< degrees, WEST positive
  float PowerKW = 0;
  Position At() const { return {Latitude, Longitude}; }
  std::int16_t TowerCount = 0;  ///< 0 to MaxTowers; 0: the antenna is not known

  std::array<std::string, MaxTowers + 1>
      Switch;  ///< exactly "0": placed from the reference point, else from the previous tower
  std::array<float, MaxTowers + 1> Fields{};    ///< field ratio
  std::array<float, MaxTowers + 1> Heights{};   ///< electrical degrees
  std::array<float, MaxTowers + 1> Phases{};    ///< degrees
  std::array<float, MaxTowers + 1> Spacings{};  ///< electrical degrees
  std::array<float, MaxTowers + 1> Bearings{};  ///< degrees true
};

/// The fields of a station line as the line holds them, blanks included; views into the line.
struct StationLine {
  std::string_view Frequency, CallSign, City, State, Country, HoursCode, Latitude, Longitude, PowerKW,
      TowerCount;

  Position At() const;
};

/// Whether the line begins with a digit 1 to 9, as station lines do and tower lines must not.
bool IsStationLine(std::string_view line);

/// Cuts any line into the fields of a station line; fields that it lacks are empty.
StationLine CutStationLine(std::string_view line);

/// Stores one tower line at `tower` (1 to MaxTowers) of the record; missing fields read as empty text and 0.
void CutTowerLine(std::string_view line, int tower, StationRecord& record);

/// Stores a station line's fields, texts trimmed; its tower count only when it lies within 0 to MaxTowers,
/// else 0. Returns the count as the line gives it.
double StoreStationLine(const StationLine& line, StationRecord& record);

/// Walks over the records of a station file: a station line and as many tower lines as it announces.
///
/// A line that stands where a station line should and is none, and a record with a tower count outside 0 to
/// MaxTowers, are left out up to the next station line, and noted: "1030x.dat:17: 14 towers, at most 12".
/// A malformed number reads as its leading part or 0; all are finite, of whatever size. A record whose tower
/// lines are cut short by the end of the file is not returned. Reading ends after MaxRecords records, those
/// left out among them, which is noted.
class StationFileReader {
 public:
  /// The bytes must outlive the reader; `name` is used in notes.
  StationFileReader(std::string name, std::string_view bytes);

  /// The next record, or nothing at the end. The reference holds until the next call; the caller may change
  /// the record.
  StationRecord* Next();

  /// The number of the present record's station line in the file, from 1.
  int RecordLine() const { return recordLine_; }

  /// What was left out so far, one line each, at most MaxNotes and a line that says so.
  const std::vector<std::string>& Notes() const { return notes_; }

 private:
  bool ReadTowers();
  void Note(const std::string& text);

  std::string name_;
  LineReader lines_;
  StationRecord record_;
  int recordCount_ = 0;
  int recordLine_ = 0;
  bool skipping_ = false;  // on the way to the next station line, the reason already noted
  std::vector<std::string> notes_;
};

/// Walks over the station lines alone, at most MaxRecords, for readers that need no towers.
class StationLineReader {
 public:
  /// The bytes must outlive the reader.
  explicit StationLineReader(std::string_view bytes) : lines_(bytes) {}

  /// The fields of the next station line; the views hold until the next call.
  std::optional<StationLine> Next();

 private:
  LineReader lines_;
  int lineCount_ = 0;
};

}  // namespace kestrel
