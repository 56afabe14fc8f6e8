#pragma once
// Fills a fresh database of the program with a shop of a given size, so that what is measured is measured
// among real numbers of rows: customers, products in their units, suppliers, accounts, and years of sales of
// several lines with their lots and ledger, purchases, returns, receipts, payments and costs. The books
// agree as if everything had been entered on the screens, and come out the same every time.

#include <filesystem>

namespace varnik::bench {

// Years end on this day, the day of the benchmarks and tests.
void FillShop(const std::filesystem::path& database, long sales);
// The same in a program folder that is made first, with all that a first start puts into it.
void MakeShop(const std::filesystem::path& folder, long sales);

// Changes when a filled shop is to look different: shops that are kept are told apart by it.
inline constexpr int ShopVersion = 1;

} // namespace varnik::bench
