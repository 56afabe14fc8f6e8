#pragma once
// The screens of purchases, entered into the table from which the main window opens them.

#include "platform/desktop/Services.h"

namespace varnik {

void RegisterPurchases(Services& services);

} // namespace varnik
