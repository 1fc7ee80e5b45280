// Multi-line messages into records.
#ifndef VCM_VCMCARDREADING_MULTILINEPARSER_H
#define VCM_VCMCARDREADING_MULTILINEPARSER_H

#include <span>
#include <string_view>

#include "VCM/VcmCardReading/CardReader.h"
#include "VCM/VcmCardReading/CardType.h"
#include "VCM/VcmCardReading/ReadingObserver.h"
#include "VCM/VcmTypes/VcmRecord.h"

namespace vcm {

// Parses the lines of one message, at least 27 of them; covariance rows that are missing read as
// blanks. The result's parseStatus is kRejected, and a line stands in the error trace, when a label
// is not in its place or the covariance cannot be read. Any other number that cannot be read stops
// its line there, in silence. Nothing is checked against limits.
VcmRecord MultiLine2Vcm(std::span<const std::string_view> lines);

// The same for a message in a file, whose first card (of type multiLineHeader or bareFirstLine) is
// the reader's current one. Stops behind the message, or behind the card that broke it. The
// observer, if any, is told of every number that could not be read.
VcmRecord ReadVCMFrFileUnit(CardReader& cards, CardType firstCard,
                            ReadingObserver* observer = nullptr);

}  // namespace vcm

#endif
