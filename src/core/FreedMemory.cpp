#include "core/FreedMemory.h"

#ifdef __linux__
#include <malloc.h>
#endif

namespace kestrel {

void KeepFreedMemory() {
#ifdef __GLIBC__
  constexpr int kMegabyte = 1 << 20;
  mallopt(M_MMAP_THRESHOLD, 4 * kMegabyte);
  mallopt(M_TRIM_THRESHOLD, 16 * kMegabyte);
#endif
}

}  // namespace kestrel
