#include "core/Numbers.h"

#include <gtest/gtest.h>

namespace kestrel {
namespace {

TEST(LeadingNumberTest, EndsAtTheFirstOtherCharacter) {
  const struct {
    const char* text;
    double value;
  } rows[] = {
      {"12.5kW", 12.5}, {" -.5", -0.5},   {"1e3", 1000}, {"1e", 1},      {"1e+", 1},   {"1 2", 1},     {"x", 0},
      {"", 0},          {"+7", 7},        {"1.2.3", 1.2}, {"inf", 0},     {"nan", 0},   {"0x10", 0},    {"- 5", 0},
      {".", 0},         {"-.e5", 0},      {"1e-400", 0},  {"1,5", 1},     {"\t5", 0},   {"00012", 12},
  };
  for (const auto& row : rows) EXPECT_EQ(LeadingNumber(row.text), row.value) << row.text;
}

}  // namespace
}  // namespace kestrel
