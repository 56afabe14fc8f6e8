#pragma once
// The lines of a sale and of what comes back from it: the same columns, but for the heading of the last.

#include "document/OrderLines.h"

#include <string>

namespace varnik {

// Wanted: a heading of amounts says percent, and its column holds an amount on the invoice.
inline document::LineLayout SalesLines(std::string lastHeading) {
    using forms::Align;
    return {{{"CODE", Align::Left, 12},
             {"DESCRIPTION", Align::Left, 36},
             {"QTY", Align::Right, 8},
             {"UNIT", Align::Left, 8},
             {"PRICE", Align::Right, 12},
             {"BRUTO", Align::Right, 14},
             {"DISC (%)", Align::Right, 12},
             {"NETTO", Align::Right, 14},
             {std::move(lastHeading), Align::Right, 9}},
            {"", "", "", "0", "", "0", "0", "0", "0"}};
}

} // namespace varnik
