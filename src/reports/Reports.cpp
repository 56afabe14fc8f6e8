#include "reports/Reports.h"

#include "reports/LapBiaya1.h"
#include "reports/LapPers1.h"
#include "reports/LedgerBook.h"
#include "reports/PurchasesReport.h"
#include "reports/SalesReport.h"

namespace varnik {

namespace {

template <typename Screen>
void Register(Services& services, const char* key, const char* name) {
    services.screens[key] = {name, [](Services& s) { return std::make_unique<Screen>(s); }};
}

} // namespace

void RegisterReports(Services& services) {
    Register<SalesReport>(services, "L01", "SalesReport");
    Register<PurchasesReport>(services, "L04", "PurchasesReport");
    Register<LapPers1>(services, "L13", "LapPers1");
    Register<BukuBank>(services, "L16", "BukuBank");
    Register<BukuHutang>(services, "L17", "BukuHutang");
    Register<BukuPiutang>(services, "L18", "BukuPiutang");
    Register<LapBiaya1>(services, "L21", "LapBiaya1");
}

} // namespace varnik
