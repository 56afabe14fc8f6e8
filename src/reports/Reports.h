#pragma once
// The report dialogs and ledger books, entered into the table from which the main window opens them.

#include "platform/desktop/Services.h"

namespace varnik {

void RegisterReports(Services& services);

} // namespace varnik
