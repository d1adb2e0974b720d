#pragma once

#include <string>

#include "AmqRow.h"
#include "TestFolder.h"

namespace kestrel {

/// A test's data folder that holds a little of everything: a coast, a state border, three channels, two short
/// lists. Home is where a first start has it.
class SampleFolder : public TestFolder {
 public:
  SampleFolder() {
    Put("REGION2.dat", "-100 -100\n33.0 263.0\n33.5 263.5\n34.0 263.2\n-2000\n");
    Put("STATES.dat", "-100 -100\n32.0 263.0\n32.5 263.5\n-2000\n");
    Put("Kestrel.lst", "           Plano  TX                  33.0198   96.6989\r\n");
    Put("StationsCall.DAT", "QAAA          Dallas  TX                              32.7831   96.8067\r\n");
    Put("Stations.txt", "Stations of a test\n");
    for (const char* channel : {"620", "630", "1230"}) Put(QString(channel) + "x.dat", Channel(channel));
  }

  /// A station of day and night and one of unlimited hours.
  static std::string Channel(const std::string& channel) {
    const std::string tower = "0,1,90,0,0,0\r\n";
    return channel + ", QDN" + channel + ", TOWN, TX, United States, D, 33.5, 97, 1,-,-, 1\r\n" + tower +
           channel + ", QDN" + channel + ", TOWN, TX, United States, N, 33.5, 97, .5,-,-, 1\r\n" + tower +
           channel + ", QU" + channel + ", CITY, OK, United States, U, 35, 98, 1,-,-, 1\r\n" + tower;
  }
};

/// The row of a station in Texas, licensed, by day and night.
inline std::string FccRow(const std::string& call, const std::string& channel, const std::string& power,
                          const std::string& facility) {
  return AmqRow{.Call = call,
                .Frequency = channel + " kHz",
                .City = "PLANO",
                .State = "TX",
                .Power = power + " kW",
                .Facility = facility,
                .Latitude = "N|33|1|11.28",
                .Longitude = "W|96|41|56.04"}
      .Text();
}

}  // namespace kestrel
