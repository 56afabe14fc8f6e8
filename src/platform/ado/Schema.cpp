// Tables and keys as the file holds them. The rules of the columns are written into the file itself, so that
// whatever else opens it gets the same refusals.

#include "platform/ado/Connection.h"

namespace varnik::ado {
namespace {

// The declared type decides how the engine keeps a value: fractions as floating point, so that a whole
// number of a fractional column still counts as one.
std::string TypeOf(const jet::Column& column) {
    switch (column.type) {
    case jet::ColumnType::Text:
        return "TEXT(" + std::to_string(column.size) + ") COLLATE NOCASE";
    case jet::ColumnType::Date:
        return "DATETEXT";
    case jet::ColumnType::Double:
    case jet::ColumnType::Decimal:
        return "DOUBLE";
    case jet::ColumnType::Single:
        return "FLOAT";
    case jet::ColumnType::Long:
        return "INTEGER";
    case jet::ColumnType::Short:
        return "SMALLINT";
    case jet::ColumnType::Boolean:
        return "BOOLEAN";
    }
    return {};
}

std::string Quoted(std::string_view name) { return "\"" + std::string(name) + "\""; }

} // namespace

void CreateTable(Connection& connection, const jet::Table& table) {
    std::string sql = "CREATE TABLE " + Quoted(table.name) + " (";
    for (const jet::Column& column : table.columns) {
        if (&column != table.columns.data()) sql += ", ";
        sql += Quoted(column.name) + " ";
        if (column.autoIncrement) {
            sql += "INTEGER PRIMARY KEY";
            continue;
        }
        sql += TypeOf(column);
        if (column.required) sql += " NOT NULL";
        if (column.type == jet::ColumnType::Text)
            sql += " CONSTRAINT " + Quoted(std::string(table.name) + "." + std::string(column.name)) +
                   " CHECK (length(" + Quoted(column.name) + ") <= " + std::to_string(column.size) + ")";
    }
    ExecuteNative(connection, sql + ")");
}

// Names of keys repeat from table to table, in the file they carry the table's name in front.
void CreateIndex(Connection& connection, const Index& index) {
    const std::string name = std::string(index.table) + "." + std::string(index.name);
    ExecuteNative(connection, std::string(index.unique ? "CREATE UNIQUE" : "CREATE") + " INDEX " +
                                  Quoted(name) + " ON " + Quoted(index.table) + " (" + Quoted(index.column) +
                                  ")");
    if (!index.primary) return;
    const jet::Table* table = connection.Implementation().environment->catalog.FindTable(index.table);
    const jet::Column* column = table ? jet::FindColumn(*table, index.column) : nullptr;
    if (column == nullptr || column->required) return;
    // A primary key takes no empty value, even where its column would.
    for (const std::string_view event : {"INSERT", "UPDATE"}) {
        ExecuteNative(connection, "CREATE TRIGGER " + Quoted(name + " " + std::string(event)) + " BEFORE " +
                                      std::string(event) + " ON " + Quoted(index.table) + " WHEN NEW." +
                                      Quoted(index.column) +
                                      " IS NULL BEGIN SELECT RAISE(ABORT, 'NOT NULL constraint failed: " +
                                      std::string(index.table) + "." + std::string(index.column) + "'); END");
    }
}

std::vector<std::string> StoredNames(Connection& connection) {
    Session& session = connection.Implementation().Open();
    return session.Guard([&] {
        const std::unique_ptr<EngineStatement> list =
            session.Native().Compile("SELECT name FROM sqlite_master WHERE type IN ('view', 'index')");
        std::vector<std::string> names;
        for (Value name; list->Step(); names.push_back(name.Text())) list->Read(0, name);
        return names;
    });
}

void ExecuteNative(Connection& connection, std::string_view sql) {
    Session& session = connection.Implementation().Open();
    session.Guard([&] { session.RunNative(sql); });
    connection.Implementation().state->wrote = true;
    ReleaseSessions(session.File()); // what they compiled is for the tables as they were
}

} // namespace varnik::ado
