#pragma once
// The dialect of the screens' statements, rewritten for the engine. A tokenizer and a rewriter: what the
// engine parses anyway is left to it. Text and date literals leave the text as parameters, so that all
// texts joined at one place share one compilation; number literals stay (partial indexes need them).

#include "common/Regional.h"
#include "common/Value.h"
#include "platform/jet/Catalog.h"
#include "platform/jet/Tokenizer.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace varnik::jet {

struct Statement {
    std::string sql;               // for the engine, with ?1, ?2, ... where literals stood
    std::vector<Value> parameters; // texts, dates (as DateTime), written numbers; in order
    bool isSelect = false;
    // The one base table of a plain "SELECT ... FROM table [WHERE ...] [ORDER BY ...]"; empty for joins,
    // stored queries, grouping and aggregates. Its pieces follow, without their keywords.
    std::string singleTable;
    // The same where the one name of the FROM is no table of the catalog: a stored query.
    std::string singleQuery;
    std::string columns, from, where, order;
    bool hasOrder = false;
    // Of "SELECT column FROM table GROUP BY column" over a text column: the list of what was ever entered.
    const Table* groupedTable = nullptr;
    const Column* groupedColumn = nullptr;
};

// A statement that cannot be read: an unclosed quote, a date that is none, two statements in one text.
class SyntaxError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// What a literal becomes when it is handed to the engine.
struct Slot {
    enum class Kind { Text, Date, Day, Amount } kind;
    int literal;
};

// A statement without its literals: the same for all texts that were joined at one place, so it is worth
// keeping by its shape.
struct Form {
    Statement statement; // without parameters
    std::vector<Slot> slots;
};

Form Rewrite(const Tokens& tokens, const Catalog& catalog);
// The parameters of a form for the literals of one text. SyntaxError for a date that is none.
std::vector<Value> Fill(const Form& form, const Tokens& tokens, const Regional& regional);

// All three steps at once.
Statement Translate(std::string_view sql, const Catalog& catalog, const Regional& regional);

// One comparison of a record find or filter.
struct Term {
    enum class Operator { Equal, Unequal, Less, LessEqual, Greater, GreaterEqual, Like };
    std::string column;
    Operator comparison = Operator::Equal;
    Value value; // a pattern has "%" and "_" as its wildcards
};

// The condition of a record find or filter ("KodeBrg='A1'", "UserId LIKE 'a*'", several joined by And).
std::vector<Term> ParseCriterion(std::string_view criterion, const Regional& regional);
// A term as an engine condition, its value as this parameter (none for a comparison with Null).
std::string ConditionOf(const Term& term, std::size_t parameter);

// Whether a text meets a pattern of "%" (any text) and "_" (any one character), without regard to case.
bool Like(std::string_view pattern, std::string_view text);

} // namespace varnik::jet
