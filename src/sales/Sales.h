#pragma once
// The screens of sales, entered into the table from which the main window opens them.

#include "platform/desktop/Services.h"

namespace varnik {

void RegisterSales(Services& services);

} // namespace varnik
