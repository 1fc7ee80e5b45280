// Messages out of a JSON file: an array of objects, or one object.
#ifndef VCM_TOOLS_JSONREADING_H
#define VCM_TOOLS_JSONREADING_H

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

#include "VCM/VcmCardReading/ReadingObserver.h"

namespace vcmtool {

// What the line in the error trace begins with that reports a bad message. Messages are counted
// from 1.
std::string jsonMessagePrefix(std::string_view fileName, std::int64_t message);

// Adds every good message to the store, one by one: no more than one is held. The observer is given
// a message's number in place of a line. A syntax error makes its message bad and ends the file;
// what came before it stays. Ends with an information line that gives the counts.
void readJsonMessages(std::FILE* file, std::string_view name, vcm::ReadingObserver* observer);

}  // namespace vcmtool

#endif
