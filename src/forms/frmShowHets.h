#pragma once

#include "forms/Form.h"

namespace kestrel {

/// Tells which beat notes the shown channel suffers from stations on the 9 kHz grid of the other regions.
class frmShowHets final : public Form {
 public:
  explicit frmShowHets(const Workspace& workspace, QWidget* parent = nullptr);
};

}  // namespace kestrel
