#pragma once

#include <string>

#include "data/StationFile.h"

// Writing the lines of the station files. docs/formats/station-files.md describes them.

namespace kestrel {

/// What the text fields of a record lost on their way into the file.
struct FieldChanges {
  int cut = 0;      ///< fields longer than their column
  int blanked = 0;  ///< fields with a comma or a control character, which became a blank
  int empty = 0;    ///< empty fields, written as "-"
};

/// The record as the station file holds it: its station line and TowerCount tower lines, each with its CR LF.
///
/// Field contents have fixed widths, a leading blank included, so that the columns of the station lookup line
/// up: city 25, state 5, country 14 (padded with blanks, cut when longer); call sign at most 8, latitude and
/// longitude at most 9 with 4 decimals or as many as fit, power at most 7. A latitude or longitude of 0 is
/// written as 0.0001 and a power or field ratio never as 0, because readers pass such records over. `changes`
/// is added to.
/// REQUIRES: TowerCount 0 to MaxTowers.
std::string StationRecordText(int channel, const StationRecord& record, FieldChanges& changes);

/// A latitude or longitude as the station files have it, in decimal degrees: at most 4 decimals, as many as
/// fit into 8 characters; never 0, but 0.0001 or -0.0001.
std::string DegreesText(float degrees);

/// `value` in ordinary digits with at most `decimals` of them after the point, fewer when the text would be
/// longer than `width`; without trailing zeros, with a zero before the point: "0.25", "-33.4", "5", never
/// "-0".
std::string DecimalText(double value, int decimals, std::size_t width = 32);

}  // namespace kestrel
