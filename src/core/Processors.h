#pragma once

#include <algorithm>
#include <thread>

namespace kestrel {

/// How many threads a piece of work is shared out among: the machine's processors, 1 to 4.
inline int ProcessorsToUse() {
  return static_cast<int>(std::clamp(std::thread::hardware_concurrency(), 1U, 4U));
}

}  // namespace kestrel
