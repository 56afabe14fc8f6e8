// A purchase and its payment by keyboard, through real key events.

#include "tests/ui/Shop.h"

#include <QLabel>

namespace varnik::test {
namespace {

class Purchase : public ShopTest {
protected:
    Purchase() {
        Execute("INSERT INTO Supplier (KodeSup,NamaSup,nDIS,nwDis,nJTP,SaldoAwal,SaldoAkhir) VALUES "
                "('S1','PT PABRIK SEMEN',0,0,30,0,0)");
        Execute("INSERT INTO Bank (RekID,NamaBank,NoRek,SaldoAwal,SaldoAkhir,DefaultKas) VALUES "
                "('901','KAS TOKO','-',0,0,False)");
        Execute(
            "INSERT INTO Produk (KodeBrg,NamaBrg,Jasa,JenisBrg,QAwal,QJual,QBeli,HPPAwal,HPPAkhir,HPPRata,"
            "Pecahan,Satuan,PecahanBeli,SatuanBeli,HargaBeli,PecahanJual,SatuanJual,HargaJual,QCounter,"
            "QGudang,OnHand,OnOrder,KodeSup,KodeRef,Ket) VALUES ('A1','Semen',False,'001',0,0,0,0,0,0,1,"
            "'SAK',40,'PALET',50000,1,'SAK',60000,0,0,0,0,'','','')");
    }
};

TEST_F(Purchase, IsEnteredAndPaidByKeyboardAlone) {
    Open("T04");
    Press("Faktur", Qt::Key_N, Qt::AltModifier);
    TypeThere("Faktur", "TxtKodeSup", "S1");
    Press("Faktur", Qt::Key_Return);
    EXPECT_EQ(Focused("Faktur"), "OrderGrid");
    Press("Faktur", Qt::Key_Return);
    TypeThere("Faktur", "txtKodeBrg", "A1");
    TypeThere("Faktur", "txtQty", "2");
    TypeThere("Faktur", "TxtSatuan", "PALET"); // typed into the drop-down, in this order
    EnterUpTo("Faktur", "bttnAddLine");
    Press("Faktur", Qt::Key_Return);
    EXPECT_EQ(Text("Faktur", "txtJumTotal"), "100,000");
    Press("Faktur", Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Rows("Select KodeBrg From FakturDetail Where QtySisa = 80 And Satuan = 'PALET'"), 1);

    Open("T05");
    Press("BayarFaktur", Qt::Key_N, Qt::AltModifier);
    TypeThere("BayarFaktur", "TxtCaraBayar", "CASH");
    TypeThere("BayarFaktur", "TxtRekening", "901");
    EnterUpTo("BayarFaktur", "TxtNamaPenerima");
    EXPECT_FALSE(Find("BayarFaktur", "TxtNoCek")->isEnabled());
    TypeThere("BayarFaktur", "TxtNoFaktur", "000000000100");
    EnterUpTo("BayarFaktur", "bttnAddLine");
    Press("BayarFaktur", Qt::Key_Return);
    const auto* total = Find<QLabel>("BayarFaktur", "lblJumBAYAR");
    EXPECT_EQ(total->text(), "100,000.00");
    EXPECT_GE(total->width(), total->sizeHint().width());
    Press("BayarFaktur", Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Rows("Select NoBKK From BKK Where RekID = '901' And Jumlah = 100000"), 1);
    EXPECT_EQ(Rows("Select NoFaktur From Faktur Where Saldo = 0"), 1);
}

} // namespace
} // namespace varnik::test
