#pragma once

#include <string>
#include <utility>
#include <vector>

#include "import/ImportOptions.h"
#include "import/ImportReport.h"
#include "import/Station.h"
#include "import/StationSet.h"

namespace kestrel {

/// A row of an AM Query list with the fields that a test cares about; the others as a plain station has them.
struct ListRow {
  std::string call = "QAAA";
  std::string frequency = "1230   kHz";
  std::string service = "AM";
  std::string hours = "Unlimited";
  std::string status = "LIC";
  std::string city = "SPRINGFIELD";
  std::string state = "IL";
  std::string country = "US";
  std::string power = "1.0    kW";
  std::string directional = "";
  std::string facility = "900001";
  std::string latitude = "N |39 |46 |54.0";
  std::string longitude = "W |89 |39 |0.4";
  bool older = false;  ///< of 31 fields

  std::string Text() const;
};

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
std::vector<std::pair<std::string, std::string>> SampleTables(Order order, bool header);

/// What an import makes of named texts, without a disk.
struct TextImport {
  ImportReport report;
  Stations stations;
  StationSet files;

  /// The examples of a finding, all of them in one text, a line each.
  std::string Examples(Finding finding) const;
};
TextImport ImportTexts(const std::vector<std::pair<std::string, std::string>>& texts,
                       const ImportOptions& options = {});

/// Fails the running test unless the rows taken and left out add up to those read, in each file and by
/// reasons.
void ExpectCountsAddUp(const ImportReport& report);

}  // namespace kestrel
