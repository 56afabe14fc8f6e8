#include "stock/Lots.h"

#include "common/Numbers.h"
#include "tests/support/TemporaryShop.h"

#include <random>

namespace varnik {
namespace {

// A shop with one product, its lots, and sales that draw them.
class Lots : public testing::Test {
protected:
    Lots() {
        connection.Execute(
            "INSERT INTO Produk (KodeBrg,NamaBrg,JenisBrg,Satuan,Pecahan,PecahanBeli,PecahanJual,QGudang,"
            "QCounter,OnOrder,OnHand,HPPAwal,HPPAkhir,HPPRata,QAwal,QJual,QBeli,HargaBeli,HargaJual,"
            "Jasa) VALUES ('P1','Rice','J1','kg',1,1,1,0,0,0,100,0,0,0,0,0,0,0,0,false)");
    }
    // A purchase line and its ledger row, as a purchase leaves them.
    void Buy(const std::string& number, double quantity, int base, double total, double left = -1) {
        const std::string open = SqlNumber(left < 0 ? quantity * base : left);
        connection.Execute(
            "INSERT INTO FakturDetail (NoFaktur,TglFaktur,KodeBrg,Qty,Qty2,Harga,Disc,Total,Jasa,QtyOrder,"
            "QtyRetur,QtySisa) VALUES ('" +
            number + "','2026-01-01','P1'," + SqlNumber(quantity) + "," + std::to_string(base) + ",1,0," +
            SqlNumber(total) + ",false,0,0," + open + ")");
        connection.Execute(
            "INSERT INTO Persediaan (NoJurnal,NoRef,Tanggal,KodeBrg,Harga1,Harga2,Pecahan,Qty1,Qty2,Saldo,"
            "QtySisa) VALUES ('11','" +
            number + "','2026-01-01','P1',0,0,1,0,0,0," + open + ")");
    }
    double Sell(double quantity, int base = 1, double onHand = 100, const std::string& invoice = "I1") {
        double cost = -1;
        connection.Execute(
            "INSERT INTO InvoiceDetail (NoInvoice,TglInvoice,KodeBrg,Qty,Qty2,Harga,Bruto,Disc,Netto,nDIS,"
            "nPPN,PPN,Total,Jasa,QtyOrder,QtyRetur,HPP,HPPRATA) VALUES ('" +
            invoice + "','2026-01-02','P1'," + SqlNumber(quantity) + "," + std::to_string(base) +
            ",0,0,0,0,0,0,0,0,false,0,0,0,0)");
        guard.Run([&](Guard& step) {
            cost = stock::ConsumeLots(step, connection,
                                      {.NoInvoice = invoice,
                                       .Tanggal = *MakeDate(2026, 1, 2),
                                       .NamaCus = " Ani ",
                                       .KodeBrg = "P1",
                                       .NamaBrg = "Rice, white",
                                       .JenisBrg = "J1",
                                       .Satuan = "bag",
                                       .Qty = quantity,
                                       .Qty2 = static_cast<double>(base),
                                       .OnHand = onHand});
        });
        return cost;
    }
    void Delete(const std::string& invoice = "I1", double onHand = 50) {
        ado::Recordset product("Select * From Produk Where KodeBrg='P1'", connection);
        guard.Run([&](Guard& step) {
            stock::RestoreLots(step, connection,
                               {.NoInvoice = invoice,
                                .Tanggal = *MakeDate(2026, 1, 3),
                                .Memo = "Sales (DELETED) Inv No. I1 Cus. Ani C1",
                                .KodeBrg = "P1",
                                .OnHand = onHand},
                               product);
        });
    }
    double Return(double quantity, const std::string& id = "R1", double onHand = 50) {
        double cost = -1;
        ado::Recordset product("Select * From Produk Where KodeBrg='P1'", connection);
        guard.Run([&](Guard& step) {
            cost = stock::ReturnLots(step, connection,
                                     {.ReturID = id,
                                      .Tanggal = *MakeDate(2026, 1, 4),
                                      .NoInvoice = "I1",
                                      .KodeBrg = "P1",
                                      .NamaBrg = "Rice, white",
                                      .Qty = quantity,
                                      .Qty2 = 1,
                                      .OnHand = onHand},
                                     product);
        });
        return cost;
    }
    void Reverse(const std::string& id = "R1", double onHand = 60) {
        ado::Recordset product("Select * From Produk Where KodeBrg='P1'", connection);
        guard.Run([&](Guard& step) {
            stock::ReverseReturnLots(step, connection,
                                     {.ReturID = id,
                                      .Tanggal = *MakeDate(2026, 1, 5),
                                      .NoInvoice = "I1",
                                      .Memo = "Sales Returns (DELETED) No. R1 Cus. Ani",
                                      .KodeBrg = "P1",
                                      .OnHand = onHand},
                                     product);
        });
    }
    std::string Open() { return shop.Table("Select NoFaktur,QtySisa From FakturDetail"); }
    std::string OpenLedger() {
        return shop.Table("Select NoRef,QtySisa From Persediaan Where NoJurnal='11'");
    }
    std::string Drawn() { return shop.Table("Select NoPO,Qty,Harga From PersediaanJual"); }
    std::string Moves(const std::string& code) {
        return shop.Table("Select NoRef,Qty1,Harga1,Qty2,Harga2,Saldo From Persediaan Where NoJurnal='" +
                          code + "'");
    }

