#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include "AddressSanitizer.h"
#include "ImportTesting.h"
#include "data/FileIo.h"
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

/// A row with as little in it as a list may have.
struct ShortestRow {
  std::string call;
  int channel = 530;
  std::string status = "CP";
  std::string facility = "";
  std::string country = "";
  std::string Text() const {
    return "|" + call + "|" + std::to_string(channel) + "kHz|AM|||Daytime|||" + status + "|||" + country +
           "||1kW||||" + facility + "|N|1|1|1|W|90|1|1||||||\n";
  }
};

/// A short text for each number.
std::string Name(int number) {
  constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
  std::string text;
  for (++number; number > 0; number /= 36) text += kLetters[static_cast<std::size_t>(number % 36)];
  return text;
}

int Channel(int number) {
  return 530 + 10 * (number % 118);
}

template <typename Row>
std::string Rows(int count, Row row) {
  std::string text;
  for (int i = 0; i < count; ++i) text += row(i);
  return text;
}

/// Fails the running test unless an import of the texts holds less than three times what it reads: them and,
/// where `before` was imported first, the station file of 530 kHz.
void ExpectInProportion(const std::string& what, const std::vector<std::string>& texts,
                        const std::string& before = {}) {
  const QTemporaryDir dir(QDir::tempPath() + "/memory test");
  const DataFolder folder(dir.path());
  std::int64_t size = 0;
  if (!before.empty()) {
    ASSERT_TRUE(folder.Write("before.txt", before));
    ASSERT_FALSE(RunImport({{dir.filePath("before.txt")}, {}, false}, folder).Failure);
    size += folder.Read("530x.dat")->size();
  }
  QStringList files;
  for (const std::string& text : texts) {
    files << dir.filePath(QString::number(files.size()));
    ASSERT_TRUE(WriteFile(files.back(), text));
    size += static_cast<std::int64_t>(text.size());
  }
  const std::int64_t bytes = MostHeld(files, folder);
  EXPECT_LT(bytes, 3 * size) << what;
  std::cout << what << ": " << static_cast<double>(bytes) / static_cast<double>(size) << " times\n";
}

// The index of call signs is at its longest beside 9000 stations, a channel at 10,000.
TEST(ImportMemory, AListStaysUnderThreeTimesItsSize) {
  const auto real = [](int i) {
    return ListRow{.call = "Q" + Name(i),
                   .frequency = std::to_string(Channel(i)) + " kHz",
                   .city = "CITY OF " + Name(i % 1000),
                   .facility = std::to_string(i + 1)}
        .Text();
  };
  const auto shortest = [](int i) { return ShortestRow{Name(i), Channel(i)}.Text(); };
  const auto american = [](int i) { return ShortestRow{Name(i), Channel(i), "LIC", "", "US"}.Text(); };
  const auto oneChannel = [](int i) { return ShortestRow{Name(i)}.Text(); };
  const auto oneName = [](int i) { return ShortestRow{"A", 530, "CP", std::to_string(i + 1)}.Text(); };
  const auto ended = [](int i) {
    return "|||AM|||Daytime|||CNL|||||||||" + std::to_string(i + 1) + "||||||||||||||\n";
  };
  ExpectInProportion("rows like real ones", {Rows(20'000, real)});
  ExpectInProportion("shortest rows", {Rows(9000, shortest)});
  ExpectInProportion("many shortest rows", {Rows(30'000, american)});
  ExpectInProportion("one channel", {Rows(9000, oneChannel)});
  ExpectInProportion("one call sign", {Rows(9000, oneName)}, Rows(9000, oneName));
  ExpectInProportion("others than before", {Rows(9000, oneChannel)}, Rows(9000, oneName));
  ExpectInProportion("ended", {ShortestRow{"A"}.Text() + Rows(30'000, ended)});
}

/// A table of these columns alone, with a header; rows shorter than real ones begin with blanks.
std::string Table(const std::vector<std::string>& columns, int count, std::size_t shortest,
                  const std::function<std::vector<std::string>(int)>& values) {
  const auto line = [](const std::vector<std::string>& fields) {
    std::string text;
    for (const std::string& field : fields) text += (text.empty() ? "" : "|") + field;
    return text;
  };
  return line(columns) + '\n' + Rows(count, [&](int i) {
           const std::string row = line(values(i));
           return std::string(shortest - std::min(shortest, row.size()), ' ') + row + '\n';
         });
}

TEST(ImportMemory, TablesStayUnderThreeTimesTheirSize) {
  // Three antennas a station. 25,000 rows make their index as large as it gets for their number.
  constexpr int kAntennas = 25'000;
  constexpr int kStations = kAntennas / 3 + 1;
  const std::string systems =
      Table({"ant_sys_id", "application_id", "hours_operation", "lat_deg", "lat_dir", "lat_min", "lat_sec",
             "lon_deg", "lon_dir", "lon_min", "lon_sec", "power", "eng_record_type"},
            kAntennas, 64, [](int i) {
              return std::vector<std::string>{
                  Name(i), Name(i / 3), std::string(1, "DNC"[i % 3]), "1", "N", "1", "1", "90", "W", "1", "1",
                  "1",     "C"};
            });
  const std::string engineering =
      Table({"application_id", "facility_id", "station_class"}, kStations, 28, [](int i) {
        return std::vector<std::string>{Name(i), std::to_string(i + 1), ""};
      });
  const std::string facilities =
      Table({"facility_id", "fac_callsign", "fac_frequency", "fac_service", "fac_status", "comm_city",
             "comm_state", "fac_country"},
            kStations, 40, [](int i) {
              return std::vector<std::string>{
                  std::to_string(i + 1), Name(i), std::to_string(Channel(i)), "AM", "", "", "", "MX"};
            });
  const auto towers = [](int each, std::size_t shortest = 40) {
    return Table({"ant_sys_id", "tower_num", "field_ratio", "phasing_deg", "spacing_deg", "orientation_deg",
                  "tower_ref_switch"},
                 kAntennas * each, shortest, [each](int i) {
                   return std::vector<std::string>{
                       Name(i / each), std::to_string(i % each + 1), "1", "", "", "", ""};
                 });
  };
  const std::string station = ShortestRow{"A"}.Text();
  ExpectInProportion("antennas", {station, systems});
  ExpectInProportion("applications", {station, engineering});
  ExpectInProportion("facilities", {station, facilities});
  ExpectInProportion("towers", {station, towers(1)});
  ExpectInProportion("towers shorter than real ones", {station, towers(4, 0)});
  ExpectInProportion("all tables", {systems, engineering, facilities});
  ExpectInProportion("all, a tower each", {systems, engineering, facilities, towers(1)});
  ExpectInProportion("all, three towers each", {systems, engineering, facilities, towers(3)});
}

}  // namespace
}  // namespace kestrel

#endif
