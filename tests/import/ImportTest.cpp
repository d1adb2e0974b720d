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
    folder_.Put("amq.txt", AmqRow{.Call = "QNEW"}.Text());
    ImportOld();
  }

  void ImportOld() {
    folder_.Put("old.txt", AmqRow{.Call = "QOLD"}.Text());
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
  } files[] = {{"old.txt", AmqRow{}.Text(), {2026, 7, 1}},
               {"new.txt", AmqRow{.Call = "QBBB", .Facility = "2"}.Text(), {2026, 8, 2}},
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

  folder_.Put("new.txt", AmqRow{.FileNumber = "BL-20200102AA"}.Text());
  EXPECT_EQ(RunImport(request, folder_.Folder()).StationsLine,
            "The FCC's AM Query list, newest dated row of 2 January 2020, 1 stations");
  EXPECT_EQ(folder_.Folder().StationsLine(),
            "The FCC's AM Query list, newest dated row of 2 January 2020, 1 stations");
}

TEST_F(RunImportTest, FewerThanHalfOfTheStationsAreLeftOnlyWhenThatIsWanted) {
  const auto request = [&](int stations) {
    std::string rows;
    for (int i = 1; i <= stations; ++i)
      for (const char* hours : {"Daytime", "Nighttime"})
        rows +=
            AmqRow{.Call = "QAA" + std::to_string(i), .Hours = hours, .Facility = std::to_string(i)}.Text();
    folder_.Put("rows.txt", rows);
    return ImportRequest{{folder_.Path("rows.txt")}, {}, false};
  };
  EXPECT_FALSE(RunImport(request(5), folder_.Folder()).Failure);
  const std::string five = folder_.Text("1230x.dat");
  ImportRequest fewer = request(2);
  EXPECT_EQ(RunImport(fewer, folder_.Folder()).Failure->Message(),
            "2 stations would be left where there are 5, less than half; the station files are as they were");
  bool wanted = false;
  std::vector<std::pair<int, int>> asked;
  fewer.LeaveFewer = [&](int before, int after) {
    asked.emplace_back(before, after);
    return wanted;
  };
  EXPECT_TRUE(RunImport(fewer, folder_.Folder()).Failure);
  EXPECT_EQ(folder_.Text("1230x.dat"), five);
  fewer.DryRun = true;
  EXPECT_NE(OutcomeText(RunImport(fewer, folder_.Folder()), 0)
                .find("\n2 stations with 4 antennas by hours\n5 stations before\n"),
            std::string::npos);
  fewer.DryRun = false;
  wanted = true;
  EXPECT_FALSE(RunImport(fewer, folder_.Folder()).Failure);
  EXPECT_EQ(asked, (std::vector<std::pair<int, int>>(2, {5, 2})));
  EXPECT_FALSE(RunImport(request(1), folder_.Folder()).Failure) << "half of them";
}

TEST_F(RunImportTest, WhatIsWrittenIsComparedWithWhatWasThere) {
  ImportRequest request = request_;
  request.DryRun = true;
  EXPECT_EQ(RunImport(request, folder_.Folder()).Changes.size(), 1U);
  EXPECT_EQ(Holds(), "QOLD");
  EXPECT_EQ(RunImport(request_, folder_.Folder()).Changes.size(), 1U);
  EXPECT_EQ(Holds(), "QNEW");
  EXPECT_TRUE(RunImport(request_, folder_.Folder()).Changes.empty());
  folder_.Put("notes", "x\n");
  EXPECT_EQ(RunImport({{folder_.Path("notes")}, {}, false}, folder_.Folder()).Failure->Message(),
            "no station was found; the station files are as they were");
}

}  // namespace
}  // namespace kestrel
