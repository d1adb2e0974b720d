#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <string_view>

#include "core/Result.h"
#include "core/SessionState.h"
#include "data/FileIo.h"

namespace kestrel {

/// The folder that holds the station, outline and list files and "Kestrel.CFG". It keeps a path and nothing
/// else: every call reads the disk.
class DataFolder {
 public:
  explicit DataFolder(QString path);

  const QString& Path() const { return path_; }

  /// The file's whole content, found whatever the case of its name; the exact name wins over another case.
  /// Errors as ReadFile's.
  Result<QByteArray> Read(const QString& name, qint64 largest = LargestDataFile) const;

  bool Has(const QString& name) const;

  /// Replaces the file as a whole, or leaves the old one whole. A name already there in another case is kept.
  Result<Done> Write(const QString& name, std::string_view bytes) const;

  /// The line of "Stations.txt" that says where the station data come from; empty when there is no such file.
  /// Errors as ReadFile's for one that is there.
  Result<std::string> ReadStationsLine() const;

  /// The same where a fault does not matter: empty for a file that cannot be read, too.
  std::string StationsLine() const;

 private:
  std::optional<QString> Find(const QString& name) const;

  QString path_;
};

/// The folder to work in: `wanted` when it is not empty; else the current folder when it holds "REGION2.dat";
/// else the user's data folder, filled from the data that came with the program when it holds no
/// "REGION2.dat". Errors: the wanted folder is not there, the user's folder cannot be made or filled.
Result<DataFolder> LocateDataFolder(const QString& wanted);

/// Copies the data that came with the program into `folder`, never over a file that is there.
Result<Done> FillDataFolder(const QString& folder);

/// The same from another folder; "REGION2.dat" is copied last.
Result<Done> FillDataFolder(const QString& folder, const QString& from);

/// "1230x.dat" for the channel of 1230 kHz.
QString StationFileName(float frequency);

/// Reads the city list and the call-sign index into `state`; of one that the folder lacks, that which came
/// with the program. Of too many entries the first ones are kept. Errors: of the first list that cannot be
/// read, or holds too many; the other one is read all the same.
Result<Done> LoadPlaceLists(const DataFolder& folder, SessionState& state);

/// Reads "Kestrel.CFG" into `state` as ReadSession does; a missing, unreadable or overlong
/// file is a first start.
void LoadSession(const DataFolder& folder, SessionState& state);

/// Writes "Kestrel.CFG" with today's date in the system's short form.
Result<Done> SaveSession(const DataFolder& folder, SessionState& state);

}  // namespace kestrel
