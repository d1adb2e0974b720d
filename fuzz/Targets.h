#pragma once

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string_view>

// The readers as functions of any bytes whatever. A target returns when all is well, and says whether the
// reader took the input; it ends the process when what was read breaks a promise of the reader's header or is
// not what the rules of docs/formats give.

namespace kestrel::fuzz {

using Target = bool (*)(std::string_view bytes);

/// The target of that name, the name of its folder under corpus/; nullptr when there is none.
Target FindTarget(std::string_view name);

bool AmqList(std::string_view bytes);
bool AntennaTables(std::string_view bytes);
bool ImportJournal(std::string_view bytes);
bool Lines(std::string_view bytes);
bool Numbers(std::string_view bytes);
bool OutlineFile(std::string_view bytes);
bool PlaceLists(std::string_view bytes);
bool SessionFile(std::string_view bytes);
bool StationFile(std::string_view bytes);
bool ZipIntake(std::string_view bytes);

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
