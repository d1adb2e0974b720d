#include "import/ImportReport.h"

#include <gtest/gtest.h>

namespace kestrel {
namespace {

TEST(ImportReport, TellsFilesFindingsAndSums) {
  ImportReport report;
  const int list = report.AddFile("amq.txt", "AM Query list");
  const int towers = report.AddFile("am.zip/am_towers.dat", "am_towers table");
  for (int line = 1; line <= 6; ++line) {
    report.Read({list, line});
    report.LeaveOut({list, line}, Finding::OffRaster, "567 kHz");
  }
  report.Read({towers, 1});
  report.Take({towers, 1});
  report.LeaveOut({towers, 1}, Finding::ChannelFull, "QAAA");
  report.Remark({towers, 1}, Finding::TowersUnknown, "QBBB");
  report.Remark({towers, 1}, Finding::IndexFull, "QCCC");
  report.Refuse("letter.txt", "is empty");
  report.Stations = 1;
  report.Records = 2;
  EXPECT_EQ(
      ReportText(report),
      "File                     rows    taken left out\n"
      "amq.txt                     6        0        6  AM Query list\n"
      "am.zip/am_towers.dat        1        1        1  am_towers table\n"
      "all files                   7        1        7\n"
      "letter.txt: is empty\n"
      "\nLeft out\n"
      "        6  stations off the channels of 530 to 1700 kHz\n"
      "             amq.txt:1: 567 kHz\n"
      "             amq.txt:2: 567 kHz\n"
      "             amq.txt:3: 567 kHz\n"
      "             amq.txt:4: 567 kHz\n"
      "             amq.txt:5: 567 kHz\n"
      "        1  stations of a channel that has 10000 stronger ones, the most that are shown\n"
      "             am.zip/am_towers.dat:1: QAAA\n"
      "\nTaken, but\n"
      "        1  directional antennas whose towers are not known\n"
      "             am.zip/am_towers.dat:1: QBBB\n"
      "        1  stations not in the call-sign list, which holds 9000: the weaker ones of their towns\n"
      "             am.zip/am_towers.dat:1: QCCC\n"
      "\n1 stations with 2 antennas by hours\n");
}

}  // namespace
}  // namespace kestrel
