#include "data/DataFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>

#include "TestFolder.h"
#include "WithoutRights.h"
#include "data/FileIo.h"
#include "data/PlaceLists.h"

namespace kestrel {
namespace {

/// The bytes, or why there are none.
std::string Bytes(const Result<QByteArray>& bytes) {
  return bytes ? bytes->toStdString() : bytes.error().Message();
}

/// What the folder holds, hidden entries included.
std::string Names(const QString& path) {
  const auto filter = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System;
  return QDir(path).entryList(filter, QDir::Name).join(' ').toStdString();
}

class DataFolderTest : public testing::Test, protected TestFolder {
 protected:
  const DataFolder& folder_ = Folder();
};

TEST_F(DataFolderTest, FindsFilesWhateverTheirCase) {
  Put("1230X.DAT", "upper");
  EXPECT_EQ(Bytes(folder_.Read("1230x.dat")), "upper");
  EXPECT_TRUE(folder_.Has("1230x.Dat"));
  Put("1230x.dat", "exact");
  EXPECT_EQ(Bytes(folder_.Read("1230x.dat")), "exact");
  EXPECT_EQ(Bytes(folder_.Read("1230X.DAT")), "upper");
  EXPECT_EQ(Bytes(folder_.Read("620x.dat")), "620x.dat: there is no such file");
  EXPECT_EQ(folder_.Read("620x.dat").error().kind, Error::Kind::NotFound);
  EXPECT_FALSE(folder_.Has("620x.dat"));
  EXPECT_FALSE(DataFolder("/nowhere at all").Has("620x.dat"));
}

TEST_F(DataFolderTest, WritingKeepsTheNameInItsCase) {
  Put("KESTREL.cfg", "old");
  SessionState state;
  state.CurrentFrequency = 1230;
  state.SessionFileName = "elsewhere";
  ASSERT_TRUE(SaveSession(folder_, state));
  EXPECT_EQ(Names(folder_.Path()), "KESTREL.cfg");
  EXPECT_EQ(state.SessionFileName, "Kestrel.CFG");
  SessionState read;
  LoadSession(folder_, read);
  EXPECT_EQ(read.CurrentFrequency, 1230);
  Remove("KESTREL.cfg");
  LoadSession(folder_, read);
  EXPECT_EQ(read.CurrentFrequency, 620);
}

TEST_F(DataFolderTest, OnlyPlainFilesAreRead) {
  ASSERT_TRUE(QDir(folder_.Path()).mkdir("1230x.dat"));
  EXPECT_EQ(folder_.Read("1230x.dat").error().kind, Error::Kind::NotAFile);
  EXPECT_EQ(Bytes(folder_.Read("1230x.dat")), "1230x.dat: is a folder or a device, not a file");
  // A pipe that nobody writes to must not hold the program up.
  ASSERT_EQ(mkfifo(QFile::encodeName(Path("620x.dat")).constData(), 0600), 0);
  EXPECT_EQ(Bytes(folder_.Read("620x.dat")), "620x.dat: is a folder or a device, not a file");
  EXPECT_EQ(ReadFile("/dev/zero").error().kind, Error::Kind::NotAFile);
}

TEST_F(DataFolderTest, AFileWithoutPermissionIsRefusedInWords) {
  Put("620x.dat", "620, QAAA\n");
  ASSERT_TRUE(OpenToAll(QFile::encodeName(folder_.Path()).constData()));
  ASSERT_TRUE(QFile::setPermissions(Path("620x.dat"), QFile::ReadOwner | QFile::ReadOther));
  EXPECT_TRUE(HoldsWithoutRights([&] { return static_cast<bool>(folder_.Read("620x.dat")); }));
  ASSERT_TRUE(QFile::setPermissions(Path("620x.dat"), QFile::Permissions()));
  EXPECT_TRUE(
      HoldsWithoutRights([&] { return Bytes(folder_.Read("620x.dat")) == "620x.dat: Permission denied"; }));
}

TEST_F(DataFolderTest, TheStationsLineIsReadOrRefusedInWords) {
  EXPECT_EQ(*folder_.ReadStationsLine(), "");
  Put("Stations.txt", "  The stations of today \r\nmore\n");
  EXPECT_EQ(*folder_.ReadStationsLine(), "The stations of today");
  ASSERT_TRUE(QFile::remove(Path("Stations.txt")));
  ASSERT_TRUE(QDir(folder_.Path()).mkdir("Stations.txt"));
  EXPECT_EQ(folder_.ReadStationsLine().error().Message(),
            "Stations.txt: is a folder or a device, not a file");
  EXPECT_EQ(folder_.StationsLine(), "");
}

TEST_F(DataFolderTest, ALongFileIsRefused) {
  Put("a", "12345678");
  EXPECT_EQ(Bytes(ReadFile(Path("a"), 8)), "12345678");
  EXPECT_EQ(ReadFile(Path("a"), 7).error().kind, Error::Kind::TooLarge);
  ASSERT_TRUE(QFile::resize(Path("a"), LargestDataFile + 1));
  EXPECT_EQ(Bytes(ReadFile(Path("a"))), "a: is larger than 64 MB, the most that is read");
  Put("empty", "");
  EXPECT_EQ(Bytes(ReadFile(Path("empty"))), "");
}

TEST_F(DataFolderTest, AFileThatChangesWhileItIsReadIsRefused) {
  // The system's own files give more, or less, than the size they have: as a file does that another program
  // is writing.
  for (const char* file : {"/proc/self/status", "/sys/devices/system/cpu/online"}) {
    if (QFile::exists(file)) {
      EXPECT_EQ(Bytes(ReadFile(file)), QFileInfo(file).fileName().toStdString() +
                                           ": changed while it was read; try again when it is complete");
    }
  }
}

TEST_F(DataFolderTest, AFailedWriteLeavesWhatWasThere) {
  // Failures that a privileged user meets too: a folder in the file's place, and a file in the folder's.
  ASSERT_TRUE(QDir(folder_.Path()).mkpath("Kestrel.CFG/inside"));
  const Result<Done> onFolder = folder_.Write("Kestrel.CFG", "new");
  ASSERT_FALSE(onFolder);
  EXPECT_EQ(onFolder.error().Message(), "Kestrel.CFG: is a folder or a device, not a file");
  EXPECT_TRUE(QFileInfo(Path("Kestrel.CFG/inside")).isDir());

  Put("file", "old");
  const Result<Done> inFile = DataFolder(Path("file")).Write("Kestrel.CFG", "new");
  ASSERT_FALSE(inFile);
  EXPECT_EQ(inFile.error().kind, Error::Kind::Refused);
  EXPECT_EQ(Bytes(folder_.Read("file")), "old");

  // A name so long that none is left for the new file beside the old one.
  const QString longName(252, 'n');
  Put(longName, "old");
  EXPECT_FALSE(folder_.Write(longName, "new"));
  EXPECT_EQ(Bytes(folder_.Read(longName)), "old");
  EXPECT_EQ(Names(folder_.Path()), "Kestrel.CFG file " + longName.toStdString());
}

TEST_F(DataFolderTest, FillingNeverOverwrites) {
  const QDir root(folder_.Path());
  ASSERT_TRUE(root.mkpath("came with it") && root.mkpath("new"));
  for (const char* name : {"1230x.dat", "REGION2.dat", "STATES.dat", "README.md"})
    Put(QString("came with it/") + name, name);
  Put("new/1230X.DAT", "the user's");
  ASSERT_TRUE(FillDataFolder(Path("new"), Path("came with it")));
  EXPECT_EQ(Bytes(DataFolder(Path("new")).Read("1230x.dat")), "the user's");
  EXPECT_EQ(Bytes(DataFolder(Path("new")).Read("STATES.dat")), "STATES.dat");
  EXPECT_EQ(Names(Path("new")), "1230X.DAT REGION2.dat STATES.dat");
  ASSERT_TRUE(FillDataFolder(Path("deep/er"), Path("came with it")));
  EXPECT_TRUE(DataFolder(Path("deep/er")).Has("REGION2.dat"));
  const Result<Done> onFile = FillDataFolder(Path("new/1230X.DAT"), Path("came with it"));
  ASSERT_FALSE(onFile);
  EXPECT_TRUE(
      onFile.error().Message().ends_with("new/1230X.DAT: the folder for the station data cannot be made"));
}

TEST_F(DataFolderTest, AFillingThatFailedIsTakenUpAgain) {
  ASSERT_TRUE(QDir().mkdir(Path("came with it")));
  for (const char* name : {"REGION2.dat", "STATES.dat"}) Put(QString("came with it/") + name, name);
  ASSERT_TRUE(QFile::resize(Path("came with it/STATES.dat"), LargestDataFile + 1));
  ASSERT_FALSE(FillDataFolder(Path("new"), Path("came with it")));
  // "REGION2.dat" tells whether a folder is filled, so it must not be there before the rest.
  EXPECT_FALSE(DataFolder(Path("new")).Has("REGION2.dat"));
  Put("came with it/STATES.dat", "mended");
  ASSERT_TRUE(FillDataFolder(Path("new"), Path("came with it")));
  EXPECT_EQ(Bytes(DataFolder(Path("new")).Read("STATES.dat")), "mended");
}

TEST_F(DataFolderTest, TheWantedFolderMustBeThere) {
  ASSERT_TRUE(LocateDataFolder(folder_.Path()));
  EXPECT_EQ(LocateDataFolder(folder_.Path())->Path(), folder_.Path());
  Put("file", "");
  EXPECT_EQ(LocateDataFolder(Path("file")).error().Message(),
            Path("file").toStdString() + ": there is no such folder");

  const QString before = QDir::currentPath();
  Put("region2.DAT", "");
  ASSERT_TRUE(QDir::setCurrent(folder_.Path()));
  const auto current = LocateDataFolder("");
  QDir::setCurrent(before);
  ASSERT_TRUE(current);
  EXPECT_EQ(QDir(current->Path()), QDir(folder_.Path()));
}

TEST_F(DataFolderTest, AnOverlongListKeepsItsFirstEntriesAndTheOtherListIsRead) {
  const struct {
    int cities, calls;
    std::string message;
  } rows[] = {{3400, 9000, ""},
              {3401, 2, "Kestrel.lst: more than 3400 entries; the first ones are taken"},
              {2, 9001, "StationsCall.DAT: more than 9000 entries; the first ones are taken"}};
  for (const auto& row : rows) {
    Put("KESTREL.LST", QByteArray("a\n\n").repeated(row.cities));
    Put("StationsCall.dat", QByteArray("x\n").repeated(row.calls));
    SessionState state;
    const Result<Done> loaded = LoadPlaceLists(folder_, state);
    EXPECT_EQ(loaded ? "" : loaded.error().Message(), row.message);
    EXPECT_EQ(state.CityList.size(), std::min(row.cities, 3400));
    EXPECT_EQ(state.CallList.size(), std::min(row.calls, 9000));
  }
}

TEST_F(DataFolderTest, AListThatTheFolderLacksIsTheProgramsOwn) {
  const auto lines = [](const char* name) {
    return ReadPlaceList(Bytes(DataFolder(KESTREL_TEST_SHARE).Read(name)), MaxCalls).Entries;
  };
  Put("Kestrel.lst", "a\n");
  SessionState state;
  EXPECT_TRUE(LoadPlaceLists(folder_, state));
  EXPECT_EQ(state.CityList, std::vector<std::string>{"a"});
  EXPECT_EQ(state.CallList, lines("StationsCall.DAT"));
  Remove("Kestrel.lst");
  EXPECT_TRUE(LoadPlaceLists(folder_, state));
  EXPECT_EQ(state.CityList, lines("Kestrel.lst"));
  ASSERT_TRUE(QDir(folder_.Path()).mkdir("Kestrel.lst"));
  EXPECT_EQ(LoadPlaceLists(folder_, state).error().Message(),
            "Kestrel.lst: is a folder or a device, not a file");
}

}  // namespace
}  // namespace kestrel
