#include "messages/SatelliteTable.h"

#include <fmt/compile.h>

#include <iterator>
#include <string>
#include <string_view>

#include "messages/Designator.h"
#include "messages/EpochText.h"
#include "messages/PrintableText.h"

namespace vcmtool {

namespace {

constexpr std::string_view kSecondLineIndent = "\n  ";

// A blank one shows as "-", so that a line has as many words as any other.
std::string designatorText(std::string_view intlDes) {
  const std::string text = printable(intlDes.substr(0, intlDes.find_last_not_of(' ') + 1));
  return text.empty() ? "-" : longDesignator(text);
}

void appendIdentity(fmt::memory_buffer& out, const MessageArrays& message) {
  constexpr std::size_t kDesignatorLength = 8;
  const auto& numbers = message.numbers;
  const std::string_view characters(message.characters.data(), message.characters.size());
  fmt::format_to(std::back_inserter(out), FMT_COMPILE("{:<9} {:<11} "),
                 static_cast<std::int64_t>(numbers[VCM_NUM_SATNUM]),
                 designatorText(characters.substr(VCM_CHAR_INTLDES, kDesignatorLength)));
  appendEpoch(out, numbers[VCM_NUM_EPOCH]);
  fmt::format_to(std::back_inserter(out), FMT_COMPILE(" {:>5} {:>3}"),
                 static_cast<std::int64_t>(numbers[VCM_NUM_EPOCHREV]),
                 static_cast<std::int64_t>(numbers[VCM_NUM_COVMTXSIZE]));
}

void appendState(fmt::memory_buffer& out, const MessageArrays& message) {
  const double* const position = &message.numbers[VCM_NUM_ECIPOS];
  const double* const velocity = &message.numbers[VCM_NUM_ECIVEL];
  fmt::format_to(std::back_inserter(out),
                 FMT_COMPILE(" {:>12.3f} {:>12.3f} {:>12.3f} {:>11.6f} {:>11.6f} {:>11.6f}"),
                 position[0], position[1], position[2], velocity[0], velocity[1], velocity[2]);
}

void appendKey(fmt::memory_buffer& out, std::int64_t satKey) {
  fmt::format_to(std::back_inserter(out), FMT_COMPILE(" {}"), satKey);
}

}  // namespace

void SatelliteTable::appendHeader(fmt::memory_buffer& out) const {
  const std::string identity =
      fmt::format("{:<9} {:<11} {:<{}} {:>5} {:>3}", "SATELLITE", "DESIGNATOR", "EPOCH (UTC)",
                  kEpochTextWidth, "REV", "COV");
  const std::string state =
      fmt::format(" {:>12} {:>12} {:>12} {:>11} {:>11} {:>11}", "ECI X (KM)", "ECI Y (KM)",
                  "ECI Z (KM)", "VX (KM/S)", "VY (KM/S)", "VZ (KM/S)");
  constexpr std::string_view kKey = " KEY";
  if (twoLines_) {
    fmt::format_to(std::back_inserter(out), "{}{}{}{}\n", identity, kKey, kSecondLineIndent, state);
  } else {
    fmt::format_to(std::back_inserter(out), "{}{}{}\n", identity, state, kKey);
  }
}

void SatelliteTable::append(fmt::memory_buffer& out, std::int64_t satKey,
                            const MessageArrays& message) const {
  appendIdentity(out, message);
  if (twoLines_) {
    appendKey(out, satKey);
    out.append(kSecondLineIndent);
    appendState(out, message);
  } else {
    appendState(out, message);
    appendKey(out, satKey);
  }
  out.push_back('\n');
}

}  // namespace vcmtool
