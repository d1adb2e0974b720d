#include "core/Text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "core/TextFields.h"

namespace kestrel {
namespace {

TEST(TextFieldsTest, RunsOfSeparatorsCountAsOne) {
  const struct {
    std::string_view line;
    std::optional<std::string_view> field;
    std::string_view rest;
  } rows[] = {
      {"a,b,c", "a", "b,c"},  {"a,,c", "a", "c"},        {",,a,,", "a", ""},          {"a", "a", ""},
      {"", std::nullopt, ""}, {",,,", std::nullopt, ""}, {" a b , c", " a b ", " c"}, {"a,,,", "a", ""},
      {" ", " ", ""}};
  for (const auto& row : rows) {
    std::string_view line = row.line;
    EXPECT_EQ(NextField(line), row.field) << row.line;
    EXPECT_EQ(line, row.rest) << row.line;
  }
  std::string_view vertex = "   45.2   -93.1";
  EXPECT_EQ(NextBlankField(vertex), "45.2");
  EXPECT_EQ(vertex, "-93.1");
  EXPECT_EQ(NextWord(vertex), "-93.1");
}

TEST(TextFieldsTest, FirstFieldsAreThoseCutOneAfterTheOther) {
  // Signs whose bits lie next to the comma's, too, and bytes that are not ASCII.
  constexpr std::string_view kSigns = ",,,-+.\xAC\x2C\x01\x80 a7";
  std::mt19937 random(17);
  for (int round = 0; round < 3000; ++round) {
    std::string text(random() % 60, ' ');
    for (char& c : text) c = kSigns[random() % kSigns.size()];
    std::string_view rest = text;
    for (const std::string_view field : FirstFields<6>(text))
      ASSERT_EQ(field, NextField(rest).value_or("")) << text;
  }
}

TEST(TextTest, ColumnsCountCharacters) {
  const struct {
    std::string_view text;
    std::size_t first, width;
    std::string_view columns;
  } rows[] = {{"abcdef", 1, 3, "abc"},     {"abcdef", 4, 9, "def"},    {"abcdef", 7, 2, ""},
              {"abcdef", 99, 2, ""},       {"Bogotá DC", 6, 3, "á D"}, {"Bogotá DC", 7, 3, " DC"},
              {"\U0001F4FBñx", 2, 1, "ñ"}, {"ñandú", 1, 5, "ñandú"}};
  for (const auto& row : rows) EXPECT_EQ(Columns(row.text, row.first, row.width), row.columns) << row.text;
  EXPECT_EQ(CharacterCount("Bogotá"), 6U);
  EXPECT_EQ(PadTo("Bogotá", 8), "Bogotá  ");
  EXPECT_EQ(PadTo("Bogotá", 5), "Bogotá");
}

TEST(TextTest, Utf8IsWellFormedOrNot) {
  for (const std::string_view good : {"", "abc", "é", "\u20AC", "\U0010FFFF", "\uD7FF", "\uE000"})
    EXPECT_TRUE(IsUtf8(good)) << good;
  for (const std::string_view bad :
       {"\xE9", "\xC0\x80", "\xC1\xBF", "\xE0\x80\x80", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
        "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xC3", "\xE2\x82", "a\x80", "\xC3\x28", "\xFF"})
    EXPECT_FALSE(IsUtf8(bad)) << FromLatin1(bad);
}

TEST(TextTest, CapitalsOfLatin1Only) {
  EXPECT_EQ(UpperCase("kñ é÷ÿ ß"), "KÑ É÷ÿ ß");
  EXPECT_TRUE(EqualIgnoringCase("1230X.DAT", "1230x.dat"));
  EXPECT_FALSE(EqualIgnoringCase("1230x.da", "1230x.dat"));
  EXPECT_FALSE(EqualIgnoringCase("[", "{"));
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim("\ta"), "\ta");
}

}  // namespace
}  // namespace kestrel
