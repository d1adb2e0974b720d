#pragma once

#include <string>

namespace kestrel {

/// A row of the FCC's AM Query list with the fields that a test cares about; the others as a plain station
/// has them.
struct AmqRow {
  std::string Call = "QAAA";
  std::string Frequency = "1230   kHz";
  std::string Service = "AM";
  std::string Hours = "Unlimited";
  std::string Status = "LIC";
  std::string City = "SPRINGFIELD";
  std::string State = "IL";
  std::string Country = "US";
  std::string FileNumber = "BL-1";
  std::string Power = "1.0    kW";
  std::string Directional = "";
  std::string Facility = "900001";
  std::string Latitude = "N |39 |46 |54.0";
  std::string Longitude = "W |89 |39 |0.4";
  bool Older = false;  ///< of 31 fields

  std::string Text() const {
    std::string text = "|" + Call + " |" + Frequency + " |" + Service + " |    |UNL |" + Hours + " |B |- |" +
                       Status + " |" + City + " |" + State + " |" + Country + " |" + FileNumber + " |" +
                       Power + " |" + Directional + " | |- |" + Facility + " |" + Latitude + " |" +
                       Longitude + " |Somebody, Inc. | 0.00 km | 0.00 mi | 0.00 deg |1403084 |";
    return text + (Older ? "\n" : "00dc |a12c |\n");
  }
};

}  // namespace kestrel
