// Standard output and standard error, which meet on one screen when both are a terminal. The
// progress line gives way to whatever else is written. All functions may be called from any thread.
#ifndef VCM_TOOLS_SCREEN_H
#define VCM_TOOLS_SCREEN_H

#include <string_view>

namespace vcmtool {

bool isTerminal(int descriptor);

// Columns of a terminal, 80 when it does not say.
int terminalColumns(int descriptor);

// Writes everything, past the progress line where both are on one screen. Returns 0 or the errno
// value of what went wrong.
int writeOutput(int descriptor, std::string_view text);

// Writes a line to standard error.
void printMessage(std::string_view line);

// "vcm: FILE: the code's text" on standard error.
void printFailure(std::string_view fileName, int code);

// Shows a progress line in place of the last one. It must fit in the terminal's width.
void showProgress(std::string_view line);
void eraseProgress();

}  // namespace vcmtool

#endif
