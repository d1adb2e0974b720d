#pragma once

namespace kestrel {

/// Makes the C library (glibc; nothing elsewhere) keep freed memory: blocks of up to 4 MB, and up to 16 MB at
/// the end of its heap. Each drawing takes about as much as the one before; if it went back to the system in
/// between, every page of it would be cleared again. For programs that draw again and again; call it before
/// they allocate much.
void KeepFreedMemory();

}  // namespace kestrel
