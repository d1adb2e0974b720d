#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/Csv.h"
#include "cli/Table.h"
#include "field/Ranking.h"

// How ranked records are written: the same members as JSON and as CSV, and a table for people.

namespace kestrel::cli {

/// A record of a ranking with what was found of it.
struct RankedStation {
  const RecordAtHome& Record;
  const RankedRecord& Row;
};

/// The members of one record, for JsonWriter and CsvWriter.
template <typename Writer>
void WriteRanked(Writer& writer, const RankedStation& station) {
  const auto& [record, row] = station;
  const FieldAtHome& field = record.Field;
  const FieldLevels& levels = row.Levels;
  writer.Key("call").Text(record.CallSign).Key("city").Text(record.City);
  writer.Key("state").Text(record.State).Key("country").Text(record.Country);
  writer.Key("hours").Text(std::string(1, HoursLetter(record.OnAir)));
  writer.Key("power_kw").Decimals(record.PowerKW).Key("towers").Whole(record.Towers);
  writer.Key("line").Whole(record.Line);
  writer.Key("distance_km").Decimals(record.Distance).Key("bearing_deg").Decimals(record.Bearing);
  writer.Key("azimuth_deg").Decimals(field.Path().Azimuth());
  writer.Key("pattern_known").Truth(field.PatternIsKnown());
  writer.Key("e_ground_mv").Decimals(field.GroundField());
  writer.Key("theta_deg").Decimals(field.Path().DepartureAngle());
  writer.Key("e_theta_mv").Decimals(field.SkyField());
  writer.Key("phi_deg").Decimals(field.Path().GeomagneticLatitude());
  writer.Key("hourly_loss_db");
  if (levels.HourlyLoss)
    writer.Decimals(*levels.HourlyLoss);
  else
    writer.Null();
  writer.Key("groundwave_dbu").Decimals(levels.GroundWave);
  writer.Key("skywave50_dbu").Decimals(levels.SkyMedian);
  writer.Key("skywave10_dbu").Decimals(levels.SkyUpperDecile);
  writer.Key("total50_dbu").Decimals(levels.Total).Key("high_dbu").Decimals(levels.High);
  writer.Key("word").Text(WordOf(row.Chance)).Key("reason").Text(field.ReasonFor(levels));
}

/// CSV of ranked records; the first column is the channel.
CsvWriter RankedCsv();
void AddRanked(CsvWriter& csv, float frequency, const RankedStation& station);
void AddSilent(CsvWriter& csv, float frequency, const RecordAtHome& record, std::string_view reason);

/// A table for people; its first columns are `before`.
Table RankedTable(std::vector<Table::Column> before);
void AddRanked(Table& table, std::vector<std::string> before, const RankedStation& station);

}  // namespace kestrel::cli
