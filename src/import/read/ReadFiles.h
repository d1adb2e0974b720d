#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Result.h"
#include "import/ImportOptions.h"
#include "import/ImportReport.h"
#include "import/read/AmqList.h"
#include "import/read/AntennaTables.h"
#include "import/read/ByteStream.h"
#include "import/read/RowDates.h"

namespace kestrel {

/// No list or table given to the importer is longer. The longest tables of the FCC's dump, which hold other
/// services too, have some 250 MB.
inline constexpr std::uint64_t LargestSourceFile = 2ULL << 30;

/// A file to read, plain or of a zip.
struct SourceFile {
  std::string Name;        ///< "amq.txt"; "am.zip/am_towers.dat" for an entry of a zip
  std::uint64_t Size = 0;  ///< bytes, unpacked
  std::function<Result<std::unique_ptr<ByteStream>>()> Open;  ///< from its front, each time
};

/// Everything that the files said, before it is put together.
struct Readings {
  explicit Readings(Date today) : Dates(today) {}

  AmqStations Amq;
  AntennaTables Tables;
  bool HasAmq = false;
  bool HasTables = false;
  NewestDate Dates;  ///< of the rows
};

/// Called now and then with the share read, 0 to 1, and the file at hand; false ends the reading.
using ReadingProgress = std::function<bool(double share, std::string_view name)>;

/// Reads the files of any kind. Each is recognised by its first 64 KB; one that is none of those the importer
/// knows is named in `report` with the reason and read no further. The antennas are read before the tables
/// that belong to them, of which the rows that belong to no antenna are left out at once; what is held is
/// held of rows, at most MostKeptRows of a table. Returns the first failure, while the other files are read
/// all the same and all failures are named in `report`: a file that cannot be opened or read to its end, or
/// one of the importer's of more than LargestSourceFile bytes.
std::optional<Error> ReadSourceFiles(const std::vector<SourceFile>& files, const ImportOptions& options,
                                     Readings& readings, ImportReport& report,
                                     const ReadingProgress& progress = {});

}  // namespace kestrel
