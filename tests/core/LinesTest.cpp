#include "core/Lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrel {
namespace {

using namespace std::string_view_literals;

std::vector<std::string> AllLines(std::string_view bytes) {
  std::vector<std::string> lines;
  LineReader reader(bytes);
  while (!reader.AtEnd()) {
    const auto line = reader.Next();
    if (!line) {
      ADD_FAILURE() << "no line before the end";
      break;
    }
    lines.emplace_back(*line);
    EXPECT_EQ(reader.LineNumber(), static_cast<int>(lines.size()));
  }
  EXPECT_FALSE(reader.Next());
  EXPECT_FALSE(reader.NextBytes());
  return lines;
}

TEST(LineReaderTest, KnowsAllLineEnds) {
  // clang-format off
  const struct {
    std::string_view bytes;
    std::vector<std::string> lines;
  } rows[] = {
      {"", {}}, {"\n", {""}}, {"\r\n", {""}}, {"\r", {""}}, {"\n\r", {"", ""}}, {"\r\r\n", {"", ""}},
      {"a", {"a"}}, {"a\nb\r\nc\rd", {"a", "b", "c", "d"}}, {"a\n\n\nb\n", {"a", "", "", "b"}},
      {"a\r\rb\r", {"a", "", "b"}}, {"a\r\n\r\nb\r\n", {"a", "", "b"}}, {"\xEF\xBB\xBF", {}},
      {"\xEF\xBB\xBF" "a\n", {"a"}}, {"a\n\xEF\xBB\xBF" "b", {"a", "\xEF\xBB\xBF" "b"}},
      {"a\r\nb\rc\nd\r\r\ne", {"a", "b", "c", "d", "", "e"}},
      {"a\0b\n\0"sv, {"a b", " "}}, {"Bogot\xE1\nBogot\xC3\xA1\n\xE1\0"sv, {"Bogotá", "Bogotá", "á "}}
  };
  // clang-format on
  for (const auto& row : rows) EXPECT_EQ(AllLines(row.bytes), row.lines) << testing::PrintToString(row.bytes);
}

TEST(LineReaderTest, NextBytesLeavesTheLineAsItIs) {
  LineReader reader("a\0\xE1\nb"sv);
  EXPECT_EQ(reader.NextBytes(), "a\0\xE1"sv);
  EXPECT_EQ(reader.Next(), "b");
}

TEST(LineReaderTest, CutsALongLineBetweenItsCharacters) {
  const std::string most(LongestDataLine, 'x');
  EXPECT_EQ(AllLines(most + "\n" + most + "yyy\r\nz"), (std::vector<std::string>{most, most, "z"}));
  // A character of two, three or four bytes across the limit goes as a whole; the line stays UTF-8.
  for (const std::string wide : {"é", "€", "😀"})
    for (std::size_t inside = 1; inside < wide.size(); ++inside) {
      const std::string before = "ñ" + std::string(LongestDataLine - 2 - inside, 'x');
      EXPECT_EQ(AllLines(before + wide + "y\nz"), (std::vector<std::string>{before, "z"})) << wide << inside;
    }
  EXPECT_EQ(AllLines(std::string(LongestDataLine + 9, '\x80')).front().size(), 2 * (LongestDataLine - 3))
      << "Latin-1, which has no place to cut at";
}

}  // namespace
}  // namespace kestrel
