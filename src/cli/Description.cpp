#include "cli/Description.h"

#include "cli/Commands.h"
#include "cli/Options.h"
#include "core/SessionState.h"

namespace kestrel::cli {

void Describe(CLI::App& app, Request& request) {
  app.name("kestrel-cli");
  app.description("Maps and figures of medium-wave stations in the Americas, without a window.");
  app.set_version_flag("--version", "kestrel-cli " + SessionState().ProgramVersion);
  app.require_subcommand(1);
  app.fallthrough();  // --data and --session are taken after the command too
  AddFileName(app, "--data", request.Data, "the folder with the station, outline and list files")
      ->type_name("DIR");
  AddFileName(app, "--session", request.SessionFile, "take home, channel and view from a last-session file");
  for (const auto add :
       {AddStationsCommand, AddPatternCommand, AddHetsCommand, AddDistanceCommand, AddMapCommand,
        AddScanCommand, AddSessionCommand, AddWhoCommand, AddBandCommand, AddSunCommand, AddImportCommand})
    add(app, request);
}

}  // namespace kestrel::cli
