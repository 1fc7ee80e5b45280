// Input files: any mixture of messages in all forms, maneuver cards, directive cards that name
// further files, the key-mode card, comments and other text.
#ifndef VCM_VCMCARDREADING_INPUTFILEREADER_H
#define VCM_VCMCARDREADING_INPUTFILEREADER_H

#include <cstdint>
#include <string_view>

#include "VCM/VcmCardReading/CardReader.h"
#include "VCM/VcmCardReading/ReadingObserver.h"

namespace vcm {

struct MessageCounts {
  std::int32_t loaded = 0;
  std::int32_t dup = 0;
  std::int32_t bad = 0;
};

// Opens a file and adds every good message of it, and of the files it names, to the store. Returns
// 0, or the nonzero code of an open that failed.
std::int32_t ReadVcmsFrFile(std::string_view name, ReadingObserver* observer = nullptr);

// The same for an open file, whose name is for the observer alone. A first pass looks for directive
// cards, whose files are loaded at once, and for the key-mode card; a second loads the file's own
// messages. Ends with an information line that gives the counts.
std::int32_t ReadVcmsFrFileUnit(CardReader& cards, std::string_view name,
                                ReadingObserver* observer = nullptr);

// Loads the messages of one open file, from its current card on, and counts them. One file at a
// time in the whole process. Maneuver cards go to the message before them that was added last.
// Returns 0.
std::int32_t ReadOnlyVcms(CardReader& cards, MessageCounts& counts,
                          ReadingObserver* observer = nullptr);

}  // namespace vcm

#endif
