#pragma once
// Rows and facts for reports that are tested without a database.

#include "common/Text.h"
#include "reports/engine/Definition.h"
#include "reports/engine/Report.h"
#include "reports/engine/Rows.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace varnik::reports {

// Rows written as a table: the first line names the columns, a name that ends in "#" holds figures, in "@"
// dates (ISO). Cells are parted by "|"; an empty one is Null.
inline Rows RowsOf(const std::string& table) {
    std::vector<std::string> lines = Split(table, '\n'), names = Split(lines.front(), '|');
    std::vector<char> kinds;
    for (std::string& name : names) {
        name = Trim(name);
        kinds.push_back(name.back());
        if (name.back() == '#' || name.back() == '@') name.pop_back();
    }
    Rows rows(names);
    for (std::size_t i = 1; i < lines.size(); ++i) {
        if (Trim(lines[i]).empty()) continue;
        std::vector<Value> values;
        for (const std::string& cell : Split(lines[i], '|')) {
            const std::string text = Trim(cell);
            const char kind = kinds[values.size()];
            values.push_back(text.empty()  ? Value()
                             : kind == '#' ? Value(std::strtod(text.c_str(), nullptr))
                             : kind == '@' ? Value(*FromIso(text))
                                           : Value(text));
        }
        values.resize(names.size());
        rows.Add(values);
    }
    return rows;
}

inline Facts FactsOf(std::map<std::string, std::string> parameters = {}) {
    Facts facts;
    facts.company = {"TOKO MAJU JAYA", "Building materials and tools", "Jl. Merdeka 17, Bandung",
                     "Tel. 022 555 0117"};
    facts.parameters = std::move(parameters);
    facts.now = *FromIso("2026-11-22 09:30:00");
    facts.regional.order = DateOrder::DayMonthYear;
    return facts;
}

inline std::string FileText(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

} // namespace varnik::reports
