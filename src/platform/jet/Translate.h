#pragma once
// The dialect of the screens' statements, rewritten for the engine. A tokenizer and a rewriter: what the
// engine parses anyway is left to it. Text and date literals leave the text as parameters, so that all
// texts joined at one place share one compilation; number literals stay (partial indexes need them).

#include "common/Regional.h"
#include "common/Value.h"
#include "platform/jet/Catalog.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace varnik::jet {

struct Statement {
    std::string sql;               // for the engine, with ?1, ?2, ... where literals stood
    std::vector<Value> parameters; // texts, dates (as DateTime), in order
    bool isSelect = false;
    // The one base table of a plain "SELECT ... FROM table [WHERE ...] [ORDER BY ...]"; empty for joins,
    // stored queries, grouping and aggregates.
    std::string singleTable;
    bool hasOrder = false;
};

// A statement that cannot be read: an unclosed quote, a date that is none, two statements in one text.
class SyntaxError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

Statement Translate(std::string_view sql, const Catalog& catalog, const Regional& regional);

// The condition of a record find or filter ("KodeBrg='A1'", "UserId LIKE 'a*'", several joined by And) as
// an engine condition with parameters.
Statement TranslateCriterion(std::string_view criterion, const Catalog& catalog, const Regional& regional);

} // namespace varnik::jet
