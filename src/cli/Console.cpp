#include "cli/Console.h"

#include <cstdio>

namespace kestrel::cli {

void Say(std::string_view text) {
  const std::string line = "kestrel-cli: " + std::string(text) + '\n';
  std::fwrite(line.data(), 1, line.size(), stderr);
}

void Say(const std::vector<std::string>& texts) {
  for (const std::string& text : texts) Say(text);
}

void Print(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() || std::fflush(stdout) != 0)
    throw Failure("standard output does not take the whole answer; look for room on the disk");
}

void Fail(const std::string& path, const Error& error, std::string_view advice) {
  throw Failure(path + ": " + error.text + std::string(advice.empty() ? "" : "; ") + std::string(advice));
}

}  // namespace kestrel::cli
