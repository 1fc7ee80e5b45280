// A file of messages in any form that the program reads.
#ifndef VCM_TOOLS_MESSAGEFILE_H
#define VCM_TOOLS_MESSAGEFILE_H

#include <cstdint>
#include <string>

#include "VCM/VcmCardReading/ReadingObserver.h"
#include "messages/Forms.h"
#include "terminal/Progress.h"

namespace vcmtool {

struct FileReading {
  std::int32_t code = 0;  // of an open that failed
  std::string lack;       // what to say of a file that holds something, but no message; or empty
};

// Adds every good message of a file to the store.
FileReading readMessageFile(const std::string& name, vcm::ReadingObserver& observer,
                            Progress& progress);

// Empties the store. A file that switched to direct addresses does so no longer for the next one.
void startAfresh();

// What a file is written as again: in the form of its messages, the multi-line one where they are
// mixed.
struct FileForm {
  std::string name = kDefaultForm;
  std::string loses;  // what the file would lose by that besides comments; empty for nothing
};
FileForm formOf(const std::string& name);

}  // namespace vcmtool

#endif
