// The file that goes with the process, should a signal end that.
#ifndef VCM_TOOLS_UNFINISHEDFILE_H
#define VCM_TOOLS_UNFINISHEDFILE_H

#include <string>

namespace vcmtool {

// From here on SIGINT, SIGTERM and SIGHUP, where they are not ignored, remove the file of this name
// before they end the process. There is one such file at a time; `name` may be of none yet.
void removeOnSignal(const std::string& name);

// The file is complete, or gone.
void leaveOnSignal();

}  // namespace vcmtool

#endif
