#include "cashbook/Cashbook.h"

#include "cashbook/OtherPayment.h"
#include "cashbook/OtherReceive.h"

namespace varnik {

void RegisterCashbook(Services& services) {
    services.screens["T08"] = {"OtherReceive",
                               [](Services& all) { return std::make_unique<OtherReceive>(all); }};
    services.screens["T09"] = {"OtherPayment",
                               [](Services& all) { return std::make_unique<OtherPayment>(all); }};
}

} // namespace varnik
