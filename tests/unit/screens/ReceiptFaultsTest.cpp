// Faults in the middle of posting and deleting receipts and returns: what Abort, Retry and Ignore leave in
// the books. A trigger makes each table refuse in turn; what the screens do without faults is tested by the
// scenarios.

#include "platform/forms/Controls.h"
#include "platform/forms/Grid.h"
#include "sales/Bayar.h"
#include "sales/BayarInvoice.h"
#include "sales/InvoiceRetur.h"
#include "tests/support/ClerkTest.h"

namespace varnik {
namespace {

// One invoice of 500 over five pieces out of two lots, one customer, one account.
class ReceiptFaults : public ClerkTest {
public:
    ReceiptFaults() {
        shop.Execute("INSERT INTO Customer (KodeCus,NamaCus,nDIS,nwDis,nJTP,SaldoAkhir,SaldoAwal) "
                     "VALUES ('C1','Toko Maju',0,0,0,500,0)");
        shop.Execute("INSERT INTO Bank (RekID,NamaBank,NoRek,SaldoAwal,SaldoAkhir,DefaultKas) "
                     "VALUES ('1','Cash','',0,0,True)");
        shop.Execute("INSERT INTO Produk (KodeBrg,NamaBrg,Satuan,Pecahan,SatuanBeli,PecahanBeli,SatuanJual,"
                     "PecahanJual,QGudang,QCounter,OnOrder,OnHand,HPPAwal,HPPAkhir,HPPRata,QAwal,QJual,QBeli,"
                     "HargaBeli,HargaJual,Jasa) VALUES ('B1','Goods','PCS',1,'PCS',1,'PCS',1,5,0,0,5,0,0,0,0,"
                     "0,0,0,100,False)");
        shop.Execute("INSERT INTO Invoice (NoInvoice,TglInvoice,TglJTP,KodeCus,Bruto,Disc,Netto,Total,nPPN,"
                     "PPN,Bayar,Saldo,NoUser) VALUES ('000000000100',#11/22/2026#,#11/22/2026#,'C1',500,0,"
                     "500,500,0,0,0,500,'00')");
        shop.Execute("INSERT INTO InvoiceDetail (NoInvoice,TglInvoice,KodeCus,KodeBrg,Diskripsi,Qty,Satuan,"
                     "Qty2,Harga,Disc,Netto,PPN,Total,nDis,nPPN,HPP,HPPRATA,QtyOrder,QtyRetur,Bruto,Jasa) "
                     "VALUES ('000000000100',#11/22/2026#,'C1','B1','Goods',5,'PCS',1,100,0,500,0,500,0,0,0,"
                     "0,0,0,500,False)");
        for (const char* lot : {"'P1',2", "'P2',3"}) {
            const std::string number(lot, 4), drawn(lot + 5);
            shop.Execute("INSERT INTO FakturDetail (NoFaktur,TglFaktur,KodeBrg,Qty,Qty2,Harga,Disc,Total,"
                         "Jasa,QtyOrder,QtyRetur,QtySisa) VALUES (" +
                         number + ",#11/01/2026#,'B1',5,1,0,0,500,False,0,0,0)");
            shop.Execute("INSERT INTO PersediaanJual (NoInvoice,Tanggal,NoPO,KodeBrg,Qty,Harga) VALUES ("
                         "'000000000100',#11/22/2026#," +
                         number + ",'B1'," + drawn + ",60)");
        }
    }

    void Pay() { Click("bttnSave"); }
    void Receive() {
        Click("bttnNew");
        Fill("TxtCaraBayar", "CASH");
        Fill("TxtRekening", "1");
        Fill("TxtNoInvoice", "000000000100");
        Click("bttnAddLine");
        Click("bttnSave");
    }
    void TakeBack() {
        Click("bttnNew");
        Fill("TxtNoInvoice", "000000000100");
        Click("bttnSave");
    }
    void DeleteReturn() {
        Click("bttnDel");
        Fill("TxtReturID", "000000000100");
        Click("bttnSave");
    }

