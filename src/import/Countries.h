#pragma once

#include <string_view>

namespace kestrel {

/// The name, at most 13 characters, of a country by the two letters that the FCC's lists use for it (not
/// always ISO 3166: "CI" is Chile, "ES" El Salvador); empty for an unknown code.
std::string_view CountryName(std::string_view code);

/// The code under which the country is known: "MX" for the miscoded "MA" and "ME", else `code` itself.
std::string_view CountryCode(std::string_view code);

}  // namespace kestrel
