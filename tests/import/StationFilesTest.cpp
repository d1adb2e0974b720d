#include "import/merge/StationFiles.h"

#include <gtest/gtest.h>

#include "ImportTesting.h"
#include "core/Lines.h"
#include "core/Numbers.h"
#include "data/FileIo.h"
#include "data/PlaceLists.h"
#include "data/StationFile.h"
#include "data/StationLineText.h"

namespace kestrel {
namespace {

TEST(StationLineText, FieldsHaveTheirWidths) {
  StationRecord record;
  record.CallSign = "CFTR-AX2";
  record.City = "HEROICA PUEBLA DE LOS ÁNGELES Y";
  record.State = "A,B";
  record.HoursCode = "D";
  record.Longitude = 144.75644F;
  record.PowerKW = 0.00001F;
  FieldChanges changes;
  EXPECT_EQ(StationRecordText(1230, record, changes),
            "1230, CFTR-AX, HEROICA PUEBLA DE LOS ÁN, A B , -            , D, 0.0001, 144.7564, "
            "0.0001,-,-, 0\r\n");
  EXPECT_EQ(changes.cut, 2);
  EXPECT_EQ(changes.blanked, 1);
  EXPECT_EQ(changes.empty, 1);

  record.Latitude = -33.40004F;
  record.Longitude = -144.75644F;
  record.PowerKW = 1234.56F;
  record.TowerCount = 1;
  record.Switch[1] = "3";
  record.Fields[1] = 1e-9F;
  record.Phases[1] = -0.00001F;
  EXPECT_TRUE(StationRecordText(530, record, changes)
                  .ends_with(", D, -33.4, -144.756, 1234.6,-,-, 1\r\n 3,0.000001,0,0,0,0\r\n"));
}

TEST(StationLineText, AFullStationFileIsReadWhole) {
  StationRecord record;
  record.CallSign = record.City = record.State = record.Country = std::string(200, 'W');
  record.HoursCode = "U";
  record.TowerCount = MaxTowers;
  for (std::size_t i = 1; i <= static_cast<std::size_t>(MaxTowers); ++i) {
    record.Switch[i] = "0";
    record.Fields[i] = 999999.9F;
    record.Heights[i] = record.Spacings[i] = 99999.99F;
    record.Phases[i] = record.Bearings[i] = -359.1234F;
  }
  FieldChanges changes;
  EXPECT_LT(StationRecordText(1700, record, changes).size() * MaxRecords, std::size_t{LargestDataFile});
}

TEST(StationSet, HoldsEveryChannelAndReportsNamesThatDoNotFit) {
  const TextImport import =
      ImportTexts({{"amq.txt", AmqRow{.Call = "QABC-FM2", .City = "ST. JOHN, N.B."}.Text() +
                                   AmqRow{.City = "", .Facility = "2"}.Text()}});
  EXPECT_EQ(import.files.size(), 120U);
  EXPECT_EQ(import.files.at("530x.dat"), "");
  EXPECT_EQ(import.files.at("1700x.dat"), "");
  EXPECT_EQ(import.files.at("Stations.txt"), "A test\r\n");
  EXPECT_EQ(import.Examples(Finding::NameCut), "amq.txt:1: QABC-FM2, ST. JOHN, N.B., IL\n");
  EXPECT_EQ(import.Examples(Finding::NameBlanked), "amq.txt:1: QABC-FM2, ST. JOHN, N.B., IL\n");
  EXPECT_EQ(import.Examples(Finding::NameEmpty), "amq.txt:2: QAAA, , IL\n");
}

TEST(CallIndex, ALineForEachSiteInTheColumnsOfTheReader) {
  const std::string text =
      AmqRow{.Call = "QZZZ", .Hours = "Daytime", .Facility = "1"}.Text() +
      AmqRow{.Call = "QZZZ", .Hours = "Nighttime", .Power = "0.25 kW", .Facility = "1"}.Text() +
      AmqRow{.Call = "QBBB",
             .Status = "CP",
             .City = "SÃO JOÃO DOS CAMPOS GERAIS",
             .State = "-",
             .Country = "BR",
             .Facility = "2",
             .Latitude = "S|23|30|0",
             .Longitude = "W|46|37|0"}
          .Text() +
      AmqRow{.Call = "QCCC", .City = "ICE", .Facility = "3", .Longitude = "W|25|0|0"}.Text();
  const TextImport import = ImportTexts({{"amq.txt", text}});
  const std::string& index = import.files.at("StationsCall.DAT");
  EXPECT_EQ(import.report.Stations, 3);
  const auto entries = ReadPlaceList(index, MaxCalls).Entries;
  ASSERT_EQ(entries.size(), 2U);  // Iceland's longitude is no home of the program
  EXPECT_EQ(entries.at(0), "QBBB     1230 São João Dos Camp  Brazil      1 kW U      -23.5   46.6167");
  EXPECT_EQ(entries.at(1), "QZZZ     1230 Springfield  IL                1 kW DN   39.7817   89.6501");
  EXPECT_TRUE(index.ends_with("\r\n"));
  EXPECT_EQ(import.Examples(Finding::NoHome), "amq.txt:4: QCCC 1230, ICE, IL, 1 kW\n");
}

TEST(CallIndex, ASiteStandsWhereItsStationFileHasIt) {
  const AmqRow equator{
      .Call = "QEQU", .Status = "CP", .Country = "EC", .Latitude = "N|0|0|0", .Longitude = "W|78|30|0"};
  const AmqRow far{.Call = "QFAR", .Facility = "2", .Longitude = "W|144|45|23.2"};
  const TextImport import = ImportTexts({{"amq.txt", equator.Text() + far.Text()}});
  const auto entries = ReadPlaceList(import.files.at("StationsCall.DAT"), MaxCalls).Entries;
  ASSERT_EQ(entries.size(), 2U);
  StationFileReader reader("1230x.dat", import.files.at("1230x.dat"));
  for (const std::string& entry : entries) {
    const Place place = CutCall(entry);
    const StationRecord* record = reader.Next();
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(static_cast<float>(LeadingNumber(place.LatitudeText)), record->Latitude) << entry;
    EXPECT_EQ(static_cast<float>(LeadingNumber(place.LongitudeText)), record->Longitude) << entry;
  }
  EXPECT_EQ(CutCall(entries.at(0)).LatitudeText, "0.0001");
}

TEST(CallIndex, WhatHasNoRoomIsWeakOrASecondSiteAndReported) {
  // 8998 strong stations of a large town, and four that compete for the last two places.
  std::string text;
  for (int i = 1; i <= 8998; ++i)
    text += AmqRow{.Call = "Q" + std::to_string(i), .Power = "5 kW", .Facility = std::to_string(i)}.Text();
  text +=
      AmqRow{.Call = "QFAR", .City = "ELSEWHERE", .Power = "0.1 kW", .Facility = "9001"}.Text() +
      AmqRow{.Call = "QMORE", .Power = "1 kW", .Facility = "9002"}.Text() +
      AmqRow{.Call = "QLESS", .Power = "0.5 kW", .Facility = "9003"}.Text() +
      AmqRow{.Call = "Q1", .Hours = "Nighttime", .Power = "4.9 kW", .Facility = "1", .Latitude = "N|40|0|0"}
          .Text();
  const TextImport import = ImportTexts({{"amq.txt", text}});
  const std::string& index = import.files.at("StationsCall.DAT");
  EXPECT_EQ(ReadPlaceList(index, MaxCalls).Entries.size(), MaxCalls);
  EXPECT_NE(index.find("QFAR"), std::string::npos) << "a town is never without a station";
  EXPECT_NE(index.find("QMORE"), std::string::npos);
  EXPECT_EQ(
      import.Examples(Finding::IndexFull),
      "amq.txt:9001: QLESS 1230, SPRINGFIELD, IL, 0.5 kW\namq.txt:9002: Q1 1230, SPRINGFIELD, IL, 4.9 kW\n");
}

}  // namespace
}  // namespace kestrel
