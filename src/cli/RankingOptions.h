#pragma once

#include <CLI/CLI.hpp>

#include "cli/Request.h"
#include "core/Moment.h"

// The options of the commands that rank, and what they come to.

namespace kestrel::cli {

/// --time: a moment, or "day" or "night" at home today. `purpose` begins its description.
void AddTime(CLI::App& command, Request& request, const std::string& purpose = {});
/// --ground, --need, --hours and --strike.
void AddRankingChoices(CLI::App& command, Request& request);

/// The moment that was asked for, or now. "day" is home's noon of today, "night" six hours after today's
/// sunset, where there is none midnight.
Moment MomentFor(const Request& request, const Position& home);

RankingChoices ChoicesFor(const Request& request);

/// Conductivity in mS/m.
double GroundFor(const Request& request);

}  // namespace kestrel::cli
