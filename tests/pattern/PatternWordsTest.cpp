#include "pattern/PatternWords.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace kestrel {
namespace {

TEST(PatternWordsTest, LobesAndNullsStandAtTheirAzimuths) {
  PatternValues values{};
  EXPECT_EQ(PatternWords(values), "not known");
  const auto fill = [&values](double ripple, double figure) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      const double angle = (static_cast<double>(i) - 10) * std::numbers::pi / 180;
      values[i] = static_cast<float>(1 + ripple * std::cos(12 * angle) + figure * std::cos(angle));
    }
  };
  fill(0.02, 0);
  EXPECT_EQ(PatternWords(values), "the same in all directions") << "a ripple is no lobe";
  fill(0, 0.5);
  EXPECT_EQ(PatternWords(values), "lobe at 10 degrees (100 %), null at 190 degrees (33 %)");
  for (std::size_t i = 0; i < values.size(); ++i)
    values[i] = static_cast<float>(std::abs(std::sin(static_cast<double>(i) * std::numbers::pi / 90)));
  EXPECT_EQ(PatternWords(values),
            "lobes at 45 (100 %), 135 (100 %), 225 (100 %) and 315 degrees (100 %), "
            "nulls at 0 (0 %), 90 (0 %), 180 (0 %) and 270 degrees (0 %)");
}

}  // namespace
}  // namespace kestrel
