#include "tests/unit/ado/Fixture.h"

#include <random>

namespace varnik::ado {
namespace {

class RecordsetTest : public DatabaseTest {
protected:
    RecordsetTest() { CreateAll(); }

    void AddLots(int count, const char* code = "A") {
        Connection connection = Open();
        Recordset lots("SELECT * FROM FakturDetail", connection);
        for (int i = 1; i <= count; ++i) {
            lots.AddNew();
            lots["NoFaktur"] = "F" + std::to_string(i);
            lots["TglFaktur"] = *MakeDate(2026, 1, i % 28 + 1);
            lots["KodeBrg"] = code;
            lots["Qty"] = i;
            lots["Qty2"] = 2;
            lots["QtySisa"] = i * 2;
            lots.Update();
        }
    }
    static std::string Walk(Recordset& rows, const char* field) {
        std::string seen;
        for (; !rows.Eof(); rows.MoveNext()) seen += ShowValue(rows[field], Regional()) + " ";
        return seen;
    }
};

TEST_F(RecordsetTest, ReadsEveryTypeBackAsItWasWritten) {
    Connection connection = Open();
    Recordset rows("Select * From Widths", connection);
    EXPECT_TRUE(rows.Empty());
    rows.AddNew();
    EXPECT_EQ(rows["B"].Value(), Value(false));
    EXPECT_TRUE(rows["S"].Value().IsNull());
    rows["S"] = 1.5;
    rows["L"] = 7;
    rows["b"] = true;
    rows["T"] = *MakeDate(2026, 3, 4, 60);
    rows["X"] = "O'Brien";
    rows.Update();
    EXPECT_EQ(rows["X"].Value(), Value("O'Brien"));
    rows.Requery();
    EXPECT_EQ(rows["S"].Value(), Value(1.5));
    EXPECT_EQ(rows["L"].Value(), Value(7));
    EXPECT_EQ(rows["B"].Value(), Value(true));
    EXPECT_EQ(rows["T"].Value(), Value(*MakeDate(2026, 3, 4, 60)));
    EXPECT_TRUE(rows["C"].Value().IsNull());
    EXPECT_EQ(rows.FieldCount(), 8);
    EXPECT_EQ(rows.FieldName(7), "X");
    EXPECT_EQ(FailureOf([&] { rows["Y"].Value(); }), NoSuchField);
    EXPECT_EQ(FailureOf([&] { Recordset("Select Y From Widths", connection); }), UnknownColumn);
}

TEST_F(RecordsetTest, StoredQueriesGiveTheTypesOfTheirColumns) {
    AddCustomer("A", "Adi");
    AddLots(1);
    Connection connection = Open();
    Recordset rows("Select Tanggal, Each, NamaCus, Aktif From QryLots Where NamaCus Like '%AD%'", connection);
    EXPECT_EQ(rows["Tanggal"].Value(), Value(*MakeDate(2026, 1, 2)));
    EXPECT_EQ(rows["Each"].Value(), Value(0.5));
    EXPECT_EQ(rows["Aktif"].Value(), Value(false));
    EXPECT_EQ(FailureOf([&] { rows["NamaCus"] = "x"; }), CannotChange);
    Run("Update FakturDetail Set Qty2 = 0");
    std::string text;
    EXPECT_EQ(FailureOf([&] { rows.Requery(); }, &text), DivisionByZero);
    EXPECT_EQ(text, "Division by zero");
}

TEST_F(RecordsetTest, WalksInEntryOrderBothWays) {
    AddLots(40);
    Connection connection = Open();
    Recordset rows("Select * From FakturDetail Where KodeBrg = 'a' and QtySisa > 0", connection);
    EXPECT_EQ(rows.RecordCount(), 40);
    int expected = 1;
    for (; !rows.Eof(); rows.MoveNext())
        EXPECT_EQ(rows["Qty"].Value(), Value(static_cast<double>(expected++)));
    EXPECT_EQ(expected, 41);
    EXPECT_EQ(FailureOf([&] { rows.MoveNext(); }), NoCurrentRecord);
    EXPECT_EQ(FailureOf([&] { rows["Qty"].Value(); }), NoCurrentRecord);
    rows.MovePrevious();
    EXPECT_EQ(rows["Qty"].Value(), Value(40.0));
    rows.MovePrevious();
    EXPECT_EQ(rows["Qty"].Value(), Value(39.0));
    rows.MoveFirst();
    rows.MovePrevious();
    EXPECT_TRUE(rows.Bof());
    EXPECT_FALSE(rows.Eof());
    rows.MoveNext();
    EXPECT_EQ(rows["NoFaktur"].Value(), Value("F1"));
    rows.MoveLast();
    EXPECT_EQ(rows["NoFaktur"].Value(), Value("F40"));
}

// As a sale does it: every lot falls out of the condition while the walk goes on.
TEST_F(RecordsetTest, OwnUpdatesDoNotDisturbTheWalk) {
    AddLots(20);
    for (const char* sql : {"Select * From FakturDetail Where KodeBrg = 'A' and QtySisa > 0",
                            "Select * From FakturDetail Where QtySisa > 0 Order By TglFaktur"}) {
        Run("Update FakturDetail Set QtySisa = 1");
        Connection connection = Open();
        Recordset rows(sql, connection);
        int walked = 0;
        for (; !rows.Eof(); rows.MoveNext(), ++walked) {
            rows["QtySisa"] = 0;
            rows.Update();
            EXPECT_EQ(rows["QtySisa"].Value(), Value(0.0));
        }
        EXPECT_EQ(walked, 20) << sql;
        EXPECT_EQ(rows.RecordCount(), 20) << sql;
        rows.MoveFirst();
        EXPECT_EQ(Walk(rows, "NoFaktur").substr(0, 9), "F1 F2 F3 ") << sql;
        EXPECT_EQ(Ask("Select Count(*) From FakturDetail Where QtySisa > 0"), Value(0));
    }
}

TEST_F(RecordsetTest, SeesWhatOthersWriteBehindItsRow) {
    AddLots(30);
    Connection connection = Open(), other = Open();
    Recordset rows("Select * From FakturDetail", connection);
    rows.MoveNext();
    rows.MoveNext(); // has read ahead
    other.Execute("Update FakturDetail Set Qty = 99 Where NoFaktur = 'F4'");
    other.Execute("Delete From FakturDetail Where NoFaktur = 'F5'");
    rows.MoveNext();
    EXPECT_EQ(rows["Qty"].Value(), Value(99.0));
    rows.MoveNext();
    EXPECT_EQ(rows["NoFaktur"].Value(), Value("F6"));
    other.Execute("Delete From FakturDetail Where NoFaktur = 'F6'");
    rows["Qty"] = 1;
    EXPECT_EQ(FailureOf([&] { rows.Update(); }), RowGone);
    rows.CancelUpdate();
    rows.MoveNext();
    EXPECT_EQ(rows["NoFaktur"].Value(), Value("F7"));
}

TEST_F(RecordsetTest, FindsAndFilters) {
    for (const char* code : {"B2", "A1", "C3"}) AddCustomer(code, std::string("Toko ") + code);
    Connection connection = Open();
    for (const char* sql : {"SELECT * FROM customer", "SELECT * FROM customer Order By KodeCus",
                            "Select a.KodeCus, a.NamaCus From Customer a, Customer b Where a.KodeCus = "
                            "b.KodeCus Order By a.KodeCus"}) {
        Recordset rows(sql, connection);
        rows.Find("KodeCus='c3'");
        EXPECT_EQ(rows["NamaCus"].Value(), Value("Toko C3")) << sql;
        rows.Find("NamaCus = 'Toko C3'"); // from the current row on, itself included
        EXPECT_FALSE(rows.Eof()) << sql;
        rows.Find("KodeCus='A1'");
        EXPECT_TRUE(rows.Eof()) << sql;
        rows.Find("KodeCus='C3'");
        EXPECT_TRUE(rows.Eof()) << sql;
        rows.MoveFirst();
        rows.Find("NamaCus LIKE '*oko b*'");
        EXPECT_EQ(rows["KodeCus"].Value(), Value("B2")) << sql;
        rows.Filter("KodeCus > 'A1' And NamaCus Like 'toko*'");
        EXPECT_EQ(rows.RecordCount(), 2) << sql;
        rows.MoveLast();
        rows.MoveNext();
        EXPECT_TRUE(rows.Eof() && !rows.Bof()) << sql;
        rows.Filter("KodeCus='Z'");
        EXPECT_TRUE(rows.Empty()) << sql;
        rows.Filter("");
        EXPECT_EQ(rows.RecordCount(), 3) << sql;
        EXPECT_EQ(FailureOf([&] { rows.Find("Kode='1'"); }), UnknownColumn) << sql;
        EXPECT_EQ(FailureOf([&] { rows.Find("KodeCus='O'Brien'"); }), SyntaxFault) << sql;
    }
}

TEST_F(RecordsetTest, DeletesAndComesBackByBookmark) {
    for (const char* code : {"A", "B", "C", "D"}) AddCustomer(code, code);
    Connection connection = Open();
    for (const char* sql : {"SELECT * FROM customer", "SELECT * FROM customer Order By NamaCus"}) {
        Recordset rows(sql, connection);
        rows.Find("KodeCus='D'");
        const Bookmark last = rows.GetBookmark();
        rows.MoveFirst();
        rows.MoveNext();
        const std::string gone = rows["KodeCus"].Value().Text();
        rows.Delete();
        EXPECT_FALSE(rows.Eof());
        EXPECT_EQ(FailureOf([&] { rows["KodeCus"].Value(); }), RowGone);
        rows.MoveNext();
        EXPECT_EQ(rows["KodeCus"].Value(), Value(gone == "B" ? "C" : "D")) << sql;
        rows.MovePrevious();
        EXPECT_EQ(rows["KodeCus"].Value(), Value("A")) << sql;
        rows.SetBookmark(last);
        EXPECT_EQ(rows["KodeCus"].Value(), Value("D"));
        rows.MoveNext();
        EXPECT_TRUE(rows.Eof());
        EXPECT_EQ(rows.RecordCount(), gone == "B" ? 3 : 2);
    }
    Recordset rows("SELECT * FROM customer", connection);
    while (!rows.Eof()) {
        rows.Delete();
        rows.MoveNext();
    }
    EXPECT_TRUE(rows.Empty());
}

TEST_F(RecordsetTest, NewRowsAreSavedCancelledAndRetried) {
    AddCustomer("A", "Adi");
    Connection connection = Open();
    for (const char* sql : {"SELECT * FROM customer", "SELECT * FROM customer Order By KodeCus"}) {
        Recordset rows(sql, connection);
        rows.AddNew();
        rows["KodeCus"] = "a";
        rows["nJTP"] = 1;
        rows["SaldoAkhir"] = 2;
        rows["SaldoAwal"] = 3;
        std::string text;
        EXPECT_EQ(FailureOf([&] { rows.Update(); }, &text), ConstraintFault);
        EXPECT_EQ(text, "There is already a row with this Customer.KodeCus; it must be unique.");
        rows["KodeCus"] = std::string(sql).ends_with("KodeCus") ? "0" : "B"; // what was typed is still there
        rows.Update();
        EXPECT_EQ(rows["SaldoAwal"].Value(), Value(3.0));
        rows.MovePrevious();
        EXPECT_EQ(rows["KodeCus"].Value(), Value(std::string(sql).ends_with("KodeCus") ? "B" : "A")) << sql;
        rows.AddNew();
        rows["KodeCus"] = "Z";
        rows.CancelUpdate();
        EXPECT_EQ(rows["KodeCus"].Value(), Value(std::string(sql).ends_with("KodeCus") ? "B" : "A"));
        rows["NamaCus"] = "changed";
        rows.CancelUpdate();
        EXPECT_NE(rows["NamaCus"].Value(), Value("changed"));
        rows["NamaCus"] = "moved";
        rows.MoveFirst(); // a change under way is saved by the move
    }
    EXPECT_EQ(Ask("Select NamaCus From Customer Where KodeCus='A'"), Value("moved"));
    EXPECT_EQ(Ask("Select Count(*) From Customer"), Value(3));

    Recordset ledger("SELECT * FROM Persediaan", connection);
    for (int i = 1; i <= 2; ++i) {
        ledger.AddNew();
        ledger["Qty1"] = i;
        ledger["QtySisa"] = 0;
        ledger.Update();
        EXPECT_EQ(ledger["ID"].Value(), Value(i));
    }
    EXPECT_EQ(FailureOf([&] { ledger["ID"] = 9; }), CannotChange);
}

// Columns that postings add to take the change, all others the value, whoever wrote between read and save.
TEST_F(RecordsetTest, AccumulatingColumnsLoseNothingToOthers) {
    AddCustomer("A", "Adi", 100);
    Connection connection = Open();
    const auto stored = [this](const char* what) {
        return Ask(std::string("Select ") + what + " From Customer Where KodeCus='A'");
    };
    Recordset rows("SELECT * FROM customer", connection);
    rows["SaldoAkhir"] = 100.1; // alone: exactly the new value
    rows.Update();
    EXPECT_EQ(stored("SaldoAkhir"), Value(100.1));

    Run("Update Customer Set SaldoAkhir = 1000, SaldoAwal = 7, NamaCus = 'Other'");
    rows["SaldoAkhir"] = 150.1;
    rows["SaldoAwal"] = 5;
    rows.Update();
    EXPECT_EQ(stored("SaldoAkhir"), Value(1050.0));
    EXPECT_EQ(rows["SaldoAkhir"].Value(), Value(1050.0)); // what came of it is read back
    EXPECT_EQ(stored("SaldoAwal"), Value(5.0));
    EXPECT_EQ(stored("NamaCus"), Value("Other"));
    rows["SaldoAkhir"] = 1060; // from the value read back
    rows.Update();
    EXPECT_EQ(stored("SaldoAkhir"), Value(1060.0));

    Run("Update Customer Set SaldoAkhir = 3e38");
    rows["SaldoAkhir"] = 3e38; // the sum does not fit, and nothing is written
    EXPECT_EQ(FailureOf([&] { rows.Update(); }), Overflow);
    EXPECT_EQ(stored("SaldoAwal"), Value(5.0));
    rows.CancelUpdate();
    rows["SaldoAkhir"] = 0;
    Run("Delete From Customer");
    EXPECT_EQ(FailureOf([&] { rows.Update(); }), RowGone);
}

TEST_F(RecordsetTest, ALotIsNotDrawnBelowNothingUnseen) {
    Run("Insert Into FakturDetail Values ('F1','2026-01-01','A',10,1,10)");
    Connection connection = Open();
    Recordset lots("SELECT * FROM FakturDetail", connection);
    Run("Update FakturDetail Set QtySisa = 4");
    lots["QtySisa"] = 0;
    EXPECT_FALSE(lots.UpdateAboveZero());
    EXPECT_EQ(lots["QtySisa"].Value(), Value(4.0));
    lots["QtySisa"] = 0;
    EXPECT_TRUE(lots.UpdateAboveZero());
    lots["QtySisa"] = -3; // by the one who sees it
    EXPECT_TRUE(lots.UpdateAboveZero());
    EXPECT_EQ(Ask("Select QtySisa From FakturDetail"), Value(-3.0));
}

TEST_F(RecordsetTest, WhatDoesNotFitIsLeftOutAlone) {
    AddCustomer("A", "Adi", 100);
    Connection connection = Open();
    Recordset rows("SELECT * FROM customer", connection);
    EXPECT_FALSE(rows.LeaveOutRefused());
    rows["NamaCus"] = std::string(51, 'x');
    rows["SaldoAkhir"] = 120;
    rows["nJTP"] = 99999;
    EXPECT_EQ(FailureOf([&] { rows.Update(); }), ConstraintFault);
    EXPECT_TRUE(rows.LeaveOutRefused());
    EXPECT_FALSE(rows.LeaveOutRefused()); // not before the next refusal
    EXPECT_EQ(FailureOf([&] { rows.Update(); }), Overflow);
    EXPECT_TRUE(rows.LeaveOutRefused());
    rows.Update();
    EXPECT_EQ(Ask("Select SaldoAkhir From Customer"), Value(120.0));
    EXPECT_EQ(Ask("Select NamaCus From Customer"), Value("Adi"));

    rows.AddNew();
    for (const auto& [column, value] : {std::pair<const char*, Value>{"KodeCus", "B"},
                                        {"nJTP", 99999},
                                        {"SaldoAkhir", 1},
                                        {"SaldoAwal", 1}})
        rows[column] = value;
    EXPECT_EQ(FailureOf([&] { rows.Update(); }), Overflow);
    EXPECT_TRUE(rows.LeaveOutRefused());
    rows.Update();
    EXPECT_EQ(Ask("Select nJTP From Customer Where KodeCus='B'"), Value(0));
    rows.AddNew(); // a key that is taken is no value that does not fit
    for (const auto& [column, value] :
         {std::pair<const char*, Value>{"KodeCus", "B"}, {"nJTP", 1}, {"SaldoAkhir", 1}, {"SaldoAwal", 1}})
        rows[column] = value;
    EXPECT_EQ(FailureOf([&] { rows.Update(); }), ConstraintFault);
    EXPECT_FALSE(rows.LeaveOutRefused());
}

// Whoever passes a failed reading over must not take the old row for one of the rows asked for.
TEST_F(RecordsetTest, AFailedReadingLeavesNoCurrentRow) {
    AddCustomer("A", "Adi");
    Connection connection = Open();
    Recordset rows("SELECT * FROM customer", connection), again("SELECT * FROM customer", connection);
    ExecuteNative(connection, "ALTER TABLE Customer RENAME TO Gone");
    EXPECT_NE(FailureOf([&] { rows.Filter("KodeCus='B'"); }), 0);
    EXPECT_TRUE(rows.Eof());
    EXPECT_NE(FailureOf([&] { again.Requery(); }), 0);
    EXPECT_EQ(FailureOf([&] { again.Delete(); }), NoCurrentRecord);
    ExecuteNative(connection, "ALTER TABLE Gone RENAME TO Customer");
    EXPECT_EQ(Ask("Select Count(*) From Customer"), Value(1));
}

// Random work on an open recordset, audited by a plain list of rows.
TEST_F(RecordsetTest, AgreesWithAPlainListOfRows) {
    constexpr unsigned seed = 4711;
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto below = [&](int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); };
    for (const bool ordered : {false, true}) {
        Run("Delete From Customer");
        Connection connection = Open(), other = Open();
        std::map<std::string, std::string> names; // by code; codes are handed out in rising order
        int last = 0;
        const auto fresh = [&] {
            char code[16];
            std::snprintf(code, sizeof code, "%05d", ++last);
            return std::string(code);
        };
        Recordset rows(std::string("Select * From Customer Where nJTP = 0") +
                           (ordered ? " Order By KodeCus" : ""),
                       connection);
        for (int step = 0; step < 500; ++step) {
            const int what = below(10);
            if (what < 3) {
                const std::string code = fresh();
                names[code] = "n" + std::to_string(below(5));
                rows.AddNew();
                rows["KodeCus"] = code;
                rows["NamaCus"] = names[code];
                rows["nJTP"] = rows["SaldoAkhir"] = rows["SaldoAwal"] = 0;
                rows.Update();
            } else if (what == 3) {
                const std::string code = fresh();
                names[code] = "other";
                other.Execute("Insert Into Customer Values ('" + code + "','other',0,0,0,False)");
                rows.Requery();
            } else if (what < 6 && !names.empty()) {
                auto at = std::next(names.begin(), below(static_cast<int>(names.size())));
                if (below(2) == 0) rows.MoveFirst();
                if (rows.Eof()) rows.MoveFirst();
                const std::string from = rows["KodeCus"].Value().Text();
                rows.Find("KodeCus='" + at->first + "'");
                ASSERT_EQ(rows.Eof(), at->first < from) << step;
                if (rows.Eof()) continue;
                at->second = "n" + std::to_string(below(5));
                rows["NamaCus"] = at->second;
                rows.Update();
            } else if (what == 6 && !rows.Eof()) {
                names.erase(rows["KodeCus"].Value().Text());
                rows.Delete();
                rows.MoveNext();
            } else if (what == 7 && !rows.Eof()) {
                below(2) == 0 ? rows.MoveNext() : rows.MovePrevious();
                if (rows.Bof() || rows.Eof()) rows.MoveFirst();
            } else if (what == 8) {
                std::size_t walked = 0;
                for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext(), ++walked) {
                    if (below(4) != 0) continue; // what is written on the way does not disturb the walk
                    names[rows["KodeCus"].Value().Text()] = "w";
                    rows["NamaCus"] = "w";
                    rows.Update();
                }
                ASSERT_EQ(walked, names.size()) << step;
                rows.MoveFirst();
            } else {
                std::string seen, expected;
                for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext())
                    seen += rows["KodeCus"].Value().Text() + rows["NamaCus"].Value().Text() + " ";
                for (const auto& [code, name] : names) expected += code + name + " ";
                ASSERT_EQ(seen, expected) << step;
                ASSERT_EQ(rows.RecordCount(), static_cast<long>(names.size())) << step;
                rows.MoveLast();
                if (!names.empty()) {
                    ASSERT_EQ(rows["KodeCus"].Value().Text(), names.rbegin()->first) << step;
                }
            }
        }
    }
}

