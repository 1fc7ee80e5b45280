#include <gtest/gtest.h>

#include <limits>

#include "Host/HostCore.h"
#include "host/HostKeyModes.h"

namespace {

constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();

// Once on, direct addresses stay known for the life of the process; what comes before is not tested
// here because any test that ran earlier may have switched them on.
TEST(KeyModes, ModesAreKeptApart) {
  const std::int32_t elsetBefore = elsetkeymodeget();
  const std::int32_t allBefore = allkeymodeget();
  const std::int32_t one = 1;
  const std::int32_t two = 2;
  elsetkeymodeset(&one);
  allkeymodeset(&two);
  EXPECT_EQ(elsetkeymodeget(), 1);
  EXPECT_EQ(allkeymodeget(), 2);
  elsetkeymodeset(&elsetBefore);
  allkeymodeset(&allBefore);
  EXPECT_EQ(useAllKeyMode, 0);
}

void switchOnAndOff() {
  for (const std::int32_t mode : {1, 0}) {
    elsetkeymodeset(&mode);
  }
}

void checkKinds() {
  const std::int64_t odd = 12345;
  const std::int64_t even = 12340;
  const std::int64_t none = -1;
  EXPECT_EQ(isdma(&even), 0);
  EXPECT_EQ(isdma(&none), 0);
  switchOnAndOff();
  EXPECT_NE(isdma(&even), 0);
  EXPECT_NE(isdma(&none), 0);
  EXPECT_EQ(isdma(&odd), 0);
}

// In a process of its own, where nothing has switched direct addresses on before.
TEST(KeyModesDeathTest, KindsOfKeysFromTheFirstSwitchOn) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_EXIT(
      {
        checkKinds();
        std::_Exit(testing::Test::HasFailure() ? 1 : 0);
      },
      testing::ExitedWithCode(0), "");
}

TEST(KeyModes, AddressesInKeys) {
  int object = 0;
  const auto address = reinterpret_cast<std::intptr_t>(&object);
  const std::int64_t key = address * 10;
  EXPECT_EQ(satkeytoaddr(&key), address);
  EXPECT_EQ(keytocptr(&key), &object);
  for (const std::int64_t garbage : {key + 2, key + 5, -key, std::int64_t{0}, kLargest}) {
    EXPECT_EQ(satkeytoaddr(&garbage), 0) << garbage;
    EXPECT_EQ(keytocptr(&garbage), nullptr) << garbage;
  }
}

TEST(KeyModes, NextKey) {
  for (const auto& [key, next] :
       {std::pair<std::int64_t, std::int64_t>{1, 3}, {kLargest - 2, kLargest}, {kLargest, 1}}) {
    EXPECT_EQ(nextsatkey(&key), next) << key;
  }
}

}  // namespace
