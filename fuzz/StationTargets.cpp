#include <string>
#include <vector>

#include "Targets.h"
#include "core/Text.h"
#include "data/StationFile.h"
#include "data/StationLineText.h"
#include "data/StationLookup.h"
#include "data/TowerTable.h"
#include "pattern/Pattern.h"

namespace kestrel::fuzz {
namespace {

constexpr int kChannel = 1230;

std::string Written(const std::vector<StationRecord>& records) {
  std::string text;
  FieldChanges changes;
  for (const StationRecord& record : records) text += StationRecordText(kChannel, record, changes);
  return text;
}

std::vector<StationRecord> Read(std::string_view bytes, std::size_t& notes) {
  std::vector<StationRecord> records;
  StationFileReader reader("1230x.dat", bytes);
  while (const StationRecord* record = reader.Next()) records.push_back(*record);
  notes = reader.Notes().size();
  return records;
}

void UseRecord(const StationRecord& record) {
  Hold(record.TowerCount >= 0 && record.TowerCount <= MaxTowers, "0 to 12 towers");
  for (const float value : {record.Latitude, record.Longitude, record.PowerKW}) HoldFinite(value);
  for (std::size_t i = 0; i <= MaxTowers; ++i)
    for (const float value :
         {record.Fields[i], record.Heights[i], record.Phases[i], record.Spacings[i], record.Bearings[i]})
      HoldFinite(value);
  Hold(TowerTable(record).size() <= MaxTowers, "a row a tower");
  PatternValues values{};
  StationRecord scratch = record;
  if (ComputePattern(scratch, values))
    for (const float value : values) HoldFinite(value);
}

}  // namespace

void StationFile(std::string_view bytes) {
  std::size_t notes = 0;
  const std::vector<StationRecord> records = Read(bytes, notes);
  for (const StationRecord& record : records) UseRecord(record);

  std::size_t stationLines = 0;
  StationLineReader lines(bytes);
  while (const auto line = lines.Next()) {
    ++stationLines;
    const StationSelection selection = ParseListLine(ListLine(*line));
    HoldFinite(selection.Latitude + 0.0);
    HoldFinite(selection.Longitude + 0.0);
  }
  Hold(stationLines >= records.size(), "a station line a record");

  // What the writer makes of it is a file without faults, and stays the same from then on.
  const std::string once = Written(records);
  const std::vector<StationRecord> reread = Read(once, notes);
  Hold(reread.size() == records.size() && notes == 0, "a written file is read whole");
  const std::string twice = Written(reread);
  Hold(Written(Read(twice, notes)) == twice, "a written file is written the same again");
}

}  // namespace kestrel::fuzz
