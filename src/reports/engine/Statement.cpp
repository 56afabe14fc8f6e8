#include "reports/engine/Statement.h"

#include "common/Numbers.h"
#include "common/Text.h"
#include "platform/ado/Ado.h"
#include "reports/engine/Report.h"

#include <cctype>
#include <cstdlib>
#include <vector>

namespace varnik::reports {

namespace {

constexpr int MonthsInYear = 12;

struct Token {
    enum class Kind { Word, Text, Sign, Open } kind; // Open: a text literal without an end
    std::string text;                                // words without brackets, literals without quotes
    std::size_t begin, end;
};

bool InWord(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return std::isalnum(byte) != 0 || byte >= 0x80 || character == '_';
}

std::vector<Token> Tokens(std::string_view sql) {
    std::vector<Token> tokens;
    for (std::size_t at = 0; at < sql.size();) {
        const std::size_t begin = at;
        if (std::isspace(static_cast<unsigned char>(sql[at])) != 0) {
            ++at;
        } else if (sql[at] == '\'' || sql[at] == '"') {
            const char quote = sql[at++];
            std::string text;
            bool closed = false;
            while (at < sql.size() && !closed) {
                const bool doubled = sql[at] == quote && at + 1 < sql.size() && sql[at + 1] == quote;
                closed = sql[at] == quote && !doubled;
                if (!closed) text += sql[at];
                at += doubled ? 2 : 1;
            }
            tokens.push_back({closed ? Token::Kind::Text : Token::Kind::Open, text, begin, at});
        } else if (sql[at] == '[') {
            const std::size_t close = std::min(sql.find(']', at), sql.size());
            tokens.push_back({Token::Kind::Word, std::string(sql.substr(at + 1, close - at - 1)), begin,
                              std::min(close + 1, sql.size())});
            at = tokens.back().end;
        } else if (InWord(sql[at])) {
            while (at < sql.size() && InWord(sql[at])) ++at;
            tokens.push_back({Token::Kind::Word, std::string(sql.substr(begin, at - begin)), begin, at});
        } else {
            ++at;
            tokens.push_back({Token::Kind::Sign, std::string(1, sql[begin]), begin, at});
        }
    }
    return tokens;
}

bool IsWord(const Token& token, std::string_view word) {
    return token.kind == Token::Kind::Word && EqualsNoCase(token.text, word);
}

bool IsSign(const Token& token, char sign) {
    return token.kind == Token::Kind::Sign && token.text[0] == sign;
}

// One column between SELECT and FROM: its text, and the name under which it comes back.
struct Asked {
    std::string text, name;
};

// Columns from token 1 up to the FROM of the same depth; `from` is its place in the text.
std::optional<std::vector<Asked>> AskedFor(const std::string& sql, const std::vector<Token>& tokens,
                                           std::size_t& from, std::size_t& rest) {
    std::vector<Asked> asked;
    int depth = 0;
    std::size_t begin = 1;
    for (std::size_t i = 1; i < tokens.size(); ++i) {
        if (IsSign(tokens[i], '(')) ++depth;
        if (IsSign(tokens[i], ')')) --depth;
        const bool ends = depth == 0 && IsWord(tokens[i], "FROM");
        if (depth != 0 || !(ends || IsSign(tokens[i], ','))) continue;
        if (begin < i && tokens[i - 1].kind == Token::Kind::Word)
            asked.push_back({sql.substr(tokens[begin].begin, tokens[i - 1].end - tokens[begin].begin),
                             tokens[i - 1].text});
        else
            return {};
        begin = i + 1;
        if (!ends) continue;
        from = tokens[i].begin;
        rest = sql.size();
        for (std::size_t j = i + 1; j < tokens.size() && rest == sql.size(); ++j)
            if (IsWord(tokens[j], "WHERE") || IsWord(tokens[j], "ORDER") || IsWord(tokens[j], "GROUP"))
                rest = tokens[j].begin;
        return asked;
    }
    return {};
}

} // namespace

bool LiteralsClosed(std::string_view sql) {
    for (const Token& token : Tokens(sql))
        if (token.kind == Token::Kind::Open) return false;
    return true;
}

std::optional<std::string> WithoutMissingColumns(const std::string& sql,
                                                 const std::function<bool(const std::string&)>& runs) {
    const std::vector<Token> tokens = Tokens(sql);
    if (tokens.empty() || !IsWord(tokens[0], "SELECT")) return {};
    std::size_t from = 0, rest = 0;
    const auto asked = AskedFor(sql, tokens, from, rest);
    if (!asked) return {};
    const std::string source = sql.substr(from, rest - from);
    std::string columns;
    bool anyLeft = false;
    for (const Asked& column : *asked) {
        const bool there = runs("SELECT " + column.text + " " + source + " WHERE 1=0");
        anyLeft = anyLeft || there;
        columns += (columns.empty() ? " " : ", ") + (there ? column.text : "Null AS [" + column.name + "]");
    }
    if (!anyLeft) return {};
    return "SELECT" + columns + " " + sql.substr(from);
}

std::optional<std::string> ComparedWith(std::string_view sql, std::string_view column) {
    const std::vector<Token> tokens = Tokens(sql);
    for (std::size_t i = 0; i + 2 < tokens.size(); ++i)
        if (IsWord(tokens[i], column) && IsSign(tokens[i + 1], '=') &&
            tokens[i + 2].kind == Token::Kind::Text)
            return tokens[i + 2].text;
    return {};
}

std::optional<AskedMonth> MonthAskedOf(std::string_view sql, std::string_view column) {
    const std::vector<Token> tokens = Tokens(sql);
    // function ( [table .] column ) = number
    const auto asked = [&](std::string_view function) {
        for (std::size_t i = 0; i + 3 < tokens.size(); ++i)
            if (IsWord(tokens[i], column) && IsSign(tokens[i + 1], ')') && IsSign(tokens[i + 2], '=')) {
                const std::size_t open = i >= 2 && IsSign(tokens[i - 1], '.') ? i - 3 : i - 1;
                if (open >= 1 && open < i && IsSign(tokens[open], '(') && IsWord(tokens[open - 1], function))
                    return std::atoi(tokens[i + 3].text.c_str());
            }
        return 0;
    };
    const AskedMonth found{asked("month"), asked("year")};
    if (found.month < 1 || found.month > MonthsInYear || found.year == 0) return {};
    return found;
}

std::string ForDocument(const std::string& query, std::string_view statement, const std::string& file) {
    std::string result;
    for (std::size_t at = 0;;) {
        const std::size_t open = query.find('{', at), close = query.find('}', at);
        if (open == std::string::npos || close == std::string::npos) return result + query.substr(at);
        const std::string column = Trim(query.substr(open + 1, close - open - 1));
        const auto number = ComparedWith(statement, column);
        if (!number)
            throw ado::DataError(NoDocument, "The report \"" + file +
                                                 "\" prints one document, and the request does not say "
                                                 "which: nothing in its statement is compared with " +
                                                 column + ".");
        result += query.substr(at, open - at) + "'" + ReplaceText(*number, "'", "''") + "'";
        at = close + 1;
    }
}

} // namespace varnik::reports
