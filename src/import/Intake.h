#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/Result.h"
#include "import/ByteStream.h"

namespace kestrel {

/// No file given to the importer is longer, and no zip unpacks to more. A list of the whole band has some 5
/// MB, the longest tables, which hold other services too, some tens of MB.
inline constexpr std::uint64_t LargestImportFile = 200ULL << 20;

/// No zip given to the importer has more entries.
inline constexpr int MostZipEntries = 1000;

/// A file as the user gave it: a plain one, or a zip with its entries, told apart by their first bytes.
/// Nothing is ever unpacked to the disk, so the names inside a zip are names in a report and no more.
class Intake {
 public:
  virtual ~Intake() = default;

  struct Part {
    std::string name;        ///< "amq.txt"; "am.zip/am_towers.dat" for an entry of a zip
    std::uint64_t size = 0;  ///< bytes, unpacked
  };
  const std::vector<Part>& Parts() const { return parts_; }

  /// The content of a part, from its front; never more than its size. The intake must outlive the stream,
  /// which has a Problem when the part turns out to be damaged or of another size. Errors: Malformed for an
  /// entry that is encrypted or cannot be unpacked; OpenIntake's for a plain file that changed meanwhile.
  virtual Result<std::unique_ptr<ByteStream>> Open(std::size_t part) = 0;

 protected:
  std::vector<Part> parts_;
};

/// Errors: NotFound, NotAFile, Refused; TooLarge for a file or the content of a zip of more than `largest`
/// bytes, before anything is unpacked; Malformed for a zip that is none.
Result<std::unique_ptr<Intake>> OpenIntake(const QString& path, std::uint64_t largest = LargestImportFile);

}  // namespace kestrel
