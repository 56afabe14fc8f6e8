#pragma once
// The manual: plain pages in Help/, in the program's folder.

#include "platform/desktop/Desktop.h"

#include <string>

namespace varnik {

// Opens a page of the manual by the shell, as "sales.html" or "sales.html#receive"; the help file beside the
// program instead, where there is one. False, and a message, when neither is there.
bool OpenManual(Desktop& desktop, const std::string& page = "index.html");

} // namespace varnik
