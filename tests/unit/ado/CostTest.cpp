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

} // namespace
} // namespace varnik::ado
