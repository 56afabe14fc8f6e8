#include "sales/Sales.h"

#include "sales/Invoice.h"

namespace varnik {

void RegisterSales(Services& services) {
    services.screens["T01"] = {"Invoice", [](Services& all) { return std::make_unique<Invoice>(all); }};
}

} // namespace varnik
