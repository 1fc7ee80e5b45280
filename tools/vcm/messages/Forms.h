// The forms of a message that the program writes, by name.
#ifndef VCM_TOOLS_FORMS_H
#define VCM_TOOLS_FORMS_H

#include <string>

#include "messages/MessageWriter.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace vcmtool {

inline constexpr const char* kDefaultForm = "multi-line";
inline constexpr const char* kOneLineForm = "one-line";
inline constexpr const char* kJsonForm = "json";

// Makes an option one that takes names of forms.
CLI::Option* takesForm(CLI::Option* option);

// Adds the option --to FORM.
CLI::Option* addFormOption(CLI::App& command, std::string& form);

// A writer of this form.
std::unique_ptr<MessageWriter> makeWriter(const std::string& form, TextOutput& output);

// What is left of a message that was written in this form and read again.
vcm::VcmRecord asKeptBy(const std::string& form, const vcm::VcmRecord& record);

}  // namespace vcmtool

#endif
