#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "import/Station.h"

// Cutting the rows of the bar-delimited files and reading their fields. Unlike the leading-number rule of the
// station files a field here is a number as a whole or none, because a damaged row must not become a station.

namespace kestrel {

/// The texts between the bars, trimmed; one more than there are bars. `fields` is overwritten.
void SplitAtBars(std::string_view line, std::vector<std::string_view>& fields);

/// The columns of a table row without its end mark. Where "\|" stands for a bar inside a column, the column's
/// text is put together in `unescaped`, which must live as long as `fields`.
void SplitTableRow(std::string_view row, std::vector<std::string_view>& fields, std::string& unescaped);

/// The number that the whole of `text` is (blanks around it aside), or nothing: "12.5" and "-90.000000", but
/// not "12x", "", "inf", "0x1" or what no double holds, as "1e400". An exponent is allowed.
std::optional<double> WholeNumber(std::string_view text);

/// The number before a unit: "5.0    kW" with the unit "kW" gives 5. Nothing when either is missing.
std::optional<double> NumberWithUnit(std::string_view text, std::string_view unit);

/// Reads a facility id; 0, "-" and a blank one are none. Nothing when the text is no whole number, or one of
/// more than 4294967295.
std::optional<FacilityId> ReadFacilityId(std::string_view text);

/// A name as it should have been written: bytes of UTF-8 that were taken as Latin-1 once too often are put
/// together again ("ACUÃ\u0091A" -> "ACUÑA"), runs of blanks become one, control characters go.
std::string MendedName(std::string_view name);

}  // namespace kestrel
