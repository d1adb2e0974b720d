#include "import/Import.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QFile>
#include <new>

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

FileSource Source(const StationSet& set) {
  return [&](const TakeFile& take) {
    for (const auto& [name, bytes] : set) take(name, bytes);
  };
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
  ASSERT_TRUE(SwapInStations(folder.Folder(), Source(before)));
  folder.Put("amq.txt", ListRow{.call = "QNEW"}.Text());
  const ImportRequest request{{folder.Path("amq.txt")}, {}, false};
  ASSERT_FALSE(RunImport(request, folder.Folder()).failure);
  const StationSet after = SetOf(folder);
  ASSERT_TRUE(UndoImport(folder.Folder()));

  int calls = 0;
  for (int cancelAt = 1;; ++cancelAt) {
    ASSERT_TRUE(SwapInStations(folder.Folder(), Source(before)));
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

TEST(RunImport, WantOfMemoryAtAnyMomentLeavesTheFiles) {
  const TestFolder folder;
  const StationSet before = ImportTexts({{"amq", ListRow{.call = "QOLD"}.Text()}}).files;
  ASSERT_TRUE(SwapInStations(folder.Folder(), Source(before)));
  folder.Put("amq.txt", ListRow{.call = "QNEW"}.Text());
  for (const double moment : {0.0, 0.8, 0.9}) {
    const ImportOutcome outcome =
        RunImport({{folder.Path("amq.txt")}, {}, false}, folder.Folder(), [&](double done, std::string_view) {
          if (done >= moment) throw std::bad_alloc();
          return true;
        });
    ASSERT_TRUE(outcome.failure);
    EXPECT_EQ(outcome.failure->Message(),
              "there is not enough memory for so long files; the station files are as they were");
    EXPECT_EQ(Holds(folder, before, before), "old");
  }
}

TEST(RunImport, TheDateIsThatOfTheNewestFileWithRows) {
  const TestFolder folder;
  const struct {
    const char* name;
    std::string text;
    QDate date;
  } files[] = {{"old.txt", ListRow{}.Text(), {2026, 7, 1}},
               {"new.txt", ListRow{.call = "QBBB", .facility = "2"}.Text(), {2026, 8, 2}},
               {"letter.txt", "Dear listener,\n", {2026, 9, 3}}};
  ImportRequest request;
  for (const auto& [name, text, date] : files) {
    folder.Put(name, text);
    QFile file(folder.Path(name));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(date.startOfDay(), QFileDevice::FileModificationTime));
    request.files << folder.Path(name);
  }
  EXPECT_EQ(RunImport(request, folder.Folder()).stationsLine,
            "The FCC's AM Query list, files of 2 August 2026, 2 stations");
  EXPECT_EQ(folder.Text("Stations.txt"), "The FCC's AM Query list, files of 2 August 2026, 2 stations\r\n");
}

}  // namespace
}  // namespace kestrel
