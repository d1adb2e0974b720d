#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QStringDecoder>
#include <algorithm>
#include <random>

#include "cli/Companion.h"

// Data folders of random damage, every command run over each. KESTREL_DAMAGED_FOLDERS says how many (3),
// KESTREL_DAMAGE_SEED the number of the first (1); a failure names its folder's number.

namespace kestrel::cli {
namespace {

int Given(const char* variable, int otherwise) {
  const int value = qEnvironmentVariableIntValue(variable);
  return value > 0 ? value : otherwise;
}

/// Damages bytes and files, the same way for the same number.
class Damage {
 public:
  explicit Damage(unsigned number) : random_(number) {}

  std::size_t Below(std::size_t bound) { return random_() % bound; }

  /// Some of the pieces of which readers make decisions, put over or into the bytes, and bytes lost.
  std::string Damaged(std::string bytes) {
    // clang-format off
    static const std::string kPieces[] = {
        "\n", "\r", ",", ",,,,", " ", "-", "-0", "1", "9", "inf", "nan", "1e9", ".", "-2000", "1e400", "1e-400",
        "12", "13", "-100 -100\n", "|", "\xFF", "\xE1", "\xF0\x9F", "*", ":", "end\n", "../", "PK\x01\x02",
        std::string(1, '\0'), std::string(400, '9'), std::string(70'000, 'x'), std::string(5'000, ','),
        std::string(3'000, '\n')
    };
    // clang-format on
    for (std::size_t blows = Below(12); blows > 0; --blows) {
      const std::size_t at = Below(bytes.size() + 1);
      const std::string& piece = kPieces[Below(std::size(kPieces))];
      switch (Below(4)) {
        case 0:
          bytes.insert(at, piece);
          break;
        case 1:
          bytes.replace(at, piece.size(), piece);
          break;
        case 2:
          bytes.erase(at, Below(40));
          break;
        default:
          if (at < bytes.size()) bytes[at] = static_cast<char>(Below(256));
      }
    }
    if (Below(8) == 0) bytes.resize(Below(bytes.size() + 1));
    return bytes;
  }

  /// Puts damaged bytes into the file's place, or now and then something that is no file or is not there.
  void Put(const Folder& folder, const QString& name, const std::string& good) {
    const QByteArray path = QFile::encodeName(folder.Path(name));
    switch (Below(24)) {
      case 0:
        return;
      case 1:
        ASSERT_TRUE(QDir().mkpath(folder.Path(name)));
        return;
      case 2:
        ASSERT_EQ(mkfifo(path.constData(), 0600), 0);
        return;
      case 3:
        ASSERT_TRUE(QFile::link("/dev/zero", folder.Path(name)));
        return;
      case 4:
        folder.Put(name, "");
        ASSERT_TRUE(QFile::resize(folder.Path(name), 2LL << 30));
        return;
      default:
        folder.Put(name, Damaged(good));
    }
  }

 private:
  std::mt19937 random_;
};

/// One of the sound and unsound inputs that are kept for the reader.
std::string Kept(const QString& reader, Damage& damage) {
  const QDir inputs(QStringLiteral(KESTREL_CORPUS) + '/' + reader);
  const QStringList names = inputs.entryList(QDir::Files, QDir::Name);
  EXPECT_FALSE(names.isEmpty()) << reader.toStdString();
  QFile file(inputs.filePath(names[static_cast<qsizetype>(damage.Below(names.size()))]));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll().toStdString();
}

void Fill(const Folder& folder, Damage& damage) {
  for (const int channel : {530, 610, 620, 630, 1230, 1700}) {
    std::string records;
    for (int i = 0; i < 5; ++i) records += Kept("station-file", damage);
    damage.Put(folder, QString::number(channel) + "x.dat", records);
  }
  for (const char* name : {"REGION2.dat", "STATES.dat"})
    damage.Put(folder, name, Kept("outline-file", damage) + Kept("outline-file", damage));
  for (const char* name : {"Kestrel.lst", "StationsCall.DAT", "Stations.txt"})
    damage.Put(folder, name, Kept("place-lists", damage));
  damage.Put(folder, "Kestrel.CFG", Kept("session-file", damage));
  damage.Put(folder, "amq.txt", Kept("amq-list", damage).substr(1));
  damage.Put(folder, "tables.zip", Kept("zip-intake", damage));
  damage.Put(folder, "am_towers.dat", Kept("antenna-tables", damage).substr(1));
  if (damage.Below(3) == 0) damage.Put(folder, ".import-journal", Kept("import-journal", damage));
  if (damage.Below(3) == 0) damage.Put(folder, ".import-lock", "1\nkestrel\nelsewhere\n");
  for (const char* kept : {".import-new", ".import-old", ".import-undo"}) {
    if (damage.Below(3) != 0) continue;
    if (damage.Below(2) == 0) {
      damage.Put(folder, kept, "no folder");
      continue;
    }
    ASSERT_TRUE(QDir().mkpath(folder.Path(kept)));
    damage.Put(folder, QString(kept) + "/620x.dat", Kept("station-file", damage));
  }
}

/// Each line a message of the companion, all of it text.
void ExpectWords(const std::string& errors) {
  EXPECT_TRUE(errors.empty() || errors.ends_with('\n')) << errors;
  for (std::size_t at = 0; at < errors.size(); at = errors.find('\n', at) + 1)
    EXPECT_EQ(errors.compare(at, 13, "kestrel-cli: "), 0) << errors.substr(at, 2000);
  EXPECT_TRUE(std::all_of(errors.begin(), errors.end(), [](char c) { return c == '\n' || (c & 0xE0) != 0; }))
      << errors;
  QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString text = utf8(QByteArrayView(errors));
  EXPECT_FALSE(text.isNull() || utf8.hasError()) << errors;
}

void ExpectPicture(const Folder& folder, const QString& name) {
  const std::string bytes = folder.Text(name);
  EXPECT_TRUE(bytes.starts_with("\x89PNG") || bytes.starts_with("<?xml") || bytes.starts_with("%PDF"))
      << name.toStdString();
}

TEST(DamagedFolderTest, EveryCommandAnswersOrSaysWhyNot) {
  const QStringList view = {"--session", "Kestrel.CFG", "--frequency", "620"};
  const QStringList size = {"--size", "300x200"};
  const QStringList commands[] = {
      {"stations", "--frequency", "1230", "--json"},
      QStringList{"stations"} + view,
      {"pattern", "--frequency", "620", "--call", "QZYK", "--json"},
      {"hets", "--session", "Kestrel.CFG", "--json"},
      {"distance", "--session", "Kestrel.CFG", "--to", "10,60", "--json"},
      QStringList{"map", "--adjacents", "--compass", "-o", "map.png"} + view + size,
      QStringList{"map", "-o", "map.svg", "--frequency", "1230", "--scale", "10000"} + size,
      QStringList{"scan", "-o", "scan.pdf"} + size,
      {"session", "Kestrel.CFG", "--write", "Kestrel.CFG", "--json"},
      {"import", "--dry-run", "--json", "amq.txt", "tables.zip", "am_towers.dat"},
      {"import", "am_towers.dat", "amq.txt", "--report", "report.txt"},
      {"import", "--undo"},
      {"session", "--json"},
  };
  const int first = Given("KESTREL_DAMAGE_SEED", 1);
  const int count = Given("KESTREL_DAMAGED_FOLDERS", 3);
  int answers = 0;
  for (int number = first; number < first + count; ++number) {
    const Folder folder;
    Damage damage(static_cast<unsigned>(number));
    Fill(folder, damage);
    for (const QStringList& command : commands) {
      SCOPED_TRACE("folder " + std::to_string(number) + ": " + command.join(' ').toStdString());
      const Answer answer = folder.Run(command);
      EXPECT_TRUE(answer.Status == 0 || (answer.Status == 1 && !answer.Err.empty()))
          << answer.Status << answer.Err;
      ExpectWords(answer.Err);
      if (answer.Status != 0) continue;
      ++answers;
      if (command.contains("--json")) {
        EXPECT_FALSE(QJsonDocument::fromJson(QByteArray::fromStdString(answer.Out)).isNull()) << answer.Out;
      }
      if (const qsizetype at = command.indexOf("-o"); at >= 0) ExpectPicture(folder, command[at + 1]);
    }
  }
  EXPECT_GT(answers, count) << "damage so heavy that little is read";
}

}  // namespace
}  // namespace kestrel::cli
