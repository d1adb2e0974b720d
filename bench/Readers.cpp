#include <QString>

#include "Rows.h"
#include "Table.h"
#include "core/Numbers.h"
#include "data/DataFolder.h"
#include "data/StationLookup.h"
#include "straight/Reading.h"

namespace kestrel::bench {
namespace {

std::string_view View(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

void ReadBand(const Band& band) {
  const DataFolder folder(QString::fromStdString(band.Folder));
  for (const float channel : Channels()) {
    const QString name = StationFileName(channel);
    const Result<QByteArray> bytes = folder.Read(name);
    if (!bytes) continue;
    StationFileReader reader(name.toStdString(), View(*bytes));
    while (const StationRecord* record = reader.Next()) Keep(record);
  }
}

void ReadBandStraight(const Band& band) {
  for (const float channel : Channels()) {
    straight::StationReader reader(StationPath(band, channel));
    while (const StationRecord* record = reader.Next()) Keep(record);
  }
}

}  // namespace

void AddOutlineReaderRow() {
  const std::string folder = KESTREL_SHARE_DIR;
  AddRow(
      "reading REGION2.dat", "getline and strtod", {7, 0},
      [folder] {
        const auto bytes = DataFolder(QString::fromStdString(folder)).Read("REGION2.dat");
        OutlineReader reader(View(*bytes));
        while (const Outline* const piece = reader.Next()) Keep(piece);
      },
      [folder] {
        const Outline outline = straight::ReadOutline(folder + "/REGION2.dat");
        Keep(&outline);
      });
}

void AddSearchRow(const Band& band) {
  const float channel = ChannelOf(band, 1000, false);
  const std::string callSign = ReadChannel(band, channel).back().CallSign;
  AddRow("a station found by call sign, " + NumberText(channel) + " kHz, " + band.Name, {0, 2}, [=] {
    const DataFolder folder(QString::fromStdString(band.Folder));
    const SearchResult found = SearchStations(folder, channel, callSign);
    Keep(found.Rows.data());
  });
}

void AddStationReaderRow(const Band& band) {
  AddRow(
      "reading all 118 station files, " + band.Name, "getline and strtod", {4, 0}, [band] { ReadBand(band); },
      [band] { ReadBandStraight(band); });
}

}  // namespace kestrel::bench
