#include "data/Numbering.h"

#include "common/Numbers.h"

namespace varnik::data {

std::string NextNumber(const Services& services, Document document) {
    const NumberingRule& rule = NumberingOf(document);
    const std::string& user = services.session.NoUser;
    ado::Connection connection(services.data, services.session.ConnectionString);
    ado::Recordset highest(std::string(rule.statement) + user + "'", connection, ado::CursorType::Static);
    std::optional<std::string> counter;
    if (!highest.Empty()) counter = NullToText(highest[0], services.regional);
    return NumberAfter(counter, rule.reading, user);
}

} // namespace varnik::data
