#include "platform/jet/Catalog.h"

#include "common/Text.h"

namespace varnik::jet {

const Table* Catalog::FindTable(std::string_view name) const {
    for (const Table& table : tables) {
        if (EqualsNoCase(table.name, name)) return &table;
    }
    return nullptr;
}

const Column* FindColumn(const Table& table, std::string_view name) {
    for (const Column& column : table.columns) {
        if (EqualsNoCase(column.name, name)) return &column;
    }
    return nullptr;
}

} // namespace varnik::jet
