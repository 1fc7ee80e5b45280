#include "terminal/Trace.h"

#include <utility>

#include "host/HostTrace.h"

namespace vcmtool {

Trace::Trace(Receiver receiver) : receiver_(std::move(receiver)) { hosttracesink(receive, this); }

Trace::~Trace() { hosttracesink(nullptr, nullptr); }

void Trace::receive(std::int32_t isError, const char* text, std::int32_t length, void* trace) {
  const std::string_view line(text, static_cast<std::size_t>(length));
  static_cast<Trace*>(trace)->receiver_(isError != 0,
                                        line.substr(0, line.find_last_not_of(' ') + 1));
}

}  // namespace vcmtool
