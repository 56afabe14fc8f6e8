// Faults in the middle of posting and deleting an invoice: what the three answers leave in the books. A
// trigger makes each table refuse in turn; what a screen does without faults is tested by the scenarios.

#include "sales/Invoice.h"
#include "platform/forms/Controls.h"
#include "tests/support/ClerkTest.h"

namespace varnik {
namespace {

// A shop with one product in two lots, one service and one customer.
class InvoiceFaults : public ClerkTest {
protected:
    InvoiceFaults() {
        shop.Execute("INSERT INTO Customer (KodeCus,NamaCus,nDIS,nwDis,nJTP,SaldoAkhir,SaldoAwal) "
                     "VALUES ('C1','Toko Maju',0,0,0,0,0)");
        Product("B1", "False");
        Product("J1", "True");
        Purchase("P1", 10, 1000);
        Purchase("P2", 30, 3600);
        Open(std::make_unique<Invoice>(shop.services));
    }

    void Product(const std::string& code, const std::string& service) {
        shop.Execute("INSERT INTO Produk (KodeBrg,NamaBrg,Satuan,Pecahan,SatuanBeli,PecahanBeli,SatuanJual,"
                     "PecahanJual,QGudang,QCounter,OnOrder,OnHand,HPPAwal,HPPAkhir,HPPRata,QAwal,QJual,QBeli,"
                     "HargaBeli,HargaJual,Jasa) VALUES ('" +
                     code + "','Goods','PCS',1,'PCS',1,'PCS',1,40,0,0,40,0,0,115,0,0,0,0,1000," + service +
                     ")");
    }
    void Purchase(const std::string& number, int quantity, int total) {
        const std::string pieces = std::to_string(quantity);
        shop.Execute("INSERT INTO FakturDetail (NoFaktur,TglFaktur,KodeBrg,Qty,Qty2,Harga,Disc,Total,Jasa,"
                     "QtyOrder,QtyRetur,QtySisa) VALUES ('" +
                     number + "',#11/01/2026#,'B1'," + pieces + ",1,0,0," + std::to_string(total) +
                     ",False,0,0," + pieces + ")");
        shop.Execute("INSERT INTO Persediaan (NoJurnal,NoRef,Tanggal,KodeBrg,Harga1,Harga2,Pecahan,Qty1,Qty2,"
                     "Saldo,QtySisa) VALUES ('11','" +
                     number + "',#11/01/2026#,'B1',0,0,1," + pieces + ",0,0," + pieces + ")");
    }

    void Line(const char* code, const char* quantity) {
        if (auto& frame = Control<forms::Frame>("FrameIsiBarang"); !frame.IsShown())
            screen->PressKey({.code = forms::KeyCode::Enter});
        Fill("txtKodeBrg", code);
        Fill("txtQty", quantity);
        Click("bttnAddLine");
    }
    void Sell() {
        Click("bttnNew");
        Fill("TxtKodeCus", "C1");
        Line("B1", "25");
        Line("J1", "1");
        Click("bttnSave");
    }
    void Delete(const char* number) {
        Click("bttnDel");
        Fill("TxtNoInvoice", number);
        Click("bttnSave");
    }

