#include "data/StationLookup.h"

#include <gtest/gtest.h>

#include "TestFolder.h"
#include "data/TowerTable.h"

namespace kestrel {
namespace {

const QByteArray kFile =
    "1230, QABC, SPRINGFIELD             , IL  , United States, D, 39.7817, 89.6501, 1,-,-, 1\r\n"
    "0,1,90,0,0,0\r\n"
    "1230, QABC, SPRINGFIELD             , IL  , United States, N, 39.7817, 89.6501, .25,-,-, 2\r\n"
    "0,1,90,0,0,0\r\n"
    " 1,.8,90,-90,90,45\r\n"
    "1230, QZRO, NOWHERE                 , -   , Chile        , U,-33.5, 70.6, 0,-,-, 0\r\n"
    "1230, QLAT, NOWHERE                 , -   , Chile        , U, 0, 70.6, 5,-,-, 0\r\n"
    "1230, QTWO, TWICE                   , TX  , United States, D, 30, 100, 1,-,-, 1\r\n"
    "0,1,90,0,0,0\r\n"
    "1230, QTWO, TWICE                   , TX  , United States, D, 30, 100, 5,-,-, 1\r\n"
    "0,1,120,0,0,0\r\n"
    "1230, qlow, SMALL                   , TX  , United States, D, 30, 100, 1,-,-, 0\r\n"
    "1230,WOWN,A city of a very long name indeed,Quebec,Canada,N,45.123456,-73.987654,.5,x,y,1\r\n"
    "0,1,90,0,0,0\r\n"
    "1230,WMNY,Town,TX,United States,U,30,100,1,-,-,14\r\n"
    "1230,WBRK,Town,TX,United States,U,30,100,1,-,-,3\r\n"
    "0,1,90,0,0,0\r\n"
    "0,0,90,0,90,0\r\n"
    "0,1,90,0,180,0\r\n";

TEST(StationLookupTest, SearchesListWhatTheyShould) {
  TestFolder data;
  data.Put("1230X.DAT", kFile);
  const std::string notFound =
      "We did not find a station with callsign '%'.\r\n"
      "It may be listed on a frequency other than this (1230).";
  const struct {
    const char *entry, *callSign;
    std::size_t rows;
    std::string message;
  } rows[] = {
      {"QABC", "QABC", 2, ""},       {"  qabc ", "QABC", 2, ""},
      {"QTWO", "QTWO", 2, ""},       {"QAB", "QAB", 0, notFound},
      {"QZRO", "QZRO", 0, notFound}, {"QLAT", "QLAT", 0, notFound},
      {"qlow", "QLOW", 0, notFound}, {"", "", 0, "We need a station callsign entry"},
  };
  for (const auto& row : rows) {
    const SearchResult found = SearchStations(data.Folder(), 1230, row.entry);
    std::string message = row.message;
    if (const auto at = message.find('%'); at != std::string::npos) message.replace(at, 1, row.callSign);
    EXPECT_EQ(found.CallSign, row.callSign) << row.entry;
    EXPECT_EQ(found.Rows.size(), row.rows) << row.entry;
    EXPECT_EQ(found.Message, message) << row.entry;
    EXPECT_TRUE(found.Ended) << row.entry;
  }
  const SearchResult missing = SearchStations(data.Folder(), 1240, "QABC");
  EXPECT_EQ(missing.Message, "There is no data for 1240");
  EXPECT_FALSE(missing.Ended);
}

TEST(StationLookupTest, AThousandRowsFitAndNoMore) {
  const QByteArray line = "600, QMNY, TOWN, TX, United States, D, 30, 100, 1,-,-, 0\n";
  TestFolder data;
  data.Put("600x.dat", line.repeated(1000));
  EXPECT_EQ(SearchStations(data.Folder(), 600, "QMNY").Message, "");
  EXPECT_EQ(SearchStations(data.Folder(), 600, "QMNY").Rows.size(), 1000U);
  data.Put("600x.dat", line.repeated(1001));
  EXPECT_EQ(SearchStations(data.Folder(), 600, "QMNY").Message, "There is no data for 600");
}

TEST(StationLookupTest, ARowShowsItsRecordInFixedColumnsAndSelectsIt) {
  TestFolder data;
  data.Put("1230x.dat", kFile);
  const ListRow row = SearchStations(data.Folder(), 1230, "QABC").Rows.at(1);
  EXPECT_EQ(row.Line,
            " QABC    SPRINGFIELD              IL   UNITED STATES N   39.7817     89.6501     .25    2");
  EXPECT_EQ(row.Selection.Country, "UNITED STATES") << "in capitals, as the line has it";
  // A country of more than 17 characters is cut, longer fields of other kinds push the rest to the right.
  EXPECT_EQ(ListLine(CutStationLine("1,A,b,c,Country of seventeen and more,U,1,2,3,x,y,4")),
            "A       B                    C    COUNTRY OF SEVENT U   1           2           3      4");
  EXPECT_EQ(ListLine(CutStationLine("1,LONGCALLSIGN,b,c,d,U,1,2,3,x,y,4")).find("B"), 12U);

  const StationSelection wide = SearchStations(data.Folder(), 1230, "WOWN").Rows.at(0).Selection;
  EXPECT_EQ(wide.SelectedHoursCode, "N") << "though the long city pushed it away in the line";
  EXPECT_EQ(wide.Latitude, 45.123456F);
  EXPECT_EQ(LoadRecords(data.Folder(), 1230, wide).size(), 1U);
  const StationSelection tooMany = SearchStations(data.Folder(), 1230, "WMNY").Rows.at(0).Selection;
  EXPECT_EQ(tooMany.SelectedTowerCount, 14);
  EXPECT_EQ(LoadRecords(data.Folder(), 1230, tooMany).size(), 0U);
}

TEST(StationLookupTest, RecordsAreLoadedByCallHoursAndTowers) {
  TestFolder data;
  data.Put("1230x.dat", kFile);
  const auto load = [&](const char* callSign, std::size_t row) {
    return LoadRecords(data.Folder(), 1230,
                       SearchStations(data.Folder(), 1230, callSign).Rows.at(row).Selection);
  };
  const auto day = load("QABC", 0);
  ASSERT_EQ(day.size(), 1U);
  EXPECT_EQ(day[0].PowerKW, 1);
  const auto night = load("QABC", 1);
  ASSERT_EQ(night.size(), 1U);
  EXPECT_EQ(night[0].Spacings[2], 90);
  const auto twins = load("QTWO", 0);
  ASSERT_EQ(twins.size(), 2U) << "two records with one call sign, hours and tower count";
  EXPECT_EQ(twins[1].Heights[1], 120);
  EXPECT_FALSE(HasBrokenTowers(night[0]));
  EXPECT_TRUE(HasBrokenTowers(load("WBRK", 0).at(0)));

  EXPECT_EQ(
      TowerTableText(TowerTable(night[0])),
      "Fields\tHeights\tPhases\tSpacings\tBearings\tSwitch\n1\t90\t0\t0\t0\t0\n.8\t90\t-90\t90\t45\t1\n");
  EXPECT_EQ(TowerTable(night[0])[1], (TowerRow{" .8 ", " 90 ", "-90 ", " 90 ", " 45 ", " 1"}));
  const auto broken = TowerTable(load("WBRK", 0).at(0));
  ASSERT_EQ(broken.size(), 3U) << "a tower without a field ratio does not hide the next one";
  EXPECT_EQ(broken[1][0], " 0 ");
  EXPECT_EQ(broken[2][3], " 180 ");
}

TEST(StationLookupTest, TheWebMapAddressHoldsWhatTheStationIs) {
  StationSelection selection;
  selection.SelectedCallSign = "QABC";
  selection.City = "NEW TOWN";
  selection.Latitude = 40.5;
  selection.Longitude = 75.25;
  EXPECT_EQ(WebMapAddress(selection, "en"),
            "http://maps.google.com/maps?hl=en&q=40.5,+-75.25+%28QABC - NEW TOWN%29");
  selection.Longitude = -.5;
  selection.Latitude = -12;
  EXPECT_EQ(WebMapAddress(selection, "fr"),
            "http://maps.google.com/maps?hl=fr&q=-12,+.5+%28QABC - NEW TOWN%29");
}

}  // namespace
}  // namespace kestrel
