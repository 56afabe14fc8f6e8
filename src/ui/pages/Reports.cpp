// The report dialogs and ledger books.

#include "ui/pages/Page.h"

namespace varnik::ui {

std::vector<Page> ReportsPages() { return {}; }

} // namespace varnik::ui
