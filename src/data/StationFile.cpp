#include "data/StationFile.h"

#include "core/Numbers.h"
#include "core/PlainNumber.h"
#include "core/Text.h"
#include "core/TextFields.h"

namespace kestrel {
namespace {

float Number(std::string_view field) {
  return static_cast<float>(LeadingNumber(field));
}

/// Reads a tower line as nearly all are: a switch and five plain numbers, a comma and at most one blank
/// between them. Returns false for any other line, which is then cut field by
/// field. It saves a twentieth of the reading of station files.
bool ReadPlainTower(std::string_view line, std::size_t i, StationRecord& record) {
  const char* at = line.data();
  const char* const end = at + line.size();
  while (at != end && *at != ',') ++at;
  if (at == line.data()) return false;
  record.Switch[i].assign(line.data(), at);
  for (float* number :
       {&record.Fields[i], &record.Heights[i], &record.Phases[i], &record.Spacings[i], &record.Bearings[i]}) {
    if (at == end || *at != ',') return false;
    if (++at != end && *at == ' ') ++at;
    double value = 0;
    at = ReadPlainNumber(at, end, value);
    if (!at) return false;
    *number = static_cast<float>(value);
  }
  return at == end;
}

}  // namespace

Position StationLine::At() const {
  return {Number(Latitude), Number(Longitude)};
}

bool IsStationLine(std::string_view line) {
  return !line.empty() && line.front() >= '1' && line.front() <= '9';
}

StationLine CutStationLine(std::string_view line) {
  const auto fields = FirstFields<12>(line);  // the tenth and eleventh carry nothing
  return {fields[0], fields[1], fields[2], fields[3], fields[4],
          fields[5], fields[6], fields[7], fields[8], fields[11]};
}

void CutTowerLine(std::string_view line, int tower, StationRecord& record) {
  const auto i = static_cast<std::size_t>(tower);
  if (ReadPlainTower(line, i, record)) return;
  const auto fields = FirstFields<6>(line);
  record.Switch[i] = fields[0];
  record.Fields[i] = Number(fields[1]);
  record.Heights[i] = Number(fields[2]);
  record.Phases[i] = Number(fields[3]);
  record.Spacings[i] = Number(fields[4]);
  record.Bearings[i] = Number(fields[5]);
}

double StoreStationLine(const StationLine& line, StationRecord& record) {
  record.CallSign = Trim(line.CallSign);
  record.City = Trim(line.City);
  record.State = Trim(line.State);
  record.Country = Trim(line.Country);
  record.HoursCode = Trim(line.HoursCode);
  record.Latitude = Number(line.Latitude);
  record.Longitude = Number(line.Longitude);
  record.PowerKW = Number(line.PowerKW);
  const double towers = RoundToWhole(LeadingNumber(line.TowerCount));
  record.TowerCount =
      towers >= 0 && towers <= MaxTowers ? static_cast<std::int16_t>(towers) : std::int16_t{0};
  return towers;
}

StationFileReader::StationFileReader(std::string name, std::string_view bytes)
    : name_(std::move(name)), lines_(bytes) {}

StationRecord* StationFileReader::Next() {
  while (const auto line = lines_.Next()) {
    if (!IsStationLine(*line)) {
      if (!skipping_ && !Trim(*line).empty()) {
        Note("not a station line, which begins with the channel");
        skipping_ = true;
      }
      continue;
    }
    skipping_ = false;
    if (recordCount_ == MaxRecords) {
      Note("more than " + std::to_string(MaxRecords) + " records; the rest is left out");
      break;
    }
    ++recordCount_;
    recordLine_ = lines_.LineNumber();
    const double towers = StoreStationLine(CutStationLine(*line), record_);
    if (towers < 0 || towers > MaxTowers) {
      Note(NumberText(static_cast<float>(towers)) +
           (towers < 0 ? " towers, at least 0" : " towers, at most 12"));
      skipping_ = true;
      continue;
    }
    return ReadTowers() ? &record_ : nullptr;
  }
  return nullptr;
}

bool StationFileReader::ReadTowers() {
  for (int tower = 1; tower <= record_.TowerCount; ++tower) {
    const auto line = lines_.Next();
    if (!line) {
      Note("the file ends before the last of " + std::to_string(record_.TowerCount) + " towers");
      return false;
    }
    CutTowerLine(*line, tower, record_);
  }
  return true;
}

void StationFileReader::Note(const std::string& text) {
  if (notes_.size() > MaxNotes) return;
  if (notes_.size() == MaxNotes) {
    notes_.push_back(name_ + ": more than " + std::to_string(MaxNotes) +
                     " faults; the others are not listed");
    return;
  }
  notes_.push_back(name_ + ':' + std::to_string(lines_.LineNumber()) + ": " + text);
}

std::optional<StationLine> StationLineReader::Next() {
  while (lineCount_ < MaxRecords) {
    const auto line = lines_.Next();
    if (!line) break;
    if (!IsStationLine(*line)) continue;
    ++lineCount_;
    return CutStationLine(*line);
  }
  return std::nullopt;
}

}  // namespace kestrel
