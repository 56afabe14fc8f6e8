// Statements that must fail, with a sentence that says why, and leave everything as it was.

#include "tests/unit/ado/Fixture.h"

namespace varnik::ado {
namespace {

class RefusalTest : public DatabaseTest {
protected:
    RefusalTest() {
        CreateAll();
        AddCustomer("A", "Adi");
    }
};

TEST_F(RefusalTest, SaysWhatIsWrongAndWhere) {
    const std::tuple<const char*, long, const char*> cases[] = {
        {"Insert Into Customer Values ('12345678901','N',0,0,0,False)", ConstraintFault,
         "The text is too long for Customer.KodeCus (at most 10 characters)."},
        {"Insert Into Customer (KodeCus,NamaCus) Values ('B','N')", ConstraintFault,
         "Customer.nJTP must be filled in."},
        {"Update Customer Set SaldoAkhir = Null", ConstraintFault, "Customer.SaldoAkhir must be filled in."},
        {"Insert Into Customer Values ('a','N',0,0,0,False)", ConstraintFault,
         "There is already a row with this Customer.KodeCus; it must be unique."},
        {"Insert Into Biaya (Diskripsi) Values ('no code')", ConstraintFault,
         "Biaya.KodeBiaya must be filled in."},
        {"Update Customer Set nJTP = 40000", Overflow, "The number is too large for Customer.nJTP."},
        {"Update Customer Set nJTP = 'soon'", TypeMismatch, "Customer.nJTP takes a number, not \"soon\"."},
        {"Select * From Nowhere", UnknownTable, "There is no table or query named \"Nowhere\"."},
        {"Select Missing From Customer", UnknownColumn, "There is no column named \"Missing\"."},
        {"Select [Missing] From Customer", UnknownColumn, "There is no column named \"Missing\"."},
        {"Insert Into Customer (Missing) Values (1)", UnknownColumn,
         "The table Customer has no column \"Missing\"."},
        {"Update Customer Set Missing = 1", UnknownColumn, "There is no column named \"Missing\"."},
        {"Insert Into Customer (KodeCus,nJTP) Values ('B',1,000)", SyntaxFault,
         "The number of values differs from the number of columns: 3 values for 2 columns."},
        {"Update Customer Set SaldoAkhir = 1,000 Where KodeCus = 'A'", SyntaxFault, nullptr},
        {"Select * From Customer Where", SyntaxFault, nullptr},
        {"Selekt", SyntaxFault, "A statement starts with SELECT, INSERT, UPDATE or DELETE."},
        {"Select * From Customer Where KodeCus = #32/1/2026#", SyntaxFault, "\"32/1/2026\" is not a date."},
    };
    Connection connection = Open();
    for (const auto& [sql, number, expected] : cases) {
        std::string text;
        EXPECT_EQ(FailureOf([&] { connection.Execute(sql); }, &text), number) << sql;
        if (expected != nullptr) {
            EXPECT_EQ(text, expected) << sql;
        }
        EXPECT_EQ(text.find("near \"\""), std::string::npos);
    }
    Recordset rows("Select * From Customer", connection);
    EXPECT_EQ(rows.RecordCount(), 1);
    EXPECT_EQ(rows["SaldoAkhir"].Value(), Value(0.0));
    EXPECT_EQ(FailureOf([&] { rows.Open("Delete From Customer", connection); }), SyntaxFault);
    EXPECT_EQ(Ask("Select Count(*) From Customer"), Value(1));
}

TEST_F(RefusalTest, RecordUpdatesAreRefusedTheSame) {
    Connection connection = Open();
    Recordset rows("Select * From Customer", connection);
    const std::tuple<const char*, Value, const char*> cases[] = {
        {"KodeCus", std::string(11, 'x'),
         "The text is too long for Customer.KodeCus (at most 10 characters)."},
        {"nJTP", nullptr, "Customer.nJTP must be filled in."},
    };
    for (const auto& [field, value, expected] : cases) {
        std::string text;
        rows[field] = value;
        EXPECT_EQ(FailureOf([&] { rows.Update(); }, &text), ConstraintFault);
        EXPECT_EQ(text, expected);
        rows.CancelUpdate();
    }
    rows.AddNew();
    rows["KodeCus"] = "B";
    EXPECT_EQ(FailureOf([&] { rows.Update(); }), ConstraintFault);
}

// A quote in a field breaks the statement it was joined into, and nothing else.
TEST_F(RefusalTest, AQuoteBreaksItsStatementOnly) {
    Connection connection = Open();
    for (const char* name : {"O'Brien", "'; Delete From Customer; '", "x','y", "a''b'c"}) {
        const std::string text(name);
        EXPECT_NE(FailureOf([&] {
                      connection.Execute("Insert Into Biaya (KodeBiaya,Diskripsi) Values ('1','" + text +
                                         "')");
                  }),
                  0)
            << name;
        EXPECT_NE(FailureOf([&] {
                      connection.Execute("Update Customer Set NamaCus = '" + text + "' Where KodeCus = 'A'");
                  }),
                  0)
            << name;
        EXPECT_NE(FailureOf([&] {
                      Recordset("Select * From Customer Where NamaCus = '" + text + "'", connection);
                  }),
                  0)
            << name;
    }
    EXPECT_EQ(connection.Execute("Update Customer Set NamaCus = 'Budi' Where KodeCus = 'A'"), 1);
    EXPECT_EQ(Ask("Select NamaCus From Customer"), Value("Budi"));
    EXPECT_EQ(Ask("Select Count(*) From Biaya"), Value(0));
}

// The rules stand in the file: a tool that knows nothing of this program meets them too.
TEST_F(RefusalTest, OtherToolsMeetTheSameRules) {
    Connection connection = Open();
    for (const char* sql : {"INSERT INTO Customer VALUES ('12345678901', NULL, 0, 0, 0, 0)",
                            "INSERT INTO Customer VALUES ('B', NULL, NULL, 0, 0, 0)",
                            "INSERT INTO Customer VALUES ('a', NULL, 0, 0, 0, 0)",
                            "INSERT INTO Biaya VALUES (NULL, 'x')", "UPDATE Biaya SET KodeBiaya = NULL"}) {
        ExecuteNative(connection, "DELETE FROM Biaya; INSERT INTO Biaya VALUES ('1', 'x')");
        EXPECT_EQ(FailureOf([&] { ExecuteNative(connection, sql); }), ConstraintFault) << sql;
    }
    ExecuteNative(connection, "INSERT INTO Customer VALUES ('B', NULL, 0, 0, 0, 0)");
}

} // namespace
} // namespace varnik::ado
