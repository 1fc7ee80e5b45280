// The host framework's astrodynamics helpers, as this library calls them.
#ifndef HOST_HOSTORBIT_H
#define HOST_HOSTORBIT_H

#include <cstdint>

extern "C" {

// Nonzero when a card of an input file is a maneuver card. Callable from any thread.
std::int32_t ismaneuvcardtype(const char* card, const std::int32_t* length);

}  // extern "C"

#endif
