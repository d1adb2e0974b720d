#include "import/read/ReadFiles.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "ImportTesting.h"
#include "MemoryStream.h"

namespace kestrel {
namespace {

constexpr Date Day(int year, unsigned month, unsigned day) {
  return {std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
}

/// Bytes that go on for 64 MB after `front`; what is read of them is counted.
class EndlessStream : public ByteStream {
 public:
  EndlessStream(std::string_view front, std::size_t& read) : front_(front), read_(read) {}

  std::size_t Read(char* to, std::size_t most) override {
    const std::size_t fromFront = front_.Read(to, most);
    if (read_ > 64 << 20) return 0;
    const std::size_t count = fromFront > 0 ? fromFront : most;
    if (fromFront == 0) std::fill_n(to, most, '\n');
    read_ += count;
    return count;
  }

 private:
  MemoryStream front_;
  std::size_t& read_;
};

class ReadFilesTest : public testing::Test {
 protected:
  /// Reads the files, each recognised by its content, and stops where `goesOn` says so.
  std::optional<Error> Read(const std::vector<SourceFile>& files, const ReadingProgress& goesOn = {}) {
    return ReadSourceFiles(files, {}, readings_, report_, goesOn);
  }

  Readings readings_{Day(2026, 8, 2)};
  ImportReport report_;
};

TEST_F(ReadFilesTest, AStrangerIsReadNoFurtherThanItsFront) {
  std::size_t read = 0;
  const std::string list = AmqRow{}.Text();
  std::vector<SourceFile> files = SourceFiles({{"am", list}});
  for (const std::string_view stranger : {"Dear listener,\n", "tower|height|^|\n1|2|^|\n"})
    files.push_back({"tv", 50ULL << 30, [stranger, &read] {
                       return Result<std::unique_ptr<ByteStream>>(
                           std::make_unique<EndlessStream>(stranger, read));
                     }});
  std::rotate(files.begin(), files.begin() + 1, files.end());
  EXPECT_FALSE(Read(files));
  EXPECT_LE(read, 2U * (512 << 10));
  EXPECT_EQ(report_.Refusals().size(), 2U);
  EXPECT_EQ(readings_.Amq.OnAir.size(), 1U);
}

TEST_F(ReadFilesTest, AFileOfOursMayHaveTwoGigabytes) {
  std::vector<SourceFile> files = SourceFiles({{"amq", AmqRow{}.Text()}});
  files.push_back(files.front());
  files[0].Size = LargestSourceFile;
  files[1].Size = LargestSourceFile + 1;
  EXPECT_EQ(Read(files)->Message(), "amq: is larger than 2048 MB, the most that is read");
  EXPECT_EQ(readings_.Amq.OnAir.size(), 1U);
}

TEST_F(ReadFilesTest, OnlyWhatBelongsToAnAntennaIsHeld) {
  const NamedTexts tables = SampleTables(Order::A, true);
  NamedTexts texts(tables.rbegin(), tables.rend());  // antennas last
  for (auto& [name, text] : texts) {
    if (name == "am_towers.dat") text = Replaced(text, "\n703|", "\n799|");
    if (name == "am_eng_data.dat") text = Replaced(text, "502|", "599|", "\n");
  }
  EXPECT_FALSE(Read(SourceFiles(texts)));
  EXPECT_EQ(readings_.Tables.Towers.size(), 2U);
  EXPECT_EQ(readings_.Tables.Engineering.size(), 1U);
  EXPECT_EQ(report_.Of(Finding::NotReferred).Examples,
            (std::vector<std::string>{"am_eng_data.dat:3: application 599",
                                      "am_towers.dat:6: a tower of antenna system 799"}));
}

TEST_F(ReadFilesTest, NoMoreRowsOfAKindAreHeldThanAllowed) {
  readings_.Tables.MostRows = readings_.Amq.MostRows = 2;
  NamedTexts texts = SampleTables(Order::A, true);
  const std::string list = AmqRow{.Facility = "1"}.Text() + AmqRow{.Facility = "2"}.Text();
  texts.emplace_back("amq", list + AmqRow{.Facility = "3"}.Text());
  EXPECT_FALSE(Read(SourceFiles(texts)));
  EXPECT_EQ(readings_.Amq.OnAir.size(), 2U);
  EXPECT_EQ(readings_.Tables.Systems.size(), 2U);
  EXPECT_EQ(
      report_.Of(Finding::NoRoom).Examples,
      (std::vector<std::string>{"am_ant_sys.dat:4: 703", "am_towers.dat:4: a tower of antenna system 701",
                                "am_towers.dat:5: a tower of antenna system 702", "amq:3: QAAA"}));

  // An array told anew makes room for itself.
  report_ = {};
  readings_ = Readings(Day(2026, 8, 2));
  readings_.Tables.MostRows = 3;
  EXPECT_FALSE(Read(SourceFiles({texts[0], texts[1], {"again", texts[1].second}})));
  const TowerRows* const array = readings_.Tables.Towers.Find("701");
  ASSERT_TRUE(array);
  EXPECT_EQ(array->Rows.size(), 3U);
}

TEST_F(ReadFilesTest, ANarrowTableIsTaken) {
  std::string text =
      "facility_id|fac_callsign|fac_frequency|fac_service|fac_status|comm_city|comm_state|^|\n";
  for (int i = 1; i <= 3000; ++i) text += std::to_string(i) + "||0|AM||||^|\n";
  EXPECT_FALSE(Read(SourceFiles({{"facility", text}})));
  EXPECT_EQ(readings_.Tables.Facilities.size(), 3000U);
}

TEST_F(ReadFilesTest, TheNewestDayIsThatOfARow) {
  const auto newest = [](const NamedTexts& texts) {
    Readings readings(Day(2026, 8, 2));
    ImportReport report;
    EXPECT_FALSE(ReadSourceFiles(SourceFiles(texts), {}, readings, report));
    return readings.Dates.Newest();
  };
  const auto rows = [](const std::vector<std::string>& numbers) {
    std::string text;
    for (const std::string& number : numbers) text += AmqRow{.FileNumber = number}.Text();
    return NamedTexts{{"amq", text}};
  };
  EXPECT_EQ(newest(rows({"BL-20200102AA", "BL-20200103", "BMML-20191231ACZ"})), Day(2020, 1, 3));
  EXPECT_EQ(newest(rows({"BL-20260802", "BL-20260803"})), Day(2026, 8, 2)) << "no day to come";
  EXPECT_FALSE(newest(rows({"BL-9847", "0000250111", "BL-20200231", "BL-200001021", "-", "", "20200102"})));
  const NamedTexts tables = SampleTables(Order::A, true);
  EXPECT_EQ(newest({tables[0]}), Day(2024, 1, 2));
  EXPECT_EQ(newest({{"t", Replaced(tables[0].second, "01/02/2024", "2025-03-04 10:00:00", "\n")}}),
            Day(2025, 3, 4));
}

TEST_F(ReadFilesTest, ItStopsWhereItIsTold) {
  const NamedTexts tables = SampleTables(Order::A, true);
  double last = 0;
  EXPECT_FALSE(Read(SourceFiles(tables), [&](double share, std::string_view name) {
    EXPECT_GE(share, last) << name;
    last = share;
    return true;
  }));
  EXPECT_EQ(last, 1);
  int calls = 0;
  std::size_t read = 0;
  const std::string list = AmqRow{}.Text();
  const SourceFile endless{
      "amq", 1 << 30,
      [&] { return Result<std::unique_ptr<ByteStream>>(std::make_unique<EndlessStream>(list, read)); }};
  EXPECT_FALSE(Read({endless, endless}, [&](double, std::string_view) { return ++calls < 5; }));
  EXPECT_EQ(calls, 5);
  EXPECT_LT(read, 1U << 20);
}

}  // namespace
}  // namespace kestrel
