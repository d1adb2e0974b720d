#include "cli/RankingOptions.h"

#include "cli/Console.h"
#include "cli/Options.h"
#include "core/Sun.h"
#include "field/GroundWave.h"

namespace kestrel::cli {

void AddTime(CLI::App& command, Request& request, const std::string& purpose) {
  const auto store = [&request](const std::string& given) {
    request.Time = given;
    if (given == "day" || given == "night") return;
    if (const Result<Moment> moment = ReadMoment(given, Now()); !moment)
      throw WrongUse("--time " + moment.error().Message() + "; or day or night");
  };
  command
      .add_option_function<std::string>("--time", store,
                                        purpose +
                                            "UTC as in 2026-11-22T03:12Z, now, day (noon at home) or night" +
                                            (purpose.empty() ? " [now]" : ""))
      ->type_name("TIME");
}

void AddRankingChoices(CLI::App& command, Request& request) {
  AddNumberAboveZero(command, "--ground", HighestConductivity, request.Ground,
                     "the ground's conductivity in mS/m: 1 poor, 5 average, 15 good, 5000 salt water [5]");
  AddNumber(command, "--need", {LowestNeededLevel, HighestNeededLevel}, request.Need,
            "the signal that can be heard, dB above 1 uV/m [26]");
  const auto storeRule = [&request](const std::string& given) {
    const std::optional<HoursRule> rule = HoursRuleNamed(given);
    if (!rule) throw WrongUse("--hours " + given + ": give auto, sun or licence");
    request.Choices.Rule = *rule;
  };
  command
      .add_option_function<std::string>(
          "--hours", storeRule, "day and night by the sun, by US licences, or as the country has it [auto]")
      ->type_name("auto|sun|licence");
  const auto storeCalls = [&request](const std::vector<std::string>& given) {
    request.Choices.StruckCalls = given;
  };
  command
      .add_option_function<std::vector<std::string>>("--strike", storeCalls,
                                                     "leave a station that the loop nulls out of it")
      ->type_name("CALL")
      ->allow_extra_args(false);
}

Moment MomentFor(const Request& request, const Position& home) {
  const std::string given = request.Time.value_or("now");
  const Moment now = Now();
  if (given != "day" && given != "night") return *ReadMoment(given, now);
  const SunDay day = SunDayAt(SunSite(home.Latitude, home.Longitude), now);
  using std::chrono::hours;
  if (given == "day") return day.Noon;
  return day.Sunset ? *day.Sunset + hours(6) : day.Noon + hours(12);
}

RankingChoices ChoicesFor(const Request& request) {
  RankingChoices choices = request.Choices;
  if (request.Need) choices.NeededLevel = *request.Need;
  return choices;
}

double GroundFor(const Request& request) {
  return request.Ground ? *request.Ground : AverageConductivity;
}

}  // namespace kestrel::cli
