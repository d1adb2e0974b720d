#include "core/CoordinateText.h"

#include <gtest/gtest.h>

#include "core/CoordinateEntry.h"

namespace kestrel {
namespace {

TEST(CoordinateTextTest, EveryNotationGivesItsDegrees) {
  const struct {
    const char* text;
    float degrees;
  } latitudes[] = {
      {"42.35N", 42.35F},      {"42 21 00 N", 42.35F},        {"42°21'N", 42.35F}, {"42d21m", 42.35F},
      {"n 42,35", 42.35F},     {" 42 º 21 ’ 0 ” n ", 42.35F}, {"42 21", 42.35F},   {"-42 21", -42.35F},
      {"42d21m36sS", -42.36F}, {"42deg 21.6'", 42.36F},       {"42°", 42},         {"33 7 S", -33.116667F},
      {"S33°7′30″", -33.125F}, {"42d21m36s", 42.36F},         {"90 0 0 N", 90},    {"42D21'36''", 42.36F}};
  for (const auto& row : latitudes) {
    const auto read = ReadCoordinate(row.text, Axis::Latitude);
    ASSERT_TRUE(read) << row.text;
    EXPECT_EQ(read->Fault, "") << row.text;
    EXPECT_FLOAT_EQ(read->Degrees, row.degrees) << row.text;
  }
  EXPECT_FLOAT_EQ(ReadCoordinate("71.05W", Axis::Longitude)->Degrees, 71.05F);
  EXPECT_FLOAT_EQ(ReadCoordinate("e71 3", Axis::Longitude)->Degrees, -71.05F);
  EXPECT_FLOAT_EQ(ReadCoordinate("180 W", Axis::Longitude)->Degrees, 180);
}

TEST(CoordinateTextTest, PlainNumbersAndOtherTextsAreNone) {
  for (const char* text :
       {"",  " ",  "42.35",     "-96.5",        "1.1k",   "5m",      "4n7", "1e2",   "1E2", "45,5", "abc",
        "N", "WN", "42.35.1 N", "42 21 00 1 N", "42 N N", "42 N 21", "- N", "42x21", ". N", "4 -2"})
    EXPECT_FALSE(ReadCoordinate(text, Axis::Latitude)) << text;
  EXPECT_FALSE(ReadCoordinate(std::string(3000, '1') + "Q", Axis::Latitude));
}

TEST(CoordinateTextTest, WhatIsNoCoordinateSaysWhy) {
  const struct {
    const char* text;
    Axis axis;
    const char* fault;
  } rows[] = {{"42 60 N", Axis::Latitude, "Minutes run from 0 to 59"},
              {"42 59 60", Axis::Latitude, "Seconds run from 0 to 59"},
              {"42.5 30 N", Axis::Latitude, "Decimals in the last part only"},
              {"42' 30", Axis::Latitude, "Order: degrees, minutes, seconds"},
              {"71 W", Axis::Latitude, "Latitudes are N or S"},
              {"42 N", Axis::Longitude, "Longitudes are W or E"},
              {"-42 N", Axis::Latitude, "A sign or a letter, not both"},
              {"90 0 1 N", Axis::Latitude, "Latitude beyond 90"},
              {"181 W", Axis::Longitude, "Longitude beyond 180"}};
  for (const auto& row : rows) {
    const auto read = ReadCoordinate(row.text, row.axis);
    ASSERT_TRUE(read) << row.text;
    EXPECT_EQ(read->Fault, row.fault) << row.text;
  }
}

TEST(CoordinateEntryTest, ANotationIsTakenExactlyOrRefusedAndANumberByItsRule) {
  constexpr Axis kNorth = Axis::Latitude;
  constexpr Axis kWest = Axis::Longitude;
  constexpr EntryOf kHome = EntryOf::Home;
  constexpr EntryOf kTarget = EntryOf::Target;
  const struct {
    const char* text;
    Axis axis;
    EntryOf place;
    float degrees;
    const char* note;
    int doubt;  // 1 doubtful, 2 refused
  } rows[] = {{"42d21m", kNorth, kHome, 42.35F, "= 42.35 N", 0},
              {"33 7 30 S", kNorth, kHome, -33.125F, "= 33.125 S", 0},
              {"89 S", kNorth, kHome, 0, "Home lies from 88 S to 88 N", 2},
              {"89 S", kNorth, kTarget, -89, "= 89 S", 0},
              {"42 61 N", kNorth, kTarget, 0, "Minutes run from 0 to 59", 2},
              {"-71 3", kWest, kHome, 71.05F, "= 71.05 W", 0},
              {"71.05E", kWest, kTarget, 0, "East: longitudes are west here", 2},
              {"20 W", kWest, kHome, 0, "Home lies from 30 W to 170 W", 2},
              {"-45,5", kNorth, kHome, -45.5F, "= 45.5 S", 0},
              {"-96.5", kWest, kHome, 96.5F, "= 96.5 W", 0},
              {"-95", kNorth, kHome, -88, "= 88 S, the limit", 1},
              {"10", kWest, kHome, 30, "= 30 W, the limit", 1},
              {"10", kWest, kTarget, 10, "= 10 W", 0},
              {"95", kNorth, kTarget, 95, "Latitude beyond 90", 1},
              {"north", kNorth, kHome, 0, "No number here", 1},
              {"", kWest, kHome, 30, "No number here", 1},
              {"", kWest, kTarget, 0, "", 0}};
  for (const auto& row : rows) {
    const CoordinateEntry entry = ReadEntry(row.text, row.axis, row.place);
    EXPECT_FLOAT_EQ(entry.Degrees, row.degrees) << row.text;
    EXPECT_EQ(entry.Note, row.note) << row.text;
    EXPECT_EQ(entry.Doubtful + entry.Refused, row.doubt) << row.text;
  }
}

}  // namespace
}  // namespace kestrel
