// What the page of the file formats says of a format.
#ifndef VCM_VCMFORMATS_LOOK_H
#define VCM_VCMFORMATS_LOOK_H

#include <string_view>

namespace vcm {

struct Look {
  std::string_view kind;    // i, f, e, text, or a name of its own, in the words of the public header
  int decimals = 0;         // of f and e
  int impliedDecimals = 0;  // how many digits are decimals where no point stands
  std::string_view note{};  // what else a reader of messages should know
};

}  // namespace vcm

#endif
