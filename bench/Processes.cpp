#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

#include "Rows.h"
#include "Table.h"

// Whole programs, from their start on, by the clock on the wall: to be read on a machine that does nothing
// else.

namespace kestrel::bench {
namespace {

constexpr int kRounds = 15;

double Median(std::vector<double> values) {
  if (values.empty()) return 0;
  std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
  return values[values.size() / 2];
}

void PrintRow(const char* work, const std::vector<double>& values, const char* unit, double most) {
  const double median = Median(values);
  std::printf("| %s | %.4g %s |  |  |  | %g %s: %s |\n", work, median, unit, most, unit,
              median > 0 && median <= most ? "reached" : "NOT reached");
}

void MeasureMapCommand() {
  const QTemporaryDir folder;
  std::vector<double> times;
  for (int round = 0; round < kRounds; ++round) {
    QElapsedTimer clock;
    clock.start();
    const int code = QProcess::execute("bin/kestrel-cli", {"--data", KESTREL_SHARE_DIR, "map", "--frequency",
                                                           "1230", "-o", folder.filePath("map.png")});
    if (code == 0) times.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
  }
  PrintRow("kestrel-cli map to PNG, start to file", times, "ms", 100);
}

void MeasureStartUp() {
  std::vector<double> opening, map, memory;
  for (int round = 0; round < kRounds; ++round) {
    QProcess program;
    QElapsedTimer clock;
    clock.start();
    program.start("bin/kestrel-start-up", {KESTREL_SHARE_DIR});
    double started = 0;
    while (program.waitForReadyRead(20000)) {
      const double now = static_cast<double>(clock.nsecsElapsed()) / 1e6;
      while (program.canReadLine()) {
        const QByteArray line = program.readLine().trimmed();
        if (line == "opening") opening.push_back(started = now);
        if (line == "map") map.push_back(now - started);
        if (line.startsWith("memory ")) memory.push_back(line.mid(7).toDouble());
      }
    }
    program.waitForFinished();
  }
  PrintRow("program start to opening screen painted", opening, "ms", 300);
  PrintRow("Start to map painted, 1600x1200", map, "ms", 300);
  PrintRow("memory with the map at 1600x1200", memory, "MB", 120);
}

}  // namespace

void PrintProcessRows() {
  std::printf("\n| whole program | median |  |  |  | asked |\n|---|---|---|---|---|---|\n");
  MeasureMapCommand();
  MeasureStartUp();
}

}  // namespace kestrel::bench
