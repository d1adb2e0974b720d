#include "data/DataSwap.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QSysInfo>
#include <QTemporaryDir>

#include "data/FileIo.h"
#include "data/SwapJournal.h"

namespace kestrel {
namespace {

/// A data folder with a set of station files, each holding the set's name, beside files that no import may
/// touch.
class DataSwapTest : public testing::Test {
 protected:
  static FileSource Set(const std::string& name) {
    return [name](const TakeFile& take) {
      for (const std::string& file : StationSetNames()) take(file, name);
    };
  }

  /// A fresh folder; `old` empty: without station files. One file has its name in other letters.
  DataFolder Fresh(const std::string& old) {
    QDir(path_).removeRecursively();
    QDir().mkpath(path_);
    const DataFolder folder(path_);
    for (const char* name : {"REGION2.dat", "STATES.dat", "Kestrel.lst", "Kestrel.CFG"})
      EXPECT_TRUE(folder.Write(name, "untouched"));
    if (old.empty()) return folder;
    for (const std::string& name : StationSetNames())
      EXPECT_TRUE(folder.Write(name == "1230x.dat" ? "1230X.DAT" : QString::fromStdString(name), old));
    return folder;
  }

  /// The name of the set that the folder holds, whole and nothing besides; "" for none, "mixed" else.
  static std::string Holds(const DataFolder& folder) {
    std::string holds;
    int found = 0;
    for (const std::string& name : StationSetNames()) {
      const Result<QByteArray> bytes = folder.Read(QString::fromStdString(name));
      if (!bytes) continue;
      ++found;
      if (found > 1 && holds != bytes->toStdString()) return "mixed";
      holds = bytes->toStdString();
    }
    for (const char* name : {"REGION2.dat", "STATES.dat", "Kestrel.lst", "Kestrel.CFG"})
      EXPECT_EQ(folder.Read(name)->toStdString(), "untouched") << name;
    const int visible =
        static_cast<int>(QDir(folder.Path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size());
    if (visible != 4 + found) return "mixed";
    return found == 0 ? "" : found == 120 ? holds : "mixed";
  }

  /// Nothing is left in the folder but the kept set.
  static void ExpectTidy(const DataFolder& folder, const QStringList& hidden) {
    EXPECT_EQ(QDir(folder.Path())
                  .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                  .filter(".import"),
              hidden);
  }

  /// Calls `work` with a step that stops it before its nth change: every one around the turns of the work,
  /// where a set becomes whole and where the last file has moved, and some of the alike ones between them.
  template <typename Prepare, typename Work, typename Check>
  static int StoppedEverywhere(Prepare prepare, Work work, Check check) {
    const auto next = [](int stop) {
      const auto isNearTurn = [](int at) {
        return (at + 6) % 121 < 18;
      };  // each round has 120 files and more
      do ++stop;
      while (!isNearTurn(stop) && stop % 37 != 0);
      return stop;
    };
    for (int stop = 0;; stop = next(stop)) {
      const DataFolder folder = prepare();
      int steps = 0;
      const bool done = static_cast<bool>(work(folder, [&] { return steps++ != stop; }));
      check(folder, stop);
      if (done) return stop;
    }
  }

  const QTemporaryDir parent_{QDir::tempPath() + "/swap test"};
  const QString path_ = parent_.path() + "/data";
};

TEST_F(DataSwapTest, ReplacesKeepsAndBringsBack) {
  for (const std::string old : {"", "old"}) {
    const DataFolder folder = Fresh(old);
    ASSERT_TRUE(SwapInStations(folder, Set("new")));
    EXPECT_EQ(Holds(folder), "new");
    ExpectTidy(folder, {".import-undo"});
    ASSERT_TRUE(UndoImport(folder));
    EXPECT_EQ(Holds(folder), old);
    ASSERT_TRUE(UndoImport(folder));
    EXPECT_EQ(Holds(folder), "new");
    ASSERT_TRUE(SwapInStations(folder, Set("newer")));
    EXPECT_EQ(Holds(folder), "newer");
    ASSERT_TRUE(UndoImport(folder));
    EXPECT_EQ(Holds(folder), "new");
    ExpectTidy(folder, {".import-undo"});
  }
  EXPECT_EQ(UndoImport(Fresh("old")).error().text, "holds no station files that an import replaced");
}

TEST_F(DataSwapTest, AnImportStoppedAnywhereIsFinishedOrTakenBack) {
  for (const std::string old : {"", "old"}) {
    bool finished = false;
    const int steps =
        StoppedEverywhere([&] { return Fresh(old); },
                          [](const DataFolder& folder, const SwapStep& step) {
                            return SwapInStations(folder, Set("new"), step);
                          },
                          [&](const DataFolder& folder, int stop) {
                            ASSERT_TRUE(RecoverImport(folder)) << stop;
                            const std::string holds = Holds(folder);
                            // Once it is finished it is finished at every later stop.
                            finished = finished || holds == "new";
                            ASSERT_EQ(holds, finished ? "new" : old) << stop;
                            ExpectTidy(folder, finished ? QStringList{".import-undo"} : QStringList{});
                          });
    EXPECT_GT(steps, 240);
    EXPECT_TRUE(finished);
  }
}

TEST_F(DataSwapTest, AnUndoStoppedAnywhereIsFinishedOrTakenBack) {
  for (const std::string old : {"", "old"}) {
    const auto prepare = [&] {
      const DataFolder folder = Fresh(old);
      EXPECT_TRUE(SwapInStations(folder, Set("new")));
      return folder;
    };
    StoppedEverywhere(
        prepare, [](const DataFolder& folder, const SwapStep& step) { return UndoImport(folder, step); },
        [&](const DataFolder& folder, int stop) {
          ASSERT_TRUE(RecoverImport(folder)) << stop;
          ASSERT_EQ(Holds(folder), stop == 0 ? "new" : old) << stop;
          ExpectTidy(folder, {".import-undo"});
          ASSERT_TRUE(UndoImport(folder));
          ASSERT_EQ(Holds(folder), stop == 0 ? old : "new") << stop;
        });
  }
}

TEST_F(DataSwapTest, ARecoveryStoppedAnywhereIsRecoveredFrom) {
  for (const int firstStop : {60, 121, 122, 200, 363, 364}) {
    const auto prepare = [&] {
      const DataFolder folder = Fresh("old");
      int steps = 0;
      EXPECT_FALSE(SwapInStations(folder, Set("new"), [&] { return steps++ != firstStop; })) << firstStop;
      return folder;
    };
    StoppedEverywhere(
        prepare, [](const DataFolder& folder, const SwapStep& step) { return RecoverImport(folder, step); },
        [&](const DataFolder& folder, int stop) {
          ASSERT_TRUE(RecoverImport(folder));
          ASSERT_EQ(Holds(folder), firstStop < 122 ? "old" : "new") << firstStop << ' ' << stop;
        });
  }
}

TEST_F(DataSwapTest, AFileThatCannotBeReplacedBringsTheOldSetBackWhereverItIsStopped) {
  const auto prepare = [&] {
    const DataFolder folder = Fresh("old");
    EXPECT_TRUE(QFile::remove(folder.Path() + "/550x.dat") && QDir(folder.Path()).mkdir("550x.dat"));
    return folder;
  };
  const std::string refusal = "550x.dat: the file cannot be moved";
  std::string message;
  const auto swap = [&](const DataFolder& folder, const SwapStep& step) {
    message = SwapInStations(folder, Set("new"), step).error().Message();
    return message != "the import was interrupted";
  };
  StoppedEverywhere(prepare, swap, [&](const DataFolder& folder, int stop) {
    const Result<Done> recovered = RecoverImport(folder);
    EXPECT_TRUE(recovered || recovered.error().Message() == refusal) << recovered.error().Message();
    for (const char* name : {"530x.dat", "1000x.dat", "1700x.dat"})
      ASSERT_EQ(folder.Read(name)->toStdString(), "old") << name << ' ' << stop;
    ExpectTidy(folder, {});
  });
  EXPECT_EQ(message, refusal);
}

TEST_F(DataSwapTest, AnExchangeThatCannotBeClearedUpIsNoFailure) {
  const DataFolder folder = Fresh("old");
  const auto blockTheJournalOnceMoved = [&] {
    const Result<QByteArray> last = folder.Read("Stations.txt");
    if (last && *last == "new" && QFile::remove(folder.Path() + "/.import-journal"))
      QDir(folder.Path()).mkdir(".import-journal");
    return true;
  };
  EXPECT_TRUE(SwapInStations(folder, Set("new"), blockTheJournalOnceMoved));
  EXPECT_TRUE(QFileInfo(folder.Path() + "/.import-journal").isDir());
  EXPECT_EQ(Holds(folder), "new");
}

TEST_F(DataSwapTest, TwoImportsDoNotMeet) {
  const DataFolder folder = Fresh("old");
  QLockFile other(folder.Path() + "/.import-lock");
  ASSERT_TRUE(other.tryLock(0));
  QDir(folder.Path()).mkdir(".import-new");
  EXPECT_EQ(SwapInStations(folder, Set("new")).error().text,
            "another import is at work in it (if none is, remove .import-lock there)");
  EXPECT_FALSE(UndoImport(folder));
  EXPECT_TRUE(RecoverImport(folder));
  EXPECT_TRUE(QFileInfo::exists(folder.Path() + "/.import-new"));  // the other one's
  EXPECT_EQ(folder.Read("530x.dat")->toStdString(), "old");
}

TEST_F(DataSwapTest, WhatIsNoLockFileIsRefusedAtOnce) {
  const DataFolder folder = Fresh("old");
  ASSERT_TRUE(SwapInStations(folder, Set("new")));
  const QString lock = folder.Path() + "/.import-lock";
  const QByteArray path = QFile::encodeName(lock);
  const std::pair<const char*, std::function<bool()>> cases[] = {
      {"folder", [&] { return QDir().mkdir(lock); }},
      {"pipe", [&] { return mkfifo(path.constData(), 0600) == 0; }},
      {"device", [&] { return QFile::link("/dev/zero", lock); }},
      {"link to a pipe",
       [&] { return mkfifo((path + "p").constData(), 0600) == 0 && QFile::link(lock + "p", lock); }},
      {"link to nothing", [&] { return QFile::link("nowhere", lock); }},
      {"long file", [&] { return folder.Write(".import-lock", "1\n") && QFile::resize(lock, 1001); }},
      {"2 GB", [&] { return folder.Write(".import-lock", "") && QFile::resize(lock, 2LL << 30); }},
  };
  for (const auto& [name, put] : cases) {
    SCOPED_TRACE(name);
    ASSERT_TRUE(put());
    QDir(folder.Path()).mkdir(".import-new");
    const std::string words = ".import-lock: is not the lock file of an import; remove it to go on";
    for (const Result<Done>& outcome :
         {SwapInStations(folder, Set("newer")), UndoImport(folder), RecoverImport(folder)}) {
      ASSERT_FALSE(outcome);
      EXPECT_EQ(outcome.error().Message(), words);
    }
    EXPECT_TRUE(QDir(folder.Path()).rmdir(".import-new"));
    EXPECT_TRUE(RecoverImport(folder)) << "nothing to recover, nothing to lock";
    EXPECT_TRUE(QFile::remove(lock) || QDir().rmdir(lock));
    QFile::remove(lock + "p");
  }
  EXPECT_EQ(Holds(folder), "new");
}

TEST_F(DataSwapTest, ALockOfAProcessThatIsGoneHoldsNothing) {
  const DataFolder folder = Fresh("old");
  const pid_t gone = fork();
  if (gone == 0) _exit(0);
  ASSERT_EQ(waitpid(gone, nullptr, 0), gone);
  ASSERT_TRUE(folder.Write(".import-lock", std::to_string(gone) + "\nkestrel\n" +
                                               QSysInfo::machineHostName().toStdString() + "\n"));
  EXPECT_TRUE(SwapInStations(folder, Set("new")));
  EXPECT_EQ(Holds(folder), "new");
  ExpectTidy(folder, {".import-undo"});
}

TEST_F(DataSwapTest, ALockFileThatNamesNobodyLocksNobodyOut) {
  const DataFolder folder = Fresh("old");
  const QString lock = folder.Path() + "/.import-lock";
  const auto put = [&](const std::string& text, int age) {
    EXPECT_TRUE(folder.Write(".import-lock", text));
    QFile file(lock);
    EXPECT_TRUE(file.open(QIODevice::ReadWrite));
    const QDateTime time = QDateTime::currentDateTime().addSecs(-age);
    EXPECT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
  };
  for (const std::string text : {"", "garbled", "\n\n\n", "-1\nkestrel\n", "\xFF\x00\xFF"}) {
    put(text, 60);
    QDir(folder.Path()).mkdir(".import-new");
    EXPECT_TRUE(RecoverImport(folder));
    EXPECT_FALSE(QFileInfo::exists(folder.Path() + "/.import-new")) << text;
    put(text, -3600);  // the clock was wrong
    EXPECT_TRUE(SwapInStations(folder, Set("new"))) << text;
    EXPECT_FALSE(QFileInfo::exists(lock)) << text;
  }
  EXPECT_EQ(Holds(folder), "new");

  put("", 0);  // another import may be making it
  EXPECT_EQ(SwapInStations(folder, Set("newer")).error().text,
            "another import is at work in it (if none is, remove .import-lock there)");
  put("", 60);
  const int held = open(QFile::encodeName(lock).constData(), O_RDWR);
  ASSERT_EQ(flock(held, LOCK_EX), 0);
  EXPECT_EQ(SwapInStations(folder, Set("newer")).error().text,
            "another import is at work in it (if none is, remove .import-lock there)");
  close(held);
  EXPECT_TRUE(SwapInStations(folder, Set("newer")));
}

TEST_F(DataSwapTest, WhatIsNoKeptSetIsNotPutBack) {
  const DataFolder folder = Fresh("old");
  const QString kept = folder.Path() + "/.import-undo";
  ASSERT_TRUE(QDir().mkdir(parent_.path() + "/elsewhere"));
  for (const bool link : {false, true}) {
    ASSERT_TRUE(link ? QFile::link(parent_.path() + "/elsewhere", kept)
                     : mkfifo(QFile::encodeName(kept).constData(), 0600) == 0);
    EXPECT_EQ(UndoImport(folder).error().text, "holds no station files that an import replaced");
    EXPECT_EQ(Holds(folder), "old");
    ASSERT_TRUE(QFile::remove(kept));
  }
}

TEST_F(DataSwapTest, ADamagedJournalTouchesNothing) {
  const std::string whole = JournalText({false, ".import-new", {"530X.DAT"}, {"530x.dat", "540x.dat"}});
  for (std::size_t length = 0; length + 1 < whole.size(); ++length)
    EXPECT_FALSE(ReadJournal(whole.substr(0, length))) << length;
  const auto read = ReadJournal(whole);
  ASSERT_TRUE(read);
  EXPECT_EQ(JournalText(*read), whole);
  EXPECT_FALSE(ReadJournal("moving\nfrom .import-new\nnew ../../x\nend\n"));

  const DataFolder folder = Fresh("old");
  ASSERT_TRUE(folder.Write(".import-journal", "moving\n"));
  EXPECT_EQ(RecoverImport(folder).error().Message(),
            ".import-journal: is damaged; remove it to go on with the files as they are");
  EXPECT_EQ(folder.Read("530x.dat")->toStdString(), "old");
}

}  // namespace
}  // namespace kestrel
