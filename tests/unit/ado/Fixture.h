#pragma once
// A small database in a folder of its own, for one test.

#include "platform/ado/Ado.h"
#include "platform/ado/Connection.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace varnik::ado {

using jet::Column;
using jet::ColumnType;

inline constexpr Column CustomerColumns[] = {
    {"KodeCus", ColumnType::Text, 10, true},    {"NamaCus", ColumnType::Text, 50},
    {"nJTP", ColumnType::Short, 0, true},       {"SaldoAkhir", ColumnType::Single, 0, true, false, true},
    {"SaldoAwal", ColumnType::Double, 0, true}, {"Aktif", ColumnType::Boolean, 0, true}};
inline constexpr Column LotColumns[] = {
    {"NoFaktur", ColumnType::Text, 12, true}, {"TglFaktur", ColumnType::Date, 0, true},
    {"KodeBrg", ColumnType::Text, 10},        {"Qty", ColumnType::Single, 0, true},
    {"Qty2", ColumnType::Long, 0, true},      {"QtySisa", ColumnType::Single, 0, true, false, true}};
inline constexpr Column LedgerColumns[] = {{"ID", ColumnType::Long, 0, true, true},
                                           {"KodeBrg", ColumnType::Text, 10},
                                           {"Qty1", ColumnType::Single, 0, true},
                                           {"QtySisa", ColumnType::Single, 0, true}};
inline constexpr Column BiayaColumns[] = {{"KodeBiaya", ColumnType::Text, 10},
                                          {"Diskripsi", ColumnType::Text, 50}};
inline constexpr Column WidthColumns[] = {{"S", ColumnType::Single},  {"D", ColumnType::Double},
                                          {"L", ColumnType::Long},    {"H", ColumnType::Short},
                                          {"C", ColumnType::Decimal}, {"B", ColumnType::Boolean},
                                          {"T", ColumnType::Date},    {"X", ColumnType::Text, 10}};
inline constexpr jet::Table TestTables[] = {{"Customer", CustomerColumns},
                                            {"FakturDetail", LotColumns},
                                            {"Persediaan", LedgerColumns},
                                            {"Biaya", BiayaColumns},
                                            {"Widths", WidthColumns}};

class DatabaseTest : public testing::Test {
protected:
    DatabaseTest() {
        folder = std::filesystem::temp_directory_path() /
                 ("varnik-ado-" + std::to_string(getpid()) + "-" + std::to_string(++count_));
        std::filesystem::remove_all(folder); // of a killed process of the same number
        std::filesystem::create_directories(folder);
        file = folder / "Varnik.mdb";
        environment.catalog = {TestTables};
        environment.regional = &regional;
        environment.busyTimeoutMs = 100;
        environment.resolve = [this](std::string_view text) {
            return text == "DSN=Varnik" ? file : std::filesystem::path(text);
        };
    }
    ~DatabaseTest() override {
        ReleaseDatabase(file);
        std::error_code ignored;
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(folder, ignored);
    }

    void CreateAll() {
        CreateDatabase(file);
        Connection connection(environment, "DSN=Varnik");
        for (const jet::Table& table : TestTables) CreateTable(connection, table);
        CreateIndex(connection, {"Customer", "PrimaryKey", "KodeCus", true, true});
        CreateIndex(connection, {"Customer", "KodeCus", "KodeCus", false, true});
        CreateIndex(connection, {"Biaya", "PrimaryKey", "KodeBiaya", true, true});
        ExecuteNative(connection, "CREATE INDEX LotOpen ON FakturDetail (KodeBrg) WHERE QtySisa > 0");
        ExecuteNative(connection, "CREATE INDEX LedgerOpen ON Persediaan (KodeBrg)");
        ExecuteNative(connection,
                      "CREATE VIEW QryLots AS SELECT a.NoFaktur, a.TglFaktur AS Tanggal, a.KodeBrg, a.Qty / "
                      "Divisor(a.Qty2) AS Each, b.NamaCus, b.Aktif FROM FakturDetail a LEFT JOIN Customer "
                      "b ON a.KodeBrg = b.KodeCus");
    }
    Connection Open() { return Connection(environment, "DSN=Varnik"); }
    void Run(std::string_view sql) {
        Connection connection = Open();
        connection.Execute(sql);
        connection.Close();
    }
    // The first field of the first row.
    Value Ask(std::string_view sql) {
        Connection connection = Open();
        Recordset rows(sql, connection);
        return rows.Eof() ? Value("no row") : rows[0].Value();
    }
    void AddCustomer(std::string_view code, std::string_view name, double balance = 0) {
        Run("Insert Into Customer Values ('" + std::string(code) + "','" + std::string(name) + "',0," +
            std::to_string(balance) + ",0,False)");
    }

    Regional regional;
    Environment environment;
    std::filesystem::path folder, file;

private:
    static inline int count_ = 0;
};

// The number of the failure that the body runs into, 0 when it does not.
template <typename Body>
long FailureOf(Body body, std::string* text = nullptr) {
    try {
        body();
    } catch (const DataError& error) {
        if (text != nullptr) *text = error.Description();
        return error.Number();
    }
    return 0;
}

} // namespace varnik::ado
