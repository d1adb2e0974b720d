#pragma once

#include <QDialog>
#include <optional>

#include "forms/Workspace.h"
#include "map/Canvas.h"

namespace kestrel {

class MapSurface;

/// The plain map on which home is picked. A click with the left or right button makes the clicked point home
/// and accepts; any other way of closing rejects and changes nothing.
class frmPlotStates final : public QDialog {
 public:
  explicit frmPlotStates(const Workspace& workspace, QWidget* parent = nullptr);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowReadout(std::optional<Point> mouse);
  void TakePoint(Point at, Qt::MouseButton button);

  Workspace workspace_;
  MapSurface* map_;
  MapSurface* readout_;
};

}  // namespace kestrel
