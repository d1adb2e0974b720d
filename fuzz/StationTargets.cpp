#include <algorithm>
#include <string>
#include <vector>

#include "ByTheRules.h"
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

void HoldSame(const StationRecord& a, const StationRecord& b) {
  Hold(a.CallSign == b.CallSign && a.City == b.City && a.State == b.State && a.Country == b.Country &&
           a.HoursCode == b.HoursCode,
       "a station's texts are read by the rules");
  Hold(a.Latitude == b.Latitude && a.Longitude == b.Longitude && a.PowerKW == b.PowerKW &&
           a.TowerCount == b.TowerCount,
       "a station's numbers are read by the rules");
  for (std::size_t i = 1; i <= static_cast<std::size_t>(a.TowerCount); ++i)
    Hold(a.Switch[i] == b.Switch[i] && a.Fields[i] == b.Fields[i] && a.Heights[i] == b.Heights[i] &&
             a.Phases[i] == b.Phases[i] && a.Spacings[i] == b.Spacings[i] && a.Bearings[i] == b.Bearings[i],
         "a tower is read by the rules");
}

/// The first MaxNotes faults are reported with file and line, and that there are more.
void HoldNotes(const std::vector<std::string>& notes, const std::vector<int>& lines) {
  constexpr std::size_t kMost = MaxNotes;
  Hold(notes.size() == std::min(lines.size(), kMost + 1), "every fault is reported, up to the limit");
  for (std::size_t i = 0; i < std::min(notes.size(), kMost); ++i)
    Hold(notes[i].starts_with("1230x.dat:" + std::to_string(lines[i]) + ": "),
         "a fault is reported with its line");
}

void HoldFields(const StationLine& line, const std::vector<std::string>& fields) {
  Hold(line.Frequency == fields[0] && line.CallSign == fields[1] && line.City == fields[2] &&
           line.State == fields[3] && line.Country == fields[4] && line.HoursCode == fields[5] &&
           line.Latitude == fields[6] && line.Longitude == fields[7] && line.PowerKW == fields[8] &&
           line.TowerCount == fields[11],
       "a station line is cut by the rules");
}

}  // namespace

bool StationFile(std::string_view bytes) {
  const StationsByTheRules wanted = ReadStationsByTheRules(bytes);
  std::vector<std::string> notes;
  const std::vector<StationRecord> records = Read(bytes, notes);
  Hold(records.size() == wanted.Records.size(), "as many records as by the rules");
  for (std::size_t i = 0; i < records.size(); ++i) {
    HoldSame(records[i], wanted.Records[i]);
    UseRecord(records[i]);
  }
  RankRecords(records);
  HoldNotes(notes, wanted.FaultyLines);

  StationLineReader lines(bytes);
  for (const std::vector<std::string>& fields : wanted.Stations) {
    const auto line = lines.Next();
    Hold(line.has_value(), "as many station lines as by the rules");
    HoldFields(*line, fields);
    Hold(ListLine(*line).size() >= 87, "a listed line has all its columns");
  }
  Hold(!lines.Next(), "no more station lines than by the rules");

  // What the writer makes of it is a file without faults, and stays the same from then on.
  const std::string once = Written(records);
  const std::vector<StationRecord> reread = Read(once, notes);
  Hold(reread.size() == records.size() && notes.empty(), "a written file is read whole");
  const std::string twice = Written(reread);
  Hold(Written(Read(twice, notes)) == twice, "a written file is written the same again");
  return true;
}

}  // namespace kestrel::fuzz
