#include <string>
#include <vector>

#include "Targets.h"
#include "core/Text.h"
#include "data/StationFile.h"
#include "data/StationLineText.h"
#include "data/StationLookup.h"
#include "data/TowerTable.h"
#include "field/Ranking.h"
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

std::vector<StationRecord> Read(std::string_view bytes, std::vector<std::string>& notes) {
  std::vector<StationRecord> records;
  StationFileReader reader("1230x.dat", bytes);
  while (const StationRecord* record = reader.Next()) records.push_back(*record);
  notes = reader.Notes();
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

/// Whatever the file holds, at night and at noon every record in force has its levels and its reason.
void RankRecords(const std::vector<StationRecord>& records) {
  static const ChannelRanking none(kChannel, {33.24278F, 96.54139F}, AverageConductivity);
  ChannelRanking channel = none;
  for (const StationRecord& record : records) channel.Add(record, 1);
  for (const int hour : {6, 18}) {
    const Moment moment = std::chrono::sys_days(std::chrono::year(2026) / 11 / 22) + std::chrono::hours(hour);
    const Ranking ranking = channel.Rank(moment, {});
    Hold(ranking.Rows.size() + ranking.Silent.size() <= records.size(), "a record is on the air or not");
    HoldFinite(ranking.Needed);
    for (const auto& [record, levels, chance] : ranking.Rows) {
      for (const double level :
           {levels.GroundWave, levels.SkyMedian, levels.SkyUpperDecile, levels.Total, levels.High})
        HoldFinite(level);
      Hold(!channel.Records()[record].Field.ReasonFor(levels).empty(), "every level has its reason");
    }
  }
}

}  // namespace

bool StationFile(std::string_view bytes) {
  std::vector<std::string> notes;
  const std::vector<StationRecord> records = Read(bytes, notes);
  Hold(notes.size() <= MaxNotes + 1, "faults are reported up to the limit");
  for (const StationRecord& record : records) UseRecord(record);
  RankRecords(records);

  StationLineReader lines(bytes);
  std::size_t count = 0;
  for (; const auto line = lines.Next(); ++count)
    Hold(ListLine(*line).size() >= 87, "a listed line has all its columns");
  Hold(records.size() <= count, "every record has its station line");

  // What the writer makes of it is a file without faults, and stays the same from then on.
  const std::string once = Written(records);
  const std::vector<StationRecord> reread = Read(once, notes);
  Hold(reread.size() == records.size() && notes.empty(), "a written file is read whole");
  const std::string twice = Written(reread);
  Hold(Written(Read(twice, notes)) == twice, "a written file is written the same again");
  return true;
}

}  // namespace kestrel::fuzz
