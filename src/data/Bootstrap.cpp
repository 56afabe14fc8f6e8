#include "data/Bootstrap.h"

#include "common/Files.h"
#include "common/Text.h"
#include "data/DataSource.h"
#include "data/Queries.h"
#include "data/Schema.h"

#include <algorithm>
#include <chrono>
#include <random>

namespace varnik::data {
namespace {

constexpr std::pair<const char*, const char*> Menus[] = {
    {"F01", "Products"},
    {"F02", "Customer"},
    {"F03", "Suppliers"},
    {"F04", "Cash And Bank"},
    {"F06", "Cost Types"},
    {"T01", "Sales"},
    {"T02", "Customer Receipts"},
    {"T03", "Sales Returns"},
    {"T04", "Purchases"},
    {"T05", "Supplier Payments"},
    {"T06", "Purchases Returns"},
    {"T08", "Other Receipts"},
    {"T09", "Other Payments"},
    {"L01", "Sales Reports"},
    {"L04", "Purchases Reports"},
    {"L13", "Inventory"},
    {"L16", "Cash and Banks Book"},
    {"L17", "Account Payables"},
    {"L18", "Account Receivables"},
    {"F08", "Products Type"},
    {"F07", "Cost Details"},
    {"F09", "Customers Type"},
};

// The rights of the first user, with their repeats and two that no menu entry has: wanted, so that a new
// database equals those in use.
constexpr const char* Rights[] = {"F01", "F02", "F03", "F04", "F06", "F07", "F08", "F09", "L01", "L04", "L13",
                                  "L14", "L15", "L16", "L17", "L18", "T01", "T02", "T03", "T04", "T05", "T06",
                                  "T08", "T09", "T09", "F01", "F02", "F03", "F04", "F06", "F01", "F02", "F03",
                                  "F01", "F02", "F03", "F04", "F01", "F02", "F03", "F04", "F06", "F07"};

std::string FileConnection(const std::filesystem::path& file) {
    return "Provider=Microsoft.jet.oledb.4.0; Data Source = " + PathText(file);
}

void CreateSchema(ado::Connection& connection) {
    for (const jet::Table& table : Tables()) ado::CreateTable(connection, table);
    for (const ado::Index& index : PrimaryIndexes()) ado::CreateIndex(connection, index);
    for (const ado::Index& key : UniqueKeys()) ado::CreateIndex(connection, key);
    for (const StoredQuery& query : StoredQueries())
        ado::ExecuteNative(connection, "CREATE VIEW " + query.name + " AS " + query.select);
    for (const std::string_view index : LookUpIndexes()) ado::ExecuteNative(connection, index);
}

void WriteSeedRows(ado::Connection& connection) {
    connection.Execute("INSERT INTO T_USER (USERID,NOUSER,PASSWORD,TAMBAH,LIHAT,GANTI, HAPUS) VALUES "
                       "('varnik','00','" +
                       TransformPassword("kemiri") + "',true,true,true,true)");
    connection.Execute("INSERT INTO COMPANY (NamaPerusahaan,Ket1,Ket2,Ket3) VALUES ('Varnik Small Business',"
                       "'True Varnik Ledger Suite','Sendara-Indonesia', "
                       "'=========================================')");
    for (const auto& [menu, name] : Menus)
        connection.Execute(std::string("INSERT INTO MenuList (MenuID, NamaMenu, Ket) VALUES ('") + menu +
                           "', '" + name + "', '')");
    for (const char* menu : Rights)
        connection.Execute(std::string("INSERT INTO SecurityUser (UserID,MenuID) VALUES ('00', '") + menu +
                           "')");
}

// A program that was killed leaves a log beside its database. When the database alone is deleted then, the
// log would be taken for the new one's; it is kept aside, in case the database comes back.
void KeepStrayLogsAside(const std::filesystem::path& file) {
    std::error_code ignored;
    for (const char* tail : {"-wal", "-journal"})
        std::filesystem::rename(file.string() + tail, file.string() + tail + ".old", ignored);
    std::filesystem::remove(file.string() + "-shm", ignored);
}

// The new database is built beside its place, under a name of its own: several workstations may start on one
// folder for the first time. What a start that was cut off left behind goes when nobody can be at it still.
std::filesystem::path NameForTheNew(const std::filesystem::path& file) {
    const std::string stem = PathText(file.filename()) + ".new";
    const auto yesterday = std::filesystem::file_time_type::clock::now() - std::chrono::hours(24);
    std::error_code ignored;
    std::vector<std::filesystem::path> left;
    for (const auto& entry : std::filesystem::directory_iterator(file.parent_path(), ignored))
        if (PathText(entry.path().filename()).starts_with(stem) && entry.last_write_time(ignored) < yesterday)
            left.push_back(entry.path());
    for (const std::filesystem::path& path : left) std::filesystem::remove(path, ignored);
    return file.parent_path() / (stem + std::to_string(std::random_device()()));
}

// Puts the whole database in its place; false when another workstation was first.
bool Publish(const std::filesystem::path& fresh, const std::filesystem::path& file) {
    std::error_code failure, ignored;
    std::filesystem::create_hard_link(fresh, file, failure); // takes no place that is taken, unlike renaming
    const bool first = !failure || !std::filesystem::exists(file, ignored);
    if (failure && first)
        std::filesystem::rename(fresh, file); // the file system has no links
    else
        std::filesystem::remove(fresh, ignored);
    return first;
}

} // namespace

bool CreateDatabaseCatalog(const Services& services) {
    const std::filesystem::path file = DatabaseFile(services.desktop.ProgramFolder());
    std::error_code error;
    std::filesystem::create_directories(file.parent_path(), error);
    if (std::filesystem::exists(file, error)) return false;

    KeepStrayLogsAside(file);
    const std::filesystem::path fresh = NameForTheNew(file);
    const auto remove = [&] {
        ado::ReleaseDatabase(fresh);
        for (const char* tail : {"", "-wal", "-shm", "-journal"})
            std::filesystem::remove(fresh.string() + tail, error);
    };
    try {
        ado::CreateDatabase(fresh);
        ado::Connection connection(services.data, FileConnection(fresh));
        CreateSchema(connection);
        WriteSeedRows(connection);
        connection.Close();
        ado::ReleaseDatabase(fresh);
        if (Publish(fresh, file)) return true;
    } catch (const std::exception& failure) {
        remove();
        throw ado::DataError(ado::EngineFault,
                             "The database \"" + PathText(file) + "\" cannot be created: " + failure.what());
    }
    return false;
}

std::string WhatIsMissing(const ado::Environment& environment, const std::filesystem::path& file) {
    ado::Connection connection(environment, FileConnection(file));
    const std::vector<std::string> stored = ado::StoredNames(connection);
    const auto holds = [](const std::vector<std::string>& names, std::string_view wanted) {
        return std::ranges::any_of(names, [&](const auto& name) { return EqualsNoCase(name, wanted); });
    };
    try {
        for (const jet::Table& table : Tables()) {
            const std::string name(table.name);
            const ado::Recordset rows("SELECT * FROM " + name + " Where 1 = 0", connection,
                                      ado::CursorType::Static);
            std::vector<std::string> columns;
            for (int i = 0; i < rows.FieldCount(); ++i) columns.push_back(rows.FieldName(i));
            for (const jet::Column& column : table.columns)
                if (!holds(columns, column.name))
                    return "The table " + name + " has no column \"" + std::string(column.name) + "\".";
        }
    } catch (const ado::DataError& failure) {
        if (failure.Number() != ado::UnknownTable) throw;
        return failure.Description();
    }
    // Without a key two workstations would give the same number to two documents.
    for (const auto& keys : {PrimaryIndexes(), UniqueKeys()})
        for (const ado::Index& key : keys)
            if (!holds(stored, std::string(key.table) + "." + std::string(key.name)))
                return "The table " + std::string(key.table) + " has no key \"" + std::string(key.name) +
                       "\".";
    for (const StoredQuery& query : StoredQueries())
        if (!holds(stored, query.name)) return "There is no stored query named \"" + query.name + "\".";
    return "";
}

std::string CheckShopDatabase(const ado::Environment& environment, const std::filesystem::path& file) {
    const std::string name = "\"" + PathText(file) + "\"";
    try {
        const std::string missing = WhatIsMissing(environment, file);
        return missing.empty() ? "" : name + " is not a database of this program: " + missing;
    } catch (const ado::DataError& failure) {
        return name + " cannot be used: " + failure.Description();
    }
}

void BootstrapDatabase(Services& services) {
    if (!services.registry.KeyExists("SOFTWARE\\ODBC")) RegisterBuiltInDriver(services.registry);
    if (!CreateDatabaseCatalog(services)) {
        const std::string fault =
            CheckShopDatabase(services.data, DatabaseFile(services.desktop.ProgramFolder()));
        if (!fault.empty()) throw ado::DataError(ado::EngineFault, fault);
    }
    CreateDataSource(services);
}

} // namespace varnik::data
