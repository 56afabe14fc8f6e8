#include "platform/jet/Expression.h"

#include "common/Text.h"

#include <algorithm>

namespace varnik::jet {
namespace {

constexpr std::size_t MostText = 256 * 1024; // of a rewritten statement, without its literals

// Functions of the dialect: "$1", "$2", "$3" are the arguments; without a text the name stays.
struct FunctionRule {
    std::string_view name;
    int arguments; // -1: any number
    std::string_view text;
    Content content;
};

constexpr FunctionRule functions[] = {
    {"mid", 2, "substr ( $1 , $2 )", Content::Text},
    {"mid", 3, "substr ( $1 , $2 , $3 )", Content::Text},
    {"left", 2, "substr ( $1 , 1 , $2 )", Content::Text},
    {"right", 2, "substr ( $1 , max ( length ( $1 ) - ( $2 ) , 0 ) + 1 )", Content::Text},
    {"len", 1, "length ( $1 )", Content::Number},
    {"ucase", 1, "upper ( $1 )", Content::Text},
    {"lcase", 1, "lower ( $1 )", Content::Text},
    {"trim", 1, "trim ( $1 )", Content::Text},
    {"ltrim", 1, "ltrim ( $1 )", Content::Text},
    {"rtrim", 1, "rtrim ( $1 )", Content::Text},
    {"year", 1, "cast ( substr ( $1 , 1 , 4 ) as integer )", Content::Number},
    {"month", 1, "cast ( substr ( $1 , 6 , 2 ) as integer )", Content::Number},
    {"day", 1, "cast ( substr ( $1 , 9 , 2 ) as integer )", Content::Number},
    {"datevalue", 1, "substr ( $1 , 1 , 10 )", Content::Date},
    {"isnull", 1, "- ( ( $1 ) is null )", Content::Number},
    {"nz", 2, "ifnull ( $1 , $2 )", Content::Unknown},
    {"iif", 3, "iif ( $1 , $2 , $3 )", Content::Unknown},
    {"sum", 1, "", Content::Number},
    {"count", 1, "", Content::Number},
    {"avg", 1, "", Content::Number},
    {"abs", 1, "", Content::Number},
    {"round", -1, "", Content::Number},
};

constexpr std::string_view comparisons[] = {
    "=", "<>", "!=", "<", ">", "<=", ">=", "like", "between", "in", "is"};
constexpr std::string_view otherBreaks[] = {"and",  "or",   "not",  ",",   "as",  "case",
                                            "when", "then", "else", "end", "asc", "desc"};

template <typename Words>
bool OneOf(const Token& token, const Words& words) {
    return std::any_of(std::begin(words), std::end(words),
                       [&](std::string_view word) { return Is(token, word); });
}

bool IsName(const Token& token) {
    return token.kind == TokenKind::Word || token.kind == TokenKind::Bracketed;
}

Content ContentOfColumn(const Column& column) {
    if (column.type == ColumnType::Text) return Content::Text;
    return column.type == ColumnType::Date ? Content::Date : Content::Number;
}

} // namespace

void ExpressionWriter::Write(std::string_view text) {
    // Functions that repeat their argument double it with every one that stands within another.
    if (output.size() > MostText) throw SyntaxError("The statement is too long.");
    if (!output.empty()) output += ' ';
    output += text;
}

void ExpressionWriter::WriteToken(std::size_t index) {
    const Token& token = At(index);
    switch (token.kind) {
    case TokenKind::Word:
        if (Is(token, "true") && !IsWord(index + 1, ".")) return Write("-1");
        if (Is(token, "false") && !IsWord(index + 1, ".")) return Write("0");
        [[fallthrough]];
    case TokenKind::Number:
    case TokenKind::Symbol:
        return Write(token.text);
    case TokenKind::Bracketed: {
        std::string name = "\"";
        for (const char c : token.text) name.append(c == '"' ? 2 : 1, c);
        return Write(name + "\"");
    }
    case TokenKind::Amount:
        return Parameter(Slot::Kind::Amount, token.literal);
    case TokenKind::Text:
        return Parameter(Slot::Kind::Text, token.literal);
    case TokenKind::Date:
        return Parameter(Slot::Kind::Date, token.literal);
    }
}

void ExpressionWriter::Parameter(Slot::Kind kind, int literal) {
    slots.push_back({kind, literal});
    Write("?" + std::to_string(slots.size()));
}

std::size_t ExpressionWriter::Match(std::size_t open) const {
    int depth = 0;
    for (std::size_t i = open; i < tokens_.list.size(); ++i) {
        if (IsWord(i, "(")) ++depth;
        if (IsWord(i, ")") && --depth == 0) return i;
    }
    throw SyntaxError("A bracket in the statement is not closed.");
}

std::size_t ExpressionWriter::FindWord(Range range, std::string_view word) const {
    for (std::size_t i = range.begin; i < range.end; ++i) {
        if (IsWord(i, word)) return i;
        if (IsWord(i, "(")) i = std::min(Match(i), range.end);
    }
    return range.end;
}

std::vector<Range> ExpressionWriter::SplitByComma(Range range) const {
    std::vector<Range> parts;
    for (std::size_t begin = range.begin;;) {
        const std::size_t comma = FindWord({begin, range.end}, ",");
        parts.push_back({begin, comma});
        if (comma >= range.end) return parts;
        begin = comma + 1;
    }
}

// A value made of a comparison is -1 when it holds; the engine would say 1.
void ExpressionWriter::Expression(Range range, Use use) {
    const bool truth = use == Use::Value && Compares(range);
    if (truth) Write("- (");
    for (std::size_t i = range.begin; i < range.end;) {
        if (BreaksChain(i)) {
            WriteToken(i++);
            continue;
        }
        std::size_t end = i;
        while (end < range.end && !BreaksChain(end)) end = IsWord(end, "(") ? Match(end) + 1 : end + 1;
        end = std::min(end, range.end);
        // What stands between brackets is tested where the whole is tested.
        if (use == Use::Condition && IsWord(i, "(") && Match(i) + 1 == end && !IsWord(i + 1, "select")) {
            Write("(");
            Expression({i + 1, end - 1}, Compares({i + 1, end - 1}) ? Use::Condition : Use::Value);
            Write(")");
        } else {
            Chain({i, end});
        }
        i = end;
    }
    if (truth) Write(")");
}

bool ExpressionWriter::BreaksChain(std::size_t index) const {
    const Token& token = At(index);
    return OneOf(token, comparisons) || OneOf(token, otherBreaks);
}

bool ExpressionWriter::Compares(Range range) const {
    int cases = 0;
    for (std::size_t i = range.begin; i < range.end; ++i) {
        if (IsWord(i, "(")) {
            i = std::min(Match(i), range.end);
            continue;
        }
        if (IsWord(i, "case")) ++cases;
        if (IsWord(i, "end")) --cases;
        if (cases == 0 &&
            (OneOf(At(i), comparisons) || IsWord(i, "and") || IsWord(i, "or") || IsWord(i, "not")))
            return true;
    }
    return false;
}

// Terms joined by "+": one text joined to another, or a sum. Text and number together are a sum, in which
// the text is read as a number or refused. Null on either side gives Null both ways.
void ExpressionWriter::Chain(Range range) {
    std::vector<Range> parts;
    std::vector<std::size_t> signs;
    std::size_t begin = range.begin;
    bool texts = false, numbers = false, pluses = false;
    for (std::size_t i = range.begin; i < range.end; ++i) {
        if (IsWord(i, "(")) {
            i = Match(i);
            continue;
        }
        const bool plus = IsWord(i, "+");
        if (!plus && !IsWord(i, "-")) continue;
        // A sign in front of a term belongs to it.
        if (i == begin || IsWord(i - 1, "*") || IsWord(i - 1, "/")) continue;
        parts.push_back({begin, i});
        signs.push_back(i);
        pluses = pluses || plus;
        numbers = numbers || !plus;
        begin = i + 1;
    }
    parts.push_back({begin, range.end});
    if (!pluses) return Terms(range);

    std::vector<Content> contents;
    for (const Range& part : parts) {
        contents.push_back(ContentOf(part));
        texts = texts || contents.back() == Content::Text;
        numbers = numbers || contents.back() == Content::Number;
    }
    const bool joins = texts && !numbers;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0) joins ? Write("||") : WriteToken(signs[i - 1]);
        const bool read = texts && numbers && contents[i] == Content::Text;
        if (read) Write("ReadNumber (");
        Terms(parts[i]);
        if (read) Write(")");
    }
}

