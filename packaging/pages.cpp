#include "cli/Pages.h"

#include <fstream>
#include <iostream>
#include <sstream>

// kestrel-pages TEMPLATE FILE: copies the template, and in place of its lines @SECTIONS@ and @TABLE@ writes
// what the companion tells of its commands. Run while the program is built.
int main(int count, char** arguments) {
  if (count != 3) {
    std::cerr << "usage: kestrel-pages TEMPLATE FILE\n";
    return 2;
  }
  std::ifstream source(arguments[1]);
  std::ofstream target(arguments[2]);
  for (std::string line; std::getline(source, line);) {
    if (line == "@SECTIONS@")
      target << kestrel::cli::ManualSections();
    else if (line == "@TABLE@")
      target << kestrel::cli::CompletionTable();
    else
      target << line << '\n';
  }
  target.close();
  if (source.bad() || !target) {
    std::cerr << "kestrel-pages: " << arguments[2] << " was not written\n";
    return 1;
  }
}
