#include "import/read/AmqList.h"

#include <algorithm>
#include <array>
#include <optional>

#include "core/Text.h"
#include "data/StationLineText.h"
#include "import/Countries.h"
#include "import/read/RowFields.h"
#include "import/read/SexagesimalAngles.h"

namespace kestrel {
namespace {

// The fields of a row, counted from 1; field 0 is the nothing before the first bar.
enum Field : std::size_t {
  kCall = 1,
  kFrequency = 2,
  kService = 3,
  kPeriod = 6,
  kStatus = 9,
  kCity = 10,
  kState = 11,
  kCountry = 12,
  kFileNumber = 13,
  kPower = 14,
  kDirectional = 15,
  kFacility = 18,
  kLatitude = 19,
  kLongitude = 23
};

constexpr std::size_t kOlderFields = 31;
constexpr std::size_t kFields = 33;

// In the order of preference; those after the permit are never on the air.
constexpr std::array<std::string_view, 11> kStatuses = {"LIC",    "STA", "MOD", "CP",  "APP", "NCECP",
                                                        "NCECPA", "EXT", "CNL", "EXP", "DEL"};

bool IsOnAir(std::string_view status, std::string_view country, bool includePermits) {
  if (country != "US") return status == "LIC" || status == "CP";
  return status == "LIC" || status == "STA" || (includePermits && (status == "MOD" || status == "CP"));
}

bool IsEnded(std::string_view status) {
  return status == "CNL" || status == "EXP" || status == "DEL";
}

/// By the words of the list, which are not the program's own.
Hours HoursOfPeriod(std::string_view period) {
  if (period == "Daytime") return Hours::Daytime;
  if (period == "Nighttime") return Hours::Nighttime;
  if (period == "Unlimited") return Hours::Unlimited;
  if (period == "Critical Hours") return Hours::Critical;
  return Hours::Other;
}

std::string Quoted(std::string_view text) {
  return '"' + std::string(text) + '"';
}

class Reader {
 public:
  Reader(const ImportOptions& options, AmqStations& stations, NewestDate& dates)
      : options_(options), stations_(stations), dates_(dates) {}

  /// Adds the row's station, or says why not.
  std::optional<Fault> Add(std::string_view line, bool cut, RowPlace row);

 private:
  std::optional<Fault> ReadStatus(Station& station);
  std::optional<Fault> ReadSite(Station& station) const;
  SexagesimalText Angle(std::size_t first) const {
    return {fields_[first], fields_[first + 1], fields_[first + 2], fields_[first + 3]};
  }

