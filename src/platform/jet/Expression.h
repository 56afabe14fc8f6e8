#pragma once
// Rewrites the expressions of a statement, token by token. It knows just enough of their structure for what
// the engine would read otherwise: joining of texts, division, comparisons used as values, dates, functions.

#include "platform/jet/Catalog.h"
#include "platform/jet/Tokenizer.h"
#include "platform/jet/Translate.h"

#include <functional>
#include <string>
#include <vector>

namespace varnik::jet {

// A stretch of tokens, from the first to behind the last.
struct Range {
    std::size_t begin = 0, end = 0;
    bool Empty() const { return begin >= end; }
};

// In a condition a comparison is just tested; where a value is wanted it counts as -1 or 0.
enum class Use { Condition, Value };

// What a term holds, as far as columns, literals and functions tell.
enum class Content { Unknown, Text, Number, Date };

class ExpressionWriter {
public:
    ExpressionWriter(const Tokens& tokens, const Catalog& catalog) : tokens_(tokens), catalog_(catalog) {}

    void Expression(Range range, Use use);
    void Write(std::string_view text);
    void WriteToken(std::size_t index);

    std::size_t Match(std::size_t open) const; // the ")" to a "("; SyntaxError when there is none
    std::vector<Range> SplitByComma(Range range) const;
    // First token of the range outside brackets that is this word, or its end.
    std::size_t FindWord(Range range, std::string_view word) const;

    const Token& At(std::size_t index) const { return tokens_.list[index]; }
    bool IsWord(std::size_t index, std::string_view word) const {
        return index < tokens_.list.size() && Is(tokens_.list[index], word);
    }

    std::string output;
    std::vector<Slot> slots;
    // Tables that column names may come from.
    std::vector<std::pair<std::string, const Table*>> scope;
    // Writes a select that stands between brackets.
    std::function<void(Range)> subselect;

private:
    void Chain(Range range);
    void Terms(Range range);
    void Function(std::size_t name, std::size_t close);
    void Arguments(Range range);
    void Parameter(Slot::Kind kind, int literal);
    std::size_t TermEnd(std::size_t begin, std::size_t end) const;
    Content ContentOf(Range range) const;
    Content ContentOfName(std::string_view table, std::string_view column) const;
    bool Compares(Range range) const;
    bool BreaksChain(std::size_t index) const;

    const Tokens& tokens_;
    const Catalog& catalog_;
};

} // namespace varnik::jet
