#include <gtest/gtest.h>

#include <QDir>
#include <random>

#include "TestFolder.h"
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
      ASSERT_EQ(line->At().Latitude, record->Latitude);
      ++records;
    }
    ASSERT_EQ(quick.Next(), nullptr);
    ASSERT_FALSE(lines.Next());
  }
  EXPECT_GT(records, 10000);
}

/// Runs of lines laid out alike, each run otherwise; here and there a line of another kind among them.
QByteArray MixedOutline(unsigned seed) {
  std::mt19937 random(seed);
  const auto below = [&random](std::size_t most) { return random() % most; };
  const auto digits = [&](std::size_t count) {
    QByteArray text;
    while (count-- > 0) text += static_cast<char>('0' + below(10));
    return text;
  };
  const QByteArray others[] = {"-100 -100\n", "-100.0 -100.00\n", "45 266\n",     "1e1 2.5\n",
                               "\n",          " 45.25 266.5 x\n", "-2000.5 1.5\n"};
  QByteArray bytes;
  for (int run = 0; run < 200; ++run) {
    const QByteArray signs[] = {below(3) == 0 ? "-" : "", below(3) == 0 ? "-" : ""};
    const std::size_t wholes[] = {below(4), 1 + below(4)}, decimals[] = {1 + below(6), below(8)};
    const char* const end = below(4) == 0 ? "\r\n" : "\n";
    for (std::size_t line = below(40); line > 0; --line)
      bytes += signs[0] + digits(wholes[0]) + '.' + digits(decimals[0]) + ' ' + signs[1] + digits(wholes[1]) +
               '.' + digits(decimals[1]) + end;
    if (below(2) == 0) bytes += others[below(std::size(others))];
  }
  return bytes + "-2000.0 0.0\n1.5 2.5\n";
}

TEST(ReadingTest, OutlinesLaidOutInManyWays) {
  const TestFolder files;
  for (unsigned seed = 1; seed <= 40; ++seed) {
    const QByteArray bytes = MixedOutline(seed);
    files.Put("outline", bytes);
    const Outline quick = WholeOutline({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    const Outline straight = straight::ReadOutline(files.Path("outline").toStdString());
    ASSERT_EQ(quick.Latitude, straight.Latitude) << seed;
    ASSERT_EQ(quick.Longitude, straight.Longitude) << seed;
    ASSERT_EQ(quick.PenUpBefore, straight.PenUpBefore) << seed;
    ASSERT_GT(quick.Latitude.size(), 1000U) << seed;
  }
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
