// How the sections and their tables are written.
#ifndef MARKDOWN_H
#define MARKDOWN_H

#include <string>
#include <string_view>

#include "VCM/VcmFormats/Look.h"

// What stands between is a section, which sections.py puts into the page.
void begin(std::string_view section);
void end();

// "f16.8", "text 8": as the page explains them.
std::string formatOf(const vcm::Look& look, int width);

// A value as code, which shows the blanks in front.
std::string shown(std::string_view value);

// As few digits as make the same number.
std::string shortest(double value);

#endif
