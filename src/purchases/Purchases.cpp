#include "purchases/Purchases.h"

#include "purchases/BayarFaktur.h"
#include "purchases/Faktur.h"
#include "purchases/FakturRetur.h"

namespace varnik {

void RegisterPurchases(Services& services) {
    services.screens["T04"] = {"Faktur", [](Services& all) { return std::make_unique<Faktur>(all); }};
    services.screens["T05"] = {"BayarFaktur",
                               [](Services& all) { return std::make_unique<BayarFaktur>(all); }};
    services.screens["T06"] = {"FakturRetur",
                               [](Services& all) { return std::make_unique<FakturRetur>(all); }};
}

} // namespace varnik
