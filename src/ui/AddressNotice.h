#pragma once

#include <QLabel>

namespace kestrel {

class Platform;

/// A line of a window from which web addresses are opened. It is there only after one that no program took,
/// says so, and has the address to be copied.
class AddressNotice final : public QLabel {
 public:
  explicit AddressNotice(QWidget* parent = nullptr);

  void Open(Platform& system, const QString& address);
};

}  // namespace kestrel
