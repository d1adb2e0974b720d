#pragma once

#include <string>

#include "data/PlaceLists.h"
#include "forms/Form.h"
#include "ui/PositionEntry.h"

class QGridLayout;

namespace kestrel {

class PlacePicker;

/// Sets home: by a city, by a station's place, by typed coordinates or on the states map. A row taken from a
/// list counts at once; typed coordinates, or where there are none the row that a search has led to, count
/// when they are accepted.
class frmGetHome final : public Form {
 public:
  explicit frmGetHome(const Workspace& workspace, QWidget* parent = nullptr);

 private:
  QGridLayout* MakeLists(PlacePicker* cities, QWidget* nextFocus);
  void Take(const Place& place);
  void Accept();
  void TakeTyped(const Position& typed);
  void UseMap();

  QGridLayout* grid_;
  PositionEntry entry_;
  PlacePicker* highlighted_ = nullptr;  // the list in which a search has led to a row last
  std::string takenName_;               // of the row taken last; empty: none
};

}  // namespace kestrel
