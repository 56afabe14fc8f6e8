#pragma once
// The stored queries: views that screens and reports select from as from tables. Names, columns and the
// rows that a join keeps or drops are what callers rely on; the text is the engine's own, written so that
// asking for one document, one voucher or one user is a seek, however many there are.

#include <span>
#include <string>
#include <string_view>

namespace varnik::data {

struct StoredQuery {
    std::string name;
    std::string select; // in the engine's dialect
};

// All 29 in creation order.
std::span<const StoredQuery> StoredQueries();

// Statements that create the look-up indexes behind the screens' statements. They refuse nothing.
std::span<const std::string_view> LookUpIndexes();

} // namespace varnik::data
