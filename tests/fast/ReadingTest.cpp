#include <gtest/gtest.h>

#include <QDir>

#include "WholeOutline.h"
#include "data/DataFolder.h"
#include "straight/Reading.h"

// The quick readers read from every file of the demonstration band what getline and strtod read.

namespace kestrel {
namespace {

void ExpectSameRecord(const StationRecord& quick, const StationRecord& straight) {
  ASSERT_EQ(quick.CallSign, straight.CallSign);
  ASSERT_EQ(quick.City, straight.City);
  ASSERT_EQ(quick.State, straight.State);
  ASSERT_EQ(quick.Country, straight.Country);
  ASSERT_EQ(quick.HoursCode, straight.HoursCode);
  ASSERT_EQ(quick.Latitude, straight.Latitude);
  ASSERT_EQ(quick.Longitude, straight.Longitude);
  ASSERT_EQ(quick.PowerKW, straight.PowerKW);
  ASSERT_EQ(quick.TowerCount, straight.TowerCount);
  for (std::size_t i = 1; i <= static_cast<std::size_t>(quick.TowerCount); ++i) {
    ASSERT_EQ(quick.Switch[i], straight.Switch[i]);
    ASSERT_EQ(quick.Fields[i], straight.Fields[i]);
    ASSERT_EQ(quick.Heights[i], straight.Heights[i]);
    ASSERT_EQ(quick.Phases[i], straight.Phases[i]);
    ASSERT_EQ(quick.Spacings[i], straight.Spacings[i]);
    ASSERT_EQ(quick.Bearings[i], straight.Bearings[i]);
  }
}

TEST(ReadingTest, StationFilesOfTheWholeBand) {
  int records = 0;
  const DataFolder folder(KESTREL_SHARE_DIR);
  for (const QString& name : QDir(folder.Path()).entryList({"*x.dat"})) {
    const Result<QByteArray> bytes = folder.Read(name);
    ASSERT_TRUE(bytes);
    const std::string_view view(bytes->constData(), static_cast<std::size_t>(bytes->size()));
    StationFileReader quick(name.toStdString(), view);
    StationLineReader lines(view);
    straight::StationReader straight(QDir(folder.Path()).filePath(name).toStdString());
    while (const StationRecord* record = straight.Next()) {
      const StationRecord* same = quick.Next();
      ASSERT_NE(same, nullptr) << name.toStdString();
      ASSERT_NO_FATAL_FAILURE(ExpectSameRecord(*same, *record)) << name.toStdString();
      const auto line = lines.Next();
      ASSERT_TRUE(line);
      ASSERT_EQ(static_cast<float>(line->Number(line->Latitude)), record->Latitude);
      ++records;
    }
    ASSERT_EQ(quick.Next(), nullptr);
    ASSERT_FALSE(lines.Next());
  }
  EXPECT_GT(records, 10000);
}

TEST(ReadingTest, OutlineFiles) {
  const DataFolder folder(KESTREL_SHARE_DIR);
  for (const char* name : {"REGION2.dat", "STATES.dat"}) {
    const Result<QByteArray> bytes = folder.Read(name);
    ASSERT_TRUE(bytes);
    const Outline quick = WholeOutline({bytes->constData(), static_cast<std::size_t>(bytes->size())});
    const Outline straight = straight::ReadOutline(QDir(folder.Path()).filePath(name).toStdString());
    EXPECT_EQ(quick.Latitude, straight.Latitude) << name;
    EXPECT_EQ(quick.Longitude, straight.Longitude) << name;
    EXPECT_EQ(quick.PenUpBefore, straight.PenUpBefore) << name;
    EXPECT_GT(quick.Latitude.size(), 1000U) << name;
  }
}

}  // namespace
}  // namespace kestrel
