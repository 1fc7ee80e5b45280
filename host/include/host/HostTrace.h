// Where the bundled host's trace log goes. Plain C.
#ifndef HOST_HOSTTRACE_H
#define HOST_HOSTTRACE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// Receives one line of the trace log: `isError` is nonzero for an error, zero for information; `text`
// has `length` characters and no terminator, blanks at its end included. Called by one thread at a
// time, with the trace log locked: it must not call back into the library or the host.
typedef void (*HostTraceSink)(int32_t isError, const char* text, int32_t length, void* context);

// Sends the trace log to `sink`, which is given `context` with each line. A null sink restores the
// default: the environment variable HOST_TRACE_LOG names a file that lines are appended to ("-" is
// standard error); unset, lines go nowhere. After it returns, the former sink is not called any more.
void hosttracesink(HostTraceSink sink, void* context);

#ifdef __cplusplus
}
#endif

#endif
