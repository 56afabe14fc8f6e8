#include "platform/jet/Tokenizer.h"

#include "platform/jet/Translate.h"

#include <cctype>

namespace varnik::jet {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
// Every byte beyond ASCII belongs to a letter of a name.
bool StartsName(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 128;
}
bool IsNamePart(char c) { return StartsName(c) || IsDigit(c) || c == '$'; }

bool SameWord(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i])))
            return false;
    }
    return true;
}

class Scanner {
public:
    explicit Scanner(std::string_view sql) : sql_(sql) { result_.shape.reserve(sql.size()); }

    Tokens Run() {
        for (Skip(); at_ < sql_.size(); Skip()) {
            if (sql_[at_] == ';') {
                ++at_;
                Skip();
                if (at_ < sql_.size()) throw SyntaxError("Only one statement can run at a time.");
                break;
            }
            Next();
        }
        if (derived_ > 0) throw SyntaxError("A bracket is not closed.");
        return std::move(result_);
    }

private:
    void Next() {
        const char c = sql_[at_];
        if (c == '\'' || c == '"') {
            Quoted(c);
        } else if (c == '#') {
            const std::size_t end = Closing('#', "A date is not closed by \"#\".");
            AddLiteral(TokenKind::Date, std::string(sql_.substr(at_ + 1, end - at_ - 1)), '\x02');
            at_ = end + 1;
        } else if (c == '[') {
            Bracket();
        } else if (c == ']' && derived_ > 0) {
            // The end of "[select ...]. AS a".
            --derived_;
            Add(TokenKind::Symbol, ")");
            ++at_;
            if (at_ < sql_.size() && sql_[at_] == '.') ++at_;
        } else if (IsDigit(c) || (c == '.' && IsDigit(Peek(1)) && !AfterName())) {
            Number();
        } else if (StartsName(c)) {
            std::size_t end = at_;
            while (end < sql_.size() && IsNamePart(sql_[end])) ++end;
            Word(sql_.substr(at_, end - at_));
            at_ = end;
        } else {
            Symbol();
        }
    }

    void Skip() {
        while (at_ < sql_.size() && IsBlank(sql_[at_])) ++at_;
    }
    char Peek(std::size_t ahead) const { return at_ + ahead < sql_.size() ? sql_[at_ + ahead] : '\0'; }
    bool AfterName() const { return at_ > 0 && (IsNamePart(sql_[at_ - 1]) || sql_[at_ - 1] == ']'); }

    std::size_t Closing(char mark, const char* complaint) const {
        const std::size_t end = sql_.find(mark, at_ + 1);
        if (end == std::string_view::npos) throw SyntaxError(complaint);
        return end;
    }

    void Quoted(char quote) {
        std::string content;
        for (std::size_t from = at_ + 1;;) {
            const std::size_t end = sql_.find(quote, from);
            if (end == std::string_view::npos)
                throw SyntaxError("A text in the statement is not closed by a quote.");
            content.append(sql_, from, end - from);
            if (end + 1 < sql_.size() && sql_[end + 1] == quote) { // a doubled quote stands for one
                content += quote;
                from = end + 2;
                continue;
            }
            at_ = end + 1;
            break;
        }
        AddLiteral(TokenKind::Text, std::move(content), '\x01');
    }

    void Bracket() {
        std::size_t start = at_ + 1;
        while (start < sql_.size() && IsBlank(sql_[start])) ++start;
        if (SameWord(sql_.substr(start, 6), "select") && start + 6 < sql_.size() &&
            IsBlank(sql_[start + 6])) {
            ++derived_;
            Add(TokenKind::Symbol, "(");
            ++at_;
            return;
        }
        const std::size_t end = Closing(']', "A bracket is not closed.");
        Add(TokenKind::Bracketed, sql_.substr(at_ + 1, end - at_ - 1));
        at_ = end + 1;
    }

    // Ends where the number ends, so that a word may follow without a blank ("101Where").
    void Number() {
        std::size_t end = at_;
        while (end < sql_.size() && IsDigit(sql_[end])) ++end;
        if (end < sql_.size() && sql_[end] == '.') {
            ++end;
            while (end < sql_.size() && IsDigit(sql_[end])) ++end;
        }
        if (end < sql_.size() && (sql_[end] == 'e' || sql_[end] == 'E')) {
            std::size_t power = end + 1;
            if (power < sql_.size() && (sql_[power] == '+' || sql_[power] == '-')) ++power;
            if (power < sql_.size() && IsDigit(sql_[power])) {
                end = power;
                while (end < sql_.size() && IsDigit(sql_[end])) ++end;
            }
        }
        const std::string_view text = sql_.substr(at_, end - at_);
        if (writing_) {
            AddLiteral(TokenKind::Amount, std::string(text), '\x03');
        } else {
            Add(TokenKind::Number, text);
        }
        at_ = end;
    }

    void Word(std::string_view word) {
        // Numbers leave as parameters where values are written: between SET and WHERE, and after VALUES.
        if (SameWord(word, "set") || SameWord(word, "values")) writing_ = true;
        if (SameWord(word, "where") || SameWord(word, "select")) writing_ = false;
        Add(TokenKind::Word, word);
    }

    void Symbol() {
        static constexpr std::string_view pairs[] = {"<>", "<=", ">=", "!="};
        const std::string_view two = sql_.substr(at_, 2);
        for (const std::string_view pair : pairs) {
            if (two == pair) {
                Add(TokenKind::Symbol, two);
                at_ += 2;
                return;
            }
        }
        static constexpr std::string_view known = "().,=<>+-*/";
        if (known.find(sql_[at_]) == std::string_view::npos)
            throw SyntaxError("The statement has a \"" + std::string(1, sql_[at_]) +
                              "\" where none can stand.");
        Add(TokenKind::Symbol, sql_.substr(at_, 1));
        ++at_;
    }

    void Add(TokenKind kind, std::string_view text) {
        result_.list.push_back({kind, text, -1});
        if (kind == TokenKind::Bracketed) {
            result_.shape += '[';
            result_.shape += text;
            result_.shape += ']';
        } else {
            result_.shape += text;
        }
        result_.shape += ' ';
    }

    void AddLiteral(TokenKind kind, std::string content, char mark) {
        result_.list.push_back({kind, {}, static_cast<int>(result_.literals.size())});
        result_.literals.push_back(std::move(content));
        result_.shape += mark;
        result_.shape += ' ';
    }

    std::string_view sql_;
    std::size_t at_ = 0;
    int derived_ = 0;
    bool writing_ = false;
    Tokens result_;
};

} // namespace

Tokens Tokenize(std::string_view sql) { return Scanner(sql).Run(); }

bool Is(const Token& token, std::string_view word) {
    return (token.kind == TokenKind::Word || token.kind == TokenKind::Symbol) && SameWord(token.text, word);
}

} // namespace varnik::jet
