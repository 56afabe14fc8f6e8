#include "purchases/Purchases.h"

#include "purchases/Faktur.h"

namespace varnik {

void RegisterPurchases(Services& services) {
    services.screens["T04"] = {"Faktur", [](Services& all) { return std::make_unique<Faktur>(all); }};
}

} // namespace varnik
