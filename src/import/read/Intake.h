#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/Result.h"
#include "import/read/ByteStream.h"

namespace kestrel {

/// A file as the user gave it: a plain one, or a zip with its entries, told apart by their first bytes.
/// Nothing is ever unpacked to the disk, so the names inside a zip are names in a report and no more.
class Intake {
 public:
  virtual ~Intake() = default;

  struct Part {
    std::string Name;        ///< "amq.txt"; "am.zip/am_towers.dat" for an entry of a zip
    std::uint64_t Size = 0;  ///< bytes, unpacked
  };
  const std::vector<Part>& Parts() const { return parts_; }

  /// The content of a part, from its front; never more than its size. The intake must outlive the stream,
  /// which has a Problem when the part turns out to be damaged or of another size. Errors: Malformed for an
  /// entry that is encrypted or cannot be unpacked; OpenIntake's for a plain file that changed meanwhile.
  virtual Result<std::unique_ptr<ByteStream>> Open(std::size_t part) = 0;

 protected:
  std::vector<Part> parts_;
};

}  // namespace kestrel
