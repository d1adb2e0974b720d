#pragma once

#include "data/StationLookup.h"
#include "forms/Form.h"
#include "map/ContextMap.h"

class QPushButton;

namespace kestrel {

class AddressNotice;
class MapSurface;

/// Coasts and borders around the selected station, with a way to the same place on a web map.
class frmShowContext final : public Form {
 public:
  frmShowContext(const Workspace& workspace, QWidget* parent, const StationSelection& selection);

 private:
  void Zoom(void (ContextZoom::*step)());
  void Draw();

  StationSelection selection_;
  ContextZoom zoom_;
  MapSurface* map_;
  AddressNotice* notice_;
  QPushButton* cmdLess_;
  QPushButton* cmdMore_;
};

}  // namespace kestrel
