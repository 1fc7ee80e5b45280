#include "VCM/VcmTree/Validation.h"

#include <array>
#include <string_view>

#include "Host/HostCalendar.h"
#include "Host/TraceLine.h"

namespace vcm {

namespace {

constexpr int kIntegerWidth = 12;

TraceLine invalid(std::string_view what) {
  TraceLine line;
  line.text(" ValidateVcmValues: Invalid ").text(what).text(" = ");
  return line;
}

// Each check returns true when the value is within its limits, and logs a line otherwise.
bool checkInteger(std::string_view what, std::int32_t value, std::int32_t low, std::int32_t high,
                  std::string_view suffix) {
  const bool good = value >= low && value <= high;
  if (!good) {
    invalid(what).number(value, kIntegerWidth).text(suffix).error();
  }
  return good;
}

bool checkVector(std::array<std::string_view, 3> what, const Vector3& value, double limit,
                 std::string_view suffix) {
  bool good = true;
  for (std::size_t i = 0; i < value.size(); ++i) {
    // Not-a-number passes: it is neither below nor above.
    if (value[i] < -limit || value[i] > limit) {
      invalid(what[i]).real(value[i]).text(suffix).error();
      good = false;
    }
  }
  return good;
}

}  // namespace

std::int32_t ValidateVcmValues(const VcmRecord& record) {
  constexpr std::int32_t kNoUpperLimit = INT32_MAX;
  const bool leap = hleap(&record.epoch.year) != 0;
  bool good = true;
  // 0 passes although the message says 1: that is deliberate.
  good &= checkInteger("satellite number", record.satNum, 0, 999999999, " (valid = 1-999999999)");
  good &= checkInteger("Year of Epoch", record.epoch.year, 1956, kNoUpperLimit, " (valid >=1956)");
  good &= checkInteger("Day of Epoch", record.epoch.dayOfYear, 1, leap ? 366 : 365,
                       leap ? " (valid 1-366)" : " (valid 1-365)");
  good &= checkInteger("Epoch Revolution", record.epochRev, 0, 99999, " (valid 0-99999)");
  good &=
      checkVector({"ECI PosX", "ECI PosY", "ECI PosZ"}, record.eciPos, 1e7, " (valid -1E7 to 1E7)");
  good &=
      checkVector({"ECI VelX", "ECI VelY", "ECI VelZ"}, record.eciVel, 1e3, " (valid -1E3 to 1E3)");
  return good ? kGood : kRejected;
}

}  // namespace vcm
