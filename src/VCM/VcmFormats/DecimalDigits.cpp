#include "VCM/VcmFormats/DecimalDigits.h"

namespace vcm {

bool roundedTimesPowerOfTen(std::uint64_t digits, int power, double& value) {
  if (digits == 0 || !isInPowerTable(power)) {
    return false;
  }
  const int zeros = std::countl_zero(digits);
  const std::uint64_t aligned = digits << zeros;
  // Two numbers with their highest bits set: that of the product may stand one place lower.
  const bool carried = ((Uint128{aligned} * powerOfTen(power).high) >> 127) != 0;
  const int extraBits = 64 - kMantissaBits - (carried ? 0 : 1);
  std::uint64_t mantissa = 0;
  if (!roundedProduct(aligned, power, extraBits, mantissa)) {
    return false;
  }
  const int exponent = binaryExponentOfPower(power) + 63 - zeros + (carried ? 1 : 0);
  // Added, not put together: a mantissa that was rounded up to the next power of two carries.
  value = std::bit_cast<double>(
      (static_cast<std::uint64_t>(exponent + kExponentBias - 1) << kStoredBits) + mantissa);
  return true;
}

}  // namespace vcm
