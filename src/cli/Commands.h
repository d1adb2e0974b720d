#pragma once

#include <CLI/CLI.hpp>

#include "cli/Request.h"

// The companion's commands, each in a file of its own. Add... makes the command known to the parser; chosen,
// it reads the request, prints its answer or writes its file, and throws Failure where it cannot.

namespace kestrel::cli {

void AddStationsCommand(CLI::App& app, Request& request);
void AddPatternCommand(CLI::App& app, Request& request);
void AddHetsCommand(CLI::App& app, Request& request);
void AddDistanceCommand(CLI::App& app, Request& request);
void AddMapCommand(CLI::App& app, Request& request);
void AddScanCommand(CLI::App& app, Request& request);
void AddSessionCommand(CLI::App& app, Request& request);
void AddWhoCommand(CLI::App& app, Request& request);
void AddBandCommand(CLI::App& app, Request& request);
void AddSunCommand(CLI::App& app, Request& request);
void AddImportCommand(CLI::App& app, Request& request);

}  // namespace kestrel::cli
