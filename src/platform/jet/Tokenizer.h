#pragma once
// Cuts a statement of the screens' dialect into tokens. Literals are taken out on the way: what remains is
// the statement's shape, the same for every text that was joined at one place.

#include <string>
#include <string_view>
#include <vector>

namespace varnik::jet {

enum class TokenKind {
    Word,      // a name or a keyword
    Bracketed, // a name that stood in brackets
    Number,    // stays in the text
    Amount,    // a number that is written into a column: leaves as a parameter
    Text,
    Date, // between number signs
    Symbol
};

struct Token {
    TokenKind kind;
    std::string_view text; // for literals as they stood, without their quotes
    int literal = -1;      // which literal of the statement, -1 for all else
};

struct Tokens {
    std::vector<Token> list;
    std::vector<std::string> literals;
    std::string shape;
};

// Reads one statement; a ";" may end it. SyntaxError for an unclosed quote, bracket or date, a character
// that belongs nowhere, or a second statement. The tokens point into the text, which must outlive them.
Tokens Tokenize(std::string_view sql);

// Whether the token is this keyword or symbol; keywords without regard to case.
bool Is(const Token& token, std::string_view word);

} // namespace varnik::jet
