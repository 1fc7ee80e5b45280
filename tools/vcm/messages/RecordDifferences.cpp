#include "messages/RecordDifferences.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "VCM/VcmTree/Covariance.h"
#include "messages/IsoDate.h"
#include "messages/PrintableText.h"
#include "messages/RecordFields.h"

namespace vcmtool {

namespace {

class Comparison {
 public:
  Comparison(const vcm::VcmRecord& before, const vcm::VcmRecord& after)
      : before_(before), after_(after) {}

  std::vector<Difference> run() {
    for (const RecordField& field : kRecordFields) {
      compare(field);
    }
    compareCovariance();
    compareCards();
    return std::move(found_);
  }

 private:
  template <class Show>
  void add(std::string name, const Show& before, const Show& after) {
    found_.push_back({std::move(name), fmt::format("{}", before), fmt::format("{}", after)});
  }

  // Two that are no number are the same.
  void compareReals(const auto& name, double before, double after) {
    if (before != after && !(std::isnan(before) && std::isnan(after))) {
      add(name(), before, after);
    }
  }

  void compare(const RecordField& field) {
    const auto name = [&field] { return std::string(field.name); };
    std::visit(
        Overloaded{[&](IntegerMember member) {
                     if (before_.*member != after_.*member) {
                       add(name(), before_.*member, after_.*member);
                     }
                   },
                   [&](const RealMember& real) {
                     compareReals(name, real.get(before_), real.get(after_));
                   },
                   [&](DateMember member) {
                     if (before_.*member != after_.*member) {
                       add(name(), isoDate(before_.*member), isoDate(after_.*member));
                     }
                   },
                   [&](const VectorMember& vector) {
                     for (std::size_t i = 0; i < vector.axes.size(); ++i) {
                       compareReals([&] { return vector.component(i); },
                                    (before_.*(vector.member))[i], (after_.*(vector.member))[i]);
                     }
                   },
                   [&](const TextMember& text) {
                     if (text.get(before_) != text.get(after_)) {
                       add(name(), printable(text.get(before_)), printable(text.get(after_)));
                     }
                   }},
        field.member);
  }

  void compareCovariance() {
    const std::size_t sizeBefore = covarianceSize(before_);
    const std::size_t sizeAfter = covarianceSize(after_);
    const auto sizeText = [](std::size_t size) {
      return size == 0 ? "none" : fmt::format("{0} x {0}", size);
    };
    if (sizeBefore != sizeAfter) {
      add(std::string(kCovarianceName), sizeText(sizeBefore), sizeText(sizeAfter));
    }
    const vcm::CovarianceTriangle before = vcm::Vcm2dTo1d(before_.covMtx);
    const vcm::CovarianceTriangle after = vcm::Vcm2dTo1d(after_.covMtx);
    for (std::size_t row = 0; row < std::max(sizeBefore, sizeAfter); ++row) {
      for (std::size_t column = 0; column <= row; ++column) {
        const std::size_t i = triangleIndex(row, column);
        if (row < std::min(sizeBefore, sizeAfter)) {
          compareReals([=] { return covarianceElement(row, column); }, before[i], after[i]);
        } else if (row < sizeBefore) {
          found_.push_back({covarianceElement(row, column), fmt::format("{}", before[i]), {}});
        } else {
          found_.push_back({covarianceElement(row, column), {}, fmt::format("{}", after[i])});
        }
      }
    }
  }

  void compareCards() {
    const auto card = [](const vcm::VcmRecord& record, std::size_t i) {
      return i < record.extraLines.size()
                 ? std::optional(printable(vcm::withoutTrailingBlanks(record.extraLines[i].view())))
                 : std::nullopt;
    };
    for (std::size_t i = 0; i < std::max(before_.extraLines.size(), after_.extraLines.size());
         ++i) {
      if (card(before_, i) != card(after_, i)) {
        found_.push_back({std::string(kManeuverCardsName), card(before_, i), card(after_, i)});
      }
    }
  }

  const vcm::VcmRecord& before_;
  const vcm::VcmRecord& after_;
  std::vector<Difference> found_;
};

}  // namespace

std::vector<Difference> differencesOf(const vcm::VcmRecord& before, const vcm::VcmRecord& after) {
  return before == after ? std::vector<Difference>() : Comparison(before, after).run();
}

}  // namespace vcmtool
