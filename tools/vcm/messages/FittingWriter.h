// What the two forms have in common whose fields have a fixed width.
#ifndef VCM_TOOLS_FITTINGWRITER_H
#define VCM_TOOLS_FITTINGWRITER_H

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "VCM/VcmFormats/Field.h"
#include "VCM/VcmTree/Covariance.h"
#include "messages/MessageWriter.h"

namespace vcmtool {

class FittingWriter : public MessageWriter {
 public:
  // `form` names the form to the user.
  FittingWriter(TextOutput& output, std::string_view form) : MessageWriter(output), form_(form) {}

 protected:
  // The form has no maneuver cards of its own: they follow their message.
  void maneuverCards(const vcm::VcmRecord& record);

  // Looks for numbers that this form shows as asterisks or as NaN, which is none, and for dates that push their line apart.
  void check(const vcm::VcmRecord& record, std::span<const vcm::Field> fields);
  template <class Format>
  void checkCovariance(const vcm::VcmRecord& record) {
    const vcm::CovarianceTriangle values = vcm::Vcm2dTo1d(record.covMtx);
    const auto end = values.begin() + vcm::covarianceValueCount(record.covMtxSize);
    if (std::any_of(values.begin(), end, [](double value) {
          std::array<char, Format::width> text;
          Format::write(value, text.data());
          return isMisfit({text.data(), text.size()});
        })) {
      misfits_.emplace_back("covMtx");
    }
  }
  void addMisfit(std::string_view name) { misfits_.push_back(name); }
  // Tells the user what was found in this message.
  void reportMisfits(const vcm::VcmRecord& record);

  static bool isMisfit(std::string_view written) {
    return written.find('*') != std::string_view::npos ||
           written.find("NaN") != std::string_view::npos;
  }

 private:
  std::string_view form_;
  std::vector<std::string_view> misfits_;
};

}  // namespace vcmtool

#endif
