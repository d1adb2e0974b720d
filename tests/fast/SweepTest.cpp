#include <gtest/gtest.h>

#include <QDir>
#include <cstring>

#include "Samples.h"
#include "data/DataFolder.h"
#include "straight/Formulas.h"

namespace kestrel {
namespace {

/// Both ways from the same record and the same values of before.
void ExpectSamePattern(const StationRecord& original) {
  StationRecord fastRecord = original;
  StationRecord straightRecord = original;
  PatternValues fast;
  fast.fill(-7);
  PatternValues straight = fast;
  const bool finished = ComputePattern(fastRecord, fast);
  ASSERT_EQ(finished, straight::ComputePattern(straightRecord, straight));
  ASSERT_EQ(std::memcmp(fast.data(), straight.data(), sizeof fast), 0) << original.CallSign;
  if (!finished) return;
  ASSERT_EQ(fastRecord.Fields, straightRecord.Fields);
  ASSERT_EQ(fastRecord.Spacings, straightRecord.Spacings);
  ASSERT_EQ(fastRecord.Bearings, straightRecord.Bearings);
}

TEST(SweepTest, WholeBandGivesTheStraightFormulasSingles) {
  int records = 0;
  const DataFolder folder(KESTREL_SHARE_DIR);
  for (const QString& name : QDir(folder.Path()).entryList({"*x.dat"})) {
    const Result<QByteArray> bytes = folder.Read(name);
    ASSERT_TRUE(bytes);
    StationFileReader reader(name.toStdString(),
                             {bytes->constData(), static_cast<std::size_t>(bytes->size())});
    while (const StationRecord* record = reader.Next()) {
      ExpectSamePattern(*record);
      ++records;
    }
  }
  EXPECT_GT(records, 1000);
}

TEST(SweepTest, RandomAndRegularArraysGiveTheStraightFormulasSingles) {
  for (const StationRecord& record : SampleArrays(3000, 20260801)) ExpectSamePattern(record);
}

TEST(SweepTest, AnglesBeyondTheKernelsRangeAndOverflowsToo) {
  for (const float value : {1e6F, -3e7F, 1e20F, 3.4e38F, 1e-40F}) {
    for (StationRecord record : SampleArrays(24, 3)) {
      const auto last = static_cast<std::size_t>(record.TowerCount);
      record.Spacings[last] = value;
      ExpectSamePattern(record);
      record.Phases[last] = -value;
      ExpectSamePattern(record);
      record.Bearings[last] = value;
      record.Spacings[last] = 90;
      ExpectSamePattern(record);
      record.Fields[last] = value;
      ExpectSamePattern(record);
      record.PowerKW = value;
      ExpectSamePattern(record);
    }
  }
}

}  // namespace
}  // namespace kestrel
