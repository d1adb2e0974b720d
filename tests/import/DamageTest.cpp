#include <gtest/gtest.h>

#include "ImportTesting.h"

namespace kestrel {
namespace {

NamedTexts SampleFiles(Order order, bool header) {
  NamedTexts texts = SampleTables(order, header);
  texts.emplace_back(
      "amq.txt",
      ListRow{}.Text() +
          ListRow{.call = "WQAA", .frequency = "550 kHz", .hours = "Daytime", .facility = "901"}.Text());
  return texts;
}

TEST(Damage, EveryTruncationOfEveryFileAddsUp) {
  for (const bool header : {false, true}) {
    const auto whole = SampleFiles(header ? Order::B : Order::A, header);
    const std::size_t complete = ImportTexts(whole).stations.size();
    for (std::size_t file = 0; file < whole.size(); ++file) {
      for (std::size_t length = 0; length < whole[file].second.size(); length += length < 100 ? 1 : 5) {
        auto cut = whole;
        cut[file].second.resize(length);
        const TextImport import = ImportTexts(cut);
        ASSERT_LE(import.stations.size(), complete) << whole[file].first << ' ' << length;
        ASSERT_EQ(import.report.Files().size() + import.report.Refusals().size(), whole.size());
      }
    }
  }
}

TEST(Damage, EveryByteMayBeAnother) {
  constexpr std::string_view kOthers(
      "\0|\n\xFF"
      "9",
      5);
  const auto whole = SampleFiles(Order::A, false);
  for (std::size_t file = 0; file < whole.size(); ++file) {
    for (std::size_t at = 0; at < whole[file].second.size(); ++at) {
      auto damaged = whole;
      damaged[file].second[at] = kOthers[at % kOthers.size()];
      ImportTexts(damaged);
    }
  }
}

TEST(Damage, LongLinesAndManyFilesAreReadInPieces) {
  // Longer than what is read at once, so that rows and one endless line lie across its ends.
  std::string text;
  for (int i = 1; i <= 3000; ++i) {
    text += ListRow{.facility = std::to_string(i)}.Text();
    if (i == 1500) text += "| " + std::string(600'000, 'x') + "\n";
  }
  const TextImport import = ImportTexts({{"amq.txt", text}});
  EXPECT_EQ(import.stations.size(), 3000U);
  EXPECT_EQ(import.Examples(Finding::WrongForm), "amq.txt:1501: the row is longer than 64 KB\n");
  EXPECT_EQ(import.report.Files().front().Rows, 3001);
}

}  // namespace
}  // namespace kestrel
