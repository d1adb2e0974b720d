#include "ui/PrintCommands.h"

namespace kestrel {
namespace {

/// Tells of each outline file that cannot be read; returns how many can.
int CheckOutlineFiles(Platform& system, const DataFolder& folder, QWidget* parent) {
  int readable = 0;
  for (const char* name : {"STATES.dat", "REGION2.dat"}) {
    if (folder.Read(name))
      ++readable;
    else
      system.ShowMessage(parent, QString("We had a problem sending %1 to the printer").arg(name));
  }
  return readable;
}

void PrintOutlines(Platform& system, const DataFolder& folder, PrintDevice& device, const PrintedPage& page,
                   QWidget* parent) {
  const QString problem = "We had a problem printing the map of Region 2";
  if (CheckOutlineFiles(system, folder, parent) == 0) return system.ShowMessage(parent, problem);
  const PrintEnd end = PrintPage(device, page);
  if (end == PrintEnd::NotOpened) system.ShowMessage(parent, "Printer Error");
  if (end == PrintEnd::Failed) system.ShowMessage(parent, problem);
  if (end == PrintEnd::Printed) system.ShowMessage(parent, "Outline map printed");
}

}  // namespace

void PrintMap(Platform& system, const DataFolder& folder, const SessionState& state, const ShownMap& map,
              QWidget* parent) {
  const PrintOffer offer{MapPage(state, folder, map), OutlinePage(state, folder)};
  const std::optional<PrintOrder> order = system.OfferPrinting(parent, offer);
  if (!order) return;
  if (order->OutlineMap) return PrintOutlines(system, folder, *order->Device, *offer.Outlines, parent);
  CheckOutlineFiles(system, folder, parent);
  const bool printed = PrintPage(*order->Device, offer.Page) == PrintEnd::Printed;
  system.ShowMessage(parent, printed ? "All patterns printed" : "Printer Error");
}

void PrintStation(Platform& system, const DataFolder& folder, const SessionState& state,
                  const StationSelection& selection, QWidget* parent) {
  const std::vector<StationRecord> records = LoadRecords(folder, state.CurrentFrequency, selection);
  const PrintOffer offer{StationPage(state, folder, selection, records), std::nullopt};
  const std::optional<PrintOrder> order = system.OfferPrinting(parent, offer);
  if (!order) return;
  const bool printed = PrintPage(*order->Device, offer.Page) == PrintEnd::Printed;
  system.ShowMessage(parent, printed ? "Station data printed" : "Printer Error");
}

}  // namespace kestrel
