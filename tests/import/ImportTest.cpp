#include "import/Import.h"

#include <gtest/gtest.h>

#include "ImportTesting.h"
#include "TestFolder.h"
#include "import/DataSwap.h"

namespace kestrel {
namespace {

/// The stations that the folder's files hold: "old", "new", or "mixed" when they are of neither set alone.
std::string Holds(const TestFolder& folder, const StationSet& before, const StationSet& after) {
  const auto isWhole = [&](const StationSet& set) {
    for (const auto& [name, bytes] : set)
      if (folder.Text(QString::fromStdString(name)) != bytes) return false;
    return true;
  };
  return isWhole(before) ? "old" : isWhole(after) ? "new" : "mixed";
}

/// The folder's set as it stands.
StationSet SetOf(const TestFolder& folder) {
  StationSet set;
  for (const std::string& name : StationSetNames()) set[name] = folder.Text(QString::fromStdString(name));
  return set;
}

TEST(RunImport, CancelledAtAnyMomentItTellsWhatTheFolderHolds) {
  const TestFolder folder;
  const StationSet before = ImportTexts({{"amq", ListRow{.call = "QOLD"}.Text()}}).files;
  ASSERT_TRUE(SwapInStations(folder.Folder(), before));
  folder.Put("amq.txt", ListRow{.call = "QNEW"}.Text());
  const ImportRequest request{{folder.Path("amq.txt")}, {}, false};
  ASSERT_FALSE(RunImport(request, folder.Folder()).failure);
  const StationSet after = SetOf(folder);
  ASSERT_TRUE(UndoImport(folder.Folder()));

  int calls = 0;
  for (int cancelAt = 1;; ++cancelAt) {
    ASSERT_TRUE(SwapInStations(folder.Folder(), before));
    calls = 0;
    double last = 0;
    const ImportOutcome outcome = RunImport(request, folder.Folder(), [&](double done, std::string_view) {
      last = done;
      return ++calls != cancelAt;
    });
    const std::string holds = Holds(folder, before, after);
    if (calls < cancelAt) {
      EXPECT_EQ(holds, "new") << "never cancelled";
      break;
    }
    EXPECT_EQ(holds, last < 1 ? "old" : "new") << cancelAt;
    const std::string why = outcome.failure ? outcome.failure->text.substr(0, 9) : "";
    EXPECT_EQ(why, holds == "old" ? "cancelled" : "") << cancelAt;
    ExpectCountsAddUp(outcome.report);
  }
  EXPECT_GT(calls, 4);
}

}  // namespace
}  // namespace kestrel
