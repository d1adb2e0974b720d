#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/Result.h"

namespace kestrel {

/// The name, at most 13 characters, of a country by the two letters that the FCC's lists use for it (not
/// always ISO 3166: "CI" is Chile, "ES" El Salvador); empty for an unknown code.
std::string_view CountryName(std::string_view code);

/// The code under which the country is known: "MX" for the miscoded "MA" and "ME", else `code` itself.
std::string_view CountryCode(std::string_view code);

/// The codes of a list as people type it, "us, CA,MX"; none for a blank one. Errors: Malformed, without file
/// and line; the text names what is no country.
Result<std::vector<std::string>> ReadCountries(std::string_view list);

}  // namespace kestrel
