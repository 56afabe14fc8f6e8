#pragma once
// Reports on suppliers and purchase invoices: aged balances, by product category, by party, balances,
// returns.

#include "reports/TradeReport.h"

namespace varnik {

class PurchasesReport : public TradeReport {
public:
    explicit PurchasesReport(Services& services);
};

} // namespace varnik
