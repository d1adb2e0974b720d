#pragma once

namespace kestrel {

/// Has the C library keep what is freed in pieces of up to 4 MB, up to 16 MB of it at the end of its heap,
/// where it can be told so. Each drawing takes about as much as the one before; given back to the system in
/// between, every page of it would be cleared anew. For programs that draw again and again, before they
/// allocate much.
void KeepFreedMemory();

}  // namespace kestrel
