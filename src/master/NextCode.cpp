#include "master/NextCode.h"

#include "common/Numbers.h"
#include "common/Text.h"

#include <cmath>
#include <limits>
#include <optional>

namespace varnik {

namespace {

std::optional<int> Incremented(double number) {
    const double next = std::nearbyint(number) + 1;
    if (!FitsShort(number) || !FitsShort(next)) return std::nullopt;
    return static_cast<int>(next);
}

} // namespace

bool FitsShort(double number) {
    using Short = std::numeric_limits<std::int16_t>;
    const double whole = std::nearbyint(number);
    return whole >= Short::min() && whole <= Short::max();
}

std::string NextCode(const NextCodeRow& row, const Value& highest, std::string_view noUser,
                     const Regional& regional) {
    if (highest.IsNull() && !row.start.empty()) return std::string(row.start);
    const std::string text = NullToText(highest, regional);
    std::optional<int> next;
    if (row.throughNullToNumber)
        next = Incremented(NullToNumber(highest, regional));
    else if (IsNumeric(text, regional))
        next = Incremented(NullToNumber(Value(text), regional));
    const std::string digits = next ? std::to_string(*next) : "";
    std::string code = Repeat(row.width - Len(digits), '0') + digits;
    if (row.userAppended) code += noUser;
    return code;
}

} // namespace varnik
