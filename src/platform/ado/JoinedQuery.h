#pragma once
// A stored query that joins tables row by row, with the numbers of the rows that each of its rows is made of:
// by these a row is found again, so that a list over it need not keep what it shows.

#include "platform/jet/Catalog.h"

#include <optional>
#include <string>
#include <string_view>

namespace varnik::ado {

struct JoinedQuery {
    std::string select;   // the query's own text with a further column for each table
    std::size_t keys = 0; // how many; named "#0", "#1" and so on
};

// Nothing for a query that unites, groups, makes distinct, or reads anything but tables of the catalog.
std::optional<JoinedQuery> ReadJoinedQuery(std::string_view select, const jet::Catalog& catalog);

} // namespace varnik::ado
