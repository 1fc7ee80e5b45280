// International designators, which messages shorten.
#ifndef VCM_TOOLS_DESIGNATOR_H
#define VCM_TOOLS_DESIGNATOR_H

#include <string>
#include <string_view>

namespace vcmtool {

// "1989-021F" for 89021F; what does not begin with a year stays as it is.
std::string longDesignator(std::string_view intlDes);

// The way back. What is no long one, or of a year that has no short one, stays as it is.
std::string shortDesignator(std::string_view designator);

}  // namespace vcmtool

#endif
