// The order of messages by one of their fields, as the command line states it.
#ifndef VCM_TOOLS_FIELDORDER_H
#define VCM_TOOLS_FIELDORDER_H

#include <cstdint>
#include <string>
#include <vector>

namespace vcmtool {

// What is wrong with "FIELD" or, for a descending order, "-FIELD"; or an empty text.
std::string wrongFieldOrder(const std::string& given);

// Sorts the keys of stored messages by several fields, the first of which weighs most. Messages that
// are equal in all of them keep their order.
void sortByFields(std::vector<std::int64_t>& keys, const std::vector<std::string>& fields);

}  // namespace vcmtool

#endif
