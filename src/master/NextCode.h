#pragma once
// The code that Add proposes: the highest one plus 1, padded with zeros.

#include "common/Regional.h"
#include "common/Value.h"
#include "master/MasterRow.h"

#include <string>
#include <string_view>

namespace varnik {

bool FitsShort(double number); // rounded to a whole number, half to even, it fits 16 bits

// `highest` is the table's Max over its codes, which orders texts. The number is counted in 16 bits, as
// wanted: from 32767 on it overflows and zeros alone are proposed. So it is for a text that is no number
// where the row does not read that as 0.
std::string NextCode(const NextCodeRow& row, const Value& highest, std::string_view noUser,
                     const Regional& regional);

} // namespace varnik
