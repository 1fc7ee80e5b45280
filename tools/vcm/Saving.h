// Everything in the shared library's store, as multi-line messages.
#ifndef VCM_TOOLS_SAVING_H
#define VCM_TOOLS_SAVING_H

namespace vcmtool {

// Writes all stored messages to an open file. Returns 0 or the errno value of what went wrong.
int saveMessages(int descriptor);

}  // namespace vcmtool

#endif
