#pragma once

#include <QDialog>

#include "data/StationLookup.h"
#include "forms/Workspace.h"
#include "map/ContextMap.h"

class QPushButton;

namespace kestrel {

class MapSurface;

/// Coasts and borders around the selected station, with a way to the same place on a web map.
class frmShowContext final : public QDialog {
 public:
  frmShowContext(const Workspace& workspace, QWidget* parent, const StationSelection& selection);

 private:
  QPushButton* AddButton(const char* name, const QString& caption, const QString& tip, auto action);
  void Zoom(void (ContextZoom::*step)());
  void Draw();

  Workspace workspace_;
  StationSelection selection_;
  ContextZoom zoom_;
  MapSurface* map_;
  QPushButton* cmdLess_;
  QPushButton* cmdMore_;
};

}  // namespace kestrel
