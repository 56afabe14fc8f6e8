#pragma once
// Fills a fresh database of the program with a shop of a given size, so that what is measured is measured
// among real numbers of rows.

#include <filesystem>

namespace varnik::bench {

// This many posted sales of one line each, with their ledger rows, lots and remembered lots; 1,000 products
// with one open lot of a million pieces each, 1,000 customers.
void FillShop(const std::filesystem::path& database, long sales);
// Products and customers up to this many of each.
void FillMasters(const std::filesystem::path& database, long masters);

} // namespace varnik::bench
