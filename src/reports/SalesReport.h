#pragma once
// Reports on customers and sales invoices: aged balances, by product category, by party, balances, returns.

#include "reports/TradeReport.h"

namespace varnik {

class SalesReport : public TradeReport {
public:
    explicit SalesReport(Services& services);
};

} // namespace varnik
