#include "sales/Sales.h"

#include "sales/BayarInvoice.h"
#include "sales/Invoice.h"
#include "sales/InvoiceRetur.h"

namespace varnik {

void RegisterSales(Services& services) {
    services.screens["T01"] = {"Invoice", [](Services& all) { return std::make_unique<Invoice>(all); }};
    services.screens["T02"] = {"BayarInvoice",
                               [](Services& all) { return std::make_unique<BayarInvoice>(all); }};
    services.screens["T03"] = {"InvoiceRetur",
                               [](Services& all) { return std::make_unique<InvoiceRetur>(all); }};
}

} // namespace varnik
