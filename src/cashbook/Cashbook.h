#pragma once
// The screens of the cash book, entered into the table from which the main window opens them.

#include "platform/desktop/Services.h"

namespace varnik {

void RegisterCashbook(Services& services);

} // namespace varnik
