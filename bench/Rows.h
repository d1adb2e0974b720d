#pragma once

#include "Bands.h"

// The rows of the table, by what is measured.

namespace kestrel::bench {

void AddSweepRow();
void AddProjectionRows();
void AddLevelRows();  ///< a kernel at each vector level
void AddSweepRow(const Band& band);
void AddOutlineReaderRow();
void AddStationReaderRow(const Band& band);
void AddSearchRow(const Band& band);
void AddDrawingRows(const Band& band);  ///< whole redraws and the scan
void AddGroundWaveRow();
void AddRankingRows(const Band& band);  ///< who it can be, on a channel and on the band
void PrintProcessRows();                ///< whole programs, after the table; for the machine's clock

}  // namespace kestrel::bench
