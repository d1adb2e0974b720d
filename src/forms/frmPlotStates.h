#pragma once

#include <optional>

#include "forms/Form.h"
#include "map/Canvas.h"

namespace kestrel {

class MapSurface;

/// The plain map on which home is picked. A click with the left or right button makes the clicked point home
/// and accepts; any other way of closing rejects and changes nothing.
class frmPlotStates final : public Form {
 public:
  explicit frmPlotStates(const Workspace& workspace, QWidget* parent = nullptr);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowReadout(std::optional<Point> mouse);
  void TakePoint(Point at, Qt::MouseButton button);

  MapSurface* map_;
  MapSurface* readout_;
};

}  // namespace kestrel
