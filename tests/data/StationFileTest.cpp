#include "data/StationFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/Numbers.h"

namespace kestrel {
namespace {

const std::string kGood =
    "1230, WXYZ ,Town,ST,United States, U ,40.5,75.25,1,x,y,2\r\n"
    "0,1.0,90,0,0,0\r\n"
    "0,.8,90,-90.5,90,45\r\n"
    "1230,WABC,Big City,NY,United States,D,-12.5,-10,.25,-,-,0\r\n"
    "1230,CDEF,Halifax,NS,Canada,N,44.6,63.5,50,-,-,1\r\n"
    " 1,1,100,0,0,0\r\n";

/// Everything that a file yields: the call sign of each record, and the notes.
struct Yield {
  std::vector<std::string> calls;
  std::vector<std::string> notes;
};
Yield ReadAll(std::string_view bytes) {
  Yield yield;
  StationFileReader reader("1230x.dat", bytes);
  while (const StationRecord* record = reader.Next()) yield.calls.push_back(record->CallSign);
  EXPECT_EQ(reader.Next(), nullptr) << "nothing after the end";
  yield.notes = reader.Notes();
  return yield;
}

using Texts = std::vector<std::string>;

/// Every value of a record, texts in brackets.
std::string Values(const StationRecord& record) {
  std::string text;
  const auto add = [&text](float number) { text += NumberText(number) + ' '; };
  for (const auto& part : {record.CallSign, record.City, record.State, record.Country, record.HoursCode})
    text += '[' + part + "] ";
  for (const float number : {record.Latitude, record.Longitude, record.PowerKW}) add(number);
  for (std::size_t i = 1; i <= static_cast<std::size_t>(record.TowerCount); ++i) {
    text += "/ [" + record.Switch[i] + "] ";
    for (const auto* numbers :
         {&record.Fields, &record.Heights, &record.Phases, &record.Spacings, &record.Bearings})
      add((*numbers)[i]);
  }
  return text;
}

TEST(StationFileTest, ReadsRecordsWithTheirTowers) {
  StationFileReader reader("1230x.dat", kGood);
  EXPECT_EQ(Values(*reader.Next()),
            "[WXYZ] [Town] [ST] [United States] [U] 40.5 75.25 1 / [0] 1 90 0 0 0 / [0] .8 90 -90.5 90 45 ");
  EXPECT_EQ(Values(*reader.Next()), "[WABC] [Big City] [NY] [United States] [D] -12.5 -10 .25 ");
  EXPECT_EQ(Values(*reader.Next()), "[CDEF] [Halifax] [NS] [Canada] [N] 44.6 63.5 50 / [ 1] 1 100 0 0 0 ");
  EXPECT_EQ(reader.Next(), nullptr);
  EXPECT_EQ(reader.Notes(), Texts{});
}

TEST(StationFileTest, LacksReadAsEmptyAndZero) {
  StationRecord record;
  record.TowerCount = 1;
  const auto tower = [&record](std::string_view line) {
    CutTowerLine(line, 1, record);
    const std::string values = Values(record);
    return values.substr(values.find('/') + 2);
  };
  EXPECT_EQ(tower(",,0,1.0,0,0,90"), "[0] 1 0 0 90 0 ");
  EXPECT_EQ(tower("0,abc,nan,-1x,1 2,7"), "[0] 0 0 -1 1 7 ");
  EXPECT_EQ(tower(""), "[] 0 0 0 0 0 ");
  // An empty field is dropped, so what follows moves up by one.
  const StationLine moved = CutStationLine("1230,WXYZ,,ST,US,U,40.5,75.25,1,-,-,2");
  EXPECT_EQ(moved.City, "ST");
  EXPECT_EQ(moved.TowerCount, "");
}

TEST(StationFileTest, NotesWhatItLeavesOut) {
  const std::string start = "1230,A,c,s,u,U,1,2,3,-,-,";
  const std::string next = "1230,Z,c,s,u,U,1,2,3,-,-,0\n";
  std::string towers;
  for (int i = 0; i < 14; ++i) towers += "0,1,0,0,0,0\n";
  const auto of = [&towers](int count) { return towers.substr(0, static_cast<std::size_t>(count) * 12); };
  const struct {
    std::string bytes;
    Texts calls, notes;
  } rows[] = {{"", {}, {}},
              {"\n \n" + next, {"Z"}, {}},
              {start + "-1\n" + next, {"Z"}, {"1230x.dat:1: -1 towers, at least 0"}},
              {start + "0\n" + next, {"A", "Z"}, {}},
              {start + "-.4\n" + next, {"A", "Z"}, {}},
              {start + "12\n" + of(12) + next, {"A", "Z"}, {}},
              {start + "12.5\n" + of(12) + next, {"A", "Z"}, {}},
              {start + "13\n" + of(13) + next, {"Z"}, {"1230x.dat:1: 13 towers, at most 12"}},
              {next + start + "14\n" + of(14) + next, {"Z", "Z"}, {"1230x.dat:2: 14 towers, at most 12"}},
              {start + "1e5\n" + next, {"Z"}, {"1230x.dat:1: 100000 towers, at most 12"}},
              {start + "two\n" + next, {"A", "Z"}, {}},
              {start + "two\n" + of(2) + next,
               {"A", "Z"},
               {"1230x.dat:2: not a station line, which begins with the channel"}},
              {"1230\n" + next, {"", "Z"}, {}},
              {"hello\n\nworld\n" + next + "bye\n",
               {"Z"},
               {"1230x.dat:1: not a station line, which begins with the channel",
                "1230x.dat:5: not a station line, which begins with the channel"}},
              {start + "1\n\n" + next, {"A", "Z"}, {}},  // an empty line is a tower without numbers
              {start + "2\n" + of(1), {}, {"1230x.dat:2: the file ends before the last of 2 towers"}},
              {next + start + "2\n", {"Z"}, {"1230x.dat:2: the file ends before the last of 2 towers"}}};
  for (const auto& row : rows) {
    const Yield yield = ReadAll(row.bytes);
    EXPECT_EQ(yield.calls, row.calls) << row.bytes;
    EXPECT_EQ(yield.notes, row.notes) << row.bytes;
  }
}

TEST(StationLineReaderTest, PassesOverTowerLines) {
  StationLineReader reader(kGood);
  Texts calls;
  while (const auto line = reader.Next()) calls.emplace_back(line->CallSign);
  EXPECT_EQ(calls, (Texts{" WXYZ ", "WABC", "CDEF"}));
  for (const char* line : {"", "0,1", " 1230", ",1230", "x", "-1"}) EXPECT_FALSE(IsStationLine(line)) << line;
}

TEST(StationFileTest, ReadingEndsAtItsLimits) {
  std::string bytes = "1230,A,c,s,u,U,1,2,3,-,-,13\n";  // left out, but counts
  for (int i = 1; i < MaxRecords; ++i) bytes += "1230,A,c,s,u,U,1,2,3,-,-,0\n";
  const std::string leftOut = "1230x.dat:1: 13 towers, at most 12";
  EXPECT_EQ(ReadAll(bytes).notes, Texts{leftOut});
  bytes += "1230,Z,c,s,u,U,1,2,3,-,-,0\n";
  StationFileReader reader("1230x.dat", bytes);
  int records = 0;
  while (reader.Next()) ++records;
  EXPECT_EQ(records, MaxRecords - 1);
  EXPECT_EQ(reader.Notes(),
            (Texts{leftOut, "1230x.dat:10001: more than 10000 records; the rest is left out"}));
  StationLineReader lines(bytes);
  int count = 0;
  while (lines.Next()) ++count;
  EXPECT_EQ(count, MaxRecords);

  std::string faults;
  for (int i = 0; i < MaxNotes + 50; ++i) faults += "1230,A,c,s,u,U,1,2,3,-,-,13\n";
  const Texts notes = ReadAll(faults + "1230,Z,c,s,u,U,1,2,3,-,-,0\n").notes;
  ASSERT_EQ(notes.size(), MaxNotes + 1U);
  EXPECT_EQ(notes[MaxNotes - 1], "1230x.dat:100: 13 towers, at most 12");
  EXPECT_EQ(notes[MaxNotes], "1230x.dat: more than 100 faults; the others are not listed");
}

}  // namespace
}  // namespace kestrel
