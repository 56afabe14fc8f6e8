#include "bench/shop/RowWriter.h"

#include "data/Schema.h"
#include "platform/ado/ColumnRule.h"

#include <algorithm>
#include <stdexcept>

namespace varnik::bench {

namespace {

const jet::Table& TableNamed(std::string_view name) {
    const jet::Table* table = data::Catalog().FindTable(name);
    if (table == nullptr) throw std::runtime_error("there is no table " + std::string(name));
    return *table;
}

std::vector<const jet::Column*> ColumnsNamed(const jet::Table& table,
                                             std::initializer_list<std::string_view> names) {
    std::vector<const jet::Column*> columns;
    for (const std::string_view name : names) {
        columns.push_back(jet::FindColumn(table, name));
        if (columns.back() == nullptr)
            throw std::runtime_error(std::string(table.name) + " has no column " + std::string(name));
    }
    return columns;
}

std::string InsertInto(const jet::Table& table, const std::vector<const jet::Column*>& columns) {
    std::string names, marks;
    for (const jet::Column* column : columns) {
        names.append(names.empty() ? "" : ",").append(column->name);
        marks += marks.empty() ? "?" : ",?";
    }
    for (const jet::Column& column : table.columns) {
        if (column.type != jet::ColumnType::Boolean) continue;
        if (std::ranges::find(columns, &column) != columns.end()) continue;
        names.append(",").append(column.name);
        marks += ",0";
    }
    return "INSERT INTO " + std::string(table.name) + " (" + names + ") VALUES (" + marks + ")";
}

const Regional plain;

} // namespace

Prepared::Prepared(sqlite3* engine, const std::string& sql) : engine_(engine) {
    if (sqlite3_prepare_v3(engine, sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement_, nullptr) !=
        SQLITE_OK)
        throw std::runtime_error(std::string(sqlite3_errmsg(engine)) + " in " + sql);
}

void Prepared::Bind(int at, const Value& value) {
    if (value.IsNull()) {
        sqlite3_bind_null(statement_, at);
    } else if (value.IsBool()) {
        sqlite3_bind_int(statement_, at, value.Bool() ? -1 : 0);
    } else if (value.IsInteger()) {
        sqlite3_bind_int64(statement_, at, value.Integer());
    } else if (value.IsDouble()) {
        sqlite3_bind_double(statement_, at, value.Double());
    } else {
        const std::string text = value.IsDate() ? ToIso(value.Date()) : value.Text();
        sqlite3_bind_text(statement_, at, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
    }
}

void Prepared::Step() {
    if (sqlite3_step(statement_) != SQLITE_DONE)
        throw std::runtime_error(std::string(sqlite3_errmsg(engine_)) + " in " + sqlite3_sql(statement_));
    sqlite3_reset(statement_);
}

void Prepared::Run(std::initializer_list<Value> values) {
    int at = 0;
    for (const Value& value : values) Bind(++at, value);
    Step();
}

RowWriter::RowWriter(sqlite3* engine, std::string_view table, std::initializer_list<std::string_view> columns)
    : RowWriter(engine, TableNamed(table), ColumnsNamed(TableNamed(table), columns)) {}

RowWriter::RowWriter(sqlite3* engine, const jet::Table& table, std::vector<const jet::Column*> columns)
    : engine_(engine),
      table_(table),
      columns_(std::move(columns)),
      insert_(engine, InsertInto(table, columns_)) {}

std::int64_t RowWriter::Write(std::initializer_list<Value> values) {
    if (values.size() != columns_.size())
        throw std::runtime_error("a row of " + std::string(table_.name) + " has another number of values");
    int at = 0;
    for (const Value& value : values) {
        insert_.Bind(at + 1, ado::ToColumn(value, table_, *columns_[static_cast<std::size_t>(at)], plain));
        ++at;
    }
    insert_.Step();
    return sqlite3_last_insert_rowid(engine_);
}

double Stored(std::string_view table, std::string_view column, double number) {
    const jet::Table& of = TableNamed(table);
    return ado::ToDouble(ado::ToColumn(number, of, *jet::FindColumn(of, column), plain), plain, "");
}

} // namespace varnik::bench
