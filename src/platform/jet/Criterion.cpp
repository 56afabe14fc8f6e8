// Record finds and filters: comparisons of a column with a literal, joined by And. Their wildcard is "*".

#include "platform/jet/Translate.h"

#include "common/Text.h"

namespace varnik::jet {
namespace {

constexpr std::pair<std::string_view, Term::Operator> operators[] = {
    {"=", Term::Operator::Equal},      {"<>", Term::Operator::Unequal}, {"<", Term::Operator::Less},
    {"<=", Term::Operator::LessEqual}, {">", Term::Operator::Greater},  {">=", Term::Operator::GreaterEqual},
    {"like", Term::Operator::Like}};

// "*" and "?" as the engine knows them; "%" and "_" are wildcards already.
std::string Pattern(std::string text) {
    for (char& c : text) {
        if (c == '*') c = '%';
        if (c == '?') c = '_';
    }
    return text;
}

Value Literal(const Tokens& tokens, std::size_t& at, const Regional& regional) {
    const bool negative = at < tokens.list.size() && Is(tokens.list[at], "-");
    if (negative) ++at;
    if (at >= tokens.list.size()) throw SyntaxError("The criterion has no value to compare with.");
    const Token& token = tokens.list[at++];
    if (token.kind == TokenKind::Number) {
        const double number = std::strtod(std::string(token.text).c_str(), nullptr);
        return negative ? -number : number;
    }
    if (token.kind == TokenKind::Text) return tokens.literals[static_cast<std::size_t>(token.literal)];
    if (token.kind == TokenKind::Date) {
        const std::string& text = tokens.literals[static_cast<std::size_t>(token.literal)];
        const std::optional<DateTime> date = ParseDate(text, regional);
        if (!date) throw SyntaxError("\"" + text + "\" is not a date.");
        return *date;
    }
    if (Is(token, "true")) return true;
    if (Is(token, "false")) return false;
    if (Is(token, "null")) return nullptr;
    throw SyntaxError("The criterion compares a column with a text, a number or a date.");
}

std::size_t NextCharacter(std::string_view text, std::size_t at) {
    ++at;
    while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80) ++at;
    return at;
}

} // namespace

std::vector<Term> ParseCriterion(std::string_view criterion, const Regional& regional) {
    const Tokens tokens = Tokenize(criterion);
    std::vector<Term> terms;
    for (std::size_t at = 0; at < tokens.list.size();) {
        if (!terms.empty() && !Is(tokens.list[at++], "and"))
            throw SyntaxError("The comparisons of a criterion are joined by And.");
        Term term;
        if (at + 2 > tokens.list.size() ||
            (tokens.list[at].kind != TokenKind::Word && tokens.list[at].kind != TokenKind::Bracketed))
            throw SyntaxError("A criterion is a column, a comparison and a value.");
        term.column = tokens.list[at++].text;
        bool known = false;
        for (const auto& [word, comparison] : operators) {
            if (!Is(tokens.list[at], word)) continue;
            term.comparison = comparison;
            known = true;
        }
        if (!known) throw SyntaxError("A criterion is a column, a comparison and a value.");
        ++at;
        term.value = Literal(tokens, at, regional);
        if (term.comparison == Term::Operator::Like && term.value.IsText())
            term.value = Pattern(term.value.Text());
        terms.push_back(std::move(term));
    }
    if (terms.empty()) throw SyntaxError("The criterion is empty.");
    return terms;
}

std::string ConditionOf(const Term& term, std::size_t parameter) {
    std::string condition = "\"";
    for (const char c : term.column) condition.append(c == '"' ? 2 : 1, c);
    condition += "\" ";
    if (term.value.IsNull())
        return condition + (term.comparison == Term::Operator::Unequal ? "is not null" : "is null");
    for (const auto& [word, comparison] : operators) {
        if (comparison == term.comparison) condition += word;
    }
    return condition + " ?" + std::to_string(parameter);
}

namespace {

// ASCII needs no table of letters; nearly all texts are.
bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}
char Fold(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// Backtracks to the last "%" only, which is enough for this kind of pattern.
bool Matches(std::string_view wanted, std::string_view found) {
    std::size_t p = 0, t = 0, star = std::string_view::npos, mark = 0;
    while (t < found.size()) {
        if (p < wanted.size() && wanted[p] == '%') {
            star = p++;
            mark = t;
        } else if (p < wanted.size() && wanted[p] == '_') {
            ++p;
            t = NextCharacter(found, t);
        } else if (p < wanted.size() && Fold(wanted[p]) == Fold(found[t])) {
            ++p;
            ++t;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            mark = NextCharacter(found, mark);
            t = mark;
        } else {
            return false;
        }
    }
    while (p < wanted.size() && wanted[p] == '%') ++p;
    return p == wanted.size();
}

} // namespace

bool Like(std::string_view pattern, std::string_view text) {
    if (IsAscii(pattern) || IsAscii(text)) return Matches(pattern, text);
    return Matches(Upper(pattern), Upper(text));
}

} // namespace varnik::jet
