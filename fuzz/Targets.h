#pragma once

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string_view>

// The readers as functions of any bytes whatever. A target returns when all is well; it ends the process when
// what was read breaks a promise of the reader's header.

namespace kestrel::fuzz {

using Target = void (*)(std::string_view bytes);

/// The target of that name, the name of its folder under corpus/; nullptr when there is none.
Target FindTarget(std::string_view name);

void AmqList(std::string_view bytes);
void AntennaTables(std::string_view bytes);
void ImportJournal(std::string_view bytes);
void Lines(std::string_view bytes);
void Numbers(std::string_view bytes);
void OutlineFile(std::string_view bytes);
void PlaceLists(std::string_view bytes);
void SessionFile(std::string_view bytes);
void StationFile(std::string_view bytes);
void ZipIntake(std::string_view bytes);

/// A promise that must hold for any input.
inline void Hold(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", promise);
  std::abort();
}

inline void HoldFinite(double value) {
  Hold(std::isfinite(value), "numbers are finite");
}

}  // namespace kestrel::fuzz
