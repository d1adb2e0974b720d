#include <gtest/gtest.h>

#include <QDir>
#include <cmath>
#include <map>
#include <tuple>

#include "ImportTesting.h"
#include "data/FileIo.h"
#include "data/StationFile.h"

// Real lists, where this machine has them.

namespace kestrel {
namespace {

class SampleData : public testing::Test {
 protected:
  void SetUp() override {
    if (folder_.isEmpty() || !QDir(folder_).exists())
      GTEST_SKIP() << "no real lists here; name their folder with -DKESTREL_SAMPLE_DATA=...";
  }

  std::string Read(const std::string& name) const {
    const Result<QByteArray> bytes = ReadFile(folder_ + QString::fromStdString('/' + name));
    EXPECT_TRUE(bytes) << name;
    return bytes ? bytes->toStdString() : std::string();
  }

  const QString folder_ = KESTREL_SAMPLE_DATA;
};

TEST_F(SampleData, EveryRowOfTheRealListsIsAccountedFor) {
  for (const auto& [name, rows] :
       {std::pair{"amq-rows-ne-sd-ks.txt", 272}, std::pair{"amq-band-2026-08.txt", 20785}}) {
    const TextImport import = ImportTexts({{name, Read(name)}});
    EXPECT_EQ(import.report.Total().Rows, rows);
    EXPECT_EQ(import.report.Total().Taken, static_cast<int>(import.stations.size()));
    EXPECT_EQ(import.report.Of(Finding::WrongForm).Rows + import.report.Of(Finding::BadField).Rows, 0);
  }
}

TEST_F(SampleData, PositionsAgreeWithTheReadyBand) {
  const TextImport import = ImportTexts({{"amq", Read("amq-band-2026-08.txt")}});
  int compared = 0;
  for (const auto& [name, text] : import.files) {
    if (!name.ends_with("x.dat")) continue;
    using Key = std::tuple<std::string, std::string, std::string>;
    std::multimap<Key, StationRecord> ready;
    const std::string readyText = Read("real-band/" + name);
    StationFileReader readyReader(name, readyText);
    while (const StationRecord* r = readyReader.Next())
      ready.emplace(Key{r->CallSign, r->City, r->HoursCode}, *r);
    StationFileReader reader(name, text);
    while (const StationRecord* r = reader.Next()) {
      const auto [first, last] = ready.equal_range({r->CallSign, r->City, r->HoursCode});
      bool found = first == last;  // a name that one of the two has mended
      for (auto at = first; at != last && !found; ++at)
        found = std::abs(at->second.Latitude - r->Latitude) <= 1.1e-4F &&
                std::abs(at->second.Longitude - r->Longitude) <= 1.1e-4F;
      EXPECT_TRUE(found) << name << ' ' << r->CallSign << ' ' << r->City << ' ' << r->Latitude << ' '
                         << r->Longitude;
      compared += first != last;
    }
    EXPECT_TRUE(reader.Notes().empty());
  }
  EXPECT_GT(compared, 20600);
}

TEST_F(SampleData, BothOrdersOfTheTablesMakeTheSameFiles) {
  NamedTexts a;
  NamedTexts b;
  for (const char* table : {"am_ant_sys", "am_towers", "am_augs", "am_eng_data", "application", "facility"}) {
    a.emplace_back(table, Read("tables-a/" + std::string(table) + ".dat"));
    b.emplace_back(table, Read("tables-b/gis_" + std::string(table) + ".dat"));
  }
  const TextImport import = ImportTexts(a);
  EXPECT_EQ(import.files, ImportTexts(b).files);
  EXPECT_EQ(import.stations.size(), 6U);
}

}  // namespace
}  // namespace kestrel
