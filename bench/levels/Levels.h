#pragma once

#include <vector>

#include "draw/Mixing.h"
#include "map/VertexPlaces.h"
#include "pattern/PatternSweep.h"

// The kernels by vector level, those that this machine has.

#ifdef KESTREL_LEVELS
#define KESTREL_DECLARE_LEVEL(level)                                                                \
  namespace kestrel::level {                                                                        \
  bool SweepPattern(const SweepTower* towers, int count, float* magnitudes);                        \
  void PlaceVertices(const ProjectionCenter& home, const float* latitudes, const float* longitudes, \
                     float* places, std::size_t count);                                             \
  void MixRows(QRgb color, const InkRows& ink, const PixelRows& pixels, int eights, int rows);      \
  void LayEights(QRgb color, std::uint8_t* ink, QRgb* pixels, std::uint64_t eights);                \
  }
KESTREL_DECLARE_LEVEL(x86_64)
KESTREL_DECLARE_LEVEL(x86_64_v3)
KESTREL_DECLARE_LEVEL(x86_64_v4)
#undef KESTREL_DECLARE_LEVEL
#endif

namespace kestrel {

struct Level {
  const char* Name;
  bool Here;
  decltype(&SweepPattern) Sweep;
  decltype(&PlaceVertices) Place;
  decltype(&MixRows) Mix;
  decltype(&LayEights) Lay;
};

/// The kernels as the program has them, "as built", and those of each level, none of these where the compiler
/// or the processor has no such levels.
inline std::vector<Level> LevelsHere() {
  std::vector<Level> here = {{"as built", true, SweepPattern, PlaceVertices, MixRows, LayEights}};
#ifdef KESTREL_LEVELS
  // By their features, since Clang 14 does not know the levels by name.
  const bool level3 =
      __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") && __builtin_cpu_supports("bmi2");
  const bool level4 = level3 && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                      __builtin_cpu_supports("avx512cd") && __builtin_cpu_supports("avx512dq") &&
                      __builtin_cpu_supports("avx512vl");
  const Level all[] = {
      {"x86-64", true, x86_64::SweepPattern, x86_64::PlaceVertices, x86_64::MixRows, x86_64::LayEights},
      {"x86-64-v3", level3, x86_64_v3::SweepPattern, x86_64_v3::PlaceVertices, x86_64_v3::MixRows,
       x86_64_v3::LayEights},
      {"x86-64-v4", level4, x86_64_v4::SweepPattern, x86_64_v4::PlaceVertices, x86_64_v4::MixRows,
       x86_64_v4::LayEights}};
  for (const Level& level : all)
    if (level.Here) here.push_back(level);
#endif
  return here;
}

}  // namespace kestrel
