#include "commands/Completion.h"

#include <strings.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <string_view>

#include "VCM/VcmFormats/FieldTable.h"

namespace vcmtool {

namespace {

using Words = std::optional<std::vector<std::string>>;

Words beginningWith(std::string_view begin, const std::vector<std::string>& words) {
  std::vector<std::string> fitting;
  std::copy_if(words.begin(), words.end(), std::back_inserter(fitting),
               [begin](const std::string& word) {
                 return strncasecmp(word.c_str(), std::string(begin).c_str(), begin.size()) == 0;
               });
  return fitting.empty() ? Words() : fitting;
}

// "{a,b}" in what the help says of an argument.
std::vector<std::string> alternatives(const std::string& argument) {
  const std::size_t begin = argument.find('{') + 1;
  return CLI::detail::split(argument.substr(begin, argument.find('}') - begin), ',');
}

// A field in place of the one that is being written, which may not be the first of a list.
Words fields(const std::string& argument, const std::string& current) {
  std::size_t begin = argument.ends_with(",...") ? current.rfind(',') + 1 : 0;
  begin += argument.starts_with("[-]") && current.substr(begin).starts_with('-') ? 1 : 0;
  const std::string behind = argument.ends_with("=VALUE") ? "=" : "";
  std::vector<std::string> words;
  for (const vcm::SingleField& field : vcm::kSingleFields) {
    words.push_back(current.substr(0, begin).append(field.name).append(behind));
  }
  return beginningWith(current, words);
}

// An argument's name in the help tells what it takes.
Words values(const CLI::Option& option, const std::string& current) {
  constexpr std::array<std::string_view, 5> kFiles = {"FILE", "IN", "OUT", "A", "B"};
  const std::string argument =
      option.get_positional() ? option.get_name(true) : option.get_type_name();
  if (argument.find('{') != std::string::npos) {
    return beginningWith(current, alternatives(argument));
  }
  if (argument.find("FIELD") != std::string::npos) {
    return fields(argument, current);
  }
  const bool isFile = std::find(kFiles.begin(), kFiles.end(), argument) != kFiles.end();
  return isFile ? Words(std::in_place) : Words();
}

bool takesValue(const CLI::Option* option) {
  return option != nullptr && option->get_items_expected_max() > 0;
}

Words optionNames(const CLI::App& command, const std::string& current) {
  std::vector<std::string> names;
  for (const CLI::Option* const option : command.get_options()) {
    for (const std::string& name : option->get_snames()) {
      names.push_back("-" + name);
    }
    for (const std::string& name : option->get_lnames()) {
      names.push_back("--" + name);
    }
  }
  return beginningWith(current, names);
}

// The value of the positional argument with this number; the last one may stand several times.
Words positional(const CLI::App& command, std::size_t number, const std::string& current) {
  const auto all = command.get_options([](const CLI::Option* o) { return o->get_positional(); });
  if (number < all.size()) {
    return values(*all[number], current);
  }
  return !all.empty() && all.back()->get_items_expected_max() > 1 ? values(*all.back(), current)
                                                                  : Words();
}

Words commandNames(const CLI::App& program, const std::string& current) {
  std::vector<std::string> names;
  for (const CLI::App* const command : program.get_subcommands({})) {
    names.push_back(command->get_name());
  }
  return beginningWith(current, names);
}

const CLI::App* commandNamed(const CLI::App& program, const std::string& name) {
  const auto found =
      program.get_subcommands([&name](const CLI::App* app) { return app->get_name() == name; });
  return found.empty() ? nullptr : found.front();
}

}  // namespace

Words completionsOf(const CLI::App& program, std::span<const std::string> words) {
  const CLI::App* command = &program;
  const CLI::Option* pending = nullptr;  // waits for its value
  std::size_t number = 0;                // of the next positional argument
  bool optionsEnded = false;
  for (const std::string& word : words.first(words.size() - 1)) {
    if (pending != nullptr) {
      pending = nullptr;
    } else if (!optionsEnded && word.size() > 1 && word.starts_with('-')) {
      optionsEnded = word == "--";
      const CLI::Option* const option = command->get_option_no_throw(word);
      pending = takesValue(option) ? option : nullptr;
    } else if (command != &program) {
      ++number;
    } else if (command = commandNamed(program, word); command == nullptr) {
      return {};
    }
  }
  const std::string& current = words.back();
  if (pending != nullptr) {
    return values(*pending, current);
  }
  if (!optionsEnded && current.starts_with('-')) {
    const std::size_t end = current.find('=');
    const CLI::Option* const option = command->get_option_no_throw(current.substr(0, end));
    return end != std::string::npos && takesValue(option) ? values(*option, current.substr(end + 1))
                                                          : optionNames(*command, current);
  }
  return command == &program ? commandNames(program, current)
                             : positional(*command, number, current);
}

}  // namespace vcmtool
