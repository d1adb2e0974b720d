#include <cstddef>
#include <cstdint>

#include "Targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const kestrel::fuzz::Target target = kestrel::fuzz::FindTarget(KESTREL_TARGET);
  target({reinterpret_cast<const char*>(data), size});
  return 0;
}
