#pragma once

// A file of loops for vector code ("kernels") is compiled for several vector levels; kestrel_kernel_file in
// the CMake lists gives it the flags.

// The kernels live in a namespace that a test replaces to compile them again, each vector level by itself.
#ifndef KESTREL_KERNELS
#define KESTREL_KERNELS kernels
// One function compiled for several levels, the best one chosen when the program starts, where the compiler
// can do so.
#ifdef KESTREL_HAS_CLONES
#define KESTREL_CLONES __attribute__((target_clones("default", "arch=x86-64-v3", "arch=x86-64-v4")))
#endif
#endif
#ifndef KESTREL_CLONES
#define KESTREL_CLONES
#endif
