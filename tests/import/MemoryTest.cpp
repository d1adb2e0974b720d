#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <string>
#include <utility>

#include "AddressSanitizer.h"
#include "ImportTesting.h"
#include "TestFolder.h"
#include "import/Import.h"

// The address sanitizer counts the memory; a build without it has no such test.
#ifdef KESTREL_ADDRESS_SANITIZER

extern "C" {
int __sanitizer_install_malloc_and_free_hooks(void (*allocated)(const volatile void*, std::size_t),
                                              void (*freed)(const volatile void*));
std::size_t __sanitizer_get_allocated_size(const volatile void* memory);
}

namespace kestrel {
namespace {

std::atomic<std::int64_t> held = 0;
std::atomic<std::int64_t> most = 0;
std::atomic<bool> counting = false;

void Allocated(const volatile void*, std::size_t size) {
  if (!counting) return;
  held += static_cast<std::int64_t>(size);
  if (held > most) most = held.load();
}

void Freed(const volatile void* memory) {
  if (counting && memory) held -= static_cast<std::int64_t>(__sanitizer_get_allocated_size(memory));
}

/// The bytes that a dry import of the files holds at most, beyond those held before.
std::int64_t MostHeld(const QStringList& files, const DataFolder& folder) {
  static const bool installed = __sanitizer_install_malloc_and_free_hooks(Allocated, Freed) != 0;
  EXPECT_TRUE(installed);
  held = most = 0;
  counting = true;
  const ImportOutcome outcome = RunImport({files, {}, true}, folder);
  counting = false;
  EXPECT_FALSE(outcome.Failure);
  EXPECT_GT(outcome.Report.Records, 0);
  return most;
}

/// Fails the running test unless an import of the texts, into a folder where `before` was imported first,
/// holds no more than it may for so many rows that it keeps.
void ExpectInProportion(const std::string& what, std::int64_t rows, const NamedTexts& texts,
                        const std::string& before = {}) {
  constexpr std::int64_t kAlways = 2 << 20;
  constexpr std::int64_t kForARow = 400;
  const TestFolder folder;
  if (!before.empty()) {
    folder.Put("before", before);
    ASSERT_FALSE(RunImport({{folder.Path("before")}, {}, false}, folder.Folder()).Failure);
  }
  QStringList files;
  for (const auto& [name, text] : texts) {
    files << folder.Path(QString::fromStdString(name));
    folder.Put(QString::fromStdString(name), text);
  }
  const std::int64_t bytes = MostHeld(files, folder.Folder());
  EXPECT_LT(bytes, kAlways + kForARow * rows) << what;
  std::cout << what << ": " << bytes << " bytes for " << rows << " rows\n";
}

template <typename Row>
std::string Rows(int count, Row row) {
  std::string text;
  for (int i = 1; i <= count; ++i) text += row(i);
  return text;
}

std::string Channel(int number) {
  return std::to_string(530 + 10 * (number % 118));
}

TEST(ImportMemory, IsInProportionToTheRowsOfAList) {
  const auto band = [](int i) {
    return AmqRow{.Call = "Q" + std::to_string(i),
                  .Frequency = Channel(i) + " kHz",
                  .City = "CITY OF " + std::to_string(i % 1000),
                  .Facility = std::to_string(i)}
        .Text();
  };
  const auto namesake = [](int i) { return AmqRow{.Facility = std::to_string(i)}.Text(); };
  const auto rival = [](int i) {
    return AmqRow{.Call = "Q" + std::to_string(i), .Facility = std::to_string(i)}.Text();
  };
  ExpectInProportion("the band", 20'000, {{"amq", Rows(20'000, band)}});
  // Compared with as many others, all on one channel.
  ExpectInProportion("one channel", 2 * 9000, {{"amq", Rows(9000, namesake)}}, Rows(9000, rival));
}

TEST(ImportMemory, IsInProportionToTheRowsOfTheTablesThatBelongToAnAntenna) {
  constexpr int kStations = 8000;
  const std::string place =
      " hours_operation=U lat_deg=1 lat_dir=N lat_min=1 lat_sec=1 lon_deg=90 lon_dir=W "
      "lon_min=1 lon_sec=1 power=1 eng_record_type=C";
  const auto table = [](const std::string& name, int count, const auto& row) {
    TableText text{name, Order::A, true, {}};
    for (int i = 0; i < count; ++i) text.rows.push_back(row(i));
    return std::pair(name, text.Text());
  };
  const NamedTexts tables = {
      table("am_ant_sys", kStations,
            [&](int i) {
              const std::string number = std::to_string(i + 1);
              return "ant_sys_id=" + number + " application_id=" + number + place;
            }),
      table("am_towers", 5 * kStations,
            [](int i) {
              return "ant_sys_id=" + std::to_string(i / 3 + 1) + " tower_num=" + std::to_string(i % 3 + 1) +
                     " field_ratio=1";
            }),
      table("am_eng_data", 4 * kStations,
            [](int i) {
              return "application_id=" + std::to_string(i + 1) + " facility_id=" + std::to_string(i + 1);
            }),
      table("facility", kStations, [](int i) {
        return "facility_id=" + std::to_string(i + 1) + " fac_callsign=Q" + std::to_string(i) +
               " fac_country=MX fac_service=AM fac_frequency=" + Channel(i);
      })};
  ExpectInProportion("tables", (1 + 3 + 1 + 1) * kStations, tables);
}

}  // namespace
}  // namespace kestrel

#endif
