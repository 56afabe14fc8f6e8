#pragma once
// Reads the machine's settings once at start-up.

#include "common/Regional.h"

#include <string_view>

namespace varnik::regional {

// The settings of the user's environment (LC_ALL, LC_TIME, LC_NUMERIC, LANG). A machine without any
// ("C", "POSIX", nothing) gets month/day/four-digit year, full stop, comma.
Regional ReadMachine();

// The same from what a machine says of itself: a date pattern ("%d.%m.%Y"), its decimal and its group
// separator. What cannot be read keeps the value of a machine without settings.
Regional FromPatterns(std::string_view date, std::string_view decimal, std::string_view group);

} // namespace varnik::regional
