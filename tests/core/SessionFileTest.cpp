#include "core/SessionFile.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <string>

namespace kestrel {
namespace {

const std::string kGood =
    "* Kestrel last-session file\r\n"
    "* 1/2/2024\r\n"
    "\r\n"
    "Frequency displayed: 1230\r\n"
    "Home: Albany   NY\r\n"
    "Home latitude: 42.65\r\n"
    "Home longitude: 73.75\r\n"
    "Relative size of pattern: .25\r\n"
    "Scale factor: 400\r\n"
    "Distance km or miles: 1\r\n"
    "Daytime pattern color: 1\r\n"
    "Nighttime pattern color: 2\r\n"
    "Unlimited-hours pattern color: 3\r\n"
    "Critical-hours pattern color: 4\r\n"
    "Adjacent channel pattern color: 5\r\n"
    "Google Maps Language: fr\r\n"
    "Aspect ratio:  .75 \r\n";

/// What the file carries, as one text that compares and prints well.
std::string Carried(const SessionState& s) {
  std::string text;
  for (const float value :
       {s.CurrentFrequency, s.HomeLatitude, s.HomeLongitude, s.PatternSize, s.ScaleFactor, s.AspectRatio}) {
    char digits[64];
    text.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr) += ' ';
  }
  for (const int value :
       {int{s.DistanceUnit}, s.DayColor, s.NightColor, s.UnlimitedColor, s.CriticalColor, s.AdjacentColor})
    text += std::to_string(value) + ' ';
  return text + '[' + s.HomeName + "] [" + s.MapLanguage + ']';
}

SessionState Read(const std::string& bytes, SessionState state = {}) {
  ReadSession(bytes, state);
  return state;
}

/// The good file with line `number` (from 1) replaced, and optionally nothing after it.
enum class Rest { Kept, Cut };
std::string WithLine(int number, const std::string& line, Rest rest = Rest::Kept) {
  std::string bytes;
  std::size_t from = 0;
  for (int i = 1; from < kGood.size(); ++i) {
    const std::size_t end = kGood.find("\r\n", from) + 2;
    bytes += i == number ? line : kGood.substr(from, end - from);
    if (i == number && rest == Rest::Cut) break;
    from = end;
  }
  return bytes;
}

TEST(SessionFileTest, OnlyTheOrderCounts) {
  const SessionState state = Read(
      "\xEF\xBB\xBF* a comment: 99\n620\n\n*\nCiudad:  San Juan  PR \r33.24278\nHome latitude: "
      "66\n:.5\n200\n0\n"
      "1\n2\n3\n4\n5\nen: es: fr\n1");
  EXPECT_EQ(Carried(state), "620 33.24278 66 0.5 200 1 0 1 2 3 4 5 [San Juan  PR] [es: fr]");
}

/// One line of the good file replaced, and what becomes of its value.
TEST(SessionFileTest, RowsOfTheReadersRules) {
  const std::string nines(400, '9');
  // clang-format off
  const struct {
    int line;
    const char *text, *before, *after;
  } rows[] = {
      {4, "F: 1.23K", "1230 ", "1230 "}, {4, "620", "1230 ", "620 "}, {4, "F: x", "1230 ", "0 "},
      {5, "Home:", "[Albany   NY]", "[]"}, {5, "Home: Bogot\xE1 : DC", "[Albany   NY]", "[Bogotá : DC]"},
      {6, "L: -12,5", "42.65", "-12.5"}, {8, "P: .5k", "0.25", "0.5"}, {8, "P: 5", "0.25", "1"},
      {8, "P: 1e400", "0.25", "1"}, {8, "P: -3", "0.25", "0.02"}, {9, "S: 50", "400", "100"},
      {9, "S: 10001", "400", "10000"}, {9, "S: 1,5k", "400", "100"}, {10, "D: .5", "1 1 2", "0 1 2"},
      {10, "D: 1.5", "1 1 2", "2 1 2"}, {10, "D: 32.767k", "1 1 2", "32767 1 2"},
      {11, "C: 0", "1 2 3", "65280 2 3"}, {12, "C: 0", "1 2 3", "1 0 3"}, {13, "C: 0", "3 4 5", "255 4 5"},
      {14, "C: x", "3 4 5", "3 16776960 5"}, {15, "C: .4", "3 4 5", "3 4 208931"},
      {15, "C: 16777215", "3 4 5", "3 4 16777215"}, {16, "G: ", "[fr]", "[]"}, {17, "A: 0", "0.75", "0.75"},
      {17, "A: .3", "0.75", "0.6"}, {17, "A: 2", "0.75", "1.5"}, {17, "A: -1", "0.75", "0.6"},
      {4, "F: inf", "1230 ", "0 "}, {4, "F: 1e400", "1230 ", "1e+10 "}, {6, "L: -0", "42.65", "-0"},
      {6, "L: nan", "42.65", "0"}, {8, "P: nan", "0.25", "0.02"}, {9, "S: -1e400", "400", "100"},
      {17, "A: inf", "0.75", "0.75"}, {17, "A: 1e400", "0.75", "1.5"}, {9, nines.c_str(), "400", "10000"},
      {10, "D: -0", "1 1 2", "0 1 2"}
  };
  // clang-format on
  for (const auto& row : rows) {
    std::string wanted = "1230 42.65 73.75 0.25 400 0.75 1 1 2 3 4 5 [Albany   NY] [fr]";
    wanted.replace(wanted.find(row.before), std::string_view(row.before).size(), row.after);
    EXPECT_EQ(Carried(Read(WithLine(row.line, row.text + std::string("\n")))), wanted) << row.text;
  }
}

/// A file may end after any value; only one that reaches the language gets limits.
TEST(SessionFileTest, EarlyEnds) {
  SessionState before;
  before.PatternSize = 5;
  before.ScaleFactor = 20;
  before.DayColor = 0;
  before.MapLanguage = "es";
  before.AspectRatio = 9;

  EXPECT_EQ(Carried(Read("", before)), Carried(before));
  EXPECT_EQ(Carried(Read("* nothing but comments\r\n\r\n", before)), Carried(before));
  EXPECT_EQ(Carried(Read(WithLine(6, "Home latitude: 10", Rest::Cut), before)),
            "1230 10 96.54139 5 20 9 0 0 0 255 16776960 208931 [Albany   NY] [es]");
  // After the distance unit, with and without a comment.
  for (const char* unit : {"Distance: 1", "Distance: 1\r\n", "Distance: 1\r\n\r\n* end\r\n"})
    EXPECT_EQ(Carried(Read(WithLine(10, unit, Rest::Cut), before)),
              "1230 42.65 73.75 0.25 400 9 1 0 0 255 16776960 208931 [Albany   NY] [es]");
  EXPECT_EQ(Read(WithLine(8, "5\n400\n1\n", Rest::Cut), before).PatternSize, 5);
  // Among the colours.
  EXPECT_EQ(Carried(Read(WithLine(12, "N: 7", Rest::Cut), before)),
            "1230 42.65 73.75 0.25 400 9 1 1 7 255 16776960 208931 [Albany   NY] [es]");
  // After the language: limits apply, to an aspect ratio from elsewhere too.
  EXPECT_EQ(Carried(Read(WithLine(16, "G: de", Rest::Cut), before)),
            "1230 42.65 73.75 0.25 400 1.5 1 1 2 3 4 5 [Albany   NY] [de]");
  // A comment after the language is no end, but the aspect ratio is missing all the same: no limits.
  EXPECT_EQ(Carried(Read(WithLine(16, "G: de\r\n*\r\n", Rest::Cut), before)),
            "1230 42.65 73.75 0.25 400 9 1 1 2 3 4 5 [Albany   NY] [de]");
}

TEST(SessionFileTest, MissingFileAndOverflowFallBack) {
  SessionState before;
  before.CurrentFrequency = 700;
  before.HomeName = "Elsewhere";
  before.DistanceUnit = 1;
  before.PatternSize = 0.1F;
  before.MapLanguage = "es";
  before.AspectRatio = 7;
  before.DayColor = 0;
  before.NightColor = 9;
  before.FurtherAdjacentColors = {0, 4, 0};
  SessionState state = before;
  ReadSession(std::nullopt, state);
  EXPECT_EQ(Carried(state),
            "620 33.24278 96.54139 0.5 200 7 1 65280 9 255 16776960 208931 [Plano   TX] [es]");
  EXPECT_EQ(state.FurtherAdjacentColors, (std::array<ColorValue, 3>{16711680, 4, 16711680}));
  for (const float ratio : {0.0F, -1.0F}) {
    state.AspectRatio = ratio;
    ReadSession(std::nullopt, state);
    EXPECT_EQ(state.AspectRatio, 0.75F);
  }

  // What was read before the error stays only where the defaults do not name it.
  const std::string colors = " 255 16776960 208931 [Plano   TX] [es]";
  for (const char* unit : {"D: 32768\r\n", "D: -40k\r\n"})
    EXPECT_EQ(Carried(Read(WithLine(10, unit), before)),
              "620 33.24278 96.54139 0.5 200 7 1 65280 9" + colors);
  EXPECT_EQ(Carried(Read(WithLine(13, "U: 2147483648\r\n"), before)),
            "620 33.24278 96.54139 0.5 200 7 1 1 2" + colors);
  EXPECT_EQ(Read(WithLine(13, "U: -2147483648\r\n")).UnlimitedColor, std::numeric_limits<ColorValue>::min());
}

TEST(SessionFileTest, WritesItsSeventeenLines) {
  SessionState state = Read(kGood);
  EXPECT_EQ(WriteSession(state, "1/2/2024"), kGood);

  state.HomeName = "Two\r\nlines";
  state.HomeLatitude = -0.5F;
  state.AspectRatio = 1;
  state.PatternSize = 2;
  state.ScaleFactor = 50;
  const std::string text = WriteSession(state, "a\nb");
  EXPECT_EQ(text.substr(0, 37), "* Kestrel last-session file\r\n* a b\r\n\r");
  EXPECT_NE(text.find("\r\nHome: Two  lines\r\nHome latitude: -.5\r\n"), std::string::npos) << text;
  EXPECT_NE(text.find("\r\nRelative size of pattern: 1\r\nScale factor: 100\r\n"), std::string::npos) << text;
  EXPECT_TRUE(text.ends_with("\r\nAspect ratio:  1 \r\n")) << text;
  EXPECT_EQ(state.PatternSize, 1);
  EXPECT_EQ(state.ScaleFactor, 100);
}

TEST(SessionFileTest, AZeroResetsTheWholeHome) {
  for (float SessionState::*member :
       {&SessionState::CurrentFrequency, &SessionState::HomeLatitude, &SessionState::HomeLongitude}) {
    SessionState state = Read(kGood);
    state.*member = 0;
    const std::string text = WriteSession(state, "");
    EXPECT_EQ(state.HomeName, "Plano  TX");  // two blanks, the writer's spelling
    EXPECT_NE(
        text.find(
            "displayed: 620\r\nHome: Plano  TX\r\nHome latitude: 33.24278\r\nHome longitude: 96.54139\r\n"),
        std::string::npos)
        << text;
  }
}

}  // namespace
}  // namespace kestrel