  const ImportOptions& options_;
  AmqStations& stations_;
  NewestDate& dates_;
  std::vector<std::string_view> fields_;
};

std::optional<Fault> Reader::Add(std::string_view line, bool cut, RowPlace row) {
  if (cut) return Fault{Finding::WrongForm, "the row is longer than 64 KB"};
  line = Trim(line);
  if (!line.ends_with('|')) return Fault{Finding::WrongForm, "the row does not end with a bar"};
  SplitAtBars(line, fields_);
  const std::size_t count = fields_.size() - 2;
  if (count < kOlderFields || count > kFields)
    return Fault{Finding::WrongForm, std::to_string(count) + " fields, 31 to 33 expected"};

  Station station;
  station.Row = row;
  if (fields_[kService] != "AM") return Fault{Finding::OtherService, "service " + Quoted(fields_[kService])};
  dates_.See(FileNumberDate(fields_[kFileNumber]));
  if (auto fault = ReadStatus(station)) return fault;
  if (auto fault = ReadSite(station)) return fault;
  stations_.OnAir.push_back(std::move(station));
  return std::nullopt;
}

std::optional<Fault> Reader::ReadStatus(Station& station) {
  const auto* const status = std::find(kStatuses.begin(), kStatuses.end(), fields_[kStatus]);
  if (status == kStatuses.end()) return Fault{Finding::BadField, "status " + Quoted(fields_[kStatus])};
  station.Hours = HoursOfPeriod(fields_[kPeriod]);
  if (station.Hours == Hours::Other) return Fault{Finding::BadField, "hours " + Quoted(fields_[kPeriod])};
  const std::optional<FacilityId> facility = ReadFacilityId(fields_[kFacility]);
  if (!facility) return Fault{Finding::BadField, "facility " + Quoted(fields_[kFacility])};
  station.Facility = *facility;
  const std::string_view country = CountryCode(fields_[kCountry]);
  const std::string callSign = UpperCase(MendedName(fields_[kCall]));
  station.Names = StationNames(callSign, MendedName(fields_[kCity]), MendedName(fields_[kState]), country);
  const double frequency = NumberWithUnit(fields_[kFrequency], "kHz").value_or(0);
  if (IsOnRaster(frequency)) station.Channel = static_cast<std::int16_t>(frequency);
  station.Preference = static_cast<std::uint8_t>(status - kStatuses.begin()) & 0x3F;
  station.Permit = country == "US" && *status != "LIC" && *status != "STA";
  if (stations_.RowCount == stations_.MostRows) return Fault{Finding::NoRoom, callSign};
  ++stations_.RowCount;
  if (station.Facility != 0) stations_.Facilities.push_back(station.Facility);

  const bool named = IsCallSign(callSign);
  if (named && IsOnAir(*status, country, options_.IncludePermits)) return std::nullopt;
  if (station.Facility != 0) stations_.OffAir.emplace_back(station.Facility, station.Hours);
  if (!named || IsEnded(*status)) stations_.Ended.push_back(station);
  if (!named) return Fault{Finding::NotOnAir, "call sign " + Quoted(callSign)};
  return Fault{Finding::NotOnAir, callSign + ", status " + std::string(*status)};
}

std::optional<Fault> Reader::ReadSite(Station& station) const {
  const std::optional<double> frequency = NumberWithUnit(fields_[kFrequency], "kHz");
  if (!frequency) return Fault{Finding::BadField, "frequency " + Quoted(fields_[kFrequency])};
  const std::optional<double> power = NumberWithUnit(fields_[kPower], "kW");
  if (!power) return Fault{Finding::BadField, "power " + Quoted(fields_[kPower])};
  const Result<SitePosition> position = ReadSitePosition(Angle(kLatitude), Angle(kLongitude));
  if (!position) return Fault{Finding::BadField, position.error().text};
  const std::string_view directional = fields_[kDirectional];
  if (!directional.empty() && directional != "-" && directional != "Directional")
    return Fault{Finding::BadField, "antenna " + Quoted(directional)};

  const auto fault = [&](Finding finding, const std::string& text) {
    return Fault{finding, std::string(station.Names.CallSign()) + ", " + text};
  };
  if (!IsOnRaster(*frequency)) return fault(Finding::OffRaster, DecimalText(*frequency, 3) + " kHz");
  if (const std::string why = PowerFault(*power); !why.empty()) return fault(Finding::BadField, why);
  if (!IsInAmericas(*position)) return fault(Finding::OutsideAmericas, std::string(fields_[kCity]));
  if (const std::string_view country = station.Names.Country(); !options_.WantsCountry(country))
    return fault(Finding::OtherCountry, std::string(country));

  station.PowerKW = *power;
  station.Position = *position;
  station.Directional = directional == "Directional";
  return std::nullopt;
}

}  // namespace

bool IsAmqRow(std::string_view line) {
  if (!line.starts_with('|') || line.ends_with("|^|")) return false;
  std::vector<std::string_view> fields;
  SplitAtBars(line, fields);
  return fields.size() > kOlderFields && fields[kFrequency].ends_with("kHz");
}

void ReadAmqList(LineStream& lines, int file, const ImportOptions& options, AmqStations& stations,
                 NewestDate& dates, ImportReport& report) {
  Reader reader(options, stations, dates);
  while (const auto line = lines.Next()) {
    const RowPlace row{file, lines.LineNumber()};
    const std::size_t bar = line->find('|');
    if (bar == std::string_view::npos || (bar > 0 && !IsAmqRow(line->substr(bar)))) continue;
    report.Read(row);
    if (bar > 0) {
      report.LeaveOut(row, Finding::WrongForm, "something stands before the first bar");
      continue;
    }
    if (const std::optional<Fault> fault = reader.Add(*line, lines.WasCut(), row))
      report.LeaveOut(row, fault->Why, fault->Text);
  }
}

}  // namespace kestrel
