#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <locale>
#include <string>
#include <string_view>
#include <vector>

#include "Targets.h"

// corpus_replay TARGET FOLDER: gives every file of the folder to the target, whole, cut at every length, with
// every third byte changed, and without its first byte. A folder without files is a failure, and so is a file
// that the reader refuses, or takes, against expectation. With KESTREL_COMMA_LOCALE it runs under the
// environment's locale.

namespace {

/// The kept inputs, as TARGET/NAME, that their reader must refuse. It must take all others.
constexpr std::string_view kRefused[] = {
    "antenna-tables/faults", "import-journal/out-of-the-folder", "place-lists/too-many", "zip-intake/cut",
    "zip-intake/false-size",
};

constexpr std::string_view kDamage("\0|\n\xFF\x39,", 6);

/// Of a long input all of the front, and some of the rest.
std::size_t Step(std::size_t at) {
  constexpr std::size_t kFront = 2500;
  return at < kFront ? 1 : 97;
}

std::string Bytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

int main(int argc, char** argv) {
  if (std::getenv("KESTREL_COMMA_LOCALE") != nullptr) {
    std::locale::global(std::locale(""));
    char text[8];
    std::snprintf(text, sizeof text, "%.1f", 0.5);
    kestrel::fuzz::Hold(std::string_view(text) == "0,5", "numbers are written with a comma");
  }
  const kestrel::fuzz::Target target = argc == 3 ? kestrel::fuzz::FindTarget(argv[1]) : nullptr;
  if (!target || !std::filesystem::is_directory(argv[2])) {
    std::fprintf(stderr, "usage: corpus_replay TARGET FOLDER\n");
    return 2;
  }
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(argv[2])) paths.push_back(entry.path());
  std::sort(paths.begin(), paths.end());
  int surprises = 0;
  for (const std::filesystem::path& path : paths) {
    std::printf("%s\n", path.c_str());
    std::fflush(stdout);  // the last name printed is the one that failed
    const std::string bytes = Bytes(path);
    const std::string input = std::string(argv[1]) + '/' + path.filename().string();
    const bool refused = std::find(std::begin(kRefused), std::end(kRefused), input) != std::end(kRefused);
    if (target(bytes) == refused) {
      std::fprintf(stderr, "%s %s\n", input.c_str(), refused ? "is taken" : "is refused");
      ++surprises;
    }
    for (std::size_t length = 0; length < bytes.size(); length += Step(length))
      target(std::string(bytes, 0, length));  // a copy, so that reading beyond its end is seen
    std::size_t damages = 0;
    for (std::size_t at = 0; at < bytes.size(); at += 3 * Step(at)) {
      std::string damaged = bytes;
      damaged[at] = kDamage[damages++ % kDamage.size()];
      target(damaged);
    }
    if (!bytes.empty()) target(bytes.substr(1));
  }
  if (paths.empty()) std::fprintf(stderr, "no input in %s\n", argv[2]);
  return paths.empty() || surprises > 0 ? 1 : 0;
}
