// Lists and postings in a made-up shop: what they show, and that they cost what is looked at. Counted in
// steps of the engine, never in time.

#include "bench/shop/Fill.h"
#include "data/DataSource.h"
#include "data/Queries.h"
#include "platform/ado/Connection.h"
#include "tests/support/TemporaryShop.h"

namespace varnik {
namespace {

class MadeUpShop : public testing::Test {
protected:
    MadeUpShop() { bench::FillShop(data::DatabaseFile(shop.folder.Path()), 300); }

    // What a Static recordset reads, as texts; in a fixed order where the statement has none.
    std::vector<std::string> Whole(const std::string& sql) {
        std::vector<std::string> lines;
        for (const std::vector<Value>& row : shop.Rows(sql)) lines.push_back(Line(row));
        return lines;
    }
    std::vector<std::string> Listed(const ado::RowList& list) {
        std::vector<std::string> lines;
        for (int i = 0; i < list.Count(); ++i) lines.push_back(Line(list.Row(i)));
        return lines;
    }
    std::string Line(const std::vector<Value>& row) {
        std::string line;
        for (const Value& value : row) line += ShowValue(value, shop.regional) + "|";
        return line;
    }
    std::int64_t Steps(ado::Connection& connection) {
        return connection.Implementation().Open().Native().Steps();
    }

    TemporaryShop shop;
};

TEST_F(MadeUpShop, ListsOverEveryStoredQueryHaveItsRows) {
    ado::Connection connection = shop.Connect();
    for (const data::StoredQuery& query : data::StoredQueries()) {
        const std::string sql = "Select * From " + query.name;
        std::vector<std::string> whole = Whole(sql), listed = Listed(ado::RowList(sql, connection));
        std::ranges::sort(whole);
        std::ranges::sort(listed);
        EXPECT_TRUE(listed == whole) << query.name << ": " << listed.size() << " rows and " << whole.size();
    }
}

// As the search panels ask: joined text, conditions, an order.
TEST_F(MadeUpShop, ASearchOfDocumentsReadsTheRowsThatAreLookedAt) {
    ado::Connection connection = shop.Connect();
    for (const std::string sql :
         {"Select KodeCus, NamaCus, NoInvoice, TglInvoice, Netto, PPN, Total, Bayar, Saldo FROM "
          "QryInvCustomer "
          " Where NoInvoice Like '%%' Order By KodeCus,TglInvoice,NoInvoice",
          "Select KodeCus, NamaCus, NoBKM,TglBKM, NoInvoice, TglInvoice,Jumlah FROM QryCustomerReceive "
          " Where NamaCus Like  '%a%' Order By KodeCus,NoBKM,NoInvoice",
          "Select NoBKM, TglBKM, Keterangan,  Jumlah  ,RekID,  NamaBank,  NoRek,  Penyetor, NamaCus From "
          "QryBKM "
          " Where noBKM Like '%%' Order By TglBKM, NoBKM "}) {
        const ado::RowList list(sql, connection);
        ASSERT_GT(list.Count(), 100) << sql;
        const std::int64_t before = Steps(connection);
        for (int row = 0; row < 10; ++row) list.Row(list.Count() / 2 + row);
        EXPECT_LT(Steps(connection) - before, 10 * 200) << sql;
        EXPECT_TRUE(Listed(list) == Whole(sql)) << sql;
    }
    // Documents with a balance are found among the open ones alone.
    const std::int64_t before = Steps(connection);
    const ado::RowList open("Select NoInvoice, Saldo FROM QryInvCustomer Where Saldo >=   1000 "
                            " Order By KodeCus,TglInvoice,NoInvoice",
                            connection);
    EXPECT_EQ(open.Count(),
              static_cast<int>(shop.Rows("Select NoInvoice From Invoice Where Saldo >= 1000").size()));
    EXPECT_LT(Steps(connection) - before, open.Count() * 40 + 400);
    // What changes meanwhile shows, and what is gone is empty.
    const ado::RowList list("Select NoInvoice, Saldo, NamaCus From QryInvCustomer Order By NoInvoice",
                            connection);
    const std::string first = list.Row(0)[0].Text();
    shop.Execute("Update Invoice Set Saldo = 7 Where NoInvoice = '" + first + "'");
    EXPECT_EQ(list.Row(0)[1], Value(7.0));
    shop.Execute("Delete From Invoice Where NoInvoice = '" + first + "'");
    EXPECT_TRUE(list.Row(0).empty());
}

} // namespace
} // namespace varnik
