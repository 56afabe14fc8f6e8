// The pieces of a definition: what is read, what is refused, and what the pieces make of rows.

#include "platform/ado/Ado.h"
#include "reports/engine/RequestTexts.h"
#include "reports/engine/Statement.h"
#include "reports/engine/TextMetrics.h"
#include "tests/unit/reports/ReportCases.h"

#include <gmock/gmock.h>

using namespace varnik;
using namespace varnik::reports;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

std::string Description(const std::function<void()>& work) {
    try {
        work();
    } catch (const ado::DataError& fault) {
        return fault.Description();
    }
    return "no failure";
}

std::string Printed(const std::string& definition, const std::string& rows,
                    std::map<std::string, std::string> parameters = {}) {
    return Report(ReadDefinition(definition, "Test.rpt"), RowsOf(rows), FactsOf(std::move(parameters)))
        .Text();
}

} // namespace

TEST(Definition, RefusesWhatItCannotReadWithFileAndLine) {
    struct Case {
        std::string text, expected;
    };
    for (const Case& test : {
             Case{"title = \"A\"\ntitel = \"B\"\n", "\"Test.rpt\" is broken in line 2: \"titel\" is no key"},
             Case{"[[column]]\nheading = \"A\"\n", "in line 1: a column has exactly one of"},
             Case{"[[column]]\nfield = \"A\"\nwidth = \"wide\"\n",
                  "in line 3: \"width\" of a column has to be a number"},
             Case{"[[column]]\nfield = \"A\"\n\nalign = \"middle\"\n",
                  "in line 4: \"align\" of a column cannot be"},
             Case{"[[column]]\nformula = \"Qty * (Harga\"\n",
                  "in line 2: the formula \"Qty * (Harga\" cannot be read"},
             Case{"[[column]]\nformula = \"" + std::string(100000, '(') + "\"\n", "it is nested too deep"},
             Case{"[[group]]\nby = \"A\"\nheader = \"{A\"\n",
                  "in line 3: the text \"{A\" lacks a closing brace"},
             Case{"[document]\ntotals = [\"Netto\"]\n",
                  "in line 2: \"totals\" of document has to hold pairs"},
             Case{"[[column]]\nrunning = true\n", "a running column needs the [running] section"},
             Case{"[running]\nchange = \"A\"\nbalance = \"B\"\n", "needs a [[group]]"},
             Case{"title = \n", "is broken in line 1"},
         }) {
        SCOPED_TRACE(test.text);
        EXPECT_THAT(Description([&] { ReadDefinition(test.text, "Test.rpt"); }), HasSubstr(test.expected));
    }
}

TEST(Definition, IsFoundWithoutRegardToCaseAndMissedByName) {
    EXPECT_EQ(LoadDefinition("Report", "INVOICE.RPT").file, "Invoice.rpt");
    EXPECT_THAT(Description([] { LoadDefinition("Report", "Nowhere.rpt"); }),
                HasSubstr("The report definition \"Nowhere.rpt\" is missing"));
    EXPECT_THAT(Description([] { LoadDefinition("no such folder", "Invoice.rpt"); }),
                HasSubstr("is missing"));
}

TEST(Definition, FormulasOfTheRequest) {
    ReportRequest request;
    request.SetTitles(15, "Toko", "Line; 1", "", "=");
    const auto formulas = ReadFormulas(request);
    EXPECT_EQ(formulas.at("Judul1"), "Toko");
    EXPECT_EQ(formulas.at("Judul2"), "Line; 1");
    EXPECT_EQ(formulas.at("Judul3"), "");
    EXPECT_EQ(formulas.at("Judul4"), "=");
    request.SetTitles(15, "Toko", "Line", "Jum'at", "");
    EXPECT_THAT(Description([&] { ReadFormulas(request); }), HasSubstr("apostrophe"));
    for (const std::string broken : {"Judul1", "Judul1 ='open", "='text'", "Judul1 =text"}) {
        request.Formulas = {{0, broken}};
        EXPECT_NE(Description([&] { ReadFormulas(request); }), "no failure") << broken;
    }
    request.ParameterFields = {
        {0, "Judul;Periode 1 To 2;True"}, {1, "Detail;S;True"}, {3, "SubJudul;a;b;True"}};
    const auto parameters = ReadParameters(request);
    EXPECT_EQ(parameters.at("Judul"), "Periode 1 To 2");
    EXPECT_EQ(parameters.at("Detail"), "S");
    EXPECT_EQ(parameters.at("SubJudul"), "a;b");
}

