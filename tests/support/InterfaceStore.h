// The shared library's store, seen through its header: one call, one result.
#ifndef SUPPORT_INTERFACESTORE_H
#define SUPPORT_INTERFACESTORE_H

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Messages.h"
#include "support/TraceCapture.h"
#include "vcm/Vcm.h"

// Starts and ends each test with an empty store, and keeps the trace.
class InterfaceStore : public ::testing::Test {
 protected:
  void SetUp() override { VcmRemoveAllSats(); }
  void TearDown() override { VcmRemoveAllSats(); }

  // The golden message, stored.
  static std::int64_t addGolden() { return VcmAddSatFrLines(joined(goldenMessage()).c_str()); }

  static std::string field(std::int64_t key, std::int32_t index) {
    std::string value(VCM_FIELD_VALUE_LENGTH, '?');
    EXPECT_EQ(VcmGetField(key, index, value.data()), 0);
    return value.erase(value.find_last_not_of(' ') + 1);
  }

  TraceCapture trace_;
};

// An area of lines of 80 characters as lines, without blanks at their ends and empty lines at its end.
inline Lines linesOf(const std::string& area) {
  Lines lines;
  for (std::size_t at = 0; at < area.size(); at += 80) {
    lines.push_back(area.substr(at, 80));
    lines.back().erase(lines.back().find_last_not_of(' ') + 1);
  }
  while (!lines.empty() && lines.back().empty()) {
    lines.pop_back();
  }
  return lines;
}

// Lines as an area: each padded to 80 characters.
inline std::string areaOf(const Lines& lines) {
  std::string area;
  for (const std::string& line : lines) {
    area.append(line).append(80 - line.size(), ' ');
  }
  return area;
}

// What every function says of a key that is not stored.
inline Lines unknownKey(const std::string& function, const std::string& key19) {
  return {function + ": Unable to locate satKey " + key19 + " in the VCM binary tree."};
}

struct Arrays {
  std::vector<double> numbers = std::vector<double>(VCM_NUM_ARRAY_LENGTH, 4711.0);
  std::string texts = std::string(VCM_CHAR_ARRAY_LENGTH, '?');

  static Arrays of(std::int64_t key) {
    Arrays arrays;
    EXPECT_EQ(VcmRetrieveAllData(key, arrays.texts.data(), arrays.numbers.data()), 0);
    return arrays;
  }
  static Arrays zero() {
    return {std::vector<double>(VCM_NUM_ARRAY_LENGTH), std::string(VCM_CHAR_ARRAY_LENGTH, ' ')};
  }
  bool operator==(const Arrays&) const = default;
};

#endif
