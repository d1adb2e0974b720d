#include "core/Numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>
#include <string>

namespace kestrel {
namespace {

constexpr double kLargest = std::numeric_limits<float>::max();

TEST(LeadingNumberTest, EndsAtTheFirstOtherCharacter) {
  const struct {
    const char* text;
    double value;
  } rows[] = {{"12.5kW", 12.5}, {" -.5", -0.5}, {"1e3", 1000},   {"1e", 1},      {"1e+", 1},       {"1 2", 1},
              {"x", 0},         {"", 0},        {"+7", 7},       {"1.2.3", 1.2}, {"inf", 0},       {"nan", 0},
              {"0x10", 0},      {"- 5", 0},     {".", 0},        {"-.e5", 0},    {"1e-400", 0},    {"1,5", 1},
              {"\t5", 0},       {"00012", 12},  {"   ", 0},      {"5.", 5},      {"1E-2e5", 0.01}, {"--5", 0},
              {"+-5", 0},       {".5.", 0.5},   {"2e1.9", 20},   {"1d3", 1},     {"-0", 0},        {"-", 0},
              {"1e +5", 1},     {"0e400", 0},   {"-0.0e999", 0}, {"e5", 0}};
  for (const auto& row : rows) EXPECT_EQ(LeadingNumber(row.text), row.value) << row.text;
  EXPECT_TRUE(std::signbit(LeadingNumber("-0")));
}

TEST(LeadingNumberTest, LimitsWhatIsTooLargeToTheLargestSingle) {
  const std::string nines(400, '9');
  const std::string zeros(400, '0');
  // clang-format off
  const struct {
    std::string text;
    double value;
  } rows[] = {
      {"1e400", kLargest}, {"-1e400", -kLargest}, {"1e39", kLargest}, {"3.4e38", 3.4e38}, {nines, kLargest},
      {'-' + nines, -kLargest}, {"1e99999999999999999999", kLargest}, {"1e-99999999999999999999", 0},
      {zeros + "12.5", 12.5}, {"1" + zeros + "e-400", 1}, {"0." + zeros + "1e401", 1},
      {"." + zeros + "1", 0}, {"0." + nines, 1}, {"1." + zeros, 1}
  };
  // clang-format on
  for (const auto& row : rows) EXPECT_EQ(LeadingNumber(row.text), row.value) << row.text.substr(0, 30);
}

/// The short texts take a way of their own; both ways must round as the standard library does.
TEST(LeadingNumberTest, IsCorrectlyRounded) {
  std::mt19937 random(1);
  const auto below = [&random](int bound) {
    return static_cast<int>(random() % static_cast<unsigned>(bound));
  };
  for (int i = 0; i < 100000; ++i) {
    std::string text;
    const int length = 1 + below(22);
    const int point = below(length + 1);
    for (int digit = 0; digit < length; ++digit) {
      if (digit == point) text += '.';
      text += static_cast<char>('0' + below(10));
    }
    if (below(2) == 0) text += "e" + std::to_string(below(71) - 45);
    double expected = 0;
    std::from_chars(text.data(), text.data() + text.size(), expected);
    ASSERT_EQ(LeadingNumber(text), std::min(expected, kLargest)) << text;
    ASSERT_EQ(LeadingNumber(" -" + text + " kHz"), -std::min(expected, kLargest)) << text;
    // Signs whose bits lie next to the digits'.
    const char after = "/:,\0\x80\xB5 -+"[below(9)];
    ASSERT_EQ(LeadingNumber(text + after + "1.5,2"), std::min(expected, kLargest)) << text << after;
  }
}

// One point and one exponent count, inner signs and units are passed over, a suffix needs something in front,
// does not follow an exponent and ends the number.
TEST(ParseNumberTest, ReadsNumbersAsTheyAreTyped) {
  // clang-format off
  const struct {
    const char* text;
    float value;
  } rows[] = {
      {"1.23K", 1230}, {"4.7u", 4.7e-6F}, {"2M", 2e6F}, {"2m", 0.002F}, {"3P", 3e-12F}, {"3n", 3e-9F},
      {"3G", 3e9F}, {"1,5", 1.5F}, {"1,5.7", 1.57F}, {"1e3", 1000}, {"1e3k", 1000}, {"1e-+3", 0.001F},
      {"1ee3", 1000}, {"1e1.5", 1e10F}, {"12-3", 123}, {"--5", -5}, {"+-5", 5}, {"- 5", -5},
      {"1 230 kHz", 1230000}, {"k5", 5}, {"-k5", 0}, {"1k5", 1000}, {"1km", 1000}, {"abc", 0}, {"", 0},
      {"E5", 5}, {"5e20", 1e10F}, {"9e9k", 9e9F}, {"99G", 1e10F}, {"0.00000000000000000001", 0},
      {"-.12345678901234567", -.123456789F}
  };
  // clang-format on
  for (const auto& row : rows) EXPECT_EQ(ParseNumber(row.text), row.value) << row.text;
  const std::string nines(400, '9');
  EXPECT_EQ(ParseNumber(nines), 1e10F);
  EXPECT_EQ(ParseNumber('-' + nines), -1e10F);
  EXPECT_EQ(ParseNumber('.' + nines), 1);
  EXPECT_EQ(ParseNumber("1e" + nines), 1e10F);
  EXPECT_EQ(ParseNumber(nines + "p"), static_cast<float>(9999999999999999.0F * 1e-12));
  // Sixteen characters count, the sign among them.
  EXPECT_EQ(ParseNumber("12345678901234567890p"), static_cast<float>(1234567890123456.0F * 1e-12));
  EXPECT_EQ(ParseNumber("-2345678901234567890p"), static_cast<float>(-234567890123456.0F * 1e-12));
}

// Both sides of each border, and ties, which go away from zero.
TEST(FormatNumberTest, ChoosesPlacesAndSuffixByMagnitude) {
  // clang-format off
  const struct {
    float value;
    const char* text;
  } rows[] = {
      {0, "0"}, {-0.0F, "0"}, {0.000001F, "0"}, {1e-5F, "0"}, {std::nextafter(1e-5F, 1.0F), ".00001"},
      {0.5F, ".5"}, {0.999994F, ".99999"}, {0.999996F, "1"}, {1.00004F, "1"}, {1.00006F, "1.0001"},
      {9.99994F, "9.9999"}, {9.99996F, "10"}, {12.5F, "12.5"}, {12.0625F, "12.063"}, {100.125F, "100.13"},
      {-100.125F, "-100.13"}, {999.999F, "1000"}, {1000.5F, "1001"}, {-1000.5F, "-1001"}, {1500, "1500"},
      {999999.4F, "999999"}, {999999.5F, "1000000"}, {1e6F, "1M"}, {1234567, "1.235M"},
      {999999936, "1000M"}, {1e9F, "1G"}, {2.5e9F, "2.5G"}, {-1e10F, "-10G"}
  };
  // clang-format on
  for (const auto& row : rows) EXPECT_EQ(FormatNumber(row.value), row.text) << row.value;
}

TEST(NumberTextTest, WritesOrdinaryDigits) {
  // clang-format off
  const struct {
    float value;
    const char* text;
  } rows[] = {
      {620, "620"}, {0.5F, ".5"}, {-33.24278F, "-33.24278"}, {0, "0"}, {-0.0F, "0"}, {1e10F, "10000000000"},
      {-1e-7F, "-.0000001"}, {0.1F, ".1"}, {16777216, "16777216"}, {156.25F, "156.25"},
      {std::numeric_limits<float>::max(), "340282350000000000000000000000000000000"},
      {std::numeric_limits<float>::denorm_min(), ".000000000000000000000000000000000000000000001"}
  };
  // clang-format on
  for (const auto& row : rows) {
    EXPECT_EQ(NumberText(row.value), row.text);
    const std::string sign = row.value < 0 ? "" : " ";
    EXPECT_EQ(SignedNumberText(row.value), sign + row.text);
    EXPECT_EQ(DisplayNumberText(row.value), sign + row.text + " ");
  }
}

void ExpectReadsBack(float value) {
  const std::string text = NumberText(value);
  ASSERT_EQ(static_cast<float>(LeadingNumber(text)), value) << text;
  ASSERT_EQ(text.find_first_not_of("-.0123456789"), std::string::npos) << text;
  ASSERT_FALSE(text.starts_with("0.") || text.starts_with("-0.")) << text;
  if (text.find('.') != std::string::npos) {
    ASSERT_NE(text.back(), '0') << text;
  }
  // As many significant digits as the shortest scientific form, and the same ones.
  const auto significant = [](std::string digits) {
    std::erase_if(digits, [](char c) { return c < '0' || c > '9'; });
    digits.erase(0, digits.find_first_not_of('0'));
    return digits.substr(0, digits.find_last_not_of('0') + 1);
  };
  char buffer[80];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific).ptr;
  const std::string scientific(buffer, end);
  ASSERT_EQ(significant(text), significant(scientific.substr(0, scientific.find('e')))) << text;
}

TEST(NumberTextTest, ReadsBackToTheSameSingle) {
  std::mt19937 random(2);
  for (int i = 0; i < 50000; ++i) {
    const float value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
    if (std::isfinite(value)) ExpectReadsBack(value);
  }
  for (int power = -45; power <= 38; ++power) {
    const auto value = static_cast<float>(std::pow(10.0, power));
    for (const float near : {value, std::nextafter(value, 0.0F), std::nextafter(value, 1e38F)}) {
      ExpectReadsBack(near);
      ExpectReadsBack(-near);
    }
  }
}

TEST(RoundingTest, TenthsAreCutAndHalvesGoToTheEvenNumber) {
  EXPECT_EQ(TruncateToTenth(123.96), 123.9F);
  EXPECT_EQ(TruncateToTenth(-0.05), -0.1F);
  EXPECT_EQ(RoundToWhole(2.5), 2);
  EXPECT_EQ(RoundToWhole(-3.5), -4);
}

}  // namespace
}  // namespace kestrel
