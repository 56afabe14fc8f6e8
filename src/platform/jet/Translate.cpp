#include "platform/jet/Translate.h"

#include "common/Text.h"

#include <charconv>

namespace varnik::jet {
namespace {

DateTime ReadDate(const std::string& text, const Regional& regional) {
    const std::optional<DateTime> date = ParseDate(text, regional);
    if (!date) throw SyntaxError("\"" + text + "\" is not a date.");
    return *date;
}

// Digits with at most one full stop and a power: what the tokenizer takes for a number.
Value ReadAmount(const std::string& text) {
    std::int64_t whole = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, whole);
    if (result.ec == std::errc() && result.ptr == end) return whole;
    double number = 0;
    std::from_chars(text.data(), end, number);
    return number;
}

} // namespace

std::vector<Value> Fill(const Form& form, const Tokens& tokens, const Regional& regional) {
    std::vector<Value> parameters;
    parameters.reserve(form.slots.size());
    for (const Slot& slot : form.slots) {
        const std::string& text = tokens.literals[static_cast<std::size_t>(slot.literal)];
        switch (slot.kind) {
        case Slot::Kind::Text:
            parameters.emplace_back(text);
            break;
        case Slot::Kind::Amount:
            parameters.push_back(ReadAmount(text));
            break;
        case Slot::Kind::Date:
            parameters.emplace_back(ReadDate(text, regional));
            break;
        case Slot::Kind::Day:
            parameters.emplace_back(DateTime{ReadDate(text, regional).day, 0});
            break;
        }
    }
    return parameters;
}

Statement Translate(std::string_view sql, const Catalog& catalog, const Regional& regional) {
    const Tokens tokens = Tokenize(sql);
    Form form = Rewrite(tokens, catalog);
    form.statement.parameters = Fill(form, tokens, regional);
    return std::move(form.statement);
}

} // namespace varnik::jet
