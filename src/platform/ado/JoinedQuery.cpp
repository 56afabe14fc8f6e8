#include "platform/ado/JoinedQuery.h"

#include "platform/jet/Translate.h"

#include <algorithm>
#include <vector>

namespace varnik::ado {

namespace {

bool IsAlias(const std::vector<jet::Token>& list, std::size_t at) {
    if (at >= list.size() || list[at].kind == jet::TokenKind::Symbol) return false;
    constexpr std::string_view next[] = {"on",    "inner", "left", "right", "full",
                                         "cross", "outer", "join", "where", "order"};
    return std::ranges::none_of(next, [&](std::string_view word) { return jet::Is(list[at], word); });
}

} // namespace

std::optional<JoinedQuery> ReadJoinedQuery(std::string_view select, const jet::Catalog& catalog) {
    jet::Tokens tokens;
    try {
        tokens = jet::Tokenize(select);
    } catch (const jet::SyntaxError&) {
        return {}; // the engine's own dialect says more than ours
    }
    const std::vector<jet::Token>& list = tokens.list;
    const auto is = [&](std::size_t at, std::string_view word) {
        return at < list.size() && jet::Is(list[at], word);
    };
    if (!is(0, "select")) return {};
    std::vector<std::string> names;
    std::size_t from = 0;
    int depth = 0;
    for (std::size_t i = 1; i < list.size(); ++i) {
        depth += is(i, "(") - is(i, ")");
        if (depth > 0) continue;
        for (const std::string_view word : {"distinct", "union", "group", "having", "limit", "except"})
            if (is(i, word)) return {};
        const bool first = from == 0 && is(i, "from");
        if (first) from = i;
        if (from == 0 || !(first || is(i, "join") || is(i, ","))) continue;
        if (is(i, ",") && std::any_of(list.begin() + static_cast<std::ptrdiff_t>(from),
                                      list.begin() + static_cast<std::ptrdiff_t>(i),
                                      [](const jet::Token& token) { return jet::Is(token, "order"); }))
            break; // the columns of the order
        if (i + 1 >= list.size() || catalog.FindTable(list[i + 1].text) == nullptr) return {};
        const std::size_t alias = is(i + 2, "as") ? i + 3 : i + 2;
        names.emplace_back(list[IsAlias(list, alias) ? alias : i + 1].text);
    }
    if (names.empty()) return {};
    // The columns end where FROM begins.
    const auto columns = static_cast<std::size_t>(list[from].text.data() - select.data());
    JoinedQuery query{std::string(select.substr(0, columns)), names.size()};
    for (std::size_t i = 0; i < names.size(); ++i)
        query.select += ", " + names[i] + ".rowid AS \"#" + std::to_string(i) + "\"";
    query.select.append(" ").append(select.substr(columns));
    return query;
}

} // namespace varnik::ado
