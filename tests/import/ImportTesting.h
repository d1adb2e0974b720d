#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "AmqRow.h"
#include "import/ImportOptions.h"
#include "import/ImportReport.h"
#include "import/Station.h"
#include "import/read/ReadFiles.h"

namespace kestrel {

/// Files by their names.
using NamedTexts = std::vector<std::pair<std::string, std::string>>;

/// Rows of the antenna tables in either order, written from the same values: "column=value column=value ...".
enum class Order { A, B };
struct TableText {
  std::string name;  ///< "am_towers"
  Order order = Order::A;
  bool header = false;
  std::vector<std::string> rows;

  std::string Text() const;
};

/// The tables of two made-up stations: WQAA, 550 kHz, an array of 3 towers by day, the last one placed from
/// the second, and one tower by night; XQBB in Mexico, 800 kHz, a lone tower. `order` and `header` hold for
/// all of them.
NamedTexts SampleTables(Order order, bool header);

/// `text` with `to` in place of the first `from` behind the first `behind`, which must be there.
std::string Replaced(std::string text, std::string_view from, std::string_view to,
                     std::string_view behind = {});

/// As files to read. What is opened lives as long as they do.
std::vector<SourceFile> SourceFiles(const NamedTexts& texts);

/// The files that an import replaces, by name.
using StationSet = std::map<std::string, std::string>;

/// What an import makes of named texts, without a disk.
struct TextImport {
  ImportReport report;
  Stations stations;
  StationSet files;

  /// The examples of a finding, all of them in one text, a line each.
  std::string Examples(Finding finding) const;
  /// "D3N1": the hours and tower counts of the stations, in order; with a call sign, of those that have it.
  std::string Hours(std::string_view call = {}) const;
};

/// Fails the running test unless the import's counts add up.
TextImport ImportTexts(const NamedTexts& texts, const ImportOptions& options = {});

/// The import of the sample tables with one row of one of them changed: the first `from` becomes `to`.
TextImport ImportChanged(const std::string& table, std::string_view from, std::string_view to,
                         const ImportOptions& options = {});

/// Fails the running test unless the rows taken and left out add up to those read, in each file and by
/// reasons.
void ExpectCountsAddUp(const ImportReport& report);

}  // namespace kestrel
