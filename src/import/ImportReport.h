#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kestrel {

/// Where a row stands: an index into ImportReport::Files and a line counted from 1.
struct RowPlace {
  int File = 0;
  int Line = 0;
};

/// So many rows of each table, and of all lists together, are held at most: a hundred times as many as the
/// FCC has of AM stations.
inline constexpr std::size_t MostKeptRows = 1'000'000;

/// What the importer has to say about a row. Those up to `LastLeftOut` say why a row was left out, one for
/// each such row; the others remark on stations that were taken.
enum class Finding {
  WrongForm,     ///< too few or too many fields, no end mark, too long
  BadField,      ///< a field that is no number, out of its range or an unknown code
  OtherService,  ///< not an AM station
  NotOnAir,      ///< its status, or no call sign
  NotLicensed,   ///< a table record that is not the current, licensed one
  OtherHours,    ///< hours of operation that the station files do not know
  OtherCountry,  ///< not among the countries wanted
  OffRaster,     ///< no channel of the Americas
  OutsideAmericas,
  Superseded,   ///< another row of the same station and hours is preferred
  NoStation,    ///< a table record whose station no table describes
  NotReferred,  ///< a table row of no antenna taken, or of one whose pattern is not known
  NoField,      ///< a tower that radiates nothing
  NotUsed,      ///< augmentations: the pattern does without them
  NoRoom,       ///< more rows of a table, or of lists, than are held
  ChannelFull,  ///< a station that its station file has no room for
  LastLeftOut = ChannelFull,
  TowersUnknown,
  TooManyTowers,
  TowersPassedOver,  ///< non-directional, and the tables' array is not whole
  TowersDisagree,    ///< listed as non-directional, yet the tables hold an array
  CountryUnknown,
  NameCut,
  NameBlanked,
  NameEmpty,
  NoHome,     ///< a site where home cannot be, so not in the call-sign index
  IndexFull,  ///< a site that the call-sign index has no room for
};
inline constexpr std::size_t FindingCount = static_cast<std::size_t>(Finding::IndexFull) + 1;

/// "rows off the channel raster": how the report names a kind of finding.
std::string_view FindingTitle(Finding finding);

/// Why a row is left out.
struct Fault {
  Finding Why;
  std::string Text;
};

/// What one import read, took and left out. Every row read is either taken or left out, once.
class ImportReport {
 public:
  static constexpr std::size_t MostExamples = 5;

  struct File {
    std::string Name;     ///< "amq.txt", or "am.zip/am_towers.dat"
    std::string Content;  ///< "AM Query list", "am_towers table"
    int Rows = 0;
    int Taken = 0;
    int LeftOut = 0;
  };

  struct Refusal {
    std::string File;
    std::string Reason;
  };

  struct Count {
    int Rows = 0;
    std::vector<std::string> Examples;  ///< the first ones: "amq.txt:17: 567 kHz is not a channel of ..."
  };

  /// Returns the index for RowPlace.
  int AddFile(std::string name, std::string content);

  /// A file that is none of those the importer knows, or could not be read.
  void Refuse(std::string file, std::string reason) {
    refusals_.push_back({std::move(file), std::move(reason)});
  }

  void Read(RowPlace row) { ++FileOf(row).Rows; }
  void Take(RowPlace row) { ++FileOf(row).Taken; }
  void LeaveOut(RowPlace row, Finding why, std::string_view text);
  void Remark(RowPlace row, Finding what, std::string_view text) { Add(row, what, text); }

  const std::vector<File>& Files() const { return files_; }
  const std::vector<Refusal>& Refusals() const { return refusals_; }
  const Count& Of(Finding finding) const { return counts_[static_cast<std::size_t>(finding)]; }
  /// The sums over all files.
  File Total() const;

  int Stations = 0;  ///< sites of a call sign on a channel, as in the call-sign index
  int Records = 0;   ///< antennas by hours written to the station files

 private:
  File& FileOf(RowPlace row) { return files_[static_cast<std::size_t>(row.File)]; }
  void Add(RowPlace row, Finding finding, std::string_view text);

  std::vector<File> files_;
  std::vector<Refusal> refusals_;
  std::array<Count, FindingCount> counts_;
};

/// The report for people: files, sums, findings with their examples.
std::string ReportText(const ImportReport& report);

}  // namespace kestrel
