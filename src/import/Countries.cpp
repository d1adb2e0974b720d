#include "import/Countries.h"

#include <algorithm>
#include <array>
#include <utility>

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

}  // namespace kestrel
