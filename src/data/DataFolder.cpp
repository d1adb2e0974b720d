#include "data/DataFolder.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

#include "core/Lines.h"
#include "core/Numbers.h"
#include "core/SessionFile.h"
#include "core/Text.h"
#include "data/PlaceLists.h"

namespace kestrel {
namespace {

const QString kOutlineFile = "REGION2.dat";
const QString kSessionFile = "Kestrel.CFG";

/// Where the data that came with the program lie: beside an installed program, else in the source tree.
QString BundledData() {
  const QString installed = QDir(QCoreApplication::applicationDirPath()).filePath("../share/kestrel");
  return QDir(installed).exists() ? installed : QString(KESTREL_SHARE_DIR);
}

/// Notes of the project, not data.
bool IsData(const QString& name) {
  return !name.endsWith(".md");
}

}  // namespace

DataFolder::DataFolder(QString path) : path_(std::move(path)) {}

std::optional<QString> DataFolder::Find(const QString& name) const {
  const QDir dir(path_);
  if (QFileInfo::exists(dir.filePath(name))) return dir.filePath(name);
  const QStringList names =
      dir.entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
  for (const QString& other : names)
    if (other.compare(name, Qt::CaseInsensitive) == 0) return dir.filePath(other);
  return std::nullopt;
}

Result<QByteArray> DataFolder::Read(const QString& name, qint64 largest) const {
  // Nearly always the file has exactly this name.
  Result<QByteArray> bytes = ReadFile(QDir(path_).filePath(name), largest);
  if (bytes || bytes.error().kind != Error::Kind::NotFound) return bytes;
  const std::optional<QString> path = Find(name);
  return path ? ReadFile(*path, largest) : bytes;
}

bool DataFolder::Has(const QString& name) const {
  return Find(name).has_value();
}

Result<Done> DataFolder::Write(const QString& name, std::string_view bytes) const {
  return WriteFile(Find(name).value_or(QDir(path_).filePath(name)), bytes);
}

std::string DataFolder::StationsLine() const {
  const Result<std::string> line = ReadStationsLine();
  return line ? *line : std::string();
}

Result<std::string> DataFolder::ReadStationsLine() const {
  const Result<QByteArray> bytes = Read("Stations.txt");
  if (!bytes && bytes.error().kind == Error::Kind::NotFound) return std::string();
  if (!bytes) return bytes.error();
  LineReader lines(std::string_view(bytes->constData(), static_cast<std::size_t>(bytes->size())));
  return std::string(Trim(lines.Next().value_or("")));
}

Result<DataFolder> LocateDataFolder(const QString& wanted) {
  if (!wanted.isEmpty()) {
    if (QFileInfo(wanted).isDir()) return DataFolder(wanted);
    return Error{Error::Kind::NotFound, wanted.toStdString(), 0, "there is no such folder"};
  }
  const DataFolder current(QDir::currentPath());
  if (current.Has(kOutlineFile)) return current;
  const DataFolder users(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/kestrel");
  if (!users.Has(kOutlineFile)) {
    if (const Result<Done> filled = FillDataFolder(users.Path()); !filled) return filled.error();
  }
  return users;
}

Result<Done> FillDataFolder(const QString& folder) {
  return FillDataFolder(folder, BundledData());
}

Result<Done> FillDataFolder(const QString& folder, const QString& from) {
  if (!QDir().mkpath(folder))
    return Error{Error::Kind::Refused, folder.toStdString(), 0,
                 "the folder for the station data cannot be made"};
  const QDir source(from);
  QStringList names = source.entryList(QDir::Files, QDir::Name);
  // Its presence says that the folder is filled, so it comes last: an interrupted filling is completed at the
  // next start.
  if (names.removeOne(kOutlineFile)) names.append(kOutlineFile);
  for (const QString& name : names) {
    if (!IsData(name) || DataFolder(folder).Has(name)) continue;
    const Result<QByteArray> bytes = ReadFile(source.filePath(name));
    if (!bytes) return bytes.error();
    const Result<Done> written =
        WriteFile(QDir(folder).filePath(name), {bytes->constData(), static_cast<std::size_t>(bytes->size())});
    if (!written) return written.error();
  }
  return Done{};
}

QString StationFileName(float frequency) {
  return QString::fromStdString(NumberText(frequency)) + "x.dat";
}

Result<Done> LoadPlaceLists(const DataFolder& folder, SessionState& state) {
  const auto load = [&](const QString& name, std::size_t most,
                        std::vector<std::string>& entries) -> Result<Done> {
    entries = {};  // its memory, too, before the new one's
    const Result<QByteArray> bytes = (folder.Has(name) ? folder : DataFolder(BundledData())).Read(name);
    if (!bytes) return bytes.error();
    PlaceList list = ReadPlaceList({bytes->constData(), static_cast<std::size_t>(bytes->size())}, most);
    entries = std::move(list.Entries);
    if (list.IsWhole) return Done{};
    return Error{Error::Kind::Malformed, name.toStdString(), 0,
                 "more than " + std::to_string(most) + " entries; the first ones are taken"};
  };
  const Result<Done> cities = load("Kestrel.lst", MaxCities, state.CityList);
  const Result<Done> calls = load("StationsCall.DAT", MaxCalls, state.CallList);
  return cities ? calls : cities;
}

void LoadSession(const DataFolder& folder, SessionState& state) {
  const Result<QByteArray> bytes = folder.Read(kSessionFile, LargestSessionFile);
  if (!bytes) return ReadSession(std::nullopt, state);
  ReadSession(std::string_view(bytes->constData(), static_cast<std::size_t>(bytes->size())), state);
}

Result<Done> SaveSession(const DataFolder& folder, SessionState& state) {
  const QString date = QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat);
  state.SessionFileName = kSessionFile.toStdString();
  return folder.Write(kSessionFile, WriteSession(state, date.toStdString()));
}

}  // namespace kestrel
