#include "core/Position.h"
#include "data/PlaceLists.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrel {
namespace {

/// Text put into a line of blanks at a column counted from 1.
std::string At(std::string line, std::size_t column, std::string_view text) {
  if (line.size() < column - 1 + text.size()) line.resize(column - 1 + text.size(), ' ');
  return line.replace(column - 1, text.size(), text);
}

TEST(PlaceListsTest, CitiesAreCutByColumn) {
  std::string line = At(At(At(At("", 1, "anything, 1"), 12, "Plano                   TX"), 38, " 33.24278"),
                        48, "-96.54139x");
  Place city = CutCity(line);
  EXPECT_EQ(city.CallSign, "");
  EXPECT_EQ(city.Name, "Plano                   TX");
  EXPECT_EQ(city.LatitudeText, " 33.24278");
  EXPECT_EQ(city.LongitudeText, "-96.54139");

  // An accent takes one column, though two bytes.
  line = "           Mayagüez                PR 18.2     67.15";
  city = CutCity(line);
  EXPECT_EQ(city.Name, "Mayagüez                PR");
  EXPECT_EQ(city.LatitudeText, " 18.2    ");
  EXPECT_EQ(city.LongitudeText, "67.15");

  for (const char* shorter : {"", "12345678901", "           Abc"}) {
    city = CutCity(shorter);
    EXPECT_EQ(city.LatitudeText + city.LongitudeText, "") << shorter;
  }
  EXPECT_EQ(city.Name, "Abc");
}

TEST(PlaceListsTest, CallsAreCutByColumn) {
  const Place call = CutCall(
      At(At(At(At("", 1, "WXYZ"), 15, "Bogota              DC   !"), 54, " 4.65    "), 64, "  74.1   9"));
  EXPECT_EQ(call.CallSign, "WXYZ    ");
  EXPECT_EQ(call.Name, "Bogota              DC   ");
  EXPECT_EQ(call.LatitudeText, "4.65");
  EXPECT_EQ(call.LongitudeText, "74.1");
}

TEST(PlaceListsTest, HomeStaysWithinItsLimits) {
  // clang-format off
  const struct {
    const char *latitude, *longitude;
    float north, west;
  } rows[] = {
      {"33.24278", "96.54139", 33.24278F, 96.54139F}, {"33.24278", "-96.54139", 33.24278F, 96.54139F},
      {"89.5", "20", 88, 30}, {"-89.5", "-20", -88, 30}, {"88", "30", 88, 30}, {"-88", "170", -88, 170},
      {"0", "171", 0, 170}, {"40,5", "-1e9", 40.5F, 170}, {"4k", "0.1k", 88, 100}, {"", "", 0, 30},
      {"x", "nan", 0, 30}, {"1e400", "1e400", 88, 170}, {"-1e400", "inf", -88, 30}, {"-0", "-0", 0, 30}
  };
  // clang-format on
  for (const auto& row : rows) {
    const Position home = ReadHomePosition(row.latitude, row.longitude);
    EXPECT_EQ(home.Latitude, row.north) << row.latitude;
    EXPECT_EQ(home.Longitude, row.west) << row.longitude;
  }
}

TEST(PlaceListsTest, EmptyLinesDoNotCountAndAnOverlongListKeepsItsFirstEntries) {
  const PlaceList list = ReadPlaceList("\r\none\r\n\r\n \r\nBogot\xE1\n\n", 3);
  EXPECT_TRUE(list.IsWhole);
  EXPECT_EQ(list.Entries, (std::vector<std::string>{"one", " ", "Bogotá"}));
  const PlaceList longer = ReadPlaceList("1\n2\n3\n4\n", 3);
  EXPECT_FALSE(longer.IsWhole);
  EXPECT_EQ(longer.Entries, (std::vector<std::string>{"1", "2", "3"}));
}

}  // namespace
}  // namespace kestrel
