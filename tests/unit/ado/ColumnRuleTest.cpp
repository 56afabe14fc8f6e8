// What columns make of values: the same through a record update and through SQL text.

#include "tests/unit/ado/Fixture.h"

#include <cmath>
#include <limits>

namespace varnik::ado {
namespace {

struct Case {
    const char* column;
    Value given;
    const char* text; // the same in a statement
    Value kept;       // ignored when it is refused
    long refusal = 0;
};

class ColumnRuleTest : public DatabaseTest {
protected:
    ColumnRuleTest() {
        CreateAll();
        Run("Insert Into Widths (X) Values ('row')");
    }
};

TEST_F(ColumnRuleTest, RoundsReadsAndRefusesAlikeBothWays) {
    regional.order = DateOrder::DayMonthYear;
    regional.decimal = ',';
    regional.group = '.';
    const Case cases[] = {
        {"S", 0.1, "0.1", 0.1},
        {"S", 1.0 / 3, "1 / 3", 0.33333334},
        {"S", 16777217, "16777217", 16777216.0},
        {"S", 123456789, "123456789", 123456792.0},
        {"S", 1234567.89, "1234567.89", 1234567.875},
        {"S", 1234567.25, "1234567.25", 1234567.25},
        {"S", 25000.55, "25000.55", 25000.55},
        {"S", 1e39, "1e39", {}, Overflow},
        {"S", "1.234,5", "'1.234,5'", 1234.5},
        {"S", "viele", "'viele'", {}, TypeMismatch},
        {"D", 0.1, "0.1", 0.1},
        {"D", 7, "7", 7.0},
        {"D", "", "''", {}, TypeMismatch},
        {"L", 2.5, "2.5", 2},
        {"L", 3.5, "3.5", 4},
        {"L", -2.5, "-2.5", -2},
        {"L", 2147483647.4, "2147483647.4", 2147483647},
        {"L", 2147483648.0, "2147483648", {}, Overflow},
        {"L", -2147483649.0, "-2147483649", {}, Overflow},
        {"L", true, "True", -1},
        {"L", " 1.000 ", "' 1.000 '", 1000},
        {"H", 32767.5, "32767.5", {}, Overflow},
        {"H", -32768.5, "-32768.5", -32768},
        {"H", 0.5, "0.5", 0},
        {"C", 0.1 + 0.2, "0.1 + 0.2", 0.3},
        {"C", 2.125, "2.125", 2.125},
        {"C", 1e18, "1e18", {}, Overflow},
        {"B", 5, "5", true},
        {"B", 0, "0", false},
        {"B", "True", "'True'", true},
        {"B", "no", "'no'", false},
        {"B", "maybe", "'maybe'", {}, TypeMismatch},
        {"T", *MakeDate(2026, 12, 31), "#31/12/2026#", *MakeDate(2026, 12, 31)},
        {"T", "31/12/2026", "'31/12/2026'", *MakeDate(2026, 12, 31)},
        {"T", "12/31/2026", "'12/31/2026'", {}, TypeMismatch},
        {"T", 2.5, "2.5", *MakeDate(1900, 1, 1, 43200)},
        {"T", 2958465.0, "2958465", *MakeDate(9999, 12, 31)},
        {"T", 2958466.0, "2958466", {}, Overflow},
        {"T", -700000.0, "-700000", {}, Overflow},
        {"X", 1.5, "1.5", "1,5"},
        {"X", "äöüäöüäöüä", "'äöüäöüäöüä'", "äöüäöüäöüä"},
        {"X", "12345678901", "'12345678901'", {}, ConstraintFault},
        {"D", nullptr, "Null", nullptr},
    };
    Connection connection = Open();
    Recordset rows("Select * From Widths", connection);
    for (const Case& one : cases) {
        const std::string name = std::string(one.column) + " = " + one.text;
        EXPECT_EQ(FailureOf([&] {
                      rows[one.column] = one.given;
                      rows.Update();
                  }),
                  one.refusal)
            << name;
        rows.CancelUpdate();
        if (one.refusal == 0) {
            EXPECT_EQ(Ask("Select " + std::string(one.column) + " From Widths"), one.kept) << name;
        }
        connection.Execute("Update Widths Set " + std::string(one.column) + " = Null");
        EXPECT_EQ(FailureOf([&] { connection.Execute("Update Widths Set " + name); }), one.refusal) << name;
        EXPECT_EQ(Ask("Select " + std::string(one.column) + " From Widths"), one.refusal ? Value() : one.kept)
            << name;
        EXPECT_EQ(FailureOf([&] {
                      connection.Execute("Insert Into Widths (" + std::string(one.column) + ") Values (" +
                                         one.text + ")");
                  }),
                  one.refusal)
            << name;
        connection.Execute("Delete From Widths Where X Is Null Or X <> 'row'");
        if (Ask("Select Count(*) From Widths") == Value(0))
            connection.Execute("Insert Into Widths (X) Values ('row')");
        rows.Requery();
    }
    EXPECT_EQ(FailureOf([&] {
                  rows["D"] = std::numeric_limits<double>::infinity();
                  rows.Update();
              }),
              Overflow);
}

// A single beside a double: what is taken step by step leaves nothing behind, and the text that a screen
// shows finds the row again.
TEST_F(ColumnRuleTest, FractionsOfFourBytesLeaveNoDust) {
    Run("Update Widths Set S = 1234.1, D = 1234.1, C = 0.3");
    EXPECT_EQ(Ask("Select D - S From Widths"), 0.0);
    EXPECT_EQ(ShowValue(Ask("Select S From Widths"), regional), "1234.1");
    EXPECT_EQ(Ask("Select X From Widths Where S = 1234.1"), "row");
    Run("Update Widths Set S = 0.3");
    for (int i = 0; i < 3; ++i) Run("Update Widths Set S = S - 0.1");
    EXPECT_LT(std::abs(Ask("Select S From Widths").Double()), 1e-15);
    Connection connection = Open();
    Recordset rows("Select * From Widths", connection);
    rows["S"] = 0.1;
    rows.Update();
    EXPECT_EQ(rows["S"].Value(), 0.1);
    rows.Find("S = 0.1");
    EXPECT_FALSE(rows.Eof());
}

TEST_F(ColumnRuleTest, CountsAsTheScreensExpect) {
    AddCustomer("A", "Adi", 500);
    const std::pair<const char*, Value> cases[] = {
        {"Select SaldoAkhir = 500 From Customer", -1},
        {"Select SaldoAkhir = 501 From Customer", 0},
        {"Select SaldoAkhir / 1000 From Customer", 0.5},
        {"Select 7 / 2 From Customer", 3.5},
        {"Select NamaCus + ' - ' + KodeCus From Customer", "Adi - A"},
        {"Select KodeCus + Null From Customer", nullptr},
        {"Select nJTP + '2' From Customer", 2.0},
        {"Select Mid(NamaCus,2,9) From Customer", "di"},
        {"Select Right(NamaCus,2) + Left(NamaCus,1) From Customer", "diA"},
        {"Select KodeCus From Customer Where NamaCus Like '%d%' And Aktif = False", "A"},
        {"Select KodeCus From Customer Where namacus = 'ADI'", "A"},
    };
    for (const auto& [sql, expected] : cases) EXPECT_EQ(Ask(sql), expected) << sql;
    Run("Update Customer Set SaldoAwal = SaldoAkhir =500Where KodeCus = 'A'");
    EXPECT_EQ(Ask("Select SaldoAwal From Customer"), Value(-1.0));
    EXPECT_EQ(FailureOf([&] { Ask("Select 1 / nJTP From Customer"); }), DivisionByZero);
    EXPECT_EQ(FailureOf([&] { Run("Update Customer Set SaldoAwal = 1 / nJTP"); }), DivisionByZero);
    EXPECT_EQ(FailureOf([&] { Ask("Select nJTP + NamaCus From Customer"); }), TypeMismatch);
    EXPECT_EQ(FailureOf([&] { Divide(1, 0); }), DivisionByZero);
    EXPECT_EQ(Divide(1, 4), 0.25);
}

} // namespace
} // namespace varnik::ado
