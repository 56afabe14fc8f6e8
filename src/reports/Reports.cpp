#include "reports/Reports.h"

namespace varnik {

void RegisterReports(Services&) {}

} // namespace varnik