void ExpressionWriter::Terms(Range range) {
    for (std::size_t i = range.begin; i < range.end; ++i) {
        if (IsWord(i, "(")) {
            const std::size_t close = Match(i);
            Write("(");
            if (IsWord(i + 1, "select")) {
                subselect({i + 1, close});
            } else {
                Arguments({i + 1, close});
            }
            Write(")");
            i = close;
        } else if (IsWord(i, "/")) {
            // A quotient by 0 is an error of its own, and two whole numbers have a fraction.
            const std::size_t end = TermEnd(i + 1, range.end);
            Write("/ Divisor (");
            Terms({i + 1, end});
            Write(")");
            i = end - 1;
        } else if (IsName(At(i)) && IsWord(i + 1, "(") && i + 1 < range.end) {
            const std::size_t close = Match(i + 1);
            Function(i, close);
            i = close;
        } else {
            WriteToken(i);
        }
    }
}

// The end of one factor: a sign, then a literal, a column, a function with its brackets, or brackets.
std::size_t ExpressionWriter::TermEnd(std::size_t begin, std::size_t end) const {
    std::size_t i = begin;
    while (i < end && (IsWord(i, "-") || IsWord(i, "+"))) ++i;
    if (i < end && IsWord(i, "(")) return Match(i) + 1;
    if (i < end) ++i;
    while (i + 1 < end && IsWord(i, ".")) i += 2;
    if (i < end && IsWord(i, "(")) return Match(i) + 1;
    return i;
}

