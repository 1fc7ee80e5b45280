// The shared library's store, seen through its header: one call, one result.
#ifndef SUPPORT_INTERFACESTORE_H
#define SUPPORT_INTERFACESTORE_H

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Messages.h"
#include "support/TraceCapture.h"
#include "vcm/Vcm.h"

// Ends each test with an empty store, and keeps the trace.
class InterfaceStore : public ::testing::Test {
 protected:
  void TearDown() override { VcmRemoveAllSats(); }

  // The golden message, stored.
  static std::int64_t addGolden() { return VcmAddSatFrLines(joined(goldenMessage()).c_str()); }

  TraceCapture trace_;
};

// What a function writes into an area of that size, which is its last argument; it gives `result`.
template <auto Function, std::size_t Size, class... Given>
std::string written(int result, Given... given) {
  std::string area(Size, '?');
  EXPECT_EQ(Function(given..., area.data()), result);
  return area;
}

inline std::string field(std::int64_t key, std::int32_t index) {
  std::string value = written<VcmGetField, VCM_FIELD_VALUE_LENGTH>(0, key, index);
  return value.erase(value.find_last_not_of(' ') + 1);
}

inline std::string toOneLine(const std::string& text, int result = 0) {
  return written<VcmMultiLineTo1Line, VCM_ONE_LINE_LENGTH>(result, text.c_str());
}

inline std::string blanks(std::size_t count) { return std::string(count, ' '); }

struct Arrays {
  std::vector<double> numbers = std::vector<double>(VCM_NUM_ARRAY_LENGTH, 4711.0);
  std::string texts = std::string(VCM_CHAR_ARRAY_LENGTH, '?');

  static Arrays of(std::int64_t key, int result = 0) {
    Arrays arrays;
    EXPECT_EQ(VcmRetrieveAllData(key, arrays.texts.data(), arrays.numbers.data()), result);
    return arrays;
  }
  static Arrays ofText(const std::string& text, int result = 0) {
    Arrays arrays;
    EXPECT_EQ(VcmStringToArray(text.c_str(), arrays.numbers.data(), arrays.texts.data()), result);
    return arrays;
  }
  static Arrays zero() {
    return {std::vector<double>(VCM_NUM_ARRAY_LENGTH), blanks(VCM_CHAR_ARRAY_LENGTH)};
  }
  std::int64_t add() const { return VcmAddSatFrFields(texts.data(), numbers.data()); }
  std::string oneLine() const {
    return written<VcmArrayToVcm1Line, VCM_ONE_LINE_LENGTH>(0, numbers.data(), texts.data());
  }
  std::string lines() const {
    return written<VcmArrayToVcmLines, VCM_TEXT_LENGTH>(0, numbers.data(), texts.data());
  }
  double& operator[](int position) { return numbers[static_cast<std::size_t>(position)]; }
  bool operator==(const Arrays&) const = default;
};

#endif
