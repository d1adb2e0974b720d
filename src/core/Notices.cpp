#include "core/Notices.h"

namespace kestrel {
namespace {

constexpr std::string_view kAttributions =
    "Names and positions of cities: GeoNames (https://www.geonames.org), licensed under CC BY 4.0 "
    "(https://creativecommons.org/licenses/by/4.0/). Changes: a selection, in plain letters, some names "
    "shortened or replaced, positions rounded.\n\n"
    "Coasts, national borders, lakes and provinces: Natural Earth, public domain. Borders of the states: US "
    "Census Bureau, public domain.";

constexpr std::string_view kLicence =
    "MIT License\n\n"
    "Permission is hereby granted, free of charge, to any person obtaining a copy of this software and "
    "associated documentation files (the \"Software\"), to deal in the Software without restriction, "
    "including without limitation the rights to use, copy, modify, merge, publish, distribute, sublicense, "
    "and/or sell copies of the Software, and to permit persons to whom the Software is furnished to do so, "
    "subject to the following conditions:\n\n"
    "The above copyright notice and this permission notice shall be included in all copies or substantial "
    "portions of the Software.\n\n"
    "THE SOFTWARE IS PROVIDED \"AS IS\", WITHOUT WARRANTY OF ANY KIND, EXPRESS OR IMPLIED, INCLUDING BUT NOT "
    "LIMITED TO THE WARRANTIES OF MERCHANTABILITY, FITNESS FOR A PARTICULAR PURPOSE AND NONINFRINGEMENT. IN "
    "NO EVENT SHALL THE AUTHORS OR COPYRIGHT HOLDERS BE LIABLE FOR ANY CLAIM, DAMAGES OR OTHER LIABILITY, "
    "WHETHER IN AN ACTION OF CONTRACT, TORT OR OTHERWISE, ARISING FROM, OUT OF OR IN CONNECTION WITH THE "
    "SOFTWARE OR THE USE OR OTHER DEALINGS IN THE SOFTWARE.";

}  // namespace

std::string AboutText(std::string_view stationsLine) {
  std::string text(CopyrightText);
  if (!stationsLine.empty()) text += "\n\nStations: " + std::string(stationsLine);
  for (const std::string_view part : {kAttributions, kLicence}) text += "\n\n" + std::string(part);
  return text;
}

}  // namespace kestrel
