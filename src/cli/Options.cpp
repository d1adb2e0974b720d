#include "cli/Options.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "cli/Console.h"
#include "cli/Json.h"
#include "core/Band.h"
#include "core/CoordinateText.h"
#include "core/Text.h"
#include "core/ViewLimits.h"

namespace kestrel::cli {
namespace {

/// The whole text as a number; nothing when it is none or does not fit a single.
std::optional<float> WholeNumber(std::string_view text) {
  text = Trim(text);
  if (text.starts_with('+')) text.remove_prefix(1);
  float value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

[[noreturn]] void Refuse(const std::string& name, const std::string& given, const std::string& wanted) {
  throw WrongUse(name + ' ' + given + ": give " + wanted);
}

std::optional<float> ReadDegrees(std::string_view text, Axis axis) {
  const std::optional<CoordinateReading> reading = ReadCoordinate(text, axis);
  if (!reading) return WholeNumber(text);
  return reading->Fault.empty() ? std::optional(reading->Degrees) : std::nullopt;
}

std::optional<Position> ReadPosition(const std::string& text) {
  const std::size_t comma = text.find(',');
  if (comma == std::string::npos) return std::nullopt;
  const auto latitude = ReadDegrees(std::string_view(text).substr(0, comma), Axis::Latitude);
  const auto longitude = ReadDegrees(std::string_view(text).substr(comma + 1), Axis::Longitude);
  // Written so that NaN is refused.
  if (!latitude || !(std::abs(*latitude) <= 90)) return std::nullopt;
  if (!longitude || !(std::abs(*longitude) <= 180)) return std::nullopt;
  return Position{*latitude, *longitude};
}

std::optional<QSize> ReadSize(std::string_view text) {
  constexpr int kSmallest = 64;
  constexpr int kLargest = 16384;
  int width = 0;
  int height = 0;
  const char* end = text.data() + text.size();
  const auto across = std::from_chars(text.data(), end, width);
  if (across.ec != std::errc() || across.ptr == end || *across.ptr != 'x') return std::nullopt;
  const auto down = std::from_chars(across.ptr + 1, end, height);
  if (down.ec != std::errc() || down.ptr != end) return std::nullopt;
  if (std::min(width, height) < kSmallest || std::max(width, height) > kLargest) return std::nullopt;
  return QSize(width, height);
}

bool NamesPicture(const std::string& path) {
  const std::string_view end = std::string_view(path).substr(path.size() < 4 ? 0 : path.size() - 4);
  return EqualIgnoringCase(end, ".png") || EqualIgnoringCase(end, ".svg") || EqualIgnoringCase(end, ".pdf");
}

}  // namespace

void AddNumber(CLI::App& command, const std::string& name, const Limits& limits, std::optional<float>& number,
               const std::string& help) {
  const std::string range = NumberWithZero(limits.Lowest) + " to " + NumberWithZero(limits.Highest);
  const auto store = [=, &number](const std::string& given) {
    number = WholeNumber(given);
    if (!number || !(*number >= limits.Lowest && *number <= limits.Highest))
      Refuse(name, given, "a number from " + range);
  };
  command.add_option_function<std::string>(name, store, help + ", " + range)->type_name("NUMBER");
}

void AddNumberAboveZero(CLI::App& command, const std::string& name, double highest,
                        std::optional<float>& number, const std::string& help) {
  const std::string limit = NumberWithZero(static_cast<float>(highest));
  const auto store = [=, &number](const std::string& given) {
    number = WholeNumber(given);
    if (!number || !(*number > 0 && *number <= highest))
      Refuse(name, given, "a number above 0, at most " + limit);
  };
  command.add_option_function<std::string>(name, store, help + ", above 0 to " + limit)->type_name("NUMBER");
}

CLI::Option* AddPosition(CLI::App& command, const std::string& name, std::optional<Position>& position,
                         const std::string& help) {
  const auto store = [name, &position](const std::string& given) {
    position = ReadPosition(given);
    if (!position)
      Refuse(name, given,
             "LAT,LON in degrees, as in 33.24278,96.54139 or 33d14m34sN,96d32m29sW: latitude -90 to 90, "
             "longitude -180 to 180 and positive in the west");
  };
  return command.add_option_function<std::string>(name, store, help)->type_name("LAT,LON");
}

CLI::Option* AddFileName(CLI::App& command, const std::string& name, std::optional<std::string>& path,
                         const std::string& help) {
  const auto store = [name, &path](const std::string& given) {
    if (given.empty()) throw WrongUse(name + ": give a name, it is empty");
    path = given;
  };
  return command.add_option_function<std::string>(name, store, help)->type_name("FILE");
}

CLI::Option* AddText(CLI::App& command, const std::string& name, std::optional<std::string>& text,
                     const std::string& help) {
  const auto store = [&text](const std::string& given) { text = IsUtf8(given) ? given : FromLatin1(given); };
  return command.add_option_function<std::string>(name, store, help)->type_name("TEXT");
}

void AddFrequency(CLI::App& command, Request& request) {
  AddNumber(command, "--frequency", {LowestChannel, HighestChannel}, request.Frequency, "the channel in kHz");
}

void AddHome(CLI::App& command, Request& request) {
  AddPosition(command, "--home", request.Home, "home in degrees, west longitude positive");
}

void AddScale(CLI::App& command, Request& request) {
  AddNumber(command, "--scale", ScaleLimits, request.Scale, "the map's scale, twips for 75 km");
}

void AddAspect(CLI::App& command, Request& request) {
  AddNumberAboveZero(command, "--aspect", LargestAspect, request.Aspect,
                     "widens the patterns (1 keeps circles round)");
}

CLI::Option* AddPicture(CLI::App& command, Request& request) {
  const auto storeSize = [&request](const std::string& given) {
    const std::optional<QSize> size = ReadSize(given);
    if (!size) Refuse("--size", given, "WIDTHxHEIGHT in pixels, 64 to 16384 each");
    request.Size = *size;
  };
  command
      .add_option_function<std::string>("--size", storeSize,
                                        "the picture's size in pixels, 64 to 16384 each way [1600x1200]")
      ->type_name("WxH");
  const auto storeLabels = [&request](const std::string& given) {
    request.Look.Labels = LabelChoiceOf(given);
    if (LabelChoiceWord(request.Look.Labels) != given) Refuse("--labels", given, "fitting, all or none");
  };
  command
      .add_option_function<std::string>("--labels", storeLabels,
                                        "of the stations: fitting, all or none [fitting]")
      ->type_name("CHOICE");
  command.add_flag("--rings", request.Look.Rings, "circles of round distances around home");
  command.add_flag("!--no-legend", request.Look.Legend, "leaves the legend out");
  command.add_flag("!--no-scale-bar", request.Look.ScaleBar, "leaves the scale bar out");
  command.add_flag("--hour-lines", request.Look.HourLines, "tells the hours by broken lines, too");
  const auto storeOutput = [&request](const std::string& given) {
    if (!NamesPicture(given)) Refuse("-o", given, "a file name that ends in .png, .svg or .pdf");
    request.Output = given;
  };
  return command
      .add_option_function<std::string>("-o", storeOutput, "the picture's file, ending in .png, .svg or .pdf")
      ->type_name("FILE")
      ->required();
}

void AddJson(CLI::App& command, Request& request) {
  command.add_flag("--json", request.Json, "one JSON document in place of a table");
}

CLI::Option* AddCsv(CLI::App& command, Request& request) {
  return command.add_flag("--csv", request.Csv, "a table for other programs, points in numbers");
}

void AddJsonOrCsv(CLI::App& command, Request& request) {
  AddJson(command, request);
  AddCsv(command, request)->excludes("--json");
}

}  // namespace kestrel::cli
