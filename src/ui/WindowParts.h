#pragma once

#include <functional>
#include <vector>

class QWidget;

namespace kestrel {

/// The parts of a window, through which a key leads the keyboard in turn.
class WindowParts {
 public:
  /// `enter` gives the focus to the part; without it the part's control that had it last gets it, or the
  /// first that takes it. The part must outlive this.
  void Add(QWidget& part, std::function<void()> enter = {});

  /// Leads to the next part that is seen, from the last one to the first.
  void Next();

 private:
  struct Part {
    QWidget* Widget;
    std::function<void()> Enter;
  };

  std::vector<Part> parts_;
};

}  // namespace kestrel