    std::string Books() {
        std::string books;
        for (const char* statement :
             {"Select * From Invoice", "Select * From InvoiceDetail", "Select * From Customer",
              "Select * From Produk", "Select * From FakturDetail", "Select * From PersediaanJual",
              "Select NoJurnal,NoRef,Tanggal,KodeBrg,Memo,Harga1,Harga2,Qty1,Qty2,Saldo,QtySisa From "
              "Persediaan"})
            books += shop.Table(statement) + "\n--\n";
        return books;
    }
};

struct Fault {
    const char *doing, *table;
};
constexpr Fault PostingFaults[] = {
    {"INSERT", "Invoice"},      {"UPDATE", "Customer"},       {"INSERT", "InvoiceDetail"},
    {"UPDATE", "Produk"},       {"UPDATE", "Persediaan"},     {"INSERT", "Persediaan"},
    {"UPDATE", "FakturDetail"}, {"INSERT", "PersediaanJual"},
};
constexpr Fault DeletingFaults[] = {
    {"DELETE", "Invoice"},        {"UPDATE", "Customer"},      {"UPDATE", "Produk"},
    {"INSERT", "Persediaan"},     {"UPDATE", "FakturDetail"},  {"UPDATE", "Persediaan"},
    {"DELETE", "PersediaanJual"}, {"DELETE", "InvoiceDetail"},
};
constexpr const char* First = "000000000100";

TEST_F(InvoiceFaults, RetryAfterTheFaultIsLiftedEndsInTheSameBooksWhereverItStruck) {
    Sell();
    const std::string sold = Books();
    Delete(First);
    const std::string deleted = Books();
    // What a deletion leaves behind: the two ledger rows of every lot, and the selling price.
    const auto restart = [&] {
        shop.Execute("Delete From Persediaan Where NoJurnal <> '11'");
        shop.Execute("Update Produk Set HargaJual = 1000");
    };
    shop.desktop.meanwhile = [this] { shop.Allow(); };
    for (const Fault& fault : PostingFaults) {
        SCOPED_TRACE(std::string("posting: ") + fault.doing + " " + fault.table);
        restart();
        shop.Refuse(fault.doing, fault.table);
        shop.desktop.boxes.clear();
        shop.desktop.answers = {Answer::Retry};
        Sell();
        ASSERT_EQ(shop.desktop.boxes.size(), 1U);
        EXPECT_TRUE(shop.desktop.boxes[0].text.starts_with("Err No "));
        EXPECT_NE(shop.desktop.boxes[0].text.find("the shelf is locked"), std::string::npos);
        EXPECT_EQ(Books(), sold);
        Delete(First);
    }
    for (const Fault& fault : DeletingFaults) {
        SCOPED_TRACE(std::string("deleting: ") + fault.doing + " " + fault.table);
        restart();
        Sell();
        shop.Refuse(fault.doing, fault.table);
        shop.desktop.answers = {Answer::Retry};
        Delete(First);
        EXPECT_TRUE(shop.desktop.answers.empty());
        EXPECT_EQ(Books(), deleted);
    }
}

TEST_F(InvoiceFaults, AbortKeepsWhatWasWrittenBeforeAndNothingAfter) {
    shop.Refuse("UPDATE", "Produk");
    shop.desktop.answers = {Answer::Abort};
    Sell();
    EXPECT_EQ(shop.Table("Select NoInvoice, Total From Invoice"), "000000000100|26000");
    EXPECT_EQ(shop.Table("Select SaldoAkhir From Customer"), "26000");
    EXPECT_EQ(shop.Table("Select KodeBrg From InvoiceDetail"), "");
    EXPECT_EQ(shop.Table("Select OnHand From Produk Where KodeBrg = 'B1'"), "40");
    EXPECT_EQ(shop.Table("Select NoRef From Persediaan Where NoJurnal = '31'"), "");
    // The screen is ready for the next document all the same.
    shop.Allow();
    Click("bttnNew");
    EXPECT_EQ(Control<forms::TextBox>("TxtNoInvoice").Text(), "000000000200");
}

TEST_F(InvoiceFaults, IgnorePassesOverTheOneStatement) {
    shop.Refuse("UPDATE", "Customer");
    shop.desktop.answers = {Answer::Ignore};
    Sell();
    EXPECT_EQ(shop.Table("Select SaldoAkhir From Customer"), "0");
    EXPECT_EQ(shop.Table("Select KodeBrg, Total, HPP From InvoiceDetail"), "B1|25000|2800\nJ1|1000|0");
    EXPECT_EQ(shop.Table("Select OnHand From Produk Where KodeBrg = 'B1'"), "15");
}

TEST_F(InvoiceFaults, APrintWhoseDefinitionIsMissingSaysSoAndLeavesTheButton) {
    shop.desktop.reportFailure = "The report definition \"Invoice.rpt\" was not found.";
    Click("bttnPrint");
    EXPECT_EQ(shop.desktop.Message(), shop.desktop.reportFailure);
    EXPECT_TRUE(Control<forms::Button>("bttnPrint").Enabled());
}

} // namespace
} // namespace varnik
