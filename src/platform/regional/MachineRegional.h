#pragma once
// Reads the machine's settings once at start-up.

#include "common/Regional.h"

namespace varnik::regional {

// The settings of the user's environment (LC_ALL, LC_TIME, LC_NUMERIC, LANG). A machine without any
// ("C", "POSIX", nothing) gets month/day/four-digit year, full stop, comma.
Regional ReadMachine();

} // namespace varnik::regional
