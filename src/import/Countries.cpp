#include "import/Countries.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/Text.h"

namespace kestrel {
namespace {

using Entry = std::pair<std::string_view, std::string_view>;

constexpr std::array<Entry, 43> kCountries = {{
    {"AG", "Antigua"},       {"AR", "Argentina"},     {"BB", "Barbados"},      {"BD", "Bermuda"},
    {"BF", "Bahamas"},       {"BH", "Belize"},        {"BL", "Bolivia"},       {"BR", "Brazil"},
    {"CA", "Canada"},        {"CI", "Chile"},         {"CO", "Colombia"},      {"CR", "Costa Rica"},
    {"CU", "Cuba"},          {"DO", "Dominican Rep"}, {"EC", "Ecuador"},       {"ES", "El Salvador"},
    {"GD", "Grenada"},       {"GL", "Greenland"},     {"GP", "Guadeloupe"},    {"GT", "Guatemala"},
    {"GY", "Guyana"},        {"HN", "Honduras"},      {"HT", "Haiti"},         {"JM", "Jamaica"},
    {"KN", "Nevis"},         {"KY", "Cayman"},        {"MH", "Montserrat"},    {"MX", "Mexico"},
    {"NA", "Neth Antilles"}, {"NI", "Nicaragua"},     {"PA", "Paraguay"},      {"PE", "Peru"},
    {"PM", "Panama"},        {"SC", "St. Kitts"},     {"SR", "Suriname"},      {"ST", "St. Lucia"},
    {"TD", "Trinidad"},      {"TK", "Turks/Caicos"},  {"US", "United States"}, {"UY", "Uruguay"},
    {"VC", "St. Vincent"},   {"VE", "Venezuela"},     {"VI", "Br Virgin Is"},
}};

}  // namespace

std::string_view CountryName(std::string_view code) {
  const std::string_view wanted = CountryCode(code);
  const auto* const entry =
      std::find_if(kCountries.begin(), kCountries.end(), [&](const Entry& e) { return e.first == wanted; });
  return entry == kCountries.end() ? std::string_view{} : entry->second;
}

std::string_view CountryCode(std::string_view code) {
  return code == "MA" || code == "ME" ? "MX" : code;
}

Result<std::vector<std::string>> ReadCountries(std::string_view list) {
  std::vector<std::string> codes;
  for (std::string_view rest = Trim(list); !rest.empty();) {
    const std::size_t comma = std::min(rest.find(','), rest.size());
    const std::string given = UpperCase(Trim(rest.substr(0, comma)));
    rest.remove_prefix(std::min(comma + 1, rest.size()));
    if (CountryName(given).empty())
      return Error{Error::Kind::Malformed, "", 0,
                   '"' + given + "\" is no country of the FCC's lists, as US, CA and MX are"};
    codes.emplace_back(CountryCode(given));
  }
  return codes;
}

}  // namespace kestrel
