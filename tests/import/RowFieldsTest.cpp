#include "import/read/RowFields.h"

#include <gtest/gtest.h>

namespace kestrel {
namespace {

TEST(RowFields, ANumberIsTheWholeFieldOrNone) {
  const std::pair<const char*, double> numbers[] = {{"12.5", 12.5}, {" +1.5 ", 1.5},  {"-90.000000", -90},
                                                    {".5", .5},     {"1.23e3", 1230}, {"-0", 0}};
  for (const auto& [text, value] : numbers) EXPECT_EQ(WholeNumber(text), value) << text;
  for (const char* text :
       {"", "+", "-", "+-1", "++1", "12x", "1 2", "5,0", "0x1", "inf", "-inf", "nan", "1e400"})
    EXPECT_FALSE(WholeNumber(text)) << text;
  EXPECT_FALSE(WholeNumber(std::string(400, '9')));
  EXPECT_EQ(NumberWithUnit("5.0    kW", "kW"), 5);
  EXPECT_FALSE(NumberWithUnit("5.0", "kW"));
}

TEST(RowFields, AFacilityIsAWholeNumberOrNone) {
  for (const char* text : {"", " ", "-", "0"}) EXPECT_EQ(ReadFacilityId(text), 0U) << text;
  EXPECT_EQ(ReadFacilityId(" 4294967295 "), 4294967295U);
  for (const char* text : {"4294967296", "-1", "1.5", "1e4", "inf", "7x"})
    EXPECT_FALSE(ReadFacilityId(text)) << text;
}

}  // namespace
}  // namespace kestrel
