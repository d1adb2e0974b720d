#pragma once

#include <CLI/CLI.hpp>

#include "cli/Request.h"

namespace kestrel::cli {

/// Makes the companion's options and commands known to the parser. What is given is stored in the request,
/// which must outlive the parsing.
void Describe(CLI::App& app, Request& request);

}  // namespace kestrel::cli
