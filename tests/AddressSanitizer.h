#pragma once

// KESTREL_ADDRESS_SANITIZER is defined where the address sanitizer is built in, whichever way the compiler
// tells.
#if defined(__SANITIZE_ADDRESS__)
#define KESTREL_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KESTREL_ADDRESS_SANITIZER
#endif
#endif
