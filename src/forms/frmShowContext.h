#pragma once

#include "data/StationLookup.h"
#include "forms/Form.h"
#include "map/ContextMap.h"

class QLabel;
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
  ContextView View() const;
  void ShowPlace(std::optional<Position> place);

  StationSelection selection_;
  ContextZoom zoom_;
  MapSurface* map_;
  QLabel* lblPlace_;
  AddressNotice* notice_;
  QPushButton* cmdLess_;
  QPushButton* cmdMore_;
};

}  // namespace kestrel
