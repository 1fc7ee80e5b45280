// Messages as a JSON array, one to a line, with every digit and everything that is stored.
#include <nlohmann/json.hpp>
#include <string>

#include "VCM/VcmTree/Covariance.h"
#include "messages/IsoDate.h"
#include "messages/Latin1.h"
#include "messages/MessageWriter.h"
#include "messages/RecordFields.h"

namespace vcmtool {

namespace {

using Json = nlohmann::ordered_json;

Json valueOf(const vcm::VcmRecord& record, const RecordField& field) {
  return std::visit(
      Overloaded{[&](IntegerMember member) { return Json(record.*member); },
                 [&](const RealMember& real) { return Json(real.get(record)); },
                 [&](DateMember member) { return Json(isoDate(record.*member)); },
                 [&](const VectorMember& vector) { return Json(record.*(vector.member)); },
                 [&](const TextMember& text) { return Json(utf8OfLatin1(text.get(record))); }},
      field.member);
}

Json covarianceOf(const vcm::VcmRecord& record) {
  const std::size_t size = covarianceSize(record);
  if (size == 0) {
    return nullptr;
  }
  const vcm::CovarianceTriangle values = vcm::Vcm2dTo1d(record.covMtx);
  Json elements = Json::array();
  Json matrix = Json::array();
  for (std::size_t row = 0; row < size; ++row) {
    elements.push_back(kCovarianceLabels[row]);
    Json& numbers = matrix.emplace_back(Json::array());
    for (std::size_t column = 0; column < size; ++column) {
      numbers.push_back(values[triangleIndex(row, column)]);
    }
  }
  return {{kCovarianceElementsName, std::move(elements)},
          {kCovarianceMatrixName, std::move(matrix)}};
}

Json messageOf(const vcm::VcmRecord& record) {
  Json message = Json::object();
  for (const RecordField& field : kRecordFields) {
    message.emplace(field.name, valueOf(record, field));
  }
  message.emplace(kCovarianceName, covarianceOf(record));
  if (!record.extraLines.empty()) {
    Json& cards = *message.emplace(kManeuverCardsName, Json::array()).first;
    for (const vcm::ExtraLine& card : record.extraLines) {
      cards.push_back(utf8OfLatin1(vcm::withoutTrailingBlanks(card.view())));
    }
  }
  return message;
}

class JsonMessages final : public MessageWriter {
 public:
  using MessageWriter::MessageWriter;

  void begin() override { output().buffer().push_back('['); }

  void message(const vcm::VcmRecord& record) override {
    const std::string_view separator = first_ ? "\n" : ",\n";
    first_ = false;
    output().buffer().append(separator);
    output().buffer().append(messageOf(record).dump());
    output().lineDone();
  }

  void end() override { output().line("\n]"); }

 private:
  bool first_ = true;
};

}  // namespace

std::unique_ptr<MessageWriter> makeJsonWriter(TextOutput& output) {
  return std::make_unique<JsonMessages>(output);
}

}  // namespace vcmtool
