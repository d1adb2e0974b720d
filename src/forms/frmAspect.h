#pragma once

#include <functional>

#include "forms/Form.h"

class QLabel;

namespace kestrel {

/// Stretches or squeezes all pattern outlines until a round one looks round. Modeless: the map behind it
/// changes at each press.
class frmAspect final : public Form {
 public:
  explicit frmAspect(const Workspace& workspace, QWidget* parent = nullptr);

  std::function<void()> RedrawChannel;  ///< outlines, the current channel without adjacents, compass
  std::function<void()> RedrawAll;      ///< the whole map; called when the window closes, however it does

 private:
  void Set(double ratio);

  QLabel* value_;
};

}  // namespace kestrel
