#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <atomic>
#include <cstddef>
#include <cstdint>

#include "ImportTesting.h"
#include "data/FileIo.h"
#include "import/Import.h"

// The address sanitizer counts the memory; a build without it has no such test.
#if !defined(__SANITIZE_ADDRESS__) && defined(__has_feature)
#if __has_feature(address_sanitizer)
#define __SANITIZE_ADDRESS__  // as GCC does
#endif
#endif
#ifdef __SANITIZE_ADDRESS__

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
  EXPECT_FALSE(outcome.failure);
  EXPECT_GT(outcome.report.records, 0);
  return most;
}

TEST(ImportMemory, StaysUnderThreeTimesTheFile) {
  const QTemporaryDir dir(QDir::tempPath() + "/memory test");
  const QString path = dir.filePath("amq.txt");
  std::int64_t size = 0;
  {
    std::string list;
    for (int i = 1; i <= 20'000; ++i)
      list += ListRow{.call = "Q" + std::to_string(i),
                      .frequency = std::to_string(530 + 10 * (i % 118)) + " kHz",
                      .city = "CITY OF " + std::to_string(i % 1000),
                      .facility = std::to_string(i)}
                  .Text();
    ASSERT_TRUE(WriteFile(path, list));
    size = static_cast<std::int64_t>(list.size());
  }
  const std::int64_t bytes = MostHeld({path}, DataFolder(dir.path()));
  EXPECT_LT(bytes, 3 * size) << static_cast<double>(bytes) / static_cast<double>(size) << " times";
}

}  // namespace
}  // namespace kestrel

#endif