TEST_F(RecordsetTest, ClosesWithItsConnection) {
    AddCustomer("A", "Adi");
    Connection connection = Open();
    Recordset rows("SELECT * FROM customer", connection);
    connection.Close();
    EXPECT_FALSE(rows.IsOpen());
    EXPECT_EQ(FailureOf([&] { rows["KodeCus"].Value(); }), ObjectClosed);
    EXPECT_EQ(FailureOf([&] { rows.MoveNext(); }), ObjectClosed);
    EXPECT_EQ(FailureOf([&] { connection.Execute("Delete From Customer"); }), ObjectClosed);
    EXPECT_EQ(FailureOf([&] { rows.Open("SELECT * FROM customer", connection); }), ObjectClosed);
}

// A look-up list longer than what is read at once, with an order of its own.
TEST_F(RecordsetTest, WalksALongListInItsOrder) {
    Connection connection = Open();
    ExecuteNative(connection,
                  "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i < 3000) INSERT INTO "
                  "Customer SELECT printf('%06d', 3001 - i), 'n', 0, 0, 0, 0 FROM n");
    Recordset rows("Select KodeCus, NamaCus From Customer Order By KodeCus", connection);
    int seen = 0;
    for (; !rows.Eof(); rows.MoveNext()) {
        char code[16];
        std::snprintf(code, sizeof code, "%06d", ++seen);
        ASSERT_EQ(rows[0].Value(), Value(code));
        if (seen == 500) connection.Execute("Update Customer Set NamaCus = 'x' Where KodeCus = '000001'");
    }
    EXPECT_EQ(seen, 3000);
    rows.MoveFirst();
    rows.Find("KodeCus='002000'");
    rows.MoveNext();
    EXPECT_EQ(rows[0].Value(), Value("002001"));
}

} // namespace
} // namespace varnik::ado
