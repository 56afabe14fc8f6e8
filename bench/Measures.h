#pragma once
// What the design promises, as measures in one shop.

#include "bench/BareBooks.h"
#include "bench/Table.h"
#include "bench/Till.h"

namespace varnik::bench {

// A shop with somebody at its screens and the bare loop beside.
struct Floor {
    explicit Floor(const std::filesystem::path& folder);

    Till till;
    BareBooks bare;
};

// Posting and deletion, opening each screen, next numbers, loading documents, search panels, look-up lists.
void AddScreenMeasures(std::vector<Measure>& all, Floor& floor, const std::string& size);
// Each report definition to its first page, and to PDF.
void AddReportMeasures(std::vector<Measure>& all, Floor& floor, const std::string& size, bool pdf);

} // namespace varnik::bench
