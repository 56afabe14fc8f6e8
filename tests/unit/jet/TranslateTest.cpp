// The screens' dialect: what each shape of text becomes.

#include "platform/jet/Translate.h"

#include <gtest/gtest.h>

namespace varnik::jet {
namespace {

constexpr Column BankColumns[] = {{"RekID", ColumnType::Text, 3},
                                  {"NamaBank", ColumnType::Text, 50},
                                  {"SaldoAkhir", ColumnType::Double, 0, true},
                                  {"DefaultKas", ColumnType::Boolean, 0, true}};
constexpr Column InvoiceColumns[] = {{"NoInvoice", ColumnType::Text, 12},
                                     {"TglInvoice", ColumnType::Date, 0, true},
                                     {"Total", ColumnType::Single, 0, true},
                                     {"Saldo", ColumnType::Double, 0, true},
                                     {"Bayar", ColumnType::Double, 0, true}};
constexpr Table Tables[] = {{"Bank", BankColumns}, {"Invoice", InvoiceColumns}};
const Catalog TestCatalog{Tables};

Statement Read(std::string_view sql, DateOrder order = DateOrder::MonthDayYear) {
    Regional regional;
    regional.order = order;
    return Translate(sql, TestCatalog, regional);
}

TEST(Translate, RewritesWhatTheEngineWouldReadOtherwise) {
    const std::pair<const char*, const char*> cases[] = {
        // texts and dates leave, numbers of conditions stay
        {"Select * From Bank Where RekID='A1';", "select * from Bank where RekID = ?1"},
        {"Select * From Bank Where SaldoAkhir > 0", "select * from Bank where SaldoAkhir > 0"},
        {"Select * From Bank Where RekID=\"A\"\"1\"", "select * from Bank where RekID = ?1"},
        {"Select * From Invoice Where TglInvoice=#1/2/2026#Order By NoInvoice",
         "select * from Invoice where TglInvoice = ?1 order By NoInvoice"},
        {"Select x From Invoice Where TglInvoice between Datevalue('1/2/2026') and datevalue ( '1/3/2026' )",
         "select x from Invoice where TglInvoice between ?1 and ?2"},
        // names in brackets, derived tables, aliases
        {"Select [Saldo] From [Invoice] i", "select \"Saldo\" from \"Invoice\" i"},
        {"Select a.x From (Bank LEFT JOIN [Select RekID From Bank Group By RekID]. AS a ON Bank.RekID = "
         "a.RekID)",
         "select a . x from ( Bank LEFT JOIN ( select RekID from Bank group By RekID ) AS a on Bank . RekID "
         "= a . "
         "RekID )"},
        // functions
        {"SELECT MID(NoInvoice,11,2) AS NOUSER, MAX(MID(NoInvoice,1,10)) AS ID FROM Invoice GROUP BY "
         "MID(NoInvoice,11,2);",
         "select substr ( NoInvoice , 11 , 2 ) AS NOUSER , MAX ( substr ( NoInvoice , 1 , 10 ) ) AS ID from "
         "Invoice group BY substr ( NoInvoice , 11 , 2 )"},
        {"Select Max (RekID) as Kode From Bank ", "select Max ( RekID ) as Kode from Bank"},
        {"Select a From Invoice Where month(TglInvoice)= 3 Or Year (TglInvoice) = 2026",
         "select a from Invoice where cast ( substr ( TglInvoice , 6 , 2 ) as integer ) = 3 Or cast ( "
         "substr ( "
         "TglInvoice , 1 , 4 ) as integer ) = 2026"},
        // a month of a year is a stretch of days as well, and a fixed code goes through a join
        {"Select a From Invoice Where month(TglInvoice)= 3 And Year (TglInvoice) = 2026",
         "select a from Invoice where cast ( substr ( TglInvoice , 6 , 2 ) as integer ) = 3 And cast ( "
         "substr ( TglInvoice , 1 , 4 ) as integer ) = 2026 and TglInvoice >= printf ( '%04d-%02d' , 2026 , "
         "3 ) and TglInvoice < printf ( '%04d-%02d~' , 2026 , 3 )"},
        {"Select a From Bank LEFT OUTER JOIN Q ON Bank.RekID = Q.RekID Where Saldo Between 1 And 2 And "
         "Bank.RekID = 'A1'",
         "select a from Bank LEFT OUTER JOIN Q on Bank . RekID = Q . RekID and Q . RekID = ?1 collate nocase "
         "where Saldo Between 1 And 2 And Bank . RekID = ?2"},
        {"Select a From Bank LEFT JOIN Q ON Bank.RekID = Q.RekID Where Bank.RekID = 'A1' Or Q.b = 1",
         "select a from Bank LEFT JOIN Q on Bank . RekID = Q . RekID where Bank . RekID = ?1 Or Q . b = 1"},
        // texts are joined, numbers added
        {"Select RekID + ' - '+NamaBank as N, SaldoAkhir + 1 as S From Bank",
         "select RekID || ?1 || NamaBank as N , SaldoAkhir + 1 as S from Bank"},
        {"Select RekID From Bank Where RekID +NamaBank  Like '%A%' Order By RekID",
         "select RekID from Bank where RekID || NamaBank Like ?1 order By RekID"},
        {"Select unknown + '(' + unknown + ')' From other",
         "select unknown || ?1 || unknown || ?2 from other"},
        {"Select (RekID+NamaBank)+RekID From Bank", "select ( RekID || NamaBank ) || RekID from Bank"},
        {"Select SaldoAkhir + '5' From Bank", "select SaldoAkhir + ReadNumber ( ?1 ) from Bank"},
        {"Select -SaldoAkhir * -2 + 3 From Bank", "select - SaldoAkhir * - 2 + 3 from Bank"},
        // division
        {"Select (Total/(Saldo*Bayar)) AS H, Total/2*3 From Invoice",
         "select ( Total / Divisor ( ( Saldo * Bayar ) ) ) AS H , Total / Divisor ( 2 ) * 3 from Invoice"},
        // a comparison as a value
        {"Select Saldo > 0 as O, (Saldo = 1 Or Bayar = 2) as P From Invoice Where (Saldo = 1) Or Not (Bayar "
         "= 2)",
         "select - ( Saldo > 0 ) as O , ( - ( Saldo = 1 Or Bayar = 2 ) ) as P from Invoice where ( Saldo = 1 "
         ") Or "
         "Not ( Bayar = 2 )"},
        {"Select a From Bank Where DefaultKas = True", "select a from Bank where DefaultKas = -1"},
        // writing: numbers leave too, each value goes through its column
        {"Update Bank Set SaldoAkhir = SaldoAkhir + 101Where RekID ='1'",
         "update Bank set SaldoAkhir = AsStored ( SaldoAkhir + ?1 , 0 , 2 ) where RekID = ?2"},
        {"Update Invoice Set Bayar=Bayar - 500 , Saldo = Saldo =500 Where NoInvoice = 'X'",
         "update Invoice set Bayar = AsStored ( Bayar - ?1 , 1 , 4 ) , Saldo = AsStored ( - ( Saldo = ?2 ) , "
         "1 , 3 "
         ") where NoInvoice = ?3"},
        {"INSERT INTO BANK (RekID,DefaultKas) Values ('1',True)",
         "insert into BANK ( RekID , DefaultKas ) values ( AsStored ( ?1 , 0 , 0 ) , AsStored ( -1 , 0 , 3 ) "
         ")"},
        {"INSERT INTO Bank VALUES ('1','N',-5.5,False)",
         "insert into Bank values ( AsStored ( ?1 , 0 , 0 ) , AsStored ( ?2 , 0 , 1 ) , AsStored ( - ?3 , 0 "
         ", 2 ) "
         ", AsStored ( 0 , 0 , 3 ) )"},
        {"Delete * From Bank Where RekID = '1'", "delete From Bank where RekID = ?1"},
    };
    for (const auto& [sql, expected] : cases) EXPECT_EQ(Read(sql).sql, expected) << sql;
}

TEST(Translate, HandsLiteralsOnInOrder) {
    const Statement statement =
        Read("Insert Into Invoice (NoInvoice,TglInvoice,Total,Saldo) Values ('O''1', #31/12/2026#, 7, 1.5)",
             DateOrder::DayMonthYear);
    ASSERT_EQ(statement.parameters.size(), 4u);
    EXPECT_EQ(statement.parameters[0], Value("O'1"));
    EXPECT_EQ(statement.parameters[1], Value(*MakeDate(2026, 12, 31)));
    EXPECT_EQ(statement.parameters[2], Value(7));
    EXPECT_EQ(statement.parameters[3], Value(1.5));
    EXPECT_EQ(Read("Select a From b Where c < Datevalue('01/ 3/ 2026')").parameters[0],
              Value(*MakeDate(2026, 1, 3)));
    // A null character belongs to the text it stands in.
    EXPECT_EQ(Read(std::string_view("Select a From b Where c = 'x\0y'", 31)).parameters[0],
              Value(std::string("x\0y", 3)));
}

TEST(Translate, TellsAPlainSelectOfOneTable) {
    const Statement plain = Read("Select * From invoice a Where a.Saldo > 0 Order By NoInvoice Desc");
    EXPECT_EQ(plain.singleTable, "Invoice");
    EXPECT_EQ(plain.columns, "*");
    EXPECT_EQ(plain.from, "invoice a");
    EXPECT_EQ(plain.where, "a . Saldo > 0");
    EXPECT_EQ(plain.order, "NoInvoice Desc");
    for (const char* other :
         {"Select Max(RekID) From Bank", "Select a.* From Bank a, Invoice b",
          "Select RekID From Bank Group By RekID", "Select Distinct RekID From Bank",
          "Select RekID From Bank Union Select NoInvoice From Invoice", "Select * From QryBKM"})
        EXPECT_EQ(Read(other).singleTable, "") << other;
}

TEST(Translate, RefusesWhatIsNoStatement) {
    for (const char* text :
         {"", "  ", "Select * From Bank Where NamaBank='O'Brien'", "Select 'a", "Select [a From b",
          "Select #1/1/2026", "Delete From Bank; Delete From Invoice",
          "Select * From Invoice Where TglInvoice = #31/31/2026#",
          "Select a From b Where c = Datevalue('tomorrow')", "Select (a From b", "Select a) From b",
          "Drop Table Bank", "PRAGMA user_version", "Select a From b Where c = $", "Update Bank Set",
          "Insert Into Bank Values (1,,2)",
          "UPDATE SUPPLIER SET  SaldoAkhir = SaldoAkhir -  1,000' Where KodeSup = ' S1'"})
        EXPECT_THROW(Read(text), SyntaxError) << text;
    const auto nested = [](std::size_t depth) {
        return "Select " + std::string(depth, '(') + "1" + std::string(depth, ')') + " From Bank";
    };
    Read(nested(200));
    EXPECT_THROW(Read(nested(100000)), SyntaxError);
}

TEST(Translate, TextsOfOnePlaceHaveOneShape) {
    const auto shape = [](const char* sql) { return Tokenize(sql).shape; };
    EXPECT_EQ(shape("Update Bank Set SaldoAkhir = SaldoAkhir + 5 Where RekID ='1'"),
              shape("Update Bank Set SaldoAkhir=SaldoAkhir+1234.5Where RekID='2''3'"));
    EXPECT_NE(shape("Select a From b Where c > 0"), shape("Select a From b Where c > 1"));
    EXPECT_NE(shape("Select a From b Where c = '1'"), shape("Select a From b Where c = #1#"));
}

TEST(Criterion, ReadsFindsAndFilters) {
    const Regional regional;
    const std::vector<Term> terms =
        ParseCriterion("KodeBrg='A1' And UserId LIKE 'a*b?' And [Qty] >= -2.5", regional);
    ASSERT_EQ(terms.size(), 3u);
    EXPECT_EQ(ConditionOf(terms[0], 1), "\"KodeBrg\" = ?1");
    EXPECT_EQ(ConditionOf(terms[1], 2), "\"UserId\" like ?2");
    EXPECT_EQ(terms[1].value, Value("a%b_"));
    EXPECT_EQ(ConditionOf(terms[2], 7), "\"Qty\" >= ?7");
    EXPECT_EQ(terms[2].value, Value(-2.5));
    EXPECT_EQ(ConditionOf(ParseCriterion("A <> Null", regional)[0], 1), "\"A\" is not null");
    for (const char* bad :
         {"", "KodeBrg", "KodeBrg=", "='A'", "KodeBrg='O'Brien'", "A='1' Or B='2'", "A='1' B='2'"})
        EXPECT_THROW(ParseCriterion(bad, regional), SyntaxError) << bad;
}

TEST(Criterion, PatternsKnowNoCase) {
    const std::tuple<const char*, const char*, bool> cases[] = {
        {"%beras%", "Toko BERAS Jaya", true},
        {"a%", "ba", false},
        {"%", "", true},
        {"", "", true},
        {"a_c", "AbC", true},
        {"a_c", "ac", false},
        {"caf_", "Café", true},
        {"%É", "café", true},
        {"a%b%c", "aXbXbXc", true},
        {"a%b%c", "ab", false},
    };
    for (const auto& [pattern, text, expected] : cases)
        EXPECT_EQ(Like(pattern, text), expected) << pattern << " " << text;
}

} // namespace
} // namespace varnik::jet