TEST(Statement, MissingColumnsComeBackEmpty) {
    const auto knows = [](const std::string& sql) { return sql.find("KodeAcc") == std::string::npos; };
    EXPECT_EQ(
        WithoutMissingColumns(
            "Select KodeBiaya, B.KodeAcc , Mid(a,1,2) As X from Biaya B Where 1=2 Order By KodeBiaya", knows),
        "SELECT KodeBiaya, Null AS [KodeAcc], Mid(a,1,2) As X from Biaya B Where 1=2 Order By KodeBiaya");
    EXPECT_FALSE(WithoutMissingColumns(
        "Select KodeJenisCus, JenisCusFrom JenisCustomer Order By KodeJenisCus", knows));
    EXPECT_FALSE(WithoutMissingColumns("Select a From", [](const std::string&) { return false; }));
    EXPECT_FALSE(WithoutMissingColumns("Select A, , B From C", knows));
}

TEST(Statement, ADocumentsNumberIsLiftedFromTheStatementThatGaveWay) {
    const std::string query = "SELECT * FROM QryInvoice WHERE NoInvoice = {NoInvoice} ORDER BY KodeBrg";
    EXPECT_EQ(ForDocument(query,
                          "SELECT x, From QryInvoice  Where Invoice.NoInvoice ='000000012300'   Order By y",
                          "I"),
              "SELECT * FROM QryInvoice WHERE NoInvoice = '000000012300' ORDER BY KodeBrg");
    EXPECT_EQ(ForDocument("WHERE a = {a}", "where [A] = 'it''s'", "I"), "WHERE a = 'it''s'");
    EXPECT_EQ(ForDocument("SELECT 1", "", "I"), "SELECT 1");
    EXPECT_THAT(Description([&] { ForDocument(query, "Where KodeCus = '1'", "Invoice.rpt"); }),
                HasSubstr("NoInvoice"));
    EXPECT_TRUE(LiteralsClosed("a = 'it''s' and b = \"x'y\""));
    EXPECT_FALSE(LiteralsClosed("Where JenisBrg = 'O'1' Order"));
}

TEST(Layout, RunningBalanceFromOpeningOrBackFromClosing) {
    const std::string definition = R"(
[running]
change = "Debit - Kredit"
opening = "SaldoAwal"
closing = "SaldoAkhir"
[[column]]
heading = "Voucher"
field = "NoBukti"
width = 60
[[column]]
heading = "Debit"
field = "Debit"
total = true
[[column]]
heading = "Kredit"
field = "Kredit"
total = true
[[column]]
heading = "Balance"
running = true
)";
    const std::string rows = "NoBukti|Debit#|Kredit#\nR1|500|0\nP1||1200\n";
    const auto squeeze = [](const std::string& text) {
        std::string squeezed;
        for (const char c : text)
            if (c != ' ' || !squeezed.ends_with(' ')) squeezed += c;
        return squeezed;
    };
    const std::string both =
        squeeze(Printed(definition, rows, {{"SaldoAwal", "1,000"}, {"SaldoAkhir", "300"}}));
    EXPECT_THAT(
        both,
        HasSubstr("Opening balance 1,000\n R1 500 0 1,500\n P1 1,200 300\n Closing balance 500 1,200 300\n"));
    EXPECT_EQ(squeeze(Printed(definition, rows, {{"SaldoAkhir", "300"}})), both);
    EXPECT_THAT(
        squeeze(Printed(definition, "NoBukti|Debit#|Kredit#", {{"SaldoAwal", "-5"}, {"SaldoAkhir", "-5"}})),
        HasSubstr("Opening balance -5\n"));
}