void ExpressionWriter::Arguments(Range range) {
    const std::vector<Range> parts = SplitByComma(range);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0) Write(",");
        Expression(parts[i], Use::Value);
    }
}

void ExpressionWriter::Function(std::size_t name, std::size_t close) {
    const Range inside{name + 2, close};
    if (IsWord(inside.begin, "select")) { // exists (select ...)
        WriteToken(name);
        Write("(");
        subselect(inside);
        return Write(")");
    }
    const std::vector<Range> arguments = SplitByComma(inside);
    // A date given as a literal is read here; its time of day does not count.
    if (Is(At(name), "datevalue") && inside.end - inside.begin == 1 && At(inside.begin).literal >= 0)
        return Parameter(Slot::Kind::Day, At(inside.begin).literal);

    for (const FunctionRule& rule : functions) {
        if (rule.text.empty() || !Is(At(name), rule.name)) continue;
        if (rule.arguments >= 0 && rule.arguments != static_cast<int>(arguments.size())) continue;
        for (const std::string& word : Split(rule.text, ' ')) {
            if (word[0] == '$') {
                Expression(arguments[static_cast<std::size_t>(word[1] - '1')], Use::Value);
            } else {
                Write(word);
            }
        }
        return;
    }
    WriteToken(name);
    Write("(");
    Arguments(inside);
    Write(")");
}

Content ExpressionWriter::ContentOf(Range range) const {
    if (range.Empty()) return Content::Unknown;
    if (IsWord(range.begin, "-")) return Content::Number;
    const Token& first = At(range.begin);
    const std::size_t end = TermEnd(range.begin, range.end);
    if (end < range.end && (IsWord(end, "*") || IsWord(end, "/"))) return Content::Number;
    switch (first.kind) {
    case TokenKind::Number:
    case TokenKind::Amount:
        return Content::Number;
    case TokenKind::Text:
        return Content::Text;
    case TokenKind::Date:
        return Content::Date;
    default:
        break;
    }
    if (Is(first, "(")) {
        if (IsWord(range.begin + 1, "select")) return Content::Unknown;
        const Range inner{range.begin + 1, Match(range.begin)};
        if (Compares(inner)) return Content::Number;
        // A joined text between brackets is a text; all its terms are alike, so the first one tells.
        for (std::size_t i = inner.begin; i < inner.end;) {
            const std::size_t stop = TermEnd(i, inner.end);
            const bool multiplied = IsWord(stop, "*") || IsWord(stop, "/");
            const Content content = multiplied ? Content::Number : ContentOf({i, stop});
            if (content != Content::Unknown) return content;
            i = stop + 1;
        }
        return Content::Unknown;
    }
    if (IsName(first) && IsWord(range.begin + 1, "(")) {
        for (const FunctionRule& rule : functions) {
            if (Is(first, rule.name)) return rule.content;
        }
        // The greatest and least of a column are of its kind.
        return ContentOf({range.begin + 2, Match(range.begin + 1)});
    }
    if (IsName(first)) {
        if (Is(first, "true") || Is(first, "false")) return Content::Number;
        if (IsWord(range.begin + 1, ".") && range.begin + 2 < range.end)
            return ContentOfName(first.text, At(range.begin + 2).text);
        return ContentOfName({}, first.text);
    }
    return Content::Unknown;
}

// Looks in the tables of the statement; a stored query's column takes the kind that this name has in all
// tables, and stays unknown where they differ.
Content ExpressionWriter::ContentOfName(std::string_view table, std::string_view column) const {
    bool open = false;
    for (const auto& [alias, found] : scope) {
        if (!table.empty() && !EqualsNoCase(alias, table)) continue;
        if (found == nullptr) {
            open = true;
            continue;
        }
        if (const Column* match = FindColumn(*found, column)) return ContentOfColumn(*match);
    }
    if (!open && !scope.empty()) return Content::Unknown;
    Content content = Content::Unknown;
    for (const Table& any : catalog_.tables) {
        const Column* match = FindColumn(any, column);
        if (match == nullptr) continue;
        if (content != Content::Unknown && content != ContentOfColumn(*match)) return Content::Unknown;
        content = ContentOfColumn(*match);
    }
    return content;
}

} // namespace varnik::jet
