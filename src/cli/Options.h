#pragma once

#include <CLI/CLI.hpp>
#include <string_view>

#include "cli/Request.h"
#include "core/ViewLimits.h"

// The options that several commands share. Each stores what was given in the request, which must outlive the
// parsing; a value outside its range throws WrongUse.

namespace kestrel::cli {

void AddFrequency(CLI::App& command, Request& request);
void AddHome(CLI::App& command, Request& request);
void AddScale(CLI::App& command, Request& request);
void AddAspect(CLI::App& command, Request& request);
CLI::Option* AddPicture(CLI::App& command, Request& request);  ///< --size and -o, which is returned
void AddJson(CLI::App& command, Request& request);
void AddJsonOrCsv(CLI::App& command, Request& request);
CLI::Option* AddCsv(CLI::App& command, Request& request);

/// A number option of its own that must lie within `low` to `high`.
void AddNumber(CLI::App& command, const std::string& name, const Limits& limits, std::optional<float>& number,
               const std::string& help);

/// One that must lie above 0 and be at most `highest`.
void AddNumberAboveZero(CLI::App& command, const std::string& name, double highest,
                        std::optional<float>& number, const std::string& help);

/// "33.24278,96.54139", latitude north and longitude WEST positive, a negative one east; or each in one of
/// the notations of ReadCoordinate without a comma, "33d14m34sN,96d32m29sW".
CLI::Option* AddPosition(CLI::App& command, const std::string& name, std::optional<Position>& position,
                         const std::string& help);

/// The name of a file or folder; an empty one throws WrongUse.
CLI::Option* AddFileName(CLI::App& command, const std::string& name, std::optional<std::string>& path,
                         const std::string& help);

/// A text that is kept as UTF-8.
CLI::Option* AddText(CLI::App& command, const std::string& name, std::optional<std::string>& text,
                     const std::string& help);

}  // namespace kestrel::cli
