#pragma once
// What the SQL layers have to know of the tables: names, types, sizes. The tables themselves stand as one
// constexpr list in data/; here are only the words in which it is written.

#include <span>
#include <string_view>

namespace varnik::jet {

enum class ColumnType { Text, Date, Double, Single, Long, Short, Boolean, Decimal };

struct Column {
    std::string_view name;
    ColumnType type = ColumnType::Text;
    int size = 0; // characters, text only
    bool required = false;
    bool autoIncrement = false;
    // Postings add to it. A recordset that saves it adds its change to what the row holds at that moment, so
    // that programs posting at once lose nothing.
    bool accumulates = false;
};

struct Table {
    std::string_view name;
    std::span<const Column> columns; // in creation order, the order of SELECT *
};

struct Catalog {
    std::span<const Table> tables;

    const Table* FindTable(std::string_view name) const; // without regard to case; null when unknown
};

const Column* FindColumn(const Table& table, std::string_view name);

} // namespace varnik::jet
