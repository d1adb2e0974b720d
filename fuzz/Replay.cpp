#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "Targets.h"

// corpus_replay TARGET FOLDER: gives every file of the folder to the target, whole, as each of its first
// halvings, and without its first byte. A folder without files is a failure.

namespace {

std::string Bytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

int main(int argc, char** argv) {
  const kestrel::fuzz::Target target = argc == 3 ? kestrel::fuzz::FindTarget(argv[1]) : nullptr;
  if (!target || !std::filesystem::is_directory(argv[2])) {
    std::fprintf(stderr, "usage: corpus_replay TARGET FOLDER\n");
    return 2;
  }
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(argv[2])) paths.push_back(entry.path());
  std::sort(paths.begin(), paths.end());
  for (const std::filesystem::path& path : paths) {
    std::printf("%s\n", path.c_str());
    std::fflush(stdout);  // the last name printed is the one that failed
    const std::string bytes = Bytes(path);
    target(bytes);
    for (std::size_t length = bytes.size(); length > 0; length /= 2)
      target(std::string(bytes, 0, length - 1));  // a copy, so that reading beyond its end is seen
    if (!bytes.empty()) target(bytes.substr(1));
  }
  if (paths.empty()) std::fprintf(stderr, "no input in %s\n", argv[2]);
  return paths.empty() ? 1 : 0;
}
