#include "reports/engine/Rows.h"

#include "common/Text.h"

#include <bit>

namespace varnik::reports {

Rows::Rows(std::vector<std::string> names) : names_(std::move(names)) {}

void Rows::Add(std::span<const Value> values) {
    for (const Value& value : values) {
        std::uint64_t bits = 0;
        Kind kind = Kind::Null;
        if (value.IsBool()) {
            kind = Kind::Boolean;
            bits = value.Bool() ? 1 : 0;
        } else if (value.IsInteger() || value.IsDouble()) {
            kind = Kind::Number;
            bits = std::bit_cast<std::uint64_t>(value.IsInteger() ? static_cast<double>(value.Integer())
                                                                  : value.Double());
        } else if (value.IsText()) {
            kind = Kind::Text;
            const std::string& text = value.Text();
            bits = static_cast<std::uint64_t>(texts_.size()) << 24 | (text.size() & 0xFFFFFF);
            texts_ += text.substr(0, 0xFFFFFF);
        } else if (value.IsDate()) {
            kind = Kind::Date;
            bits = static_cast<std::uint64_t>(static_cast<std::uint32_t>(value.Date().day)) << 32 |
                   static_cast<std::uint32_t>(value.Date().second);
        }
        bits_.push_back(bits);
        kinds_.push_back(kind);
    }
    ++count_;
}

int Rows::Find(std::string_view name) const {
    for (int i = 0; i < Columns(); ++i)
        if (EqualsNoCase(Name(i), name)) return i;
    return -1;
}

double Rows::Number(std::size_t row, int column) const {
    const Cell cell = At(row, column);
    if (cell.kind == Kind::Number) return std::bit_cast<double>(cell.bits);
    return cell.kind == Kind::Boolean && cell.bits != 0 ? -1 : 0;
}

std::string_view Rows::Text(std::size_t row, int column) const {
    const Cell cell = At(row, column);
    if (cell.kind != Kind::Text) return {};
    return std::string_view(texts_).substr(cell.bits >> 24, cell.bits & 0xFFFFFF);
}

Value Rows::Get(std::size_t row, int column) const {
    const Cell cell = At(row, column);
    switch (cell.kind) {
    case Kind::Boolean:
        return Value(cell.bits != 0);
    case Kind::Number:
        return Value(std::bit_cast<double>(cell.bits));
    case Kind::Text:
        return Value(Text(row, column));
    case Kind::Date:
        return Value(DateTime{static_cast<std::int32_t>(cell.bits >> 32),
                              static_cast<std::int32_t>(cell.bits & 0xFFFFFFFF)});
    case Kind::Null:
        break;
    }
    return {};
}

} // namespace varnik::reports
