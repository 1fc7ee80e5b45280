// What makes this host another one than the bundled: errors go to standard error with a word in front, and
// libraries are introduced in its own words. There is no trace sink.
#include <cstdio>
#include <cstring>

#include "Host/HostCore.h"

void tracelogerror(const char* text, const std::int32_t* length) {
  std::fprintf(stderr, "framework: %.*s\n", static_cast<int>(*length), text);
}

void traceloginfo(const char* /*text*/, const std::int32_t* /*length*/) {}

void getsoftwareinfo(const char* /*name*/, const std::int32_t* /*nameLength*/, char* info,
                     const std::int32_t* infoLength) {
  static constexpr char kText[] = "a library of the stand-in framework";
  std::memset(info, ' ', static_cast<std::size_t>(*infoLength));
  std::memcpy(info, kText, sizeof kText - 1);
}