    TemporaryShop shop;
    ado::Connection connection = shop.Connect();
    Guard guard{shop.desktop, "Err No "};
};

TEST_F(Lots, ASaleDrawsThemInTheOrderOfEntry) {
    Buy("F2", 10, 1, 50); // entered first, whatever its number
    Buy("F1", 30, 1, 180);
    EXPECT_DOUBLE_EQ(Sell(25), 10 * 5 + 15 * 6);
    EXPECT_EQ(Open(), "F2|0\nF1|15");
    EXPECT_EQ(Drawn(), "F2|10|5\nF1|15|6");
    EXPECT_EQ(Moves("31"), "I1|0|0|10|5|90\nI1|0|0|15|6|75");
    // The first open ledger row, which is the second lot's from the second draw on.
    EXPECT_EQ(OpenLedger(), "F2|0\nF1|15");
    EXPECT_EQ(shop.Table("Select Memo,NamaBrg,JenisBrg,Satuan,Pecahan,QtySisa From Persediaan Where ID=3"),
              "Sales Inv No. I1 Cus. Ani|Rice, white|J1|bag|1|0");
}

TEST_F(Lots, WhatASaleTakesAndCosts) {
    struct Case {
        const char* name;
        double lot, quantity;
        int base;
        double cost;
        const char *open, *drawn;
    };
    const Case cases[] = {
        {"exactly the lot", 10, 10, 1, 20, "0", "10|2"},
        {"part of it", 10, 4, 1, 8, "6", "4|2"},
        {"two units of twelve", 30, 2, 12, 48, "6", "24|2"},
        {"more than there is", 10, 25, 1, 20, "0", "10|2"},
        {"half a unit", 10, 0.5, 1, 1, "9.5", "0.5|2"},
        {"nothing", 10, 0, 1, 0, "10", ""},
    };
    int document = 0;
    for (const Case& c : cases) {
        const std::string number = "F" + std::to_string(++document), invoice = "I" + std::to_string(document);
        Buy(number, c.lot, 1, c.lot * 2);
        EXPECT_DOUBLE_EQ(Sell(c.quantity, c.base, 100, invoice), c.cost) << c.name;
        EXPECT_EQ(shop.Table("Select QtySisa From FakturDetail Where NoFaktur='" + number + "'"), c.open)
            << c.name;
        EXPECT_EQ(shop.Table("Select Qty,Harga From PersediaanJual Where NoInvoice='" + invoice + "'"),
                  c.drawn)
            << c.name;
        connection.Execute("Update FakturDetail Set QtySisa=0");
        connection.Execute("Update Persediaan Set QtySisa=0");
    }
    // Without any lot there is no cost and no trace.
    EXPECT_EQ(Sell(5, 1, 100, "I99"), 0);
    EXPECT_EQ(shop.Table("Select Count(*) From Persediaan Where NoRef='I99'"), "0");
}

// Another station draws 3 of the first lot between this one's reading and saving.
TEST_F(Lots, WhatAnotherStationDrewMeanwhileIsDrawnFromTheNext) {
    ado::ExecuteNative(connection,
                       "CREATE TRIGGER other AFTER UPDATE OF QtySisa ON Persediaan WHEN NOT EXISTS "
                       "(SELECT 1 FROM PersediaanJual WHERE NoInvoice = 'OTHER') BEGIN UPDATE "
                       "FakturDetail SET QtySisa = QtySisa - 3 WHERE NoFaktur = 'F1'; INSERT INTO "
                       "PersediaanJual VALUES ('OTHER', 'F1', '2026-01-01', 'P1', 3, 1); END");
    struct Case {
        double first, quantity, cost;
        const char *open, *drawn, *moves;
    };
    const Case cases[] = {
        // enough of it at first, then not
        {10, 9, 7 * 1 + 2 * 2, "F1|0\nF2|18", "I1|F1|7|1\nI1|F2|2|2", "I1|0|0|7|1|93\nI1|0|0|2|2|91"},
        // the whole lot at first
        {10, 12, 7 * 1 + 5 * 2, "F1|0\nF2|15", "I1|F1|7|1\nI1|F2|5|2", "I1|0|0|7|1|93\nI1|0|0|5|2|88"},
        // nothing is left of it
        {3, 4, 4 * 2, "F1|0\nF2|16", "I1|F2|4|2", "I1|0|0|4|2|96"},
        // still enough
        {10, 5, 5, "F1|2\nF2|20", "I1|F1|5|1", "I1|0|0|5|1|95"},
    };
    for (const Case& c : cases) {
        for (const char* table : {"FakturDetail", "Persediaan", "PersediaanJual"})
            connection.Execute(std::string("Delete From ") + table);
        Buy("F1", c.first, 1, c.first);
        Buy("F2", 20, 1, 40);
        EXPECT_DOUBLE_EQ(Sell(c.quantity), c.cost);
        EXPECT_EQ(Open(), c.open);
        EXPECT_EQ(shop.Table("Select NoInvoice,NoPO,Qty,Harga From PersediaanJual Where NoInvoice='I1'"),
                  c.drawn);
        EXPECT_EQ(Moves("31"), c.moves);
        EXPECT_EQ(shop.Table("Select Sum(QtySisa) From Persediaan"), SqlNumber(c.first + 20 - c.quantity));
    }
}

TEST_F(Lots, TheFirstOpenLedgerRowNeedNotBeTheLots) {
    Buy("F1", 10, 1, 10);
    Buy("F2", 10, 1, 10);
    connection.Execute("Update FakturDetail Set QtySisa=0 Where NoFaktur='F1'"); // the rows have drifted
    Sell(4);
    EXPECT_EQ(Open(), "F1|0\nF2|6");
    EXPECT_EQ(OpenLedger(), "F1|6\nF2|10");
    Delete(); // and the deletion raises the lot's own
    EXPECT_EQ(Open(), "F1|0\nF2|10");
    EXPECT_EQ(OpenLedger(), "F1|6\nF2|14");
}

TEST_F(Lots, ADeletionGivesEveryLotItsOwnBack) {
    Buy("F1", 10, 1, 50);
    Buy("F2", 30, 1, 180);
    Sell(25);
    Delete();
    EXPECT_EQ(Open(), "F1|10\nF2|30");
    EXPECT_EQ(Drawn(), "");
    EXPECT_EQ(Moves("32"), "I1|10|5|0|0|60\nI1|15|6|0|0|75");
    EXPECT_EQ(
        shop.Table(
            "Select Memo,NamaBrg,JenisBrg,Satuan,Pecahan From Persediaan Where NoJurnal='32' And Qty1=10"),
        "Sales (DELETED) Inv No. I1 Cus. Ani C1|Rice|J1|kg|1");

    // A lot that is gone gets nothing, and the memory of it goes all the same.
    Sell(25);
    connection.Execute("Delete From FakturDetail Where NoFaktur='F1'");
    Delete();
    EXPECT_EQ(Open(), "F2|30");
    EXPECT_EQ(Drawn(), "");
}

TEST_F(Lots, AReturnGivesBackOldestFirstAndItsDeletionTakesAgain) {
    Buy("F1", 2, 1, 10);
    Buy("F2", 5, 1, 30);
    Sell(7);
    EXPECT_DOUBLE_EQ(Return(3), 2 * 5 + 1 * 6);
    EXPECT_EQ(Open(), "F1|2\nF2|1");
    EXPECT_EQ(Drawn(), "F1|0|5\nF2|4|6"); // emptied rows stay
    EXPECT_EQ(Moves("41"), "R1|0|0|-2|5|52\nR1|0|0|-1|6|53");
    EXPECT_EQ(shop.Table("Select NoInvoice,NoPO,Qty,Harga From PersediaanRetur"), "I1|F1|2|5\nI1|F2|1|6");
    EXPECT_EQ(shop.Table("Select QtyRetur,QtyOrder From InvoiceDetail"), "3|0");
    EXPECT_EQ(OpenLedger(), "F1|0\nF2|0"); // not raised by a return

    // The second return finds the first lot emptied; what goes beyond the sale leaves no trace.
    EXPECT_DOUBLE_EQ(Return(9, "R2"), 4 * 6);
    EXPECT_EQ(Drawn(), "F1|0|5\nF2|0|6");
    EXPECT_EQ(Moves("41").substr(30), "R2|0|0|0|5|50\nR2|0|0|-4|6|54");

    Reverse();
    EXPECT_EQ(Open(), "F1|0\nF2|4");
    EXPECT_EQ(Drawn(), "F1|2|5\nF2|1|6");
    EXPECT_EQ(Moves("42"), "R1|0|0|2|5|58\nR1|0|0|1|6|57");
    EXPECT_EQ(shop.Table("Select ReturID,Qty From PersediaanRetur"), "R2|0\nR2|4");
    EXPECT_EQ(shop.Table("Select QtyRetur,QtyOrder From InvoiceDetail"), "7|-3");
}

TEST_F(Lots, AReversalLeavesOtherGoodsOfTheSameReturnAlone) {
    Buy("F1", 5, 1, 10);
    Sell(5);
    Return(2);
    connection.Execute(
        "INSERT INTO PersediaanRetur (ReturID,Tanggal,NoInvoice,NoPO,KodeBrg,Qty,Harga) VALUES "
        "('R1','2026-01-04','I1','F1','P2',9,1)");
    Reverse();
    EXPECT_EQ(Open(), "F1|0");
    EXPECT_EQ(Drawn(), "F1|5|2");
    EXPECT_EQ(shop.Table("Select KodeBrg From PersediaanRetur"), "P2");
}

TEST_F(Lots, AFaultInTheMiddleAsksStatementByStatement) {
    Buy("F1", 0, 1, 10, 4); // a lot of no quantity: its unit cost divides by zero
    Buy("F2", 10, 1, 20);
    shop.desktop.answers = {Answer::Retry, Answer::Ignore};
    EXPECT_DOUBLE_EQ(Sell(6), 4 * 0 + 2 * 2);
    EXPECT_EQ(shop.desktop.Message(), "Err No 11\r\nDivision by zero");
    EXPECT_EQ(Open(), "F1|0\nF2|8");
    EXPECT_EQ(Drawn(), "F1|4|0\nF2|2|2");
}

TEST_F(Lots, AnAbortKeepsWhatWasWrittenBefore) {
    Buy("F1", 10, 1, 20);
    ado::ExecuteNative(connection, "CREATE TRIGGER Refuse BEFORE INSERT ON PersediaanJual BEGIN SELECT "
                                   "RAISE(ABORT, 'full'); END");
    // A lot with more than is wanted: lot and movement stand when the memory of the lot fails.
    shop.desktop.answers = {Answer::Abort};
    EXPECT_EQ(Sell(4), -1);
    EXPECT_EQ(Open() + ", " + OpenLedger(), "F1|6, F1|6");
    EXPECT_EQ(Moves("31"), "I1|0|0|4|2|96");
    // A lot that is drawn to its end: the memory comes first, so neither stands.
    shop.desktop.answers = {Answer::Abort};
    EXPECT_EQ(Sell(6, 1, 96, "I2"), -1);
    EXPECT_EQ(Open() + ", " + OpenLedger(), "F1|6, F1|0");
    EXPECT_EQ(shop.Table("Select Count(*) From Persediaan Where NoRef='I2'"), "0");
}

// What deletions and returns give back equals what was taken, over many days of business.
TEST_F(Lots, EveryLotBalancesWithItsSales) {
    const unsigned seed = 20261122;
    std::mt19937 random(seed);
    SCOPED_TRACE(seed);
    const auto pick = [&](int most) { return static_cast<int>(random() % static_cast<unsigned>(most)); };
    int purchases = 0, sales = 0, returns = 0;
    for (int day = 0; day < 60; ++day) {
        const std::string invoice = "I" + std::to_string(pick(std::max(sales, 1)) + 1);
        switch (pick(5)) {
        case 0:
        case 1:
            Buy("F" + std::to_string(++purchases), 1 + pick(20), 1 + pick(12), 100 + pick(1000));
            break;
        case 2:
            Sell(1 + pick(40), 1 + pick(3), 100, "I" + std::to_string(++sales));
            break;
        case 3:
            Delete(invoice);
            break;
        default:
            Return(1 + pick(10), "R" + std::to_string(++returns));
        }
        const auto lots = shop.Rows("Select NoFaktur,Qty*Qty2,QtySisa From FakturDetail");
        for (const auto& lot : lots) {
            const auto drawn =
                shop.Rows("Select Sum(Qty) From PersediaanJual Where NoPO='" + lot[0].Text() + "'");
            EXPECT_DOUBLE_EQ(NullToNumber(lot[2], shop.regional) + NullToNumber(drawn[0][0], shop.regional),
                             NullToNumber(lot[1], shop.regional))
                << "day " << day << " lot " << lot[0].Text();
        }
        EXPECT_EQ(shop.Table("Select Sum(QtySisa) From FakturDetail Where QtySisa>0"),
                  shop.Table("Select Sum(QtySisa) From FakturDetail"));
    }
    EXPECT_GT(purchases * sales * returns, 0);
}

} // namespace
} // namespace varnik
