#include "platform/ado/ColumnRule.h"

#include "common/Numbers.h"
#include "common/Text.h"

#include <cfenv>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace varnik::ado {
namespace {

// Days of a date's number are counted from this day.
constexpr std::int32_t FirstDay = -25569; // 1899-12-30

std::string NameOf(const jet::Table& table, const jet::Column& column) {
    return std::string(table.name) + "." + std::string(column.name);
}

[[noreturn]] void Overflows(const std::string& name) {
    throw DataError(Overflow, "The number is too large for " + name + ".");
}

[[noreturn]] void Mismatch(const std::string& what, const Value& value, const char* wanted,
                           const Regional& regional) {
    throw DataError(TypeMismatch,
                    what + " takes " + wanted + ", not \"" + ShowValue(value, regional) + "\".");
}

std::int64_t ToWhole(double number, std::int64_t least, std::int64_t most, const std::string& name) {
    const double rounded = std::nearbyint(number); // half to even, the rounding mode of the machine
    if (!(rounded >= static_cast<double>(least) && rounded <= static_cast<double>(most))) Overflows(name);
    return static_cast<std::int64_t>(rounded);
}

// A fraction of four bytes without its binary tail: 0.1 stays 0.1, so that a column's values show as they
// were entered, and an amount less itself is nothing when its twin column is wider. What the four bytes hold
// exactly in a few digits, as whole numbers and quarters, stays.
double WithoutTail(float narrow) {
    double number = static_cast<double>(narrow);
    if (std::nearbyint(number) == number) return number;
    char digits[40];
    std::snprintf(digits, sizeof digits, "%.10g", number);
    if (std::strtod(digits, nullptr) == number) return number;
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, narrow);
    std::from_chars(digits, end.ptr, number);
    return number;
}

DateTime ToDate(const Value& value, const Regional& regional, const std::string& name) {
    if (value.IsDate()) return value.Date();
    if (value.IsText()) {
        if (const std::optional<DateTime> iso = FromIso(value.Text())) return *iso;
        if (const std::optional<DateTime> date = ParseDate(value.Text(), regional)) return *date;
        Mismatch(name, value, "a date", regional);
    }
    const double serial = ToDouble(value, regional, name);
    if (!(std::abs(serial) < 3000000)) Overflows(name);
    const double day = std::floor(serial);
    const auto second = static_cast<std::int32_t>(std::lround((serial - day) * 86400));
    return DateTime{FirstDay + static_cast<std::int32_t>(day) + second / 86400, second % 86400};
}

// A year of five digits or none could not be read back.
DateTime ToStoredDate(const Value& value, const Regional& regional, const std::string& name) {
    static const std::int32_t first = MakeDate(1, 1, 1)->day, last = MakeDate(9999, 12, 31)->day;
    const DateTime date = ToDate(value, regional, name);
    if (date.day < first || date.day > last) Overflows(name);
    return date;
}

bool ToBool(const Value& value, const Regional& regional, const std::string& name) {
    if (value.IsBool()) return value.Bool();
    if (value.IsText()) {
        for (const std::string_view yes : {"true", "yes", "on"}) {
            if (EqualsNoCase(value.Text(), yes)) return true;
        }
        for (const std::string_view no : {"false", "no", "off"}) {
            if (EqualsNoCase(value.Text(), no)) return false;
        }
    }
    return ToDouble(value, regional, name) != 0;
}

} // namespace

double ToDouble(const Value& value, const Regional& regional, const std::string& what) {
    if (value.IsDouble()) return value.Double();
    if (value.IsInteger()) return static_cast<double>(value.Integer());
    if (value.IsBool()) return value.Bool() ? -1 : 0;
    if (value.IsDate())
        return static_cast<double>(value.Date().day - FirstDay) +
               static_cast<double>(value.Date().second) / 86400;
    if (value.IsText() && IsNumeric(value.Text(), regional)) return ToNumber(value.Text(), regional);
    Mismatch(what, value, "a number", regional);
}

Value ToColumn(const Value& value, const jet::Table& table, const jet::Column& column,
               const Regional& regional) {
    if (value.IsNull()) return value;
    using Type = jet::ColumnType;
    if (column.type == Type::Text) {
        Value text = value.IsText() ? value : Value(ShowValue(value, regional));
        // Bytes are never fewer than characters.
        if (text.Text().size() > static_cast<std::size_t>(column.size) && Len(text.Text()) > column.size)
            throw DataError(ConstraintFault, "The text is too long for " + NameOf(table, column) +
                                                 " (at most " + std::to_string(column.size) +
                                                 " characters).");
        return text;
    }
    // Names are put together for a refusal only.
    const auto number = [&] {
        return value.IsDouble()    ? value.Double()
               : value.IsInteger() ? static_cast<double>(value.Integer())
                                   : ToDouble(value, regional, NameOf(table, column));
    };
    switch (column.type) {
    case Type::Double: {
        const double result = number();
        if (!std::isfinite(result)) Overflows(NameOf(table, column));
        return result;
    }
    case Type::Single: {
        const double wide = number();
        const auto narrow = static_cast<float>(wide);
        if (!std::isfinite(narrow)) Overflows(NameOf(table, column));
        return WithoutTail(narrow);
    }
    case Type::Decimal: {
        const double wide = number();
        if (!(std::abs(wide) < 1e18)) Overflows(NameOf(table, column));
        char digits[40];
        std::snprintf(digits, sizeof digits, "%.15g", wide);
        return std::strtod(digits, nullptr);
    }
    case Type::Long:
        return ToWhole(number(), std::numeric_limits<std::int32_t>::min(),
                       std::numeric_limits<std::int32_t>::max(), NameOf(table, column));
    case Type::Short:
        return ToWhole(number(), std::numeric_limits<std::int16_t>::min(),
                       std::numeric_limits<std::int16_t>::max(), NameOf(table, column));
    case Type::Boolean:
        return ToBool(value, regional, NameOf(table, column));
    case Type::Date:
        return ToStoredDate(value, regional, NameOf(table, column));
    case Type::Text:
        break;
    }
    return value;
}

} // namespace varnik::ado
