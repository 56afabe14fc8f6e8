// What statements cost, counted in compilations and in steps of the engine, never in time.

#include "tests/unit/ado/Fixture.h"

namespace varnik::ado {
namespace {

class CostTest : public DatabaseTest {
protected:
    CostTest() { CreateAll(); }
    static Session& SessionOf(Connection& connection) { return *connection.Implementation().state->session; }
};

TEST_F(CostTest, JoinedTextsShareOneCompilation) {
    Connection connection = Open();
    const auto once = [&](int i) {
        const std::string number = std::to_string(i);
        connection.Execute("Insert Into Customer Values ('" + number + "','Toko " + number + "'," + number +
                           "," + number + ".5,0,False)");
        connection.Execute("Update Customer Set SaldoAkhir = SaldoAkhir + " + number + "Where KodeCus = '" +
                           number + "'");
        Recordset rows("Select * From Customer Where KodeCus = '" + number + "'", connection);
        EXPECT_EQ(rows["SaldoAkhir"].Value(), Value(2 * i + 0.5));
        rows["SaldoAwal"] = i;
        rows.Update();
        rows.MoveFirst();
        rows.Find("KodeCus = '" + number + "'");
        rows.AddNew();
        rows["KodeCus"] = "N" + number;
        rows["nJTP"] = rows["SaldoAkhir"] = rows["SaldoAwal"] = 0;
        rows.Update();
        Recordset("Select NamaCus From Customer Where NamaCus Like '%" + number + "%'", connection)
            .MoveNext();
    };
    once(1);
    const Statistics first = SessionOf(connection).Counted();
    connection.Close();
    // Another action: a connection of its own.
    connection.Open("DSN=Varnik");
    for (int i = 2; i < 20; ++i) once(i);
    const Statistics later = SessionOf(connection).Counted();
    EXPECT_EQ(later.rewrites, first.rewrites);
    EXPECT_EQ(later.compilations, first.compilations);
    EXPECT_EQ(later.reuses, 18 * 4);
}

TEST_F(CostTest, CachesStayBounded) {
    Connection connection = Open();
    for (int i = 0; i < 600; ++i)
        connection.Execute("Select * From Customer Where SaldoAkhir > " + std::to_string(i));
    connection.Execute("Select * From Customer Where SaldoAkhir > 599");
    connection.Execute("Select * From Customer Where SaldoAkhir > 0");
    EXPECT_EQ(SessionOf(connection).Counted().compilations, 601);
}

TEST_F(CostTest, AMillionRowsOpenFindAndAddWithoutBeingRead) {
    Connection connection = Open();
    ExecuteNative(connection, "DROP INDEX LedgerOpen");
    ExecuteNative(connection,
                  "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i < 1000000) "
                  "INSERT INTO Persediaan (KodeBrg, Qty1, QtySisa) SELECT 'B' || (i % 5000), 1, 1 FROM n");
    ExecuteNative(connection, "CREATE INDEX LedgerOpen ON Persediaan (KodeBrg)");
    Session& session = SessionOf(connection);
    const auto steps = [&](auto&& work) {
        const std::int64_t before = session.Native().Steps();
        work();
        return session.Native().Steps() - before;
    };
    std::unique_ptr<Recordset> rows;
    constexpr std::int64_t few = 400;
    EXPECT_LT(steps([&] { rows = std::make_unique<Recordset>("SELECT * FROM Persediaan", connection); }),
              few);
    EXPECT_EQ((*rows)["ID"].Value(), Value(1));
    EXPECT_LT(steps([&] { rows->Find("KodeBrg='B4999'"); }), few);
    EXPECT_EQ((*rows)["ID"].Value(), Value(4999));
    EXPECT_LT(steps([&] { rows->Find("KodeBrg='none'"); }), few);
    EXPECT_TRUE(rows->Eof());
    EXPECT_LT(steps([&] { rows->MoveLast(); }), few);
    EXPECT_EQ((*rows)["ID"].Value(), Value(1000000));
    EXPECT_LT(steps([&] {
                  rows->AddNew();
                  (*rows)["KodeBrg"] = "B1";
                  (*rows)["Qty1"] = (*rows)["QtySisa"] = 5;
                  rows->Update();
              }),
              few);
    EXPECT_EQ((*rows)["ID"].Value(), Value(1000001));
    EXPECT_LT(steps([&] {
                  (*rows)["QtySisa"] = 4;
                  rows->Update();
                  rows->Requery();
              }),
              few);
    // The first open row of a product, as every drawn lot looks it up.
    EXPECT_LT(steps([&] {
                  Recordset open("Select * from Persediaan Where  KodeBrg = 'B77' and QtySisa > 0 ",
                                 connection);
                  EXPECT_EQ(open["ID"].Value(), Value(77));
                  open.MoveNext();
                  EXPECT_EQ(open["ID"].Value(), Value(5077));
              }),
              1000);
    EXPECT_LT(steps([&] { Recordset ordered("Select * From Persediaan Order By ID", connection); }), 1000);
    EXPECT_GT(steps([&] { EXPECT_EQ(rows->RecordCount(), 1000001); }), 0);
}

// Open lots are found through an index on the open rows alone, in entry order, without a sort.
TEST_F(CostTest, OpenLotsAreASeek) {
    Connection connection = Open();
    ExecuteNative(connection, "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i < 50000) "
                              "INSERT INTO FakturDetail "
                              "SELECT 'F' || i, '2026-01-01', 'A', 1, 1, i > 49997 FROM n");
    const std::int64_t before = SessionOf(connection).Native().Steps();
    Recordset lots("Select  * From FakturDetail Where KodeBrg = 'A' and QtySisa > 0", connection);
    std::string seen;
    for (; !lots.Eof(); lots.MoveNext()) {
        seen += lots["NoFaktur"].Value().Text() + " ";
        lots["QtySisa"] = 0;
        lots.Update();
    }
    EXPECT_EQ(seen, "F49998 F49999 F50000 ");
    EXPECT_LT(SessionOf(connection).Native().Steps() - before, 1000);
}

// A walk that writes on every row costs the same for each, however many follow.
TEST_F(CostTest, WritingOnTheWalkCostsTheSameForEveryRow) {
    Connection connection = Open();
    ExecuteNative(connection,
                  "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i < 3000) INSERT INTO "
                  "FakturDetail SELECT 'F', '2026-01-01', 'A', 1, 1, 1 FROM n");
    for (const char* sql : {"Select * From FakturDetail", "Select * From FakturDetail Order By NoFaktur"}) {
        const std::int64_t before = SessionOf(connection).Native().Steps();
        Recordset lots(sql, connection);
        for (; !lots.Eof(); lots.MoveNext()) {
            lots["Qty"] = 2;
            lots.Update();
        }
        EXPECT_LT(SessionOf(connection).Native().Steps() - before, 3000 * 300) << sql;
    }
}

TEST_F(CostTest, AListReadsTheRowsThatAreLookedAt) {
    Connection connection = Open();
    ExecuteNative(connection,
                  "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i < 5000) "
                  "INSERT INTO Customer SELECT 'C' || (10000 - i), 'Toko ' || (i % 10), 0, i, 0, 0 "
                  "FROM n");
    ExecuteNative(connection, "CREATE INDEX ByName ON Customer (NamaCus, KodeCus)");
    RowList list("Select KodeCus + ' ' + NamaCus,SaldoAkhir,Aktif From Customer Where KodeCus Like '%C%' "
                 "Order By NamaCus",
                 connection);
    ASSERT_EQ(list.Count(), 5000);
    Session& session = SessionOf(connection);
    const std::int64_t before = session.Native().Steps();
    const RowList same = list;
    for (const auto& [index, code, name, balance] : {std::tuple{0, "C5000", "Toko 0", 5000},
                                                     {499, "C9990", "Toko 0", 10},
                                                     {500, "C5009", "Toko 1", 4991}})
        EXPECT_EQ(same.Row(index),
                  (std::vector<Value>{std::string(code) + " " + name, double(balance), false}));
    EXPECT_LT(session.Native().Steps() - before, 100);
    EXPECT_TRUE(list.Row(-1).empty());
    EXPECT_TRUE(list.Row(5000).empty());

    // What another wrote shows, a deleted row comes back empty, the others keep their places.
    Run("Update Customer Set SaldoAkhir = 7 Where KodeCus = 'C5009'");
    Run("Delete From Customer Where KodeCus = 'C5000'");
    EXPECT_EQ(list.Row(500)[1], Value(7.0));
    EXPECT_TRUE(list.Row(0).empty());
    // Without conditions, in entry order, and over a stored query.
    EXPECT_EQ(RowList("Select 'x' + KodeCus From Customer", connection).Row(0)[0], Value("xC9999"));
    EXPECT_EQ(RowList("Select * From QryLots", connection).Count(), 0);
    EXPECT_NE(FailureOf([&] { RowList("Select Nothing From Customer", connection); }), 0);
    connection.Close();
    EXPECT_EQ(FailureOf([&] { list.Row(1); }), ObjectClosed);
}

TEST_F(CostTest, LongReadingIsStoppedAndLeavesTheConnectionSound) {
    Connection connection = Open();
    ExecuteNative(connection, "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i < 50000) "
                              "INSERT INTO Customer SELECT 'C' || i, 'Toko', 0, i, 0, 0 FROM n");
    const std::string everything = "Select * From Customer Where NamaCus Like '%o%' Order By SaldoAkhir";
    const RowList list(everything, connection);
    int asked = 0;
    const GoOn thirdTime = [&] {
        // Whoever paints meanwhile gets nothing, instead of disturbing the statement.
        EXPECT_TRUE(list.Row(7).empty());
        return ++asked < 3;
    };
    EXPECT_EQ(FailureOf([&] { RowList(everything, connection, thirdTime); }), Stopped);
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(list.Row(7)[0], Value("C8"));
    long rows = 0;
    const auto begin = [](const std::vector<std::string>& names) { EXPECT_EQ(names[1], "NamaCus"); };
    const auto take = [&](const std::vector<Value>&) { ++rows; };
    EXPECT_EQ(FailureOf([&] { ReadRows(everything, connection, begin, take, [] { return false; }); }),
              Stopped);
    EXPECT_LT(rows, 50000);
    rows = 0;
    ReadRows(everything, connection, begin, take);
    EXPECT_EQ(rows, 50000);
}

TEST_F(CostTest, TheValuesOfAnIndexedColumnAreWalked) {
    Connection connection = Open();
    const auto values = [&] {
        std::vector<Value> all;
        for (Recordset rows("Select NamaCus   From Customer Group By  namacus ", connection); !rows.Eof();
             rows.MoveNext())
            all.push_back(rows["NamaCus"]);
        return all;
    };
    EXPECT_TRUE(values().empty());
    ExecuteNative(connection,
                  "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i < 5000) "
                  "INSERT INTO Customer SELECT 'C' || i, CASE i % 5 WHEN 0 THEN NULL WHEN 1 THEN '' "
                  "WHEN 2 THEN 'box' WHEN 3 THEN 'PCS' ELSE 'PCS ' END, 0, i, 0, 0 FROM n");
    const std::vector<Value> grouped = values();
    ASSERT_EQ(grouped.size(), 5U);
    ExecuteNative(connection, "CREATE INDEX ByName ON Customer (NamaCus)");
    const std::int64_t before = SessionOf(connection).Native().Steps();
    EXPECT_EQ(values(), grouped);
    EXPECT_LT(SessionOf(connection).Native().Steps() - before, 500);
    // Texts that differ in case alone are one.
    Run("Update Customer Set NamaCus = 'BOX' Where KodeCus = 'C7'");
    EXPECT_EQ(values().size(), 5U);
}

} // namespace
} // namespace varnik::ado
