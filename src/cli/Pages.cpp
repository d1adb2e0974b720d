#include "cli/Pages.h"

#include <algorithm>

#include "cli/Description.h"

namespace kestrel::cli {
namespace {

/// Text as man(7) wants it: no hyphen for a minus sign, no command at the beginning of a line.
std::string Roff(const std::string& text) {
  std::string roff = text.starts_with('.') || text.starts_with('\'') ? "\\&" : "";
  for (const char c : text) {
    if (c == '-' || c == '\\') roff += '\\';
    roff += c == '\\' ? 'e' : c;
  }
  return roff;
}

bool TakesValue(const CLI::Option& option) {
  return option.get_items_expected_max() > 0;
}

std::string ManualEntry(const CLI::Option& option) {
  std::string head;
  if (option.get_positional()) {
    head = "\\fI" + option.get_type_name() + "\\fR" + (option.get_items_expected_max() > 1 ? " ..." : "");
  } else {
    std::string names = option.get_name(false, true);
    for (std::size_t comma = names.find(','); comma != std::string::npos; comma = names.find(',', comma + 2))
      names.insert(comma + 1, " ");
    head = "\\fB" + Roff(names) + "\\fR";
    if (TakesValue(option)) head += " \\fI" + Roff(option.get_type_name()) + "\\fR";
  }
  const std::string needed = option.get_required() ? " (must be given)" : "";
  return ".TP\n" + head + '\n' + Roff(option.get_description()) + needed + '\n';
}

/// The help's own option stands once, before the commands.
std::vector<const CLI::Option*> OptionsOf(const CLI::App& app, bool withHelp) {
  return app.get_options([&](const CLI::Option* option) { return withHelp || option != app.get_help_ptr(); });
}

std::string Kind(const CLI::Option& option) {
  return TakesValue(option) ? option.get_type_name() : "-";
}

std::string CompletionLines(const std::string& command, const CLI::App& app) {
  std::string lines;
  for (const CLI::Option* option : OptionsOf(app, true)) {
    if (option->get_positional()) {
      lines += command + ' ' + option->get_type_name() + ' ' + Kind(*option) + '\n';
      continue;
    }
    std::string names = option->get_name(false, true);
    std::replace(names.begin(), names.end(), ',', ' ');
    std::istringstream each(names);
    for (std::string name; each >> name;) lines += command + ' ' + name + ' ' + Kind(*option) + '\n';
  }
  return lines;
}

}  // namespace

std::string ManualSections() {
  CLI::App app;
  Request request;
  Describe(app, request);
  std::string text = ".SH OPTIONS\n";
  for (const CLI::Option* option : OptionsOf(app, true)) text += ManualEntry(*option);
  text += ".SH COMMANDS\n";
  for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
    text += ".SS " + command->get_name() + "\n" + Roff(command->get_description()) + ".\n";
    for (const CLI::Option* option : OptionsOf(*command, false)) text += ManualEntry(*option);
  }
  return text;
}

std::string CompletionTable() {
  CLI::App app;
  Request request;
  Describe(app, request);
  std::string table = CompletionLines("*", app);
  for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; }))
    table += CompletionLines(command->get_name(), *command);
  return table;
}

}  // namespace kestrel::cli
