#pragma once
// One cell of the database: what a Field gives and takes. Yes/no values count as -1 and 0 in arithmetic
// and read "True" and "False" as text; decimals travel as double.

#include "common/DateTime.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace varnik {

class Value {
public:
    Value() = default; // Null
    Value(std::nullptr_t) {}
    Value(bool yes) : content_(yes) {}
    template <std::integral T>
    requires(!std::same_as<T, bool>) Value(T number) : content_(static_cast<std::int64_t>(number)) {}
    Value(double number) : content_(number) {}
    Value(std::string text) : content_(std::move(text)) {}
    Value(std::string_view text) : content_(std::string(text)) {}
    Value(const char* text) : content_(std::string(text)) {}
    Value(DateTime date) : content_(date) {}

    bool IsNull() const { return std::holds_alternative<std::monostate>(content_); }
    bool IsBool() const { return std::holds_alternative<bool>(content_); }
    bool IsInteger() const { return std::holds_alternative<std::int64_t>(content_); }
    bool IsDouble() const { return std::holds_alternative<double>(content_); }
    bool IsText() const { return std::holds_alternative<std::string>(content_); }
    bool IsDate() const { return std::holds_alternative<DateTime>(content_); }
    bool IsNumber() const { return IsBool() || IsInteger() || IsDouble(); }

    bool Bool() const { return std::get<bool>(content_); }
    std::int64_t Integer() const { return std::get<std::int64_t>(content_); }
    double Double() const { return std::get<double>(content_); }
    const std::string& Text() const { return std::get<std::string>(content_); }
    DateTime Date() const { return std::get<DateTime>(content_); }

    bool operator==(const Value&) const = default;

private:
    std::variant<std::monostate, bool, std::int64_t, double, std::string, DateTime> content_;
};

} // namespace varnik
