#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "import/ImportReport.h"
#include "import/SitePosition.h"
#include "import/Station.h"
#include "import/read/LineStream.h"
#include "import/read/TableLayout.h"

namespace kestrel {

/// The rows of one table, one after the other, with their columns found by name.
///
/// A reader of rows asks for columns as it needs them. The first one that cannot be read is remembered, later
/// ones give defaults, and the reader asks Faulty() once at the end.
class TableRow {
 public:
  TableRow(LineStream& lines, int file, const TableLayout& layout, ImportReport& report);

  /// The next row with the right number of columns; rows without it are left out. False at the end.
  bool Next();

  RowPlace Place() const { return {file_, lines_.LineNumber()}; }

  /// The column's text; empty when the table has no such column.
  std::string_view Text(std::string_view column) const;
  bool HasColumn(std::string_view column) const { return columns_.contains(column); }

  /// The key in the column, of at most 200 bytes, which must not be empty.
  std::string Key(std::string_view column);
  /// The same where there may be none.
  std::string OptionalKey(std::string_view column);
  /// The number in the column; nothing when it is empty.
  std::optional<double> Number(std::string_view column, double least, double most);
  /// The first letter of the column, 0 when it is empty.
  char Letter(std::string_view column) const;
  /// The text of the column that tells when the row was changed; empty when the table has none.
  std::string_view LastChange() const { return lastChange_ ? fields_[*lastChange_] : std::string_view{}; }
  /// The number in facility_id; 0 when it is empty.
  FacilityId Facility();
  SitePosition Position();

  /// Notes that the column cannot be read, unless another one was noted before.
  void Fail(std::string_view column);

  /// Whether a column could not be read; then the row has been left out.
  bool Faulty();

  void LeaveOut(Finding why, std::string_view text) { report_.LeaveOut(Place(), why, text); }

 private:
  LineStream& lines_;
  int file_;
  const TableLayout& layout_;
  ImportReport& report_;
  std::unordered_map<std::string_view, std::size_t> columns_;  // of the layout, by name
  std::vector<std::string_view> fields_;
  std::string unescaped_;
  std::string fault_;
  std::optional<std::size_t> lastChange_;  // its column
};

}  // namespace kestrel
