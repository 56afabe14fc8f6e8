#pragma once
// Writes many rows into one table, each value as the column's rule stores it. Yes/no columns that are not
// named are False, as in a row that a screen adds; all else that is not named is Null.

#include "common/Value.h"
#include "platform/jet/Catalog.h"

#include <initializer_list>
#include <sqlite3.h>
#include <string>
#include <string_view>
#include <vector>

namespace varnik::bench {

// A prepared statement with values; std::runtime_error with the engine's words when it fails.
class Prepared {
public:
    Prepared(sqlite3* engine, const std::string& sql);
    ~Prepared() { sqlite3_finalize(statement_); }
    Prepared(const Prepared&) = delete;
    Prepared& operator=(const Prepared&) = delete;

    void Run(std::initializer_list<Value> values);
    void Bind(int at, const Value& value);
    void Step();

private:
    sqlite3* engine_;
    sqlite3_stmt* statement_ = nullptr;
};

class RowWriter {
public:
    RowWriter(sqlite3* engine, std::string_view table, std::initializer_list<std::string_view> columns);

    // One value per column, in their order; the number of the row.
    std::int64_t Write(std::initializer_list<Value> values);

private:
    RowWriter(sqlite3* engine, const jet::Table& table, std::vector<const jet::Column*> columns);

    sqlite3* engine_;
    const jet::Table& table_;
    std::vector<const jet::Column*> columns_;
    Prepared insert_;
};

// What the column of a table makes of a number.
double Stored(std::string_view table, std::string_view column, double number);

} // namespace varnik::bench
