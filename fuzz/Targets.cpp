#include "Targets.h"

#include <utility>

namespace kestrel::fuzz {

Target FindTarget(std::string_view name) {
  constexpr std::pair<std::string_view, Target> kTargets[] = {
      {"amq-list", AmqList},
      {"antenna-tables", AntennaTables},
      {"import-journal", ImportJournal},
      {"lines", Lines},
      {"numbers", Numbers},
      {"outline-file", OutlineFile},
      {"place-lists", PlaceLists},
      {"session-file", SessionFile},
      {"station-file", StationFile},
      {"zip-intake", ZipIntake},
  };
  for (const auto& [known, target] : kTargets)
    if (known == name) return target;
  return nullptr;
}

}  // namespace kestrel::fuzz
