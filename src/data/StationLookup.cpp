#include "data/StationLookup.h"

#include <algorithm>

#include "core/Numbers.h"
#include "core/Text.h"

namespace kestrel {
namespace {

constexpr std::size_t kCountryLength = 17;

StationSelection SelectionOf(const StationRecord& record, double towers) {
  const auto towerCount = static_cast<std::int16_t>(std::clamp(towers, -32768.0, 32767.0));
  return {record.CallSign,           UpperCase(record.City), UpperCase(record.State),
          UpperCase(record.Country), record.HoursCode,       record.Latitude,
          record.Longitude,          record.PowerKW,         towerCount};
}

std::string NoDataMessage(float frequency) {
  return "There is no data for " + NumberText(frequency);
}

std::string NothingListedMessage(const std::string& callSign, float frequency) {
  if (callSign.empty()) return "We need a station callsign entry";
  return "We did not find a station with callsign '" + callSign +
         "'.\r\nIt may be listed on a frequency other than this (" + NumberText(frequency) + ").";
}

bool IsSelected(const StationRecord& record, const StationSelection& selection) {
  return UpperCase(record.CallSign) == selection.SelectedCallSign &&
         record.HoursCode == selection.SelectedHoursCode && record.TowerCount == selection.SelectedTowerCount;
}

std::string_view View(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

}  // namespace

SearchResult SearchStations(const DataFolder& folder, float frequency, std::string_view entry) {
  SearchResult result;
  result.CallSign = UpperCase(Trim(entry));
  const Result<QByteArray> bytes = folder.Read(StationFileName(frequency));
  if (!bytes) {
    result.Message = NoDataMessage(frequency);
    return result;
  }
  StationLineReader reader(View(*bytes));
  StationRecord record;
  while (const std::optional<StationLine> line = reader.Next()) {
    if (Trim(line->CallSign) != result.CallSign) continue;
    const double towers = StoreStationLine(*line, record);
    if (record.Latitude == 0 || record.Longitude == 0 || record.PowerKW == 0) continue;
    if (result.Rows.size() == MaxListRows) {
      result.Message = NoDataMessage(frequency);
      return result;
    }
    result.Rows.push_back({ListLine(*line), SelectionOf(record, towers)});
  }
  result.Ended = true;
  if (result.Rows.empty()) result.Message = NothingListedMessage(result.CallSign, frequency);
  return result;
}

std::string ListLine(const StationLine& line) {
  std::string text = PadTo(UpperCase(line.CallSign), 8);
  text = PadTo(text + UpperCase(line.City), 29);
  text = PadTo(text + UpperCase(line.State), 34);
  text = PadTo(text + UpperCase(Columns(line.Country, 1, kCountryLength)), 52);
  text = PadTo(text + UpperCase(line.HoursCode), 56);
  text = PadTo(text.append(line.Latitude), 68);
  text = PadTo(text.append(line.Longitude), 80);
  text = PadTo(text.append(line.PowerKW), 87);
  return text.append(line.TowerCount);
}

std::string_view ListHeads() {
  return " Call:   City:                  State: Country:  Hours:  Latitude:   Longitude:  Power: Towers:";
}

std::vector<StationRecord> LoadRecords(const DataFolder& folder, float frequency,
                                       const StationSelection& selection) {
  const QString name = StationFileName(frequency);
  const Result<QByteArray> bytes = folder.Read(name);
  if (!bytes) return {};
  std::vector<StationRecord> records;
  StationFileReader reader(name.toStdString(), View(*bytes));
  while (const StationRecord* record = reader.Next())
    if (IsSelected(*record, selection)) records.push_back(*record);
  return records;
}

bool HasBrokenTowers(const StationRecord& record) {
  const auto first = record.Fields.begin() + 1;
  const auto zeros = std::count(first, first + record.TowerCount, 0.0F);
  return zeros > 0 && zeros < record.TowerCount;
}

std::optional<std::string> ChannelLabel(float frequency) {
  const std::string number = SignedNumberText(frequency);
  if (number.size() < 3) return std::nullopt;
  return "in the " + number + " kHz list";
}

std::string WebMapAddress(const StationSelection& selection, std::string_view language) {
  return "http://maps.google.com/maps?hl=" + std::string(language) + "&q=" + NumberText(selection.Latitude) +
         ",+" + NumberText(-selection.Longitude) + "+%28" + selection.SelectedCallSign + " - " +
         selection.City + "%29";
}

}  // namespace kestrel
