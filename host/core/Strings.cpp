// Small operations on fixed-length texts, in place or from one to another.
#include <algorithm>
#include <string>

#include "Host/HostCore.h"
#include "Text.h"

using hostcore::copyPadded;
using hostcore::sizeOf;
using hostcore::upToNul;
using hostcore::viewOf;

void chararrtostr(const char* array, const std::int32_t* arrayLength, char* text,
                  const std::int32_t* textLength) {
  // Found by a bounded search: a caller's C string may be shorter than its nominal length.
  copyPadded(upToNul(viewOf(array, arrayLength)), text, sizeOf(textLength));
}

void strtochararr(const char* text, const std::int32_t* textLength, char* array,
                  const std::int32_t* arrayLength) {
  copyPadded(viewOf(text, textLength), array, sizeOf(arrayLength));
}

void touppercase(char* text, const std::int32_t* length) {
  // Only the letters of ASCII, so that the result is the same under every locale.
  std::transform(text, text + sizeOf(length), text, [](char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  });
}

void nulltospace(char* text, const std::int32_t* length) {
  std::replace(text, text + sizeOf(length), '\0', ' ');
}

void blanktozerochar(char* text, const std::int32_t* length) {
  std::replace(text, text + sizeOf(length), ' ', '0');
}

void replacestring(char* text, const std::int32_t* length, const char* from,
                   const std::int32_t* fromLength, const char* to, const std::int32_t* toLength) {
  const std::string_view given = viewOf(text, length);
  const std::string_view sought = viewOf(from, fromLength);
  if (sought.empty()) {
    return;
  }
  std::string replaced;
  std::size_t done = 0;
  for (std::size_t found = given.find(sought); found != std::string_view::npos;
       found = given.find(sought, done)) {
    replaced.append(given, done, found - done).append(viewOf(to, toLength));
    done = found + sought.size();
  }
  replaced.append(given, done);
  copyPadded(replaced, text, given.size());
}
