#include "core/Moment.h"

#include <gtest/gtest.h>

namespace kestrel {
namespace {

constexpr Moment kNow{std::chrono::seconds(1'700'000'000)};  // 2023-11-14T22:13:20Z

TEST(MomentTest, ReadsAndWritesUniversalTime) {
  const struct {
    const char *read, *written;
  } rows[] = {
      {"2026-11-22T03:12Z", "2026-11-22T03:12Z"},       {" 2026-11-22t03:12:00z ", "2026-11-22T03:12Z"},
      {"2024-02-29T23:59:07Z", "2024-02-29T23:59:07Z"}, {"1950-01-01T00:00Z", "1950-01-01T00:00Z"},
      {"2100-12-31T23:59:59Z", "2100-12-31T23:59:59Z"}, {"Now", "2023-11-14T22:13:20Z"}};
  for (const auto& [read, written] : rows) {
    const Result<Moment> moment = ReadMoment(read, kNow);
    ASSERT_TRUE(moment) << read;
    EXPECT_EQ(MomentText(*moment), written);
    EXPECT_EQ(MomentOfDays(DaysSince2000(*moment)), *moment) << read;
  }
}

TEST(MomentTest, OtherTextsAreRefusedInWords) {
  const std::string form = "give now, or a time of UTC as in 2026-11-22T03:12Z";
  const std::string hours = "hours end at 23, minutes and seconds at 59";
  const struct {
    const char* text;
    std::string reason;
  } rows[] = {{"", form},
              {"today", form},
              {"2026-11-22", form},
              {"2026-11-22T03:12", form},
              {"2026-11-22T03:12+01:00", form},
              {"2026-11-22T3:12Z", form},
              {"2026-11-22T03:12:Z", form},
              {"2026-11-22T03:12Zx", form},
              {"+026-11-22T03:12Z", form},
              {"2026-13-01T00:00Z", "there is no such day"},
              {"2025-02-29T00:00Z", "there is no such day"},
              {"2026-00-10T00:00Z", "there is no such day"},
              {"2026-11-22T24:00Z", hours},
              {"2026-11-22T03:60Z", hours},
              {"2026-11-22T03:12:60Z", hours},
              {"1949-12-31T23:59Z", "give a year from 1950 to 2100"},
              {"2101-01-01T00:00Z", "give a year from 1950 to 2100"}};
  for (const auto& [text, reason] : rows) {
    const Result<Moment> moment = ReadMoment(text, kNow);
    ASSERT_FALSE(moment) << text;
    EXPECT_EQ(moment.error().Message(), std::string(text) + ": " + reason);
  }
}

}  // namespace
}  // namespace kestrel
