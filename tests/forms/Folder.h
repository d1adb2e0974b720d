#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <string>

#include "data/DataFolder.h"

namespace kestrel {

/// A data folder of a test's own, with a blank in its path: a coast, a state border, three channels, two
/// short lists. Home is where a first start has it.
class Folder {
 public:
  Folder() {
    QDir(dir_.path()).mkdir("data folder");
    Write("REGION2.dat", "-100 -100\n33.0 263.0\n33.5 263.5\n34.0 263.2\n-2000\n");
    Write("STATES.dat", "-100 -100\n32.0 263.0\n32.5 263.5\n-2000\n");
    Write("Kestrel.lst", "           Plano  TX                  33.0198   96.6989\r\n");
    Write("StationsCall.DAT", "QAAA          Dallas  TX                              32.7831   96.8067\r\n");
    Write("Stations.txt", "Stations of a test\n");
    for (const char* channel : {"620", "630", "1230"})
      Write(std::string(channel) + "x.dat", Channel(channel));
  }

  /// A station of day and night and one of unlimited hours.
  static std::string Channel(const std::string& channel) {
    const std::string tower = "0,1,90,0,0,0\r\n";
    return channel + ", QDN" + channel + ", TOWN, TX, United States, D, 33.5, 97, 1,-,-, 1\r\n" + tower +
           channel + ", QDN" + channel + ", TOWN, TX, United States, N, 33.5, 97, .5,-,-, 1\r\n" + tower +
           channel + ", QU" + channel + ", CITY, OK, United States, U, 35, 98, 1,-,-, 1\r\n" + tower;
  }

  void Write(const std::string& name, const std::string& text) const {
    QFile file(Path(name));
    if (file.open(QIODevice::WriteOnly)) file.write(text.c_str());
  }

  std::string Text(const std::string& name) const {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
  }

  void Remove(const std::string& name) const { QFile::remove(Path(name)); }
  QString Path(const std::string& name) const {
    return dir_.filePath("data folder/" + QString::fromStdString(name));
  }
  DataFolder Data() const { return DataFolder(dir_.filePath("data folder")); }

 private:
  QTemporaryDir dir_;
};

}  // namespace kestrel
