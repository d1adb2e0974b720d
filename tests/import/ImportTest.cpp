#include "import/Import.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QFile>
#include <new>

#include "ImportTesting.h"
#include "TestFolder.h"

namespace kestrel {
namespace {

/// A folder with a station QOLD, and the list of a station QNEW.
class RunImportTest : public testing::Test {
 protected:
  void SetUp() override {
    folder_.Put("amq.txt", ListRow{.call = "QNEW"}.Text());
    ImportOld();
  }

  void ImportOld() {
    folder_.Put("old.txt", ListRow{.call = "QOLD"}.Text());
    ASSERT_FALSE(RunImport({{folder_.Path("old.txt")}, {}, false}, folder_.Folder()).Failure);
  }

  /// The call sign of the folder's station.
  std::string Holds() const { return folder_.Text("1230x.dat").substr(6, 4); }

  const TestFolder folder_;
  const ImportRequest request_{{folder_.Path("amq.txt")}, {}, false};
};

TEST_F(RunImportTest, CancelledAtAnyMomentItTellsWhatTheFolderHolds) {
  int calls = 0;
  for (int cancelAt = 1; calls >= cancelAt - 1; ++cancelAt) {
    ImportOld();
    calls = 0;
    double last = 0;
    const ImportOutcome outcome = RunImport(request_, folder_.Folder(), [&](double done, std::string_view) {
      last = done;
      return ++calls != cancelAt;
    });
    const bool cancelled = calls >= cancelAt && last < 1;
    EXPECT_EQ(Holds(), cancelled ? "QOLD" : "QNEW") << cancelAt;
    const std::string why = outcome.Failure ? outcome.Failure->Message() : "";
    EXPECT_EQ(why, cancelled ? "cancelled; the station files are as they were" : "") << cancelAt;
    ExpectCountsAddUp(outcome.Report);
  }
  EXPECT_GT(calls, 4);
}

TEST_F(RunImportTest, WantOfMemoryAtAnyMomentLeavesTheFiles) {
  for (const double moment : {0.0, 0.8, 0.9}) {
    const ImportOutcome outcome = RunImport(request_, folder_.Folder(), [&](double done, std::string_view) {
      if (done >= moment) throw std::bad_alloc();
      return true;
    });
    ASSERT_TRUE(outcome.Failure);
    EXPECT_EQ(outcome.Failure->Message(),
              "there is not enough memory for so long files; the station files are as they were");
    EXPECT_EQ(Holds(), "QOLD");
  }
}

TEST_F(RunImportTest, TheDateIsThatOfTheNewestFileWithRows) {
  const struct {
    const char* name;
    std::string text;
    QDate date;
  } files[] = {{"old.txt", ListRow{}.Text(), {2026, 7, 1}},
               {"new.txt", ListRow{.call = "QBBB", .facility = "2"}.Text(), {2026, 8, 2}},
               {"letter.txt", "Dear listener,\n", {2026, 9, 3}}};
  ImportRequest request;
  for (const auto& [name, text, date] : files) {
    folder_.Put(name, text);
    QFile file(folder_.Path(name));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(date.startOfDay(), QFileDevice::FileModificationTime));
    request.Files << folder_.Path(name);
  }
  EXPECT_EQ(RunImport(request, folder_.Folder()).StationsLine,
            "The FCC's AM Query list, files of 2 August 2026, 2 stations");
  EXPECT_EQ(folder_.Text("Stations.txt"), "The FCC's AM Query list, files of 2 August 2026, 2 stations\r\n");
}

}  // namespace
}  // namespace kestrel
