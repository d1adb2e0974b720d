#include <QGuiApplication>

#include "Rows.h"
#include "Table.h"
#include "core/FreedMemory.h"

int main(int argc, char** argv) {
  using namespace kestrel::bench;
  kestrel::KeepFreedMemory();  // as the program does
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int qtArguments = 1;
  const QGuiApplication app(qtArguments, argv);
  AddSweepRow();
  AddLevelRows();
  AddProjectionRows();
  AddOutlineReaderRow();
  AddGroundWaveRow();
  for (const Band& band : Bands()) {
    AddSweepRow(band);
    AddStationReaderRow(band);
    AddSearchRow(band);
    AddDrawingRows(band);
    AddRankingRows(band);
  }
  MeasureAndPrint(argc, argv);
  if (argc == 1) PrintProcessRows();
}
