#include "import/read/OpenIntake.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <zip.h>

#include <QFile>

#include "ImportTesting.h"
#include "TestFolder.h"
#include "import/Import.h"

namespace kestrel {
namespace {

struct ZipEntry {
  std::string name;
  std::string bytes;
  bool encrypted = false;
};

class IntakeTest : public testing::Test {
 protected:
  QString Plain(const QString& name, const std::string& bytes) {
    folder_.Put(name, bytes);
    return folder_.Path(name);
  }

  QString Zip(const QString& name, const std::vector<ZipEntry>& entries) {
    const QString path = folder_.Path(name);
    zip_t* archive = zip_open(QFile::encodeName(path).constData(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    for (const ZipEntry& entry : entries) {
      if (entry.name.ends_with('/')) {
        zip_dir_add(archive, entry.name.c_str(), 0);
        continue;
      }
      zip_source_t* source = zip_source_buffer(archive, entry.bytes.data(), entry.bytes.size(), 0);
      const zip_int64_t index = zip_file_add(archive, entry.name.c_str(), source, 0);
      if (entry.encrypted)
        zip_file_set_encryption(archive, static_cast<zip_uint64_t>(index), ZIP_EM_TRAD_PKWARE, "secret");
    }
    EXPECT_EQ(zip_close(archive), 0);
    return path;
  }

  std::string ZipBytes(const std::vector<ZipEntry>& entries) {
    Zip("bytes.zip", entries);
    return folder_.Text("bytes.zip");
  }

  ImportOutcome Run(const QStringList& files, bool dryRun = true) {
    return RunImport({files, {}, dryRun}, folder_.Folder());
  }

  const TestFolder folder_;
};

TEST_F(IntakeTest, AZipGivesWhatItsFilesGive) {
  const auto tables = SampleTables(Order::B, false);
  std::vector<ZipEntry> entries = {{"am/", ""}};
  QStringList plain;
  for (const auto& [name, text] : tables) {
    entries.push_back({"am/" + name, text});
    plain << Plain(QString::fromStdString(name), text);
  }
  entries.push_back({"../../readme", "Nothing to see\n"});
  const ImportOutcome zipped = Run({Zip("no suffix", entries), Zip("empty.zip", {{"x/", ""}})});
  ASSERT_FALSE(zipped.Failure) << zipped.Failure->Message();
  EXPECT_EQ(zipped.Report.Records, 3);
  EXPECT_EQ(zipped.Report.Total().Rows, Run(plain).Report.Total().Rows);
  EXPECT_EQ(zipped.Report.Files().front().Name, "no suffix/am/am_ant_sys.dat");
  ASSERT_EQ(zipped.Report.Refusals().size(), 2U);
  EXPECT_EQ(zipped.Report.Refusals()[0].Reason, "is a zip without files");
  EXPECT_EQ(zipped.Report.Refusals()[1].File, "no suffix/../../readme");
}

TEST_F(IntakeTest, WhatCannotBeReadStopsTheImportAndIsNamed) {
  const std::string list = AmqRow{}.Text();
  const QString good = Plain("amq.txt", list);
  std::string half = ZipBytes({{"a", list + list}});
  half.resize(half.size() / 2);
  std::string flipped = ZipBytes({{"a", list}});
  flipped[40] = static_cast<char>(flipped[40] ^ 0x55);
  const struct {
    QString file;
    const char* message;
  } cases[] = {
      {folder_.Path("none.txt"), "none.txt: there is no such file"},
      {Plain("half.zip", half), "half.zip: a damaged zip: "},
      {Plain("flipped.zip", flipped), "flipped.zip/a: is damaged: "},
      {Zip("secret.zip", {{"a", list, true}}),
       "secret.zip/a: is encrypted; unpack it and give the file itself"},
  };
  for (const auto& [file, message] : cases) {
    const ImportOutcome outcome = Run({good, file}, false);
    ASSERT_TRUE(outcome.Failure) << message;
    EXPECT_NE(outcome.Failure->Message().find(message), std::string::npos) << outcome.Failure->Message();
    EXPECT_EQ(outcome.Report.Refusals().size(), 1U);
    EXPECT_EQ(outcome.Report.Records, 1);  // the report tells of the others all the same
    EXPECT_FALSE(folder_.Folder().Has("1230x.dat"));
  }
}

TEST_F(IntakeTest, WhatIsNoPlainFileIsRefusedAtOnce) {
  ASSERT_EQ(mkfifo(QFile::encodeName(folder_.Path("pipe")).constData(), 0600), 0);
  ASSERT_TRUE(QFile::link("/dev/zero", folder_.Path("zero")));
  const std::string noFile = "is a folder or a device, not a file";
  for (const QString& path : {folder_.Path("pipe"), folder_.Path("zero"), folder_.Path()}) {
    const auto intake = OpenIntake(path);
    ASSERT_FALSE(intake) << path.toStdString();
    EXPECT_EQ(intake.error().text, noFile) << path.toStdString();
  }
  // Nor does a file that has become a pipe since it was looked at.
  const QString path = Plain("list.txt", AmqRow{}.Text());
  const auto intake = OpenIntake(path);
  ASSERT_TRUE(intake);
  ASSERT_TRUE(QFile::remove(path) && QFile::rename(folder_.Path("pipe"), path));
  const auto stream = (*intake)->Open(0);
  ASSERT_FALSE(stream);
  EXPECT_EQ(stream.error().text, noFile);
}

TEST_F(IntakeTest, AFileThatChangesWhileItIsReadStopsTheImport) {
  std::string list;
  for (int i = 1; i <= 5000; ++i) list += AmqRow{.Facility = std::to_string(i)}.Text();
  for (const int change : {-1, 1}) {
    const QString path = Plain("amq.txt", list);
    const auto resize = [&](double, std::string_view) {
      return QFile::resize(path, static_cast<qint64>(list.size()) + change);
    };
    const ImportOutcome outcome = RunImport({{path}, {}, false}, folder_.Folder(), resize);
    ASSERT_TRUE(outcome.Failure);
    EXPECT_EQ(outcome.Failure->Message(), "amq.txt: changed while it was read");
    EXPECT_FALSE(folder_.Folder().Has("1230x.dat"));
  }
}

TEST_F(IntakeTest, WhatAZipHoldsIsPassedOverUnlessItIsOursAndOfTheLengthThatItTells) {
  const std::string zeros(2 << 20, '\0');
  const QString bomb = Zip("bomb.zip", {{"zeros", zeros}, {"list", AmqRow{}.Text()}});
  EXPECT_LT(QFileInfo(bomb).size(), 10'000);
  EXPECT_EQ(Run({bomb}).Report.Records, 1);

  // A zip that hides the length of what is in it: in the directory and in front of the data it is 70000.
  std::string rows;
  for (int i = 1; i <= 1000; ++i) rows += AmqRow{.Facility = std::to_string(i)}.Text();
  std::string liar = ZipBytes({{"a", rows}});
  const auto bytes = [](std::size_t size) {
    return std::string{static_cast<char>(size), static_cast<char>(size >> 8), static_cast<char>(size >> 16),
                       0};
  };
  const std::string size = bytes(rows.size());
  for (std::size_t at = liar.find(size); at != std::string::npos; at = liar.find(size, at + 4))
    liar.replace(at, 4, bytes(70'000));
  const ImportOutcome outcome = Run({Plain("liar.zip", liar)});
  ASSERT_TRUE(outcome.Failure);
  EXPECT_EQ(outcome.Report.Refusals().size(), 1U);

  std::vector<ZipEntry> many(1001, {"", ""});
  for (std::size_t i = 0; i < many.size(); ++i) many[i].name = std::to_string(i);
  EXPECT_EQ(OpenIntake(Zip("many.zip", many)).error().Message(),
            "many.zip: a zip of 1001 files, at most 1000 are read");
}

}  // namespace
}  // namespace kestrel
