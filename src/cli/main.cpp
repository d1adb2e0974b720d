#include <sstream>

#include "cli/Console.h"
#include "cli/Description.h"

namespace {

using namespace kestrel;
using namespace kestrel::cli;

/// Help and version are asked for by what the parser throws, too.
ExitStatus Answer(const CLI::App& app, const CLI::ParseError& thrown) {
  if (thrown.get_exit_code() == 0) {
    std::ostringstream answer;
    app.exit(thrown, answer);
    Print(answer.str());
    return Succeeded;
  }
  const auto chosen = app.get_subcommands();
  const auto unknown = app.remaining();
  if (chosen.empty() && !unknown.empty())
    Say(unknown.front() + ": there is no such command; kestrel-cli --help lists them");
  else if (chosen.empty())
    Say("a command is missing; kestrel-cli --help lists them");
  else
    Say(std::string(thrown.what()) + "; kestrel-cli " + chosen.front()->get_name() + " --help tells more");
  return WronglyUsed;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app;
  Request request;
  Describe(app, request);
  try {
    try {
      app.parse(argc, argv);
      return Succeeded;
    } catch (const CLI::ParseError& thrown) {
      return Answer(app, thrown);
    }
  } catch (const WrongUse& wrong) {
    Say(wrong.what());
    return WronglyUsed;
  } catch (const Failure& failure) {
    Say(failure.what());
    return Failed;
  } catch (const std::bad_alloc&) {
    Say("there is not enough memory; ask for a smaller picture or look for a damaged, very long file");
    return Failed;
  }
}
