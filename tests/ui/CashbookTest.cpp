// An expense and a receipt by keyboard, through real key events.

#include "tests/ui/Shop.h"

#include <QLabel>

namespace varnik::test {
namespace {

class CashVoucher : public ShopTest {
protected:
    CashVoucher() {
        for (const char* account : {"'1','CASH',''", "'12','BANK NUSA','77-1'"})
            Execute("INSERT INTO Bank (RekID,NamaBank,NoRek,SaldoAwal,SaldoAkhir,DefaultKas) VALUES (" +
                    std::string(account) + ",0,0,False)");
        Execute("INSERT INTO JenisBiaya (KodeJenisBiaya,JenisBiaya) VALUES ('002','TRANSPORT')");
        for (const char* cost : {"'0000000001','FUEL'", "'0000000002','TOLLS'"})
            Execute("INSERT INTO Biaya (KodeBiaya,Diskripsi,KodeJenisBiaya) VALUES (" + std::string(cost) +
                    ",'002')");
    }
};

TEST_F(CashVoucher, AnExpenseIsEnteredByKeyboardAlone) {
    Open("T09");
    Press("OtherPayment", Qt::Key_N, Qt::AltModifier);
    TypeThere("OtherPayment", "TxtCaraBayar", "CASH");
    // The key of one account begins the key of another.
    TypeThere("OtherPayment", "TxtRekening", "1");
    Press("OtherPayment", Qt::Key_Return);
    EXPECT_EQ(Focused("OtherPayment"), "TxtNamaPenerima");
    TypeThere("OtherPayment", "TxtBiaya", "0000000002");
    Press("OtherPayment", Qt::Key_Return);
    EXPECT_EQ(Focused("OtherPayment"), "TxtJenisBiaya");
    TypeThere("OtherPayment", "TxtJumlah", "12a500");
    EnterUpTo("OtherPayment", "bttnAddLine");
    Press("OtherPayment", Qt::Key_Return);
    EXPECT_EQ(Focused("OtherPayment"), "TxtBiaya");
    EXPECT_EQ(Find<QLabel>("OtherPayment", "lblJumBAYAR")->text(), "12,500.00");
    Press("OtherPayment", Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Rows("Select NoBKK From BKK Where RekID = '1' And KodeBiaya = '0000000002' And KodeJenisBiaya "
                   "= '002' And JumlahBiaya = 12500"),
              1);
    EXPECT_EQ(Focused("OtherPayment"), "bttnNew");
    EXPECT_FALSE(Find("OtherPayment", "TxtBiaya")->isEnabled());
}

TEST_F(CashVoucher, AReceiptIsEnteredAndDeletedByKeyboardAlone) {
    Open("T08");
    Press("OtherReceive", Qt::Key_N, Qt::AltModifier);
    TypeThere("OtherReceive", "TxtCaraBayar", "CASH");
    TypeThere("OtherReceive", "TxtRekening", "12");
    TypeThere("OtherReceive", "TxtJumlah", "750");
    Press("OtherReceive", Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Rows("Select NoBKM From BKM Where RekID = '12' And Jumlah = 750"), 1);
    Press("OtherReceive", Qt::Key_D, Qt::AltModifier);
    Type("OtherReceive", "txtNoBukti", "000000000100");
    Press("OtherReceive", Qt::Key_D, Qt::AltModifier); // the button that saves reads Delete
    EXPECT_EQ(Rows("Select NoBKM From BKM"), 0);
    EXPECT_EQ(Rows("Select RekID From Bank Where SaldoAkhir = 0"), 2);
}

} // namespace
} // namespace varnik::test
