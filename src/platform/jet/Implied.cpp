#include "platform/jet/Implied.h"

#include "common/Numbers.h"
#include "common/Text.h"

#include <algorithm>
#include <optional>

namespace varnik::jet {
namespace {

bool IsName(const Token& token) {
    return token.kind == TokenKind::Word || token.kind == TokenKind::Bracketed;
}

// The conditions that all have to hold; none when some may fail.
std::vector<Range> Conditions(const ExpressionWriter& expressions, Range range) {
    if (expressions.FindWord(range, "or") < range.end) return {};
    std::vector<Range> parts;
    std::size_t begin = range.begin;
    for (std::size_t search = begin;;) {
        const std::size_t at = expressions.FindWord({search, range.end}, "and");
        const std::size_t between = expressions.FindWord({search, at}, "between");
        search = at + 1;
        if (at < range.end && between < at) continue; // this one joins the two ends
        parts.push_back({begin, at});
        if (at >= range.end) return parts;
        begin = at + 1;
    }
}

// "Table.Column"; the whole of the range.
bool IsColumn(const ExpressionWriter& expressions, Range range) {
    return range.end - range.begin == 3 && IsName(expressions.At(range.begin)) &&
           expressions.IsWord(range.begin + 1, ".") && IsName(expressions.At(range.begin + 2));
}

bool Same(const ExpressionWriter& expressions, Range a, Range b) {
    if (a.end - a.begin != b.end - b.begin) return false;
    for (std::size_t i = 0; i < a.end - a.begin; ++i)
        if (!EqualsNoCase(expressions.At(a.begin + i).text, expressions.At(b.begin + i).text)) return false;
    return true;
}

// The column of "Month(column) = 5".
std::optional<Range> ColumnOf(const ExpressionWriter& expressions, Range condition,
                              std::string_view function) {
    if (condition.Empty() || !expressions.IsWord(condition.begin, function) ||
        !expressions.IsWord(condition.begin + 1, "("))
        return {};
    const std::size_t close = expressions.Match(condition.begin + 1);
    if (close + 3 != condition.end || !expressions.IsWord(close + 1, "=") ||
        expressions.At(close + 2).kind != TokenKind::Number)
        return {};
    const Range column{condition.begin + 2, close};
    const bool plain = column.end - column.begin == 1 && IsName(expressions.At(column.begin));
    if (!plain && !IsColumn(expressions, column)) return {};
    return column;
}

// "column >= 500", of a number above 0.
bool IsAtLeast(const ExpressionWriter& expressions, Range condition) {
    if (condition.end - condition.begin < 3) return false;
    const std::size_t last = condition.end - 1;
    const Range column{condition.begin, last - 1};
    const bool plain = column.end - column.begin == 1 && IsName(expressions.At(column.begin));
    return (plain || IsColumn(expressions, column)) && expressions.IsWord(last - 1, ">=") &&
           expressions.At(last).kind == TokenKind::Number && Val(expressions.At(last).text) > 0;
}

void WriteTokens(ExpressionWriter& expressions, Range range) {
    for (std::size_t i = range.begin; i < range.end; ++i) expressions.WriteToken(i);
}

} // namespace

Implied::Implied(const ExpressionWriter& expressions, Range where) {
    const std::vector<Range> conditions = Conditions(expressions, where);
    for (const Range& condition : conditions) {
        const std::size_t last = condition.end - 1;
        if (condition.end - condition.begin == 5 && expressions.IsWord(last - 1, "=") &&
            IsColumn(expressions, {condition.begin, last - 1}) &&
            expressions.At(last).kind == TokenKind::Text)
            fixed_.push_back({{condition.begin, last - 1}, last});
        if (IsAtLeast(expressions, condition)) positive_.push_back({condition.begin, last - 1});
        const auto column = ColumnOf(expressions, condition, "month");
        if (!column) continue;
        for (const Range& other : conditions)
            if (const auto year = ColumnOf(expressions, other, "year");
                year && Same(expressions, *column, *year))
                months_.push_back({*column, last, other.end - 1});
    }
}

void Implied::WriteJoin(ExpressionWriter& expressions, Range on) const {
    for (const Range& condition : Conditions(expressions, on)) {
        const std::size_t equals = condition.begin + 3;
        if (condition.end - condition.begin != 7 || !expressions.IsWord(equals, "=")) continue;
        const Range left{condition.begin, equals}, right{equals + 1, condition.end};
        if (!IsColumn(expressions, left) || !IsColumn(expressions, right)) continue;
        for (const Fixed& fixed : fixed_) {
            const bool isLeft = Same(expressions, fixed.column, left);
            if (!isLeft && !Same(expressions, fixed.column, right)) continue;
            expressions.Write("and");
            WriteTokens(expressions, isLeft ? right : left);
            expressions.Write("=");
            expressions.WriteToken(fixed.literal);
            expressions.Write("collate nocase");
        }
    }
}

void Implied::WriteConditions(ExpressionWriter& expressions) const {
    for (const Range& column : positive_) {
        expressions.Write("and");
        WriteTokens(expressions, column);
        expressions.Write("> 0");
    }
    for (const Month& month : months_) {
        for (const auto& [comparison, behind] : {std::pair{">=", ""}, {"<", "~"}}) {
            expressions.Write("and");
            WriteTokens(expressions, month.column);
            expressions.Write(comparison);
            expressions.Write("printf ( '%04d-%02d" + std::string(behind) + "' ,");
            expressions.WriteToken(month.year);
            expressions.Write(",");
            expressions.WriteToken(month.month);
            expressions.Write(")");
        }
    }
}

} // namespace varnik::jet
