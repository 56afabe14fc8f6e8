#pragma once
// What the conditions of a statement imply without saying it. The engine finds rows by a comparison of a
// column with a value; it does not see one through a join on a text without case, nor in "Month(x) = 5 And
// Year(x) = 2026", and it does not know that what is at least 500 is above 0, which is what the indexes of
// open documents hold. Said in so many words, the rows of one party and one month are a seek, also inside a
// stored query, and those with a balance are read alone. Implied conditions only repeat what the statement
// asks for: its rows stay the same.

#include "platform/jet/Expression.h"

#include <vector>

namespace varnik::jet {

class Implied {
public:
    // Reads the conditions of a WHERE: the tokens behind the keyword.
    Implied(const ExpressionWriter& expressions, Range where);

    // Behind a join's "A.Code = B.Code", when the WHERE compares A.Code with a text: the same of B.Code.
    void WriteJoin(ExpressionWriter& expressions, Range on) const;
    // Behind the WHERE: the stretch of days of its months, and that what is at least so much is above 0.
    void WriteConditions(ExpressionWriter& expressions) const;

private:
    struct Fixed {
        Range column;
        std::size_t literal; // token
    };
    struct Month {
        Range column;
        std::size_t month, year; // tokens
    };
    std::vector<Fixed> fixed_;
    std::vector<Month> months_;
    std::vector<Range> positive_; // columns
};

} // namespace varnik::jet