TEST(Layout, AgesByDaysAndLeavesOutWhatIsPaid) {
    const std::string definition = R"(
leave_out_zero = "Saldo"
[[column]]
heading = "Invoice"
field = "No"
[[column]]
heading = "0-30"
field = "Saldo"
hide_zero = true
total = true
age = { date = "Tgl", up_to = 30 }
[[column]]
heading = "31-60"
field = "Saldo"
hide_zero = true
total = true
age = { date = "Tgl", from = 31, up_to = 60 }
[[column]]
heading = "over 60"
field = "Saldo"
hide_zero = true
total = true
age = { date = "Tgl", from = 61 }
)";
    const std::string text =
        Printed(definition, "No|Tgl@|Saldo#\n"
                            "today|2026-11-22|1\nday30|2026-10-23|2\nday31|2026-10-22|10\n"
                            "day60|2026-09-23|20\nday61|2026-09-22|100\npaid|2026-01-01|0\n"
                            "ahead|2026-12-01|4\nnone||\n");
    EXPECT_THAT(text, testing::ContainsRegex("Total +7 +30 +100\n"));
    EXPECT_THAT(text, Not(HasSubstr("paid")));
    EXPECT_THAT(text, Not(HasSubstr("none")));
}

TEST(Layout, SumsPlacesAndWordsOfTemplates) {
    const std::string definition = R"(
[document]
heading = "VOUCHER"
fields = [["Number", "{No}"], ["Seller", "{Missing|judul1}"], ["Nothing", "{Missing}"]]
totals = [["Sum", "{sum Amount}"], ["Calculated", "{sum Twice}"]]
words = "{Terbilang|words sum Amount} only"
[[column]]
heading = "Twice"
formula = "-(0 - Amount) * 4 / 2"
[[column]]
heading = "Elsewhere"
field = "Elsewhere"
[[column]]
heading = "Gone"
field = "Elsewhere"
optional = true
)";
    const std::string text = Printed(definition, "No|Amount#|Terbilang\nV1|40.5|\nV1|2|\n");
    EXPECT_THAT(text, HasSubstr("Fourty Three only")); // words are of the rounded amount
    EXPECT_THAT(text, testing::ContainsRegex("Sum +42.50\n"));
    EXPECT_THAT(text, testing::ContainsRegex("Calculated +85.00\n"));
    EXPECT_THAT(text, HasSubstr("Elsewhere"));
    EXPECT_THAT(text, Not(HasSubstr("Gone")));
    EXPECT_THAT(text, testing::ContainsRegex("Seller +TOKO MAJU JAYA\n"));
    EXPECT_THAT(text, Not(HasSubstr("Nothing")));
}

TEST(Layout, WrapsAtBlanksAndInsideLongWords) {
    EXPECT_THAT(Wrap("", 50, 9), ElementsAre(""));
    EXPECT_THAT(Wrap("one\r\ntwo\n", 50, 9), ElementsAre("one", "two"));
    EXPECT_THAT(Wrap("aaaa bbbb cccc", TextWidth("aaaa bbbb", 9), 9), ElementsAre("aaaa bbbb", "cccc"));
    const std::vector<std::string> broken = Wrap(std::string(30, 'W'), 20, 9);
    EXPECT_GT(broken.size(), 2u);
    for (const std::string& line : broken) EXPECT_LE(TextWidth(line, 9), 20.01);
    for (double width : {5.0, 17.0, 40.0, 200.0})
        for (const std::string text : {"", "Pasir beton dari Cimalaka, dicuci", "Üçüncü şahıs ödemeleri"})
            EXPECT_EQ(WrappedLines(text, width, 9), static_cast<int>(Wrap(text, width, 9).size())) << text;
}
