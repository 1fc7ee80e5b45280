#include "messages/Forms.h"

#include <map>

namespace vcmtool {

namespace {

const std::map<std::string, MakeWriter*>& forms() {
  static const std::map<std::string, MakeWriter*> names = {{kDefaultForm, makeMultiLineWriter},
                                                           {kOneLineForm, makeOneLineWriter},
                                                           {kJsonForm, makeJsonWriter},
                                                           {"csv", makeCsvWriter}};
  return names;
}

}  // namespace

CLI::Option* addFormOption(CLI::App& command, std::string& form) {
  return command.add_option("--to", form, "Form of the output")
      ->check(CLI::IsMember(&forms()))
      ->type_name("FORM");
}

std::unique_ptr<MessageWriter> makeWriter(const std::string& form, TextOutput& output) {
  return forms().at(form)(output);
}

}  // namespace vcmtool
