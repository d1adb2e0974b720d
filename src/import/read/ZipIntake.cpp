#include "import/read/ZipIntake.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include <zip.h>

#include "core/Text.h"

namespace kestrel {
namespace {

struct CloseArchive {
  void operator()(zip_t* archive) const { zip_discard(archive); }
};
struct CloseEntry {
  void operator()(zip_file_t* entry) const { zip_fclose(entry); }
};
using Archive = std::unique_ptr<zip_t, CloseArchive>;
using Entry = std::unique_ptr<zip_file_t, CloseEntry>;

/// An entry's name as a report may show it: no control characters, not endless.
std::string Shown(std::string_view name) {
  std::string text = IsUtf8(name) ? std::string(name) : FromLatin1(name);
  for (char& c : text)
    if (static_cast<unsigned char>(c) < ' ' || c == '\x7F') c = '?';
  return std::string(Columns(text, 1, 200));
}

class EntryStream : public ByteStream {
 public:
  EntryStream(Entry entry, std::uint64_t size) : entry_(std::move(entry)), left_(size) {}

  std::size_t Read(char* to, std::size_t most) override {
    const zip_int64_t count = problem_.empty() ? zip_fread(entry_.get(), to, most) : 0;
    if (count < 0) problem_ = std::string("is damaged: ") + zip_file_strerror(entry_.get());
    const auto got = static_cast<std::uint64_t>(std::max<zip_int64_t>(count, 0));
    if (got > left_) problem_ = "is longer than the zip says";
    if (count == 0 && left_ > 0 && problem_.empty()) problem_ = "is shorter than the zip says";
    left_ -= std::min(got, left_);
    return problem_.empty() ? got : 0;
  }

  std::string Problem() const override { return problem_; }

 private:
  Entry entry_;
  std::uint64_t left_;  // of the size that the zip's list gives
  std::string problem_;
};

class ZipIntake : public Intake {
 public:
  explicit ZipIntake(Archive archive) : archive_(std::move(archive)) {}

  Result<Done> List(const std::string& name);
  Result<std::unique_ptr<ByteStream>> Open(std::size_t part) override;

 private:
  struct Listed {
    zip_uint64_t index = 0;
    bool encrypted = false;
  };

  Error Malformed(std::size_t part, std::string text) const {
    return {Error::Kind::Malformed, parts_[part].Name, 0, std::move(text)};
  }

  Archive archive_;
  std::vector<Listed> entries_;  // by part
};

Result<Done> ZipIntake::List(const std::string& name) {
  const zip_int64_t count = zip_get_num_entries(archive_.get(), 0);
  if (count > MostZipEntries)
    return Error{Error::Kind::TooLarge, name, 0,
                 "a zip of " + std::to_string(count) + " files, at most " + std::to_string(MostZipEntries) +
                     " are read"};
  for (zip_uint64_t i = 0; i < static_cast<zip_uint64_t>(count); ++i) {
    zip_stat_t stat;
    if (zip_stat_index(archive_.get(), i, 0, &stat) != 0 || !(stat.valid & ZIP_STAT_SIZE) ||
        !(stat.valid & ZIP_STAT_NAME))
      return Error{Error::Kind::Malformed, name, 0, "a damaged zip"};
    const std::string_view entry(stat.name);
    if (entry.ends_with('/')) continue;
    const bool encrypted = (stat.valid & ZIP_STAT_ENCRYPTION_METHOD) && stat.encryption_method != ZIP_EM_NONE;
    parts_.push_back({name + '/' + Shown(entry), stat.size});
    entries_.push_back({i, encrypted});
  }
  return Done{};
}

Result<std::unique_ptr<ByteStream>> ZipIntake::Open(std::size_t part) {
  if (entries_[part].encrypted) return Malformed(part, "is encrypted; unpack it and give the file itself");
  Entry entry(zip_fopen_index(archive_.get(), entries_[part].index, 0));
  if (!entry) return Malformed(part, std::string("cannot be unpacked: ") + zip_strerror(archive_.get()));
  return std::unique_ptr<ByteStream>(std::make_unique<EntryStream>(std::move(entry), parts_[part].Size));
}

}  // namespace

Result<std::unique_ptr<Intake>> OpenZip(PlainFile file, const std::string& name) {
  int code = 0;
  Archive archive(zip_fdopen(file.Descriptor(), 0, &code));
  if (!archive) {
    zip_error_t error;
    zip_error_init_with_code(&error, code);
    const std::string problem = zip_error_strerror(&error);
    zip_error_fini(&error);
    return Error{Error::Kind::Malformed, name, 0, "a damaged zip: " + problem};
  }
  file.Release();  // the archive's
  auto intake = std::make_unique<ZipIntake>(std::move(archive));
  if (const Result<Done> listed = intake->List(name); !listed) return listed.error();
  return std::unique_ptr<Intake>(std::move(intake));
}

}  // namespace kestrel