    std::string Books() {
        std::string books;
        for (const char* statement :
             {"Select * From Invoice", "Select * From InvoiceDetail", "Select * From Customer",
              "Select * From Bank", "Select * From BKM", "Select * From InvoiceBayar",
              "Select * From InvoiceRetur", "Select * From InvoiceReturDetail", "Select * From Produk",
              "Select * From FakturDetail", "Select * From PersediaanJual", "Select * From PersediaanRetur",
              "Select NoJurnal,NoRef,KodeBrg,Memo,Qty1,Qty2,Harga2,Saldo From Persediaan"})
            books += shop.Table(statement) + "\n--\n";
        return books;
    }
};

struct Fault {
    const char *doing, *table;
};

// Each fault in a shop of its own: retried after the shelf is open again it ends in the same books as
// without.
struct FaultCase {
    const char* posting;
    Fault fault;
};
void PrintTo(const FaultCase& each, std::ostream* out) {
    *out << each.posting << " " << each.fault.doing << " " << each.fault.table;
}

class ReceiptRetry : public ReceiptFaults, public testing::WithParamInterface<FaultCase> {
public:
    void Prepare() {
        const std::string posting = GetParam().posting;
        if (posting == "Bayar")
            Open(std::make_unique<Bayar>(shop.services, "000000000100"));
        else if (posting == "BayarInvoice" || posting == "receipt deleted")
            Open(std::make_unique<BayarInvoice>(shop.services));
        else
            Open(std::make_unique<InvoiceRetur>(shop.services));
        if (posting == "receipt deleted") Receive();
        if (posting == "return deleted") TakeBack();
    }
    void Post() {
        const std::string posting = GetParam().posting;
        if (posting == "Bayar")
            Pay();
        else if (posting == "BayarInvoice")
            Receive();
        else if (posting == "InvoiceRetur")
            TakeBack();
        else if (posting == "return deleted")
            DeleteReturn();
        else {
            shop.desktop.answers.push_front(Answer::Yes);
            Click("bttnDel");
        }
    }
};

TEST_P(ReceiptRetry, EndsInTheSameBooks) {
    Prepare();
    const std::string before = Books();
    shop.Refuse(GetParam().fault.doing, GetParam().fault.table);
    int asked = 0;
    shop.desktop.meanwhile = [&] {
        if (shop.desktop.boxes.back().buttons != Buttons::AbortRetryIgnore) return;
        ++asked;
        shop.Allow();
    };
    shop.desktop.answers = {Answer::Retry};
    Post();
    EXPECT_EQ(asked, 1);
    EXPECT_NE(shop.desktop.boxes.back().text.find("the shelf is locked"), std::string::npos);
    EXPECT_TRUE(shop.desktop.boxes.back().text.starts_with("Err No "));
    const std::string retried = Books();
    EXPECT_NE(retried, before);

    struct Clean : ReceiptRetry {
        void TestBody() override {}
    } clean;
    clean.Prepare();
    clean.Post();
    EXPECT_EQ(clean.Books(), retried);
}

INSTANTIATE_TEST_SUITE_P(
    , ReceiptRetry,
    testing::Values(
        FaultCase{"Bayar", {"INSERT", "BKM"}}, FaultCase{"Bayar", {"UPDATE", "Bank"}},
        FaultCase{"Bayar", {"INSERT", "InvoiceBayar"}}, FaultCase{"Bayar", {"UPDATE", "Invoice"}},
        FaultCase{"Bayar", {"UPDATE", "Customer"}}, FaultCase{"BayarInvoice", {"INSERT", "BKM"}},
        FaultCase{"BayarInvoice", {"INSERT", "InvoiceBayar"}},
        FaultCase{"BayarInvoice", {"UPDATE", "Invoice"}}, FaultCase{"BayarInvoice", {"UPDATE", "Customer"}},
        FaultCase{"BayarInvoice", {"UPDATE", "Bank"}}, FaultCase{"receipt deleted", {"DELETE", "BKM"}},
        FaultCase{"receipt deleted", {"UPDATE", "Invoice"}}, FaultCase{"receipt deleted", {"UPDATE", "Bank"}},
        FaultCase{"receipt deleted", {"UPDATE", "Customer"}},
        FaultCase{"receipt deleted", {"DELETE", "InvoiceBayar"}},
        FaultCase{"InvoiceRetur", {"INSERT", "InvoiceRetur"}},
        FaultCase{"InvoiceRetur", {"UPDATE", "Invoice"}}, FaultCase{"InvoiceRetur", {"UPDATE", "Produk"}},
        FaultCase{"InvoiceRetur", {"UPDATE", "FakturDetail"}},
        FaultCase{"InvoiceRetur", {"INSERT", "PersediaanRetur"}},
        FaultCase{"InvoiceRetur", {"INSERT", "Persediaan"}},
        FaultCase{"InvoiceRetur", {"UPDATE", "PersediaanJual"}},
        FaultCase{"InvoiceRetur", {"INSERT", "InvoiceReturDetail"}},
        FaultCase{"return deleted", {"UPDATE", "Customer"}},
        FaultCase{"return deleted", {"UPDATE", "FakturDetail"}},
        FaultCase{"return deleted", {"DELETE", "PersediaanRetur"}},
        FaultCase{"return deleted", {"DELETE", "InvoiceReturDetail"}},
        FaultCase{"return deleted", {"DELETE", "InvoiceRetur"}}));

TEST_F(ReceiptFaults, AbortKeepsWhatWasWrittenBeforeAndNothingAfter) {
    Open(std::make_unique<BayarInvoice>(shop.services));
    shop.Refuse("UPDATE", "Customer");
    shop.desktop.answers = {Answer::Abort};
    Receive();
    EXPECT_EQ(shop.Table("Select Jumlah From BKM"), "500");
    EXPECT_EQ(shop.Table("Select Bayar, Saldo From Invoice"), "500|0");
    EXPECT_EQ(shop.Table("Select SaldoAkhir From Customer"), "500");
    EXPECT_EQ(shop.Table("Select SaldoAkhir From Bank"), "0");
}

TEST_F(ReceiptFaults, IgnorePassesOverTheOneStatement) {
    Open(std::make_unique<InvoiceRetur>(shop.services));
    shop.Refuse("UPDATE", "Customer");
    shop.desktop.answers = {Answer::Ignore};
    TakeBack();
    EXPECT_EQ(shop.Table("Select SaldoAkhir From Customer"), "500");
    EXPECT_EQ(shop.Table("Select Bayar, Saldo From Invoice"), "500|0");
    EXPECT_EQ(shop.Table("Select Qty From PersediaanRetur"), "2\n3");
}

} // namespace
} // namespace varnik
