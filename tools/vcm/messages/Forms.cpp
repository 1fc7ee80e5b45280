#include "messages/Forms.h"

#include <CLI/CLI.hpp>
#include <map>
#include <vector>

namespace vcmtool {

namespace {

struct Form {
  MakeWriter* make;
  ReadBack* readBack;         // null where nothing of the message itself is lost
  bool hasExtraLines = true;  // the maneuver cards that follow a message
};

const std::map<std::string, Form>& forms() {
  static const std::map<std::string, Form> names = {
      {kDefaultForm, {makeMultiLineWriter, readMultiLineBack}},
      {kOneLineForm, {makeOneLineWriter, readOneLineBack}},
      {kJsonForm, {makeJsonWriter, nullptr}},
      {"csv", {makeCsvWriter, nullptr, false}}};
  return names;
}

std::vector<std::string> formNames() {
  std::vector<std::string> names;
  for (const auto& [name, form] : forms()) {
    names.push_back(name);
  }
  return names;
}

}  // namespace

CLI::Option* takesForm(CLI::Option* option) {
  return option->check(CLI::IsMember(formNames()))->type_name("FORM");
}

CLI::Option* addFormOption(CLI::App& command, std::string& form) {
  return takesForm(command.add_option("--to", form, "Form of the output"));
}

std::unique_ptr<MessageWriter> makeWriter(const std::string& form, TextOutput& output) {
  return forms().at(form).make(output);
}

vcm::VcmRecord asKeptBy(const std::string& form, const vcm::VcmRecord& record) {
  const Form& keeping = forms().at(form);
  vcm::VcmRecord kept = keeping.readBack == nullptr ? record : keeping.readBack(record);
  kept.extraLines = keeping.hasExtraLines ? record.extraLines : decltype(record.extraLines){};
  return kept;
}

}  // namespace vcmtool
