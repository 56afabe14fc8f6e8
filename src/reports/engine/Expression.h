#pragma once
// The small arithmetic of report definitions: "Qty * Harga - Disc" over the columns of a row.

#include "reports/engine/Rows.h"

#include <string>
#include <string_view>
#include <vector>

namespace varnik::reports {

// Knows + - * / with the usual precedence, a leading minus, parentheses, numbers and column names.
class Expression {
public:
    Expression() = default;
    // std::invalid_argument with a clear sentence when the text cannot be read.
    explicit Expression(std::string_view text);

    // Looks the columns up once; a column that the rows do not have counts as 0.
    void Bind(const Rows& rows);
    // Whether at least one column of the expression is there; whether all are.
    bool HasColumns() const;
    bool HasAllColumns() const;
    // Empty cells count as 0, and so does a quotient by 0.
    double Evaluate(const Rows& rows, std::size_t row) const;

private:
    struct Step {
        char operation = 0; // 'n' number, 'c' column, '~' negate, or the operator
        double number = 0;
        int column = -1;
        std::string name{};
    };
    struct Reader;
    std::vector<Step> steps_; // in postfix order
};

} // namespace varnik::reports
